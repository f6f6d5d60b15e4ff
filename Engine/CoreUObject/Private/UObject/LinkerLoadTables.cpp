#include "UObject/LinkerLoad.h"

#include "PackageBytes.h"
#include "UObject/Package.h"
#include "UObject/PackageSections.h"

namespace
{
constexpr int32 NameHashBytes = 4;
constexpr int64 MinNameBytes = 4;
/** Every linker that ever was has its own. */
uint64 NextLinkerId = 1;
constexpr int64 MinImportBytes = 28;
constexpr int64 MinExportBytes = 60;
/** What objects and elements take in memory, for each byte of the file and to begin with: far more than any editor's file needs. */
constexpr int64 MemoryPerFileByte = 256;
constexpr int64 MemoryOfAnyFile = 64 << 20;

bool IsInTable(FPackageIndex Index, int32 NumExports, int32 NumImports)
{
	return Index.IsNull() || (Index.IsExport() ? Index.ToExport() < NumExports : Index.ToImport() < NumImports);
}
}

FLinkerLoad::FLinkerLoad(TUniquePtr<FPackageBytes>&& InFile, const FString& InFilename, UPackage* Package)
	: File(MoveTemp(InFile))
	, Id(NextLinkerId++)
{
	Filename = InFilename;
	LinkerRoot = Package;
	Limit = File->Num();
	WholeFile = File->GetWhole();
	MemoryLeft = MemoryOfAnyFile + File->Num() * MemoryPerFileByte;
	SetIsLoading(true);
	SetIsPersistent(true);
}

FLinkerLoad::~FLinkerLoad() = default;

int64 FLinkerLoad::GetFileSize() const
{
	return File->Num();
}

int64 FLinkerLoad::GetTableEnd(EPackageSection Section) const
{
	const int64* const End = TableEnds.Find(static_cast<uint8>(Section));
	return End ? *End : -1;
}

void FLinkerLoad::EndTable(EPackageSection Section)
{
	TableEnds.Add(static_cast<uint8>(Section), Position);
}

TUniquePtr<FLinkerLoad> FLinkerLoad::Create(const FString& Filename, UPackage* Package, FString& OutError)
{
	TUniquePtr<FPackageBytes> Bytes = FPackageBytes::Open(Filename, OutError);
	if (!Bytes)
	{
		OutError = FString::Printf(TEXT("%s: %s"), *Filename, *OutError);
		return nullptr;
	}
	return CreateFromFile(MoveTemp(Bytes), Filename, Package, OutError);
}

TUniquePtr<FLinkerLoad> FLinkerLoad::Create(TArray<uint8>&& InBytes, const FString& Filename, UPackage* Package, FString& OutError)
{
	return CreateFromFile(MakeUnique<FPackageBytes>(MoveTemp(InBytes)), Filename, Package, OutError);
}

TUniquePtr<FLinkerLoad> FLinkerLoad::CreateFromFile(TUniquePtr<FPackageBytes>&& InFile, const FString& Filename, UPackage* Package, FString& OutError)
{
	TUniquePtr<FLinkerLoad> Linker(new FLinkerLoad(MoveTemp(InFile), Filename, Package));
	FString Reason;
	if (!Linker->LoadTables(Reason))
	{
		OutError = FString::Printf(TEXT("%s: %s"), *Filename, *Reason);
		return nullptr;
	}
	return Linker;
}

bool FLinkerLoad::LoadTables(FString& OutError)
{
	if (!Summary.Serialize(*this, OutError))
	{
		return false;
	}
	EndTable(EPackageSection::Summary);
	if (!LoadNames(OutError) || !LoadSoftObjectPaths(OutError) || !LoadImportsAndExports(OutError))
	{
		return false;
	}
	LoadSoftPackageReferences();
	LoadDependencies();
	return CheckExports(OutError) && CheckValues(OutError) && CheckEndOfFile(OutError);
}

bool FLinkerLoad::BeginTable(int32 Count, int32 Offset, int64 MinEntryBytes, const TCHAR* What, FString& OutError)
{
	const int64 Room = File->Num() - static_cast<int64>(Offset);
	if (Count < 0 || (Count > 0 && (Offset <= 0 || Room < 0 || Count > Room / MinEntryBytes)))
	{
		OutError = FString::Printf(TEXT("the table of %s (%d at offset %d) does not fit into the file's %lld bytes"), What, Count, Offset, static_cast<long long>(File->Num()));
		return false;
	}
	Seek(Count > 0 ? Offset : Position);
	return true;
}

bool FLinkerLoad::LoadNames(FString& OutError)
{
	if (!BeginTable(Summary.NameCount, Summary.NameOffset, MinNameBytes, TEXT("names"), OutError))
	{
		return false;
	}
	NameMap.Reserve(Summary.NameCount);
	FString Name;
	for (int32 Index = 0; Index < Summary.NameCount; ++Index)
	{
		FArchive& Ar = *this;
		const int64 Start = Position;
		Ar << Name;
		if (UEVer() >= VER_UE4_NAME_HASHES_SERIALIZED)
		{
			Seek(Position + NameHashBytes);
		}
		if (IsError() || Name.Len() >= NAME_SIZE)
		{
			OutError = FString::Printf(TEXT("name %d of %d at offset %lld is cut off or too long"), Index, Summary.NameCount, static_cast<long long>(Start));
			return false;
		}
		// The suffix belongs to each use of a name, never to the table's entry.
		NameMap.Add(FName(*Name, NAME_NO_NUMBER_INTERNAL));
	}
	EndTable(EPackageSection::Names);
	return true;
}

bool FLinkerLoad::LoadSoftObjectPaths(FString& OutError)
{
	constexpr int64 MinPathBytes = 20;
	if (!BeginTable(Summary.SoftObjectPathsCount, Summary.SoftObjectPathsOffset, MinPathBytes, TEXT("soft object paths"), OutError))
	{
		return false;
	}
	for (int32 Index = 0; Index < Summary.SoftObjectPathsCount; ++Index)
	{
		SoftObjectPathList.AddDefaulted_GetRef().SerializePath(*this);
	}
	EndTable(EPackageSection::SoftObjectPaths);
	if (IsError())
	{
		OutError = FString::Printf(TEXT("the table of soft object paths is cut off or damaged at offset %lld"), static_cast<long long>(ErrorPosition));
	}
	return !IsError();
}

bool FLinkerLoad::LoadImportsAndExports(FString& OutError)
{
	if (!BeginTable(Summary.ImportCount, Summary.ImportOffset, MinImportBytes, TEXT("imports"), OutError))
	{
		return false;
	}
	ImportMap.SetNum(Summary.ImportCount);
	for (FObjectImport& Import : ImportMap)
	{
		Import.Serialize(*this);
	}
	EndTable(EPackageSection::Imports);
	if (!BeginTable(Summary.ExportCount, Summary.ExportOffset, MinExportBytes, TEXT("exports"), OutError))
	{
		return false;
	}
	ExportMap.SetNum(Summary.ExportCount);
	for (FObjectExport& Export : ExportMap)
	{
		Export.Serialize(*this);
	}
	EndTable(EPackageSection::Exports);
	if (IsError())
	{
		OutError = FString::Printf(TEXT("the table of imports or exports is cut off or damaged at offset %lld"), static_cast<long long>(ErrorPosition));
	}
	return !IsError();
}

bool FLinkerLoad::CheckExports(FString& OutError) const
{
	for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
	{
		const FObjectExport& Export = ExportMap[Index];
		const bool bFits = Export.SerialSize >= 0 && Export.SerialOffset >= 0 && Export.SerialOffset <= File->Num() && Export.SerialSize <= File->Num() - Export.SerialOffset;
		if (!bFits)
		{
			OutError = FString::Printf(TEXT("export %d (%s) has %lld bytes at offset %lld, beyond the file's %lld bytes"), Index, *Export.ObjectName.ToString(), static_cast<long long>(Export.SerialSize), static_cast<long long>(Export.SerialOffset), static_cast<long long>(File->Num()));
			return false;
		}
		for (const FPackageIndex Reference : {Export.ClassIndex, Export.SuperIndex, Export.OuterIndex, Export.TemplateIndex})
		{
			if (!IsInTable(Reference, ExportMap.Num(), ImportMap.Num()))
			{
				OutError = FString::Printf(TEXT("export %d (%s) refers to entry %d, which the tables do not have"), Index, *Export.ObjectName.ToString(), Reference.ForDebugging());
				return false;
			}
		}
	}
	for (int32 Index = 0; Index < ImportMap.Num(); ++Index)
	{
		if (!IsInTable(ImportMap[Index].OuterIndex, ExportMap.Num(), ImportMap.Num()))
		{
			OutError = FString::Printf(TEXT("import %d (%s) has outer %d, which the tables do not have"), Index, *ImportMap[Index].ObjectName.ToString(), ImportMap[Index].OuterIndex.ForDebugging());
			return false;
		}
	}
	return true;
}

/** No byte is two exports' or the tables': who reads each export's bytes would read the same ones as often as a table can claim. */
bool FLinkerLoad::CheckValues(FString& OutError) const
{
	TArray<int32> Order;
	for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
	{
		if (ExportMap[Index].SerialSize > 0)
		{
			Order.Add(Index);
		}
	}
	Order.Sort([this](int32 A, int32 B)
		{ return ExportMap[A].SerialOffset < ExportMap[B].SerialOffset; });
	int64 End = FMath::Max(0, Summary.TotalHeaderSize);
	for (const int32 Index : Order)
	{
		const FObjectExport& Export = ExportMap[Index];
		if (Export.SerialOffset < End)
		{
			OutError = FString::Printf(TEXT("export %d (%s) claims bytes at offset %lld that belong to the header or to another export"),
				Index, *Export.ObjectName.ToString(), static_cast<long long>(Export.SerialOffset));
			return false;
		}
		End = Export.SerialOffset + Export.SerialSize;
	}
	return true;
}

bool FLinkerLoad::CheckEndOfFile(FString& OutError) const
{
	if (UEVer() >= EUnrealEngineObjectUE5Version::PAYLOAD_TOC && Summary.PayloadTocOffset >= File->Num())
	{
		OutError = FString::Printf(TEXT("the file is cut off: the index of its payloads at offset %lld is beyond its %lld bytes"), static_cast<long long>(Summary.PayloadTocOffset), static_cast<long long>(File->Num()));
		return false;
	}
	// The last bytes of a file say that it was written to its end.
	const bool bHasTrailer = UEVer() >= EUnrealEngineObjectUE5Version::PAYLOAD_TOC || !Summary.bUnversioned;
	uint32 Trailer = 0;
	if (bHasTrailer && (!File->Read(File->Num() - static_cast<int64>(sizeof(Trailer)), &Trailer, sizeof(Trailer)) || Trailer != PACKAGE_FILE_TAG))
	{
		OutError = FString::Printf(TEXT("the file is cut off: its %lld bytes do not end with the package tag"), static_cast<long long>(File->Num()));
		return false;
	}
	return true;
}

void FLinkerLoad::LoadDependencies()
{
	FArchive& Ar = *this;
	constexpr int64 MinEntryBytes = 4;
	FString Reason;
	const bool bHasDepends = Summary.DependsOffset > 0 && BeginTable(ExportMap.Num(), Summary.DependsOffset, MinEntryBytes, TEXT("dependencies"), Reason);
	DependsMap.SetNum(bHasDepends ? ExportMap.Num() : 0);
	for (TArray<FPackageIndex>& Depends : DependsMap)
	{
		Ar << Depends;
	}
	EndTable(EPackageSection::Depends);
	if (!IsError() && BeginTable(Summary.PreloadDependencyCount > 0 ? Summary.PreloadDependencyCount : 0, Summary.PreloadDependencyOffset, MinEntryBytes, TEXT("preload dependencies"), Reason))
	{
		PreloadDependencies.SetNum(FMath::Max(Summary.PreloadDependencyCount, 0));
		for (FPackageIndex& Dependency : PreloadDependencies)
		{
			Ar << Dependency;
		}
	}
	if (IsError() || !Reason.IsEmpty())
	{
		Errors.Add(IsError() ? FString::Printf(TEXT("the table of dependencies is damaged at offset %lld"), static_cast<long long>(ErrorPosition)) : Reason);
		ClearError();
	}
}

void FLinkerLoad::LoadSoftPackageReferences()
{
	FString Reason;
	constexpr int64 MinReferenceBytes = 4;
	if (!BeginTable(Summary.SoftPackageReferencesCount, Summary.SoftPackageReferencesOffset, MinReferenceBytes, TEXT("soft references"), Reason))
	{
		Errors.Add(Reason);
		return;
	}
	for (int32 Index = 0; Index < Summary.SoftPackageReferencesCount && !IsError(); ++Index)
	{
		FArchive& Ar = *this;
		FName Name;
		if (UEVer() >= VER_UE4_ADDED_SOFT_OBJECT_PATH)
		{
			Ar << Name;
		}
		else
		{
			FString Text;
			Ar << Text;
			Name = Text.Len() < NAME_SIZE ? FName(*Text) : FName();
		}
		SoftPackageReferenceList.Add(Name);
	}
	EndTable(EPackageSection::SoftPackageReferences);
	if (IsError())
	{
		Errors.Add(FString::Printf(TEXT("the table of soft references is damaged at offset %lld"), static_cast<long long>(ErrorPosition)));
		ClearError();
	}
}

void FLinkerLoad::LoadMetaData()
{
	if (Summary.MetaDataOffset <= 0 || UEVer() < EUnrealEngineObjectUE5Version::METADATA_SERIALIZATION_OFFSET || !LinkerRoot)
	{
		return;
	}
	FArchive& Ar = *this;
	Limit = File->Num();
	Seek(Summary.MetaDataOffset);
	int32 NumObjects = 0;
	int32 NumRoot = 0;
	Ar << NumObjects << NumRoot;
	for (int32 Index = 0; Index < NumObjects && !IsError(); ++Index)
	{
		UObject* Object = nullptr;
		TMap<FName, FString> Values;
		Ar << Object << Values;
		if (Object && !IsError())
		{
			LinkerRoot->GetMetaData().SetObjectValues(Object, MoveTemp(Values));
		}
	}
	for (int32 Index = 0; Index < NumRoot && !IsError(); ++Index)
	{
		FName Key;
		FString Value;
		Ar << Key << Value;
		LinkerRoot->GetMetaData().RootMetaDataMap.Add(Key, Value);
	}
	if (IsError())
	{
		Errors.Add(FString::Printf(TEXT("the package's metadata is damaged at offset %lld"), static_cast<long long>(ErrorPosition)));
		ClearError();
	}
}

#include "UObject/LinkerLoad.h"

#include "Misc/FileHelper.h"
#include "UObject/Package.h"

namespace
{
constexpr int32 NameHashBytes = 4;
constexpr int64 MinNameBytes = 4;
constexpr int64 MinImportBytes = 28;
constexpr int64 MinExportBytes = 60;

bool IsInTable(FPackageIndex Index, int32 NumExports, int32 NumImports)
{
	return Index.IsNull() || (Index.IsExport() ? Index.ToExport() < NumExports : Index.ToImport() < NumImports);
}
}

FLinkerLoad::FLinkerLoad(TArray<uint8>&& InBytes, const FString& InFilename, UPackage* Package)
	: Bytes(MoveTemp(InBytes))
{
	Filename = InFilename;
	LinkerRoot = Package;
	Limit = Bytes.Num();
	SetIsLoading(true);
	SetIsPersistent(true);
}

TUniquePtr<FLinkerLoad> FLinkerLoad::Create(const FString& Filename, UPackage* Package, FString& OutError)
{
	TArray<uint8> FileBytes;
	if (!FFileHelper::LoadFileToArray(FileBytes, *Filename))
	{
		OutError = FString::Printf(TEXT("%s: the file cannot be read"), *Filename);
		return nullptr;
	}
	return Create(MoveTemp(FileBytes), Filename, Package, OutError);
}

TUniquePtr<FLinkerLoad> FLinkerLoad::Create(TArray<uint8>&& InBytes, const FString& Filename, UPackage* Package, FString& OutError)
{
	TUniquePtr<FLinkerLoad> Linker(new FLinkerLoad(MoveTemp(InBytes), Filename, Package));
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
	if (!Summary.Serialize(*this, OutError) || !LoadNames(OutError) || !LoadSoftObjectPaths(OutError) || !LoadImportsAndExports(OutError))
	{
		return false;
	}
	LoadSoftPackageReferences();
	return CheckExports(OutError);
}

bool FLinkerLoad::BeginTable(int32 Count, int32 Offset, int64 MinEntryBytes, const TCHAR* What, FString& OutError)
{
	const int64 Room = Bytes.Num() - static_cast<int64>(Offset);
	if (Count < 0 || (Count > 0 && (Offset <= 0 || Room < 0 || Count > Room / MinEntryBytes)))
	{
		OutError = FString::Printf(TEXT("the table of %s (%d at offset %d) does not fit into the file's %d bytes"), What, Count, Offset, Bytes.Num());
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
	for (int32 Index = 0; Index < Summary.NameCount; ++Index)
	{
		FString Name;
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
	if (!BeginTable(Summary.ExportCount, Summary.ExportOffset, MinExportBytes, TEXT("exports"), OutError))
	{
		return false;
	}
	ExportMap.SetNum(Summary.ExportCount);
	for (FObjectExport& Export : ExportMap)
	{
		Export.Serialize(*this);
	}
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
		const bool bFits = Export.SerialSize >= 0 && Export.SerialOffset >= 0 && Export.SerialOffset <= Bytes.Num() && Export.SerialSize <= Bytes.Num() - Export.SerialOffset;
		if (!bFits)
		{
			OutError = FString::Printf(TEXT("export %d (%s) has %lld bytes at offset %lld, beyond the file's %d bytes"), Index, *Export.ObjectName.ToString(), static_cast<long long>(Export.SerialSize), static_cast<long long>(Export.SerialOffset), Bytes.Num());
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
	// The last bytes of a file say that it was written to its end.
	const bool bHasTrailer = UEVer() >= EUnrealEngineObjectUE5Version::PAYLOAD_TOC || !Summary.bUnversioned;
	uint32 Trailer = 0;
	if (bHasTrailer && Bytes.Num() >= static_cast<int32>(sizeof(Trailer)))
	{
		FMemory::Memcpy(&Trailer, Bytes.GetData() + Bytes.Num() - sizeof(Trailer), sizeof(Trailer));
	}
	if (UEVer() >= EUnrealEngineObjectUE5Version::PAYLOAD_TOC && Summary.PayloadTocOffset >= Bytes.Num())
	{
		OutError = FString::Printf(TEXT("the file is cut off: the index of its payloads at offset %lld is beyond its %d bytes"), static_cast<long long>(Summary.PayloadTocOffset), Bytes.Num());
		return false;
	}
	if (bHasTrailer && Trailer != PACKAGE_FILE_TAG)
	{
		OutError = FString::Printf(TEXT("the file is cut off: its %d bytes do not end with the package tag"), Bytes.Num());
		return false;
	}
	return true;
}

void FLinkerLoad::LoadSoftPackageReferences()
{
	FString Ignored;
	constexpr int64 MinReferenceBytes = 4;
	if (!BeginTable(Summary.SoftPackageReferencesCount, Summary.SoftPackageReferencesOffset, MinReferenceBytes, TEXT("soft references"), Ignored))
	{
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
	Limit = Bytes.Num();
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

#include "UObject/AssetRegistryTagsContext.h"
#include "Misc/Crc.h"
#include "UObject/Class.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"
#include "UObject/PackageSections.h"

namespace
{
/** Marks the index of payloads that follow a package, and the trailer's end. */
constexpr uint64 PayloadTrailerHeader = 0xD1C43B2E80A5F697ull;
constexpr uint64 PayloadTrailerFooter = 0x29BFCA045138DE76ull;

/** The engine whose form the files have. */
FSavedEngineVersion GetWritingEngineVersion()
{
	FSavedEngineVersion Version;
	Version.Major = 5;
	Version.Minor = 6;
	Version.Branch = TEXT("++UE5+Release-5.6");
	return Version;
}

/** A name's hash of its text without regard to case, then with it. */
void WriteNameHashes(FArchive& Ar, const FString& Name)
{
	// Text that fits into single bytes is hashed as such, other text by both bytes of each character.
	const bool bIsNarrow = FCString::IsPureAnsi(*Name);
	uint16 NonCaseHash = static_cast<uint16>(bIsNarrow ? FCrc::Strihash_DEPRECATED(TCHAR_TO_ANSI(*Name)) : FCrc::Strihash_DEPRECATED(*Name));
	uint16 CaseHash = static_cast<uint16>(FCrc::StrCrc32(*Name));
	Ar << NonCaseHash << CaseHash;
}
}

void FLinkerSave::WriteNameEntry(const FName& Name)
{
	FArchive& Ar = *this;
	FString Text = Name.GetPlainNameString();
	Ar << Text;
	if (UEVer() >= VER_UE4_NAME_HASHES_SERIALIZED)
	{
		WriteNameHashes(Ar, Text);
	}
}

void FLinkerSave::WriteNames()
{
	Summary.NameOffset = static_cast<int32>(Position);
	for (const FName& Name : NameMap)
	{
		WriteNameEntry(Name);
	}
	Summary.NameCount = NameMap.Num();
}

void FLinkerSave::WriteMetaData()
{
	FArchive& Ar = *this;
	Summary.MetaDataOffset = static_cast<int32>(Position);
	const FMetaData& MetaData = LinkerRoot->GetMetaData();
	TArray<UObject*> Objects;
	for (const TPair<FWeakObjectPtr, TMap<FName, FString>>& Pair : MetaData.ObjectMetaDataMap)
	{
		UObject* const Object = Pair.Key.Get();
		if (Object && ObjectIndices.Contains(Object) && !Pair.Value.IsEmpty())
		{
			Objects.Add(Object);
		}
	}
	int32 NumObjects = Objects.Num();
	int32 NumRoot = MetaData.RootMetaDataMap.Num();
	Ar << NumObjects << NumRoot;
	for (UObject* Object : Objects)
	{
		TMap<FName, FString> Values = MetaData.ObjectMetaDataMap[FWeakObjectPtr(Object)];
		*this << Object;
		Ar << Values;
	}
	for (const TPair<FName, FString>& Pair : MetaData.RootMetaDataMap)
	{
		FName Key = Pair.Key;
		FString Value = Pair.Value;
		*this << Key;
		Ar << Value;
	}
}

void FLinkerSave::AddSoftPackageReferences()
{
	for (const FSoftObjectPath& Path : SoftObjectPathList)
	{
		const FName PackageName = Path.GetLongPackageFName();
		if (!PackageName.IsNone() && PackageName != LinkerRoot->GetFName())
		{
			SoftPackageReferenceList.AddUnique(PackageName);
		}
	}
}

void FLinkerSave::WriteSoftPackageReferences()
{
	AddSoftPackageReferences();
	Summary.SoftPackageReferencesOffset = static_cast<int32>(Position);
	Summary.SoftPackageReferencesCount = SoftPackageReferenceList.Num();
	for (FName& Name : SoftPackageReferenceList)
	{
		*this << Name;
	}
}

void FLinkerSave::WriteDependencyFlags()
{
	FArchive& Ar = *this;
	constexpr uint32 BuildAndGameDependency = 3;
	for (const int32 Num : {ImportMap.Num(), SoftPackageReferenceList.Num()})
	{
		TArray<uint32> Words;
		Words.Init(MAX_uint32, (Num + 31) / 32);
		if (Num % 32 != 0)
		{
			Words.Last() = (1u << (Num % 32)) - 1;
		}
		int32 NumBits = Num;
		Ar << NumBits;
		Serialize(Words.GetData(), Words.Num() * sizeof(uint32));
	}
	TArray<FName> ScriptPackages;
	for (const FObjectImport& Import : ImportMap)
	{
		if (Import.OuterIndex.IsNull() && Import.ObjectName.ToString().StartsWith(TEXT("/Script/")))
		{
			ScriptPackages.AddUnique(Import.ObjectName);
		}
	}
	int32 NumScriptPackages = ScriptPackages.Num();
	Ar << NumScriptPackages;
	for (FName& Name : ScriptPackages)
	{
		uint32 Flags = BuildAndGameDependency;
		*this << Name;
		Ar << Flags;
	}
}

void FLinkerSave::WriteAssetRegistryData()
{
	FArchive& Ar = *this;
	Summary.AssetRegistryDataOffset = static_cast<int32>(Position);
	const int64 OffsetOfDependencyOffset = Position;
	int64 DependencyOffset = 0;
	Ar << DependencyOffset;
	TArray<UObject*> Assets;
	for (const FObjectExport& Export : ExportMap)
	{
		UObject* const Object = Export.Object.Get();
		if (Object && Export.bIsAsset && Object->GetOuter() == LinkerRoot)
		{
			Assets.Add(Object);
		}
	}
	int32 NumAssets = Assets.Num();
	Ar << NumAssets;
	for (const UObject* const Asset : Assets)
	{
		FString Path = Asset->GetName();
		FString ClassPath = Asset->GetClass()->GetPathName();
		TArray<UObject::FAssetRegistryTag> Tags;
		Asset->GetAssetRegistryTags(Tags);
		int32 NumTags = Tags.Num();
		Ar << Path << ClassPath << NumTags;
		for (UObject::FAssetRegistryTag& Tag : Tags)
		{
			FString Key = Tag.Name.ToString();
			Ar << Key << Tag.Value;
		}
	}
	DependencyOffset = Position;
	WriteDependencyFlags();
	const int64 End = Position;
	Seek(OffsetOfDependencyOffset);
	Ar << DependencyOffset;
	Seek(End);
}

void FLinkerSave::WriteTables()
{
	FArchive& Ar = *this;
	WriteNames();
	Summary.SoftObjectPathsOffset = static_cast<int32>(Position);
	Summary.SoftObjectPathsCount = SoftObjectPathList.Num();
	for (FSoftObjectPath& Path : SoftObjectPathList)
	{
		Path.SerializePath(*this);
	}
	WriteMetaData();
	Summary.GatherableTextDataOffset = static_cast<int32>(Position);
	CopyCarried(EPackageSection::GatherableText);
	Summary.ImportOffset = static_cast<int32>(Position);
	Summary.ImportCount = ImportMap.Num();
	for (FObjectImport& Import : ImportMap)
	{
		Import.Serialize(*this);
	}
	Summary.ExportOffset = static_cast<int32>(Position);
	Summary.ExportCount = ExportMap.Num();
	for (FObjectExport& Export : ExportMap)
	{
		Export.Serialize(*this);
	}
	Summary.CellExportOffset = Summary.CellImportOffset = static_cast<int32>(Position);
	Summary.DependsOffset = static_cast<int32>(Position);
	int32 Zero = 0;
	for (int32 Index = 0; Index < ExportMap.Num(); ++Index)
	{
		Ar << Zero;
	}
	WriteSoftPackageReferences();
	Summary.SearchableNamesOffset = static_cast<int32>(Position);
	Ar << Zero;
	Summary.ThumbnailTableOffset = static_cast<int32>(Position);
	CopyCarried(EPackageSection::Thumbnails);
	if (Summary.ThumbnailTableOffset == Position)
	{
		Ar << Zero;
	}
	WriteAssetRegistryData();
	Summary.PreloadDependencyOffset = static_cast<int32>(Position);
}

void FLinkerSave::WritePayloadTrailer()
{
	FArchive& Ar = *this;
	uint32 Tag = PACKAGE_FILE_TAG;
	uint64 Header = PayloadTrailerHeader;
	uint64 Footer = PayloadTrailerFooter;
	int32 Version = 2;
	uint32 HeaderLength = 28;
	uint64 PayloadLength = 0;
	int32 NumPayloads = 0;
	uint64 TrailerLength = HeaderLength + sizeof(Footer) + sizeof(TrailerLength) + sizeof(Tag);
	Ar << Tag << Header << Version << HeaderLength << PayloadLength << NumPayloads << Footer << TrailerLength << Tag;
}

/** Every name that the tables use, so that the table of names, which stands before them, has it. */
void FLinkerSave::MapNamesOfTables()
{
	for (const FObjectImport& Import : ImportMap)
	{
		MapName(Import.ClassPackage);
		MapName(Import.ClassName);
		MapName(Import.ObjectName);
		MapName(Import.PackageName);
	}
	for (const FObjectExport& Export : ExportMap)
	{
		MapName(Export.ObjectName);
	}
	for (const FSoftObjectPath& Path : SoftObjectPathList)
	{
		MapName(Path.GetLongPackageFName());
		MapName(Path.GetAssetFName());
	}
	for (const FName& Reference : SoftPackageReferenceList)
	{
		MapName(Reference);
	}
	for (const TPair<FName, FString>& Pair : LinkerRoot->GetMetaData().RootMetaDataMap)
	{
		MapName(Pair.Key);
	}
	for (const TPair<FWeakObjectPtr, TMap<FName, FString>>& Pair : LinkerRoot->GetMetaData().ObjectMetaDataMap)
	{
		for (const TPair<FName, FString>& Value : Pair.Value)
		{
			MapName(Value.Key);
		}
	}
}

TArray<uint8> FLinkerSave::MakeNewFile(FString& OutError)
{
	const TArray<uint8> Values = MoveTemp(Payload);
	Summary.FileVersionUE = GPackageFileUEVersion;
	Summary.CustomVersions = GetCustomVersions();
	Summary.PackageFlags = LinkerRoot->GetPackageFlags() & ~(PKG_TransientFlags | PKG_FilterEditorOnly);
	Summary.PersistentGuid = LinkerRoot->GetPersistentGuid();
	Summary.SavedByEngineVersion = GetWritingEngineVersion();
	Summary.CompatibleWithEngineVersion = GetWritingEngineVersion();
	MapNamesOfTables();
	Summary.NamesReferencedFromExportDataCount = NameMap.Num();
	Summary.Generations = {{ExportMap.Num(), NameMap.Num()}};
	MarkChanged(Values);

	// All sizes of the header are known once it is written, but for itself: the first time finds the offsets, the second has them.
	const TArray<FObjectExport> RelativeExports = ExportMap;
	for (const bool bFinal : {false, true})
	{
		Payload.Reset();
		Position = 0;
		ExportMap = RelativeExports;
		for (FObjectExport& Export : ExportMap)
		{
			Export.SerialOffset += bFinal ? Summary.TotalHeaderSize : 0;
		}
		if (!Summary.Serialize(*this, OutError))
		{
			return {};
		}
		WriteTables();
		Summary.TotalHeaderSize = static_cast<int32>(Position);
		Summary.BulkDataStartOffset = Summary.TotalHeaderSize + Values.Num();
		Summary.PayloadTocOffset = Summary.BulkDataStartOffset + static_cast<int64>(sizeof(uint32));
	}
	Serialize(const_cast<uint8*>(Values.GetData()), Values.Num());
	WritePayloadTrailer();
	OutError = IsError() ? TEXT("it is larger than a package can be") : TEXT("");
	return IsError() ? TArray<uint8>() : MoveTemp(Payload);
}

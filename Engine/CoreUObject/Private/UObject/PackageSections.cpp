#include "UObject/PackageSections.h"

#include "UObject/LinkerLoad.h"

#include <algorithm>

namespace
{
struct FSectionInfo
{
	EPackageSection Section;
	const TCHAR* Name;
	int32 FPackageFileSummary::*Offset;
	/** Null for sections that are never empty where they are. */
	int32 FPackageFileSummary::*Count;
};

constexpr FSectionInfo SectionInfos[] = {
	{EPackageSection::Summary, TEXT("summary"), nullptr, nullptr},
	{EPackageSection::Names, TEXT("names"), &FPackageFileSummary::NameOffset, &FPackageFileSummary::NameCount},
	{EPackageSection::SoftObjectPaths, TEXT("soft object paths"), &FPackageFileSummary::SoftObjectPathsOffset, &FPackageFileSummary::SoftObjectPathsCount},
	{EPackageSection::MetaData, TEXT("metadata"), &FPackageFileSummary::MetaDataOffset, nullptr},
	{EPackageSection::GatherableText, TEXT("gatherable text"), &FPackageFileSummary::GatherableTextDataOffset, &FPackageFileSummary::GatherableTextDataCount},
	{EPackageSection::Imports, TEXT("imports"), &FPackageFileSummary::ImportOffset, &FPackageFileSummary::ImportCount},
	{EPackageSection::Exports, TEXT("exports"), &FPackageFileSummary::ExportOffset, &FPackageFileSummary::ExportCount},
	{EPackageSection::CellImports, TEXT("cell imports"), &FPackageFileSummary::CellImportOffset, &FPackageFileSummary::CellImportCount},
	{EPackageSection::CellExports, TEXT("cell exports"), &FPackageFileSummary::CellExportOffset, &FPackageFileSummary::CellExportCount},
	{EPackageSection::Depends, TEXT("dependencies"), &FPackageFileSummary::DependsOffset, nullptr},
	{EPackageSection::SoftPackageReferences, TEXT("soft references"), &FPackageFileSummary::SoftPackageReferencesOffset, &FPackageFileSummary::SoftPackageReferencesCount},
	{EPackageSection::SearchableNames, TEXT("searchable names"), &FPackageFileSummary::SearchableNamesOffset, nullptr},
	{EPackageSection::Thumbnails, TEXT("thumbnails"), &FPackageFileSummary::ThumbnailTableOffset, nullptr},
	{EPackageSection::AssetRegistry, TEXT("asset registry data"), &FPackageFileSummary::AssetRegistryDataOffset, nullptr},
	{EPackageSection::WorldTileInfo, TEXT("world tile info"), &FPackageFileSummary::WorldTileInfoDataOffset, nullptr},
	{EPackageSection::PreloadDependencies, TEXT("preload dependencies"), &FPackageFileSummary::PreloadDependencyOffset, &FPackageFileSummary::PreloadDependencyCount},
	{EPackageSection::DataResources, TEXT("data resources"), &FPackageFileSummary::DataResourceOffset, nullptr},
	{EPackageSection::Values, TEXT("values"), nullptr, nullptr},
	{EPackageSection::Tail, TEXT("bulk data"), nullptr, nullptr}};

const FSectionInfo& GetInfo(EPackageSection Section)
{
	return SectionInfos[static_cast<int32>(Section)];
}

/** Goes to a section, and afterwards says what was wrong there. */
class FSectionReader
{
public:
	FSectionReader(FLinkerLoad& InLinker, EPackageSection InSection, int64 Offset)
		: Linker(InLinker)
		, Section(InSection)
	{
		Linker.Seek(Offset);
	}

	/** False when what is left of the file could not hold as many. */
	bool ReadCount(int32& OutCount, int64 MinEntryBytes)
	{
		static_cast<FArchive&>(Linker) << OutCount;
		return CheckCount(OutCount, MinEntryBytes);
	}

	bool CheckCount(int32 Count, int64 MinEntryBytes)
	{
		if (!Linker.IsError() && Count < 0)
		{
			Linker.SetError();
		}
		return !Linker.IsError() && Linker.CanHold(Count, MinEntryBytes);
	}

	bool Finish(FString& OutError)
	{
		if (!Linker.IsError())
		{
			return true;
		}
		OutError = FString::Printf(TEXT("the %s are damaged at offset %lld"), GetInfo(Section).Name, static_cast<long long>(Linker.GetErrorPosition()));
		Linker.ClearError();
		return false;
	}

private:
	FLinkerLoad& Linker;
	EPackageSection Section;
};

bool HasSection(const FLinkerLoad& Linker, EPackageSection Section)
{
	FPackageFileSummary Summary = Linker.Summary;
	const int32* const Offset = FPackageSections::GetOffset(Summary, Section);
	return Offset && *Offset > 0;
}

/** Thumbnails' images stand before their table, to which the summary points. */
int64 FindThumbnailStart(const FLinkerLoad& Linker, int64 TableOffset)
{
	TArray<FPackageThumbnail> Thumbnails;
	FString Ignored;
	int64 Start = TableOffset;
	if (FPackageSections::ReadThumbnails(const_cast<FLinkerLoad&>(Linker), Thumbnails, Ignored))
	{
		for (const FPackageThumbnail& Thumbnail : Thumbnails)
		{
			Start = FMath::Min(Start, Thumbnail.Offset);
		}
	}
	return Start;
}

int64 FindEndOfValues(const FLinkerLoad& Linker)
{
	int64 End = Linker.Summary.TotalHeaderSize;
	for (const FObjectExport& Export : Linker.ExportMap)
	{
		End = FMath::Max(End, Export.SerialOffset + Export.SerialSize);
	}
	return End;
}

void ReadPairs(FArchive& Ar, FSectionReader& Reader, TArray<TPair<FString, FString>>& Out)
{
	constexpr int64 MinPairBytes = 8;
	int32 Count = 0;
	if (!Reader.ReadCount(Count, MinPairBytes))
	{
		return;
	}
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		TPair<FString, FString>& Pair = Out.AddDefaulted_GetRef();
		Ar << Pair.Key << Pair.Value;
	}
}

/** Metadata of a gatherable text: names and values of several kinds, of which real packages have none. */
void SkipLocMetadata(FArchive& Ar)
{
	int32 Count = 0;
	Ar << Count;
	if (Count != 0)
	{
		Ar.SetError();
	}
}

void ReadSourceSites(FArchive& Ar, FSectionReader& Reader, FPackageGatherableText& Text)
{
	constexpr int64 MinSiteBytes = 24;
	int32 NumSites = 0;
	if (!Reader.ReadCount(NumSites, MinSiteBytes))
	{
		return;
	}
	for (int32 Site = 0; Site < NumSites && !Ar.IsError(); ++Site)
	{
		TPair<FString, FString>& KeyAndSite = Text.KeysAndSites.AddDefaulted_GetRef();
		bool bIsEditorOnly = false;
		bool bIsOptional = false;
		Ar << KeyAndSite.Key << KeyAndSite.Value << bIsEditorOnly << bIsOptional;
		SkipLocMetadata(Ar);
		SkipLocMetadata(Ar);
	}
}
}

const TCHAR* FPackageSections::GetName(EPackageSection Section)
{
	return GetInfo(Section).Name;
}

int32* FPackageSections::GetOffset(FPackageFileSummary& Summary, EPackageSection Section)
{
	const FSectionInfo& Info = GetInfo(Section);
	return Info.Offset ? &(Summary.*Info.Offset) : nullptr;
}

bool FPackageSections::Find(const FLinkerLoad& Linker, TArray<FPackageSectionRange>& OutRanges, FString& OutError)
{
	const int64 HeaderSize = Linker.Summary.TotalHeaderSize;
	const int64 EndOfValues = FindEndOfValues(Linker);
	if (HeaderSize <= 0 || HeaderSize > Linker.GetFileSize())
	{
		OutError = FString::Printf(TEXT("the header of %lld bytes does not fit into the file's %lld bytes"), static_cast<long long>(HeaderSize), static_cast<long long>(Linker.GetFileSize()));
		return false;
	}
	struct FStart
	{
		int64 Offset;
		bool bIsEmpty;
		EPackageSection Section;
	};
	TArray<FStart> Starts;
	Starts.Add({0, false, EPackageSection::Summary});
	for (const FSectionInfo& Info : SectionInfos)
	{
		const int64 Offset = Info.Offset ? Linker.Summary.*Info.Offset : 0;
		if (Offset <= 0)
		{
			continue;
		}
		if (Offset > HeaderSize)
		{
			OutError = FString::Printf(TEXT("the %s at offset %lld are not within the header's %lld bytes"), Info.Name, static_cast<long long>(Offset), static_cast<long long>(HeaderSize));
			return false;
		}
		const int64 Start = Info.Section == EPackageSection::Thumbnails ? FindThumbnailStart(Linker, Offset) : Offset;
		Starts.Add({Start, Info.Count && Linker.Summary.*Info.Count <= 0, Info.Section});
	}
	// Of sections that begin at the same place all but the last are empty.
	std::stable_sort(Starts.begin(), Starts.end(), [](const FStart& A, const FStart& B)
		{ return A.Offset != B.Offset ? A.Offset < B.Offset : A.bIsEmpty && !B.bIsEmpty; });
	OutRanges.Reset();
	for (int32 Index = 0; Index < Starts.Num(); ++Index)
	{
		OutRanges.Add({Starts[Index].Section, Starts[Index].Offset, Index + 1 < Starts.Num() ? Starts[Index + 1].Offset : HeaderSize});
	}
	OutRanges.Add({EPackageSection::Values, HeaderSize, EndOfValues});
	OutRanges.Add({EPackageSection::Tail, EndOfValues, Linker.GetFileSize()});
	return true;
}

bool FPackageSections::ReadThumbnails(FLinkerLoad& Linker, TArray<FPackageThumbnail>& Out, FString& OutError)
{
	constexpr int64 MinEntryBytes = 12;
	if (!HasSection(Linker, EPackageSection::Thumbnails))
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::Thumbnails, Linker.Summary.ThumbnailTableOffset);
	FArchive& Ar = Linker;
	int32 Count = 0;
	Reader.ReadCount(Count, MinEntryBytes);
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FPackageThumbnail& Thumbnail = Out.AddDefaulted_GetRef();
		int32 Offset = 0;
		Ar << Thumbnail.ObjectClass << Thumbnail.ObjectPath;
		Thumbnail.OffsetPosition = Ar.Tell();
		Ar << Offset;
		Thumbnail.Offset = Offset;
	}
	for (FPackageThumbnail& Thumbnail : Out)
	{
		Ar.Seek(Thumbnail.Offset);
		Ar << Thumbnail.Width << Thumbnail.Height;
		Reader.ReadCount(Thumbnail.ImageBytes, 1);
	}
	return Reader.Finish(OutError);
}

bool FPackageSections::ReadAssetRegistry(FLinkerLoad& Linker, FPackageAssetRegistryData& Out, FString& OutError)
{
	constexpr int64 MinAssetBytes = 12;
	if (!HasSection(Linker, EPackageSection::AssetRegistry))
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::AssetRegistry, Linker.Summary.AssetRegistryDataOffset);
	FArchive& Ar = Linker;
	if (Ar.UEVer() >= VER_UE4_ASSETREGISTRY_DEPENDENCYFLAGS && !Ar.IsFilterEditorOnly())
	{
		Ar << Out.DependencyDataOffset;
	}
	int32 Count = 0;
	Reader.ReadCount(Count, MinAssetBytes);
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FPackageAssetEntry& Asset = Out.Assets.AddDefaulted_GetRef();
		Ar << Asset.ObjectPath << Asset.ObjectClass;
		ReadPairs(Ar, Reader, Asset.Tags);
	}
	return Reader.Finish(OutError);
}

bool FPackageSections::ReadGatherableText(FLinkerLoad& Linker, TArray<FPackageGatherableText>& Out, FString& OutError)
{
	constexpr int64 MinTextBytes = 16;
	if (Linker.Summary.GatherableTextDataCount == 0 || !HasSection(Linker, EPackageSection::GatherableText))
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::GatherableText, Linker.Summary.GatherableTextDataOffset);
	FArchive& Ar = Linker;
	const int32 Count = Reader.CheckCount(Linker.Summary.GatherableTextDataCount, MinTextBytes) ? Linker.Summary.GatherableTextDataCount : 0;
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FPackageGatherableText& Text = Out.AddDefaulted_GetRef();
		Ar << Text.Namespace << Text.Source;
		SkipLocMetadata(Ar);
		ReadSourceSites(Ar, Reader, Text);
	}
	return Reader.Finish(OutError);
}

bool FPackageSections::ReadSearchableNames(FLinkerLoad& Linker, TArray<TPair<FPackageIndex, TArray<FName>>>& Out, FString& OutError)
{
	constexpr int64 MinEntryBytes = 8;
	if (!HasSection(Linker, EPackageSection::SearchableNames))
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::SearchableNames, Linker.Summary.SearchableNamesOffset);
	FArchive& Ar = Linker;
	int32 Count = 0;
	Reader.ReadCount(Count, MinEntryBytes);
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		TPair<FPackageIndex, TArray<FName>>& Entry = Out.AddDefaulted_GetRef();
		int32 NumNames = 0;
		Ar << Entry.Key;
		Reader.ReadCount(NumNames, sizeof(int64));
		for (int32 Name = 0; Name < NumNames && !Ar.IsError(); ++Name)
		{
			Linker << Entry.Value.AddDefaulted_GetRef();
		}
	}
	return Reader.Finish(OutError);
}

bool FPackageSections::ReadDataResources(FLinkerLoad& Linker, TArray<FPackageDataResource>& Out, FString& OutError)
{
	constexpr int64 MinResourceBytes = 44;
	constexpr uint32 VersionWithCookedIndex = 2;
	if (!HasSection(Linker, EPackageSection::DataResources))
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::DataResources, Linker.Summary.DataResourceOffset);
	FArchive& Ar = Linker;
	uint32 Version = 0;
	int32 Count = 0;
	Ar << Version;
	Reader.ReadCount(Count, MinResourceBytes);
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FPackageDataResource& Resource = Out.AddDefaulted_GetRef();
		uint8 CookedIndex = 0;
		Ar << Resource.Flags;
		if (Version >= VersionWithCookedIndex)
		{
			Ar << CookedIndex;
		}
		Ar << Resource.SerialOffset << Resource.DuplicateSerialOffset << Resource.SerialSize << Resource.RawSize << Resource.Outer << Resource.LegacyBulkDataFlags;
		if (!Resource.Outer.IsNull() && !Linker.FindResource(Resource.Outer) && !Ar.IsError())
		{
			Linker.SetError();
		}
	}
	return Reader.Finish(OutError);
}

bool FPackageSections::ReadPayloads(FLinkerLoad& Linker, TArray<FPackagePayload>& Out, FString& OutError)
{
	constexpr uint64 TrailerTag = 0xD1C43B2E80A5F697ull;
	constexpr int64 MinEntryBytes = 44;
	constexpr int32 VersionWithAccessMode = 1;
	constexpr int32 IdentifierBytes = 20;
	if (Linker.Summary.PayloadTocOffset <= 0)
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::Tail, Linker.Summary.PayloadTocOffset);
	FArchive& Ar = Linker;
	uint64 Tag = 0;
	int32 Version = 0;
	uint32 HeaderBytes = 0;
	uint64 PayloadBytes = 0;
	int32 Count = 0;
	Ar << Tag;
	if (Tag != TrailerTag)
	{
		Linker.SetError();
	}
	Ar << Version << HeaderBytes << PayloadBytes;
	Reader.ReadCount(Count, MinEntryBytes);
	for (int32 Index = 0; Index < Count && !Ar.IsError(); ++Index)
	{
		FPackagePayload& Payload = Out.AddDefaulted_GetRef();
		uint8 Identifier[IdentifierBytes] = {};
		uint16 Flags = 0;
		uint16 FilterFlags = 0;
		uint8 AccessMode = 0;
		Ar.Serialize(Identifier, IdentifierBytes);
		Ar << Payload.Offset << Payload.CompressedSize << Payload.RawSize << Flags << FilterFlags;
		if (Version >= VersionWithAccessMode)
		{
			Ar << AccessMode;
		}
		Payload.Identifier = BytesToHex(Identifier, IdentifierBytes);
		const int64 Room = Linker.GetFileSize() - Linker.Summary.PayloadTocOffset - HeaderBytes;
		const bool bIsElsewhere = Payload.Offset < 0;
		const bool bFits = Payload.CompressedSize >= 0 && Payload.RawSize >= 0 &&
			(bIsElsewhere || (Payload.Offset <= Room && Payload.CompressedSize <= Room - Payload.Offset));
		if (!bFits && !Ar.IsError())
		{
			Linker.SetError();
		}
	}
	return Reader.Finish(OutError);
}

bool FPackageSections::ReadMetaData(FLinkerLoad& Linker, TArray<TPair<FPackageIndex, TMap<FName, FString>>>& Out, FString& OutError)
{
	constexpr int64 MinObjectBytes = 8;
	constexpr int64 MinValueBytes = 12;
	if (!HasSection(Linker, EPackageSection::MetaData) || Linker.UEVer() < EUnrealEngineObjectUE5Version::METADATA_SERIALIZATION_OFFSET)
	{
		return true;
	}
	FSectionReader Reader(Linker, EPackageSection::MetaData, Linker.Summary.MetaDataOffset);
	FArchive& Ar = Linker;
	int32 NumObjects = 0;
	int32 NumOfPackage = 0;
	Reader.ReadCount(NumObjects, MinObjectBytes);
	Reader.ReadCount(NumOfPackage, MinValueBytes);
	const auto ReadValues = [&](FPackageIndex Object, int32 NumValues)
	{
		TPair<FPackageIndex, TMap<FName, FString>>& Entry = Out.AddDefaulted_GetRef();
		Entry.Key = Object;
		for (int32 Index = 0; Index < NumValues && !Ar.IsError(); ++Index)
		{
			FName Key;
			FString Value;
			Linker << Key;
			Ar << Value;
			Entry.Value.Add(Key, MoveTemp(Value));
		}
	};
	for (int32 Index = 0; Index < NumObjects && !Ar.IsError(); ++Index)
	{
		FPackageIndex Object;
		int32 NumValues = 0;
		Ar << Object;
		Reader.ReadCount(NumValues, MinValueBytes);
		ReadValues(Object, NumValues);
	}
	ReadValues(FPackageIndex(), NumOfPackage);
	return Reader.Finish(OutError);
}

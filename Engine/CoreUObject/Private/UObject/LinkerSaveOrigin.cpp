#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/LinkerLoad.h"
#include "UObject/LinkerSave.h"
#include "UObject/Package.h"
#include "UObject/PackageSections.h"
#include "UObject/UObjectGlobals.h"

#include "Misc/SecureHash.h"

#include <algorithm>

// A package in the form of the file that it came from: each of the file's sections in its place, grown or changed or as it was.

namespace
{
constexpr int64 CopyBlockBytes = 1 << 20;

/** The parts of the values in the order in which they stand in the file; what is new comes last. */
TArray<int32> GetExportsInFileOrder(const FLinkerLoad& Origin, int32 NumExports)
{
	TArray<int32> Order;
	for (int32 Index = 0; Index < NumExports; ++Index)
	{
		Order.Add(Index);
	}
	std::stable_sort(Order.begin(), Order.end(), [&Origin](int32 A, int32 B)
		{
			const int64 OffsetOfA = A < Origin.ExportMap.Num() ? Origin.ExportMap[A].SerialOffset : MAX_int64;
			const int64 OffsetOfB = B < Origin.ExportMap.Num() ? Origin.ExportMap[B].SerialOffset : MAX_int64;
			return OffsetOfA < OffsetOfB; });
	return Order;
}

/** "Class'/Script/Engine.Actor'" of "/Script/CoreUObject.Class'/Script/Engine.Actor'", as engines before 5.1 write it. */
FString ShortenClassName(const FString& Text)
{
	int32 Quote = INDEX_NONE;
	int32 Dot = INDEX_NONE;
	const bool bIsReference = Text.StartsWith(TEXT("/")) && Text.EndsWith(TEXT("'")) && Text.FindChar(TEXT('\''), Quote) && Text.FindChar(TEXT('.'), Dot);
	return bIsReference && Dot < Quote ? Text.RightChop(Dot + 1) : Text;
}
}

void FLinkerSave::CopyBytes(const FLinkerLoad& From, int64 Start, int64 End)
{
	for (int64 Place = Start; Place < End && !IsError(); Place += CopyBlockBytes)
	{
		const int64 Length = FMath::Min(CopyBlockBytes, End - Place);
		TArray<uint8> Block = From.ReadBytes(Place, Length);
		if (Block.Num() != Length)
		{
			SetError();
			return;
		}
		Serialize(Block.GetData(), Block.Num());
	}
}

/** The table names its images by their offsets in the file, so those move with it. */
void FLinkerSave::CopyThumbnails(FLinkerLoad& From, int64 Start, int64 End)
{
	TArray<FPackageThumbnail> Thumbnails;
	FString Ignored;
	const bool bReadable = FPackageSections::ReadThumbnails(From, Thumbnails, Ignored);
	const int64 Shift = Position - Start;
	CopyBytes(From, Start, End);
	const int64 EndPosition = Position;
	Summary.ThumbnailTableOffset = static_cast<int32>(From.Summary.ThumbnailTableOffset + Shift);
	for (const FPackageThumbnail& Thumbnail : Thumbnails)
	{
		int32 Offset = static_cast<int32>(Thumbnail.Offset + Shift);
		const bool bInSection = bReadable && Thumbnail.OffsetPosition >= Start && Thumbnail.OffsetPosition + static_cast<int64>(sizeof(Offset)) <= End;
		if (bInSection)
		{
			Seek(Thumbnail.OffsetPosition + Shift);
			static_cast<FArchive&>(*this) << Offset;
		}
	}
	Seek(EndPosition);
}

void FLinkerSave::CopyCarried(EPackageSection Section)
{
	TArray<FPackageSectionRange> Ranges;
	FString Ignored;
	if (!Carried || !FPackageSections::Find(*Carried, Ranges, Ignored))
	{
		return;
	}
	const FPackageSectionRange* const Range = Ranges.FindByPredicate([Section](const FPackageSectionRange& Each)
		{ return Each.Section == Section; });
	if (!Range)
	{
		return;
	}
	if (Section == EPackageSection::Thumbnails)
	{
		CopyThumbnails(*Carried, Range->Start, Range->End);
		return;
	}
	Summary.GatherableTextDataCount = Carried->Summary.GatherableTextDataCount;
	CopyBytes(*Carried, Range->Start, Range->End);
}

/** The file's tags with the values that they have now. A tag that this host does not make stays, and one that the file lacks its engine does not know. */
void FLinkerSave::WriteAssetTags(const UObject* Asset, TArray<TPair<FString, FString>>&& InFile)
{
	TArray<UObject::FAssetRegistryTag> Tags;
	if (Asset)
	{
		Asset->GetAssetRegistryTags(Tags);
	}
	// A tag that tells what it told when the file was read keeps the words of the engine that wrote it.
	const TMap<FName, FString> AsLoaded = Origin->GetTagsAsLoaded(Asset);
	TMap<FString, const UObject::FAssetRegistryTag*> ChangedTags;
	for (const UObject::FAssetRegistryTag& Tag : Tags)
	{
		const FString* const Before = AsLoaded.Find(Tag.Name);
		if (!Before || !Before->Equals(Tag.Value, ESearchCase::CaseSensitive))
		{
			ChangedTags.Add(Tag.Name.ToString(), &Tag);
		}
	}
	const bool bShortClassNames = UEVer() < EUnrealEngineObjectUE5Version::FSOFTOBJECTPATH_REMOVE_ASSET_PATH_FNAMES;
	int32 Count = InFile.Num();
	FArchive& Ar = *this;
	Ar << Count;
	for (TPair<FString, FString>& Pair : InFile)
	{
		if (const UObject::FAssetRegistryTag* const* const Tag = ChangedTags.Find(Pair.Key))
		{
			Pair.Value = bShortClassNames ? ShortenClassName((*Tag)->Value) : (*Tag)->Value;
		}
		Ar << Pair.Key << Pair.Value;
	}
}

void FLinkerSave::CopyAssetRegistryData(int64 Start, int64 End)
{
	FPackageAssetRegistryData Data;
	FString Ignored;
	FArchive& Ar = *this;
	const int64 NewStart = Position;
	const bool bReadable = FPackageSections::ReadAssetRegistry(*Origin, Data, Ignored);
	const bool bHasDependencies = Data.DependencyDataOffset >= Start && Data.DependencyDataOffset <= End;
	if (!bReadable || (bIsChanged && !bHasDependencies && Data.DependencyDataOffset != 0))
	{
		CopyBytes(*Origin, Start, End);
		return;
	}
	if (!bIsChanged)
	{
		CopyBytes(*Origin, Start, End);
		int64 DependencyOffset = Data.DependencyDataOffset + NewStart - Start;
		const int64 NewEnd = Position;
		if (bHasDependencies)
		{
			Seek(NewStart);
			Ar << DependencyOffset;
			Seek(NewEnd);
		}
		return;
	}
	int64 DependencyOffset = 0;
	if (bHasDependencies)
	{
		Ar << DependencyOffset;
	}
	int32 NumAssets = Data.Assets.Num();
	Ar << NumAssets;
	for (FPackageAssetEntry& Asset : Data.Assets)
	{
		const UObject* const Object = StaticFindObjectFast(nullptr, LinkerRoot, FName(*Asset.ObjectPath));
		Ar << Asset.ObjectPath << Asset.ObjectClass;
		WriteAssetTags(Object, MoveTemp(Asset.Tags));
	}
	if (bHasDependencies)
	{
		DependencyOffset = Position;
		WriteDependencyFlags();
		const int64 NewEnd = Position;
		Seek(NewStart);
		Ar << DependencyOffset;
		Seek(NewEnd);
	}
}

/** Bytes that nobody here can read may name an import wherever its index stands in them. */
void FLinkerSave::MarkImportsIn(TArrayView<const uint8> Bytes)
{
	for (int32 Place = 0; Place + static_cast<int32>(sizeof(int32)) <= Bytes.Num(); ++Place)
	{
		int32 Value = 0;
		FMemory::Memcpy(&Value, Bytes.GetData() + Place, sizeof(Value));
		const FPackageIndex Index = FPackageIndex::FromRaw(Value);
		if (Index.IsImport() && Value >= -UsedImports.Num())
		{
			UsedImports[Index.ToImport()] = true;
		}
	}
}

/** An import that nothing refers to any more would still count as a dependency, so its entry becomes one that every package has. */
void FLinkerSave::ClearUnusedImports()
{
	TArray<FPackageSectionRange> Ranges;
	FString Ignored;
	FPackageSections::Find(*Origin, Ranges, Ignored);
	for (const FPackageSectionRange& Range : Ranges)
	{
		const bool bMayRefer = Range.Section == EPackageSection::SearchableNames || Range.Section == EPackageSection::DataResources;
		if (bMayRefer)
		{
			const TArray<uint8> Bytes = Origin->ReadBytes(Range.Start, Range.End - Range.Start);
			MarkImportsIn(TArrayView<const uint8>(Bytes));
		}
	}
	const auto Mark = [this](FPackageIndex Index)
	{
		for (int32 Depth = 0; Index.IsImport() && Depth < MaxOuterDepth; ++Depth)
		{
			if (UsedImports.IsValidIndex(Index.ToImport()))
			{
				UsedImports[Index.ToImport()] = true;
			}
			Index = ImportMap[Index.ToImport()].OuterIndex;
		}
	};
	for (const FObjectExport& Export : ExportMap)
	{
		for (const FPackageIndex Index : {Export.ClassIndex, Export.SuperIndex, Export.OuterIndex, Export.TemplateIndex})
		{
			Mark(Index);
		}
	}
	for (int32 Index = 0; Index < ImportMap.Num(); ++Index)
	{
		if (!UsedImports.IsValidIndex(Index) || UsedImports[Index])
		{
			Mark(FPackageIndex::FromImport(Index));
		}
	}
	for (int32 Index = 0; Index < UsedImports.Num(); ++Index)
	{
		if (!UsedImports[Index])
		{
			FObjectImport& Import = ImportMap[Index];
			Import = FObjectImport();
			Import.ClassPackage = Import.ObjectName = FName(TEXT("/Script/CoreUObject"));
			Import.ClassName = FName(TEXT("Package"));
		}
	}
	for (TArray<FPackageIndex>& Depends : DependsMap)
	{
		Depends.RemoveAll([this](FPackageIndex Index)
			{ return Index.IsImport() && UsedImports.IsValidIndex(Index.ToImport()) && !UsedImports[Index.ToImport()]; });
	}
}

/** What tells readers that this is not the file that they may have seen before. */
void FLinkerSave::MarkChanged(const TArray<uint8>& Values)
{
	FSHAHash Hash;
	FSHA1::HashBuffer(Values.GetData(), Values.Num(), Hash.Hash);
	FMemory::Memcpy(Summary.SavedHash, Hash.Hash, sizeof(Summary.SavedHash));
	Summary.Guid = FGuid::NewGuid();
	if (Origin)
	{
		Summary.NamesReferencedFromExportDataCount = NameMap.Num();
		// The texts that are listed may be others now: localization must load the package to know.
		Summary.PackageFlags |= Summary.GatherableTextDataCount > 0 ? PKG_RequiresLocalizationGather : PKG_None;
	}
}

void FLinkerSave::WriteValuesOfOrigin(const FPackageSectionRange& Range, const TArray<uint8>& Values)
{
	int64 EndInOrigin = Range.Start;
	for (const int32 Index : GetExportsInFileOrder(*Origin, ExportMap.Num()))
	{
		FObjectExport& Export = ExportMap[Index];
		if (Index < Origin->ExportMap.Num())
		{
			CopyBytes(*Origin, EndInOrigin, Origin->ExportMap[Index].SerialOffset);
			EndInOrigin = FMath::Max(EndInOrigin, Origin->ExportMap[Index].SerialOffset + Origin->ExportMap[Index].SerialSize);
		}
		const int64 NewOffset = Position;
		Serialize(const_cast<uint8*>(Values.GetData()) + ValueOffsets[Index], Export.SerialSize);
		Export.SerialOffset = NewOffset;
	}
}

void FLinkerSave::WriteSectionOfOrigin(const FPackageSectionRange& Range)
{
	FArchive& Ar = *this;
	int64 Start = Range.Start;
	const int64 TableEnd = FMath::Clamp(Origin->GetTableEnd(Range.Section), Range.Start, Range.End);
	switch (Range.Section)
	{
		case EPackageSection::Names:
			CopyBytes(*Origin, Start, TableEnd);
			for (int32 Index = Origin->NameMap.Num(); Index < NameMap.Num(); ++Index)
			{
				WriteNameEntry(NameMap[Index]);
			}
			Start = TableEnd;
			break;
		case EPackageSection::SoftObjectPaths:
			CopyBytes(*Origin, Start, TableEnd);
			for (int32 Index = Origin->SoftObjectPathList.Num(); Index < SoftObjectPathList.Num(); ++Index)
			{
				SoftObjectPathList[Index].SerializePath(*this);
			}
			Start = TableEnd;
			break;
		case EPackageSection::Imports:
			for (FObjectImport& Import : ImportMap)
			{
				Import.Serialize(*this);
			}
			Start = TableEnd;
			break;
		case EPackageSection::Exports:
			for (FObjectExport& Export : ExportMap)
			{
				Export.Serialize(*this);
			}
			Start = TableEnd;
			break;
		case EPackageSection::Depends:
			for (TArray<FPackageIndex>& Depends : DependsMap)
			{
				Ar << Depends;
			}
			Start = DependsMap.IsEmpty() ? Start : TableEnd;
			break;
		case EPackageSection::SoftPackageReferences:
			if (bIsChanged && UEVer() >= VER_UE4_ADDED_SOFT_OBJECT_PATH)
			{
				WriteSoftPackageReferences();
				Start = TableEnd;
			}
			break;
		case EPackageSection::MetaData:
			if (bIsChanged)
			{
				WriteMetaData();
				return;
			}
			break;
		case EPackageSection::Thumbnails:
			CopyThumbnails(*Origin, Start, Range.End);
			return;
		case EPackageSection::AssetRegistry:
			CopyAssetRegistryData(Start, Range.End);
			return;
		default:
			break;
	}
	CopyBytes(*Origin, Start, Range.End);
}

bool FLinkerSave::WriteSectionsOfOrigin(const TArray<FPackageSectionRange>& Ranges, const TArray<uint8>& Values, FString& OutError)
{
	Payload.Reset();
	Position = 0;
	for (const FPackageSectionRange& Range : Ranges)
	{
		const int64 Start = Position;
		if (int32* const Offset = FPackageSections::GetOffset(Summary, Range.Section))
		{
			*Offset = static_cast<int32>(Start);
		}
		if (Range.Section == EPackageSection::Summary)
		{
			if (!Summary.Serialize(*this, OutError))
			{
				return false;
			}
			CopyBytes(*Origin, Origin->GetTableEnd(EPackageSection::Summary), Range.End);
		}
		else if (Range.Section == EPackageSection::Values)
		{
			Summary.TotalHeaderSize = static_cast<int32>(Start);
			WriteValuesOfOrigin(Range, Values);
		}
		else
		{
			if (Range.Section == EPackageSection::Tail)
			{
				const int64 Shift = Start - Range.Start;
				Summary.BulkDataStartOffset = Origin->Summary.BulkDataStartOffset > 0 ? Origin->Summary.BulkDataStartOffset + Shift : Origin->Summary.BulkDataStartOffset;
				Summary.PayloadTocOffset = Origin->Summary.PayloadTocOffset > 0 ? Origin->Summary.PayloadTocOffset + Shift : Origin->Summary.PayloadTocOffset;
			}
			WriteSectionOfOrigin(Range);
		}
	}
	if (IsError())
	{
		OutError = TEXT("it is larger than a package can be, or the file that it came from can no longer be read");
	}
	return !IsError();
}

TArray<uint8> FLinkerSave::MakeFileOfOrigin(FString& OutError)
{
	TArray<FPackageSectionRange> Ranges;
	if (!FPackageSections::Find(*Origin, Ranges, OutError))
	{
		return {};
	}
	const TArray<uint8> Values = MoveTemp(Payload);
	// Packages of the 4.x line have a folder there that nobody reads.
	const bool bIsRenamed = Summary.PackageName.StartsWith(TEXT("/")) && LinkerRoot->GetName() != Summary.PackageName;
	bIsChanged |= ExportMap.Num() != Origin->ExportMap.Num() || !Origin->IsMetaDataUnchanged() || bIsRenamed;
	DependsMap = Origin->DependsMap;
	if (bIsChanged)
	{
		Summary.PackageName = bIsRenamed ? LinkerRoot->GetName() : Summary.PackageName;
		ClearUnusedImports();
		AddSoftPackageReferences();
		MapNamesOfTables();
		DependsMap.SetNum(DependsMap.IsEmpty() ? 0 : ExportMap.Num());
		MarkChanged(Values);
	}
	Summary.NameCount = NameMap.Num();
	Summary.ImportCount = ImportMap.Num();
	Summary.ExportCount = ExportMap.Num();
	Summary.SoftObjectPathsCount = SoftObjectPathList.Num();
	if (!Summary.Generations.IsEmpty() && bIsChanged)
	{
		Summary.Generations.Last() = {ExportMap.Num(), NameMap.Num()};
	}
	ValueOffsets.Reset();
	for (const FObjectExport& Export : ExportMap)
	{
		ValueOffsets.Add(Export.SerialOffset);
	}
	// The first time finds the offsets, the second has them.
	if (!WriteSectionsOfOrigin(Ranges, Values, OutError) || !WriteSectionsOfOrigin(Ranges, Values, OutError))
	{
		return {};
	}
	return MoveTemp(Payload);
}

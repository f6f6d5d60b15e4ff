#include "UObject/PackageFileSummary.h"

#include "Serialization/Archive.h"
#include "UObject/ObjectMacros.h"

namespace
{
/** Older headers than these have versions without GUIDs. */
constexpr int32 OldestLegacyFileVersion = -6;
constexpr int32 NewestLegacyFileVersion = -9;
constexpr int32 LegacyVersionWithUE5 = -8;

bool HasUE5(const FPackageFileSummary& Summary, EUnrealEngineObjectUE5Version Version)
{
	return Summary.FileVersionUE >= Version;
}

bool IsEditorPackage(const FPackageFileSummary& Summary)
{
	return (Summary.PackageFlags & PKG_FilterEditorOnly) == 0;
}
}

FString FSavedEngineVersion::ToString() const
{
	return FString::Printf(TEXT("%u.%u.%u-%u+%s"), static_cast<uint32>(Major), static_cast<uint32>(Minor), static_cast<uint32>(Patch), Changelist, *Branch);
}

FArchive& operator<<(FArchive& Ar, FSavedEngineVersion& Version)
{
	return Ar << Version.Major << Version.Minor << Version.Patch << Version.Changelist << Version.Branch;
}

bool FPackageFileSummary::SerializeVersions(FArchive& Ar, FString& OutError)
{
	Ar << Tag;
	if (Ar.IsError() || Tag != PACKAGE_FILE_TAG)
	{
		OutError = TEXT("this is not a package: it does not begin with the package tag");
		return false;
	}
	Ar << LegacyFileVersion;
	if (LegacyFileVersion > OldestLegacyFileVersion || LegacyFileVersion < NewestLegacyFileVersion)
	{
		OutError = FString::Printf(TEXT("packages of header version %d cannot be read"), LegacyFileVersion);
		return false;
	}
	Ar << LegacyUE3Version << FileVersionUE.FileVersionUE4;
	if (LegacyFileVersion <= LegacyVersionWithUE5)
	{
		Ar << FileVersionUE.FileVersionUE5;
	}
	else if (Ar.IsLoading())
	{
		FileVersionUE.FileVersionUE5 = 0;
	}
	Ar << FileVersionLicenseeUE;
	if (Ar.IsLoading() && FileVersionUE.FileVersionUE4 == 0 && FileVersionUE.FileVersionUE5 == 0 && FileVersionLicenseeUE == 0)
	{
		bUnversioned = true;
		FileVersionUE = GPackageFileUEVersion;
	}
	if (!GPackageFileUEVersion.IsCompatible(FileVersionUE))
	{
		OutError = FString::Printf(TEXT("the package is of version %d/%d, newer than the newest that can be read (%d/%d)"), FileVersionUE.FileVersionUE4, FileVersionUE.FileVersionUE5, GPackageFileUEVersion.FileVersionUE4, GPackageFileUEVersion.FileVersionUE5);
		return false;
	}
	if (FileVersionUE.FileVersionUE4 < VER_UE4_OLDEST_LOADABLE_PACKAGE)
	{
		OutError = FString::Printf(TEXT("the package is of version %d, older than the oldest that can be read (%d)"), FileVersionUE.FileVersionUE4, static_cast<int32>(VER_UE4_OLDEST_LOADABLE_PACKAGE));
		return false;
	}
	Ar.SetUEVer(FileVersionUE);
	Ar.SetLicenseeUEVer(FileVersionLicenseeUE);
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::PACKAGE_SAVED_HASH))
	{
		Ar.Serialize(SavedHash, sizeof(SavedHash));
		Ar << TotalHeaderSize;
	}
	CustomVersions.Serialize(Ar, ECustomVersionSerializationFormat::Optimized);
	if (Ar.IsLoading())
	{
		Ar.SetCustomVersions(CustomVersions);
	}
	if (!HasUE5(*this, EUnrealEngineObjectUE5Version::PACKAGE_SAVED_HASH))
	{
		Ar << TotalHeaderSize;
	}
	return true;
}

void FPackageFileSummary::SerializeTables(FArchive& Ar)
{
	Ar << PackageName << PackageFlags << NameCount << NameOffset;
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::ADD_SOFTOBJECTPATH_LIST))
	{
		Ar << SoftObjectPathsCount << SoftObjectPathsOffset;
	}
	if (FileVersionUE >= VER_UE4_ADDED_PACKAGE_SUMMARY_LOCALIZATION_ID && IsEditorPackage(*this))
	{
		Ar << LocalizationId;
	}
	if (FileVersionUE >= VER_UE4_SERIALIZE_TEXT_IN_PACKAGES)
	{
		Ar << GatherableTextDataCount << GatherableTextDataOffset;
	}
	Ar << ExportCount << ExportOffset << ImportCount << ImportOffset;
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::VERSE_CELLS))
	{
		Ar << CellExportCount << CellExportOffset << CellImportCount << CellImportOffset;
	}
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::METADATA_SERIALIZATION_OFFSET))
	{
		Ar << MetaDataOffset;
	}
	Ar << DependsOffset;
	if (FileVersionUE >= VER_UE4_ADD_STRING_ASSET_REFERENCES_MAP)
	{
		Ar << SoftPackageReferencesCount << SoftPackageReferencesOffset;
	}
	if (FileVersionUE >= VER_UE4_ADDED_SEARCHABLE_NAMES)
	{
		Ar << SearchableNamesOffset;
	}
	Ar << ThumbnailTableOffset;
}

void FPackageFileSummary::SerializeOrigin(FArchive& Ar, FString& OutError)
{
	if (!HasUE5(*this, EUnrealEngineObjectUE5Version::PACKAGE_SAVED_HASH))
	{
		Ar << Guid;
	}
	if (FileVersionUE >= VER_UE4_ADDED_PACKAGE_OWNER && IsEditorPackage(*this))
	{
		Ar << PersistentGuid;
		if (FileVersionUE < VER_UE4_NON_OUTER_PACKAGE_IMPORT)
		{
			Ar << OwnerPersistentGuid;
		}
	}
	int32 GenerationCount = Generations.Num();
	Ar << GenerationCount;
	if (Ar.IsLoading() && (GenerationCount < 0 || !Ar.CanHold(GenerationCount, sizeof(FGenerationInfo))))
	{
		Ar.SetError();
		return;
	}
	Generations.SetNum(GenerationCount);
	for (FGenerationInfo& Generation : Generations)
	{
		Ar << Generation.ExportCount << Generation.NameCount;
	}
	if (FileVersionUE >= VER_UE4_ENGINE_VERSION_OBJECT)
	{
		Ar << SavedByEngineVersion;
	}
	if (FileVersionUE >= VER_UE4_PACKAGE_SUMMARY_HAS_COMPATIBLE_ENGINE_VERSION)
	{
		Ar << CompatibleWithEngineVersion;
	}
	Ar << CompressionFlags;
	int32 CompressedChunkCount = 0;
	Ar << CompressedChunkCount;
	if (CompressedChunkCount != 0)
	{
		OutError = TEXT("compressed packages cannot be read");
		Ar.SetError();
	}
}

void FPackageFileSummary::SerializeTail(FArchive& Ar)
{
	Ar << PackageSource << AdditionalPackagesToCook;
	if (LegacyFileVersion > -7)
	{
		Ar << TextureAllocationCount;
	}
	Ar << AssetRegistryDataOffset << BulkDataStartOffset << WorldTileInfoDataOffset << ChunkIDs;
	if (FileVersionUE >= VER_UE4_PRELOAD_DEPENDENCIES_IN_COOKED_EXPORTS)
	{
		Ar << PreloadDependencyCount << PreloadDependencyOffset;
	}
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::NAMES_REFERENCED_FROM_EXPORT_DATA))
	{
		Ar << NamesReferencedFromExportDataCount;
	}
	else
	{
		NamesReferencedFromExportDataCount = NameCount;
	}
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::PAYLOAD_TOC))
	{
		Ar << PayloadTocOffset;
	}
	if (HasUE5(*this, EUnrealEngineObjectUE5Version::DATA_RESOURCES))
	{
		Ar << DataResourceOffset;
	}
}

bool FPackageFileSummary::Serialize(FArchive& Ar, FString& OutError)
{
	if (!SerializeVersions(Ar, OutError))
	{
		return false;
	}
	SerializeTables(Ar);
	Ar.SetFilterEditorOnly(!IsEditorPackage(*this));
	if (!Ar.IsError())
	{
		SerializeOrigin(Ar, OutError);
	}
	if (!Ar.IsError())
	{
		SerializeTail(Ar);
	}
	if (Ar.IsError() && OutError.IsEmpty())
	{
		OutError = FString::Printf(TEXT("the package's summary is cut off or damaged at offset %lld"), static_cast<long long>(Ar.Tell()));
	}
	return !Ar.IsError();
}

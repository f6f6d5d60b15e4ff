#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"
#include "Serialization/CustomVersion.h"
#include "UObject/ObjectVersion.h"

class FArchive;

/** First and last bytes of a package file. */
inline constexpr uint32 PACKAGE_FILE_TAG = 0x9E2A83C1u;

/** The version of the engine that saved a package. */
struct COREUOBJECT_API FSavedEngineVersion
{
	uint16 Major = 0;
	uint16 Minor = 0;
	uint16 Patch = 0;
	uint32 Changelist = 0;
	FString Branch;

	/** "5.6.0-43139311+++UE5+Release-5.6". */
	FString ToString() const;
	friend COREUOBJECT_API FArchive& operator<<(FArchive& Ar, FSavedEngineVersion& Version);
};

struct FGenerationInfo
{
	int32 ExportCount = 0;
	int32 NameCount = 0;
};

/** What stands at the front of a package: versions, flags, and where the tables are. Offsets are from the file's start. */
struct COREUOBJECT_API FPackageFileSummary
{
	uint32 Tag = PACKAGE_FILE_TAG;
	int32 LegacyFileVersion = -9;
	int32 LegacyUE3Version = 864;
	FPackageFileVersion FileVersionUE = GPackageFileUEVersion;
	int32 FileVersionLicenseeUE = 0;
	/** No versions of its own: written by a build that reads only what it wrote. */
	bool bUnversioned = false;
	uint8 SavedHash[20] = {};
	int32 TotalHeaderSize = 0;
	FCustomVersionContainer CustomVersions;
	FString PackageName;
	uint32 PackageFlags = 0;
	int32 NameCount = 0;
	int32 NameOffset = 0;
	int32 SoftObjectPathsCount = 0;
	int32 SoftObjectPathsOffset = 0;
	FString LocalizationId;
	int32 GatherableTextDataCount = 0;
	int32 GatherableTextDataOffset = 0;
	int32 ExportCount = 0;
	int32 ExportOffset = 0;
	int32 ImportCount = 0;
	int32 ImportOffset = 0;
	int32 CellExportCount = 0;
	int32 CellExportOffset = 0;
	int32 CellImportCount = 0;
	int32 CellImportOffset = 0;
	int32 MetaDataOffset = 0;
	int32 DependsOffset = 0;
	int32 SoftPackageReferencesCount = 0;
	int32 SoftPackageReferencesOffset = 0;
	int32 SearchableNamesOffset = 0;
	int32 ThumbnailTableOffset = 0;
	FGuid Guid;
	FGuid PersistentGuid;
	FGuid OwnerPersistentGuid;
	TArray<FGenerationInfo> Generations;
	FSavedEngineVersion SavedByEngineVersion;
	FSavedEngineVersion CompatibleWithEngineVersion;
	uint32 CompressionFlags = 0;
	uint32 PackageSource = 0;
	TArray<FString> AdditionalPackagesToCook;
	int32 TextureAllocationCount = 0;
	int32 AssetRegistryDataOffset = 0;
	int64 BulkDataStartOffset = 0;
	int32 WorldTileInfoDataOffset = 0;
	TArray<int32> ChunkIDs;
	int32 PreloadDependencyCount = -1;
	int32 PreloadDependencyOffset = 0;
	int32 NamesReferencedFromExportDataCount = 0;
	int64 PayloadTocOffset = -1;
	int32 DataResourceOffset = -1;

	FPackageFileVersion GetFileVersionUE() const { return FileVersionUE; }
	const FCustomVersionContainer& GetCustomVersionContainer() const { return CustomVersions; }
	/** Loading also gives the archive the package's versions. False with the reason when this is no package that can be read. */
	[[nodiscard]] bool Serialize(FArchive& Ar, FString& OutError);

private:
	bool SerializeVersions(FArchive& Ar, FString& OutError);
	void SerializeTables(FArchive& Ar);
	void SerializeOrigin(FArchive& Ar, FString& OutError);
	void SerializeTail(FArchive& Ar);
};

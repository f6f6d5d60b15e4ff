#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectResource.h"

class FLinkerLoad;

/** A part of a package file, in the order in which present engines write them. Their places are in the summary. */
enum class EPackageSection : uint8
{
	Summary,
	Names,
	SoftObjectPaths,
	MetaData,
	GatherableText,
	Imports,
	Exports,
	CellImports,
	CellExports,
	Depends,
	SoftPackageReferences,
	SearchableNames,
	Thumbnails,
	AssetRegistry,
	WorldTileInfo,
	PreloadDependencies,
	DataResources,
	/** The exports' values. */
	Values,
	/** What follows the values: bulk data, the index of payloads, the payloads, the closing tag. */
	Tail
};

struct FPackageSectionRange
{
	EPackageSection Section;
	int64 Start;
	int64 End;
};

struct FPackageThumbnail
{
	FString ObjectClass;
	/** Within the package: "Asset" or "Asset.Inner". */
	FString ObjectPath;
	/** Where width, height and image stand in the file. */
	int64 Offset = 0;
	int32 Width = 0;
	int32 Height = 0;
	/** Bytes of the compressed image; negative heights mean JPEG, others PNG. */
	int32 ImageBytes = 0;
	/** Where the table has the offset. */
	int64 OffsetPosition = 0;
};

/** What the asset registry is told of one object of a package. */
struct FPackageAssetEntry
{
	FString ObjectPath;
	/** A class's path, or its name alone in packages before 5.1. */
	FString ObjectClass;
	TArray<TPair<FString, FString>> Tags;
};

struct FPackageAssetRegistryData
{
	/** Where the flags of dependencies begin in the file; 0 in packages that have none. */
	int64 DependencyDataOffset = 0;
	TArray<FPackageAssetEntry> Assets;
};

/** A text that localization gathers, with the keys under which it is used. */
struct FPackageGatherableText
{
	FString Namespace;
	FString Source;
	TArray<TPair<FString, FString>> KeysAndSites;
};

/** Bulk data of 5.x packages, as the table of data resources tells it. Offsets are from the start of the bulk data. */
struct FPackageDataResource
{
	uint32 Flags = 0;
	int64 SerialOffset = 0;
	int64 DuplicateSerialOffset = 0;
	int64 SerialSize = 0;
	int64 RawSize = 0;
	FPackageIndex Outer;
	uint32 LegacyBulkDataFlags = 0;
};

/** A payload behind the package, as its index tells it. */
struct FPackagePayload
{
	FString Identifier;
	/** From the start of the payloads; -1 for one that is kept elsewhere. */
	int64 Offset = 0;
	int64 CompressedSize = 0;
	int64 RawSize = 0;
};

/** The kinds of section that a package's loading leaves unread. Each answers false with what and where when it is damaged. */
class COREUOBJECT_API FPackageSections
{
public:
	/** Every byte of the file belongs to one of them. False when the summary's offsets do not lie in the header. */
	static bool Find(const FLinkerLoad& Linker, TArray<FPackageSectionRange>& OutRanges, FString& OutError);
	static const TCHAR* GetName(EPackageSection Section);
	/** The member of the summary that holds a section's offset; null for those without. */
	static int32* GetOffset(struct FPackageFileSummary& Summary, EPackageSection Section);

	static bool ReadThumbnails(FLinkerLoad& Linker, TArray<FPackageThumbnail>& Out, FString& OutError);
	static bool ReadAssetRegistry(FLinkerLoad& Linker, FPackageAssetRegistryData& Out, FString& OutError);
	static bool ReadGatherableText(FLinkerLoad& Linker, TArray<FPackageGatherableText>& Out, FString& OutError);
	static bool ReadSearchableNames(FLinkerLoad& Linker, TArray<TPair<FPackageIndex, TArray<FName>>>& Out, FString& OutError);
	static bool ReadDataResources(FLinkerLoad& Linker, TArray<FPackageDataResource>& Out, FString& OutError);
	static bool ReadPayloads(FLinkerLoad& Linker, TArray<FPackagePayload>& Out, FString& OutError);
	/** By object; the package's own under the null index. Of 5.6 and later. */
	static bool ReadMetaData(FLinkerLoad& Linker, TArray<TPair<FPackageIndex, TMap<FName, FString>>>& Out, FString& OutError);
};

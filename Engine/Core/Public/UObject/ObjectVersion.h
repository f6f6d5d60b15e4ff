#pragma once

#include "CoreTypes.h"

class FArchive;

/** Changes of the package format that readers must tell apart, by the last version number of the engine's 4.x line. */
enum EUnrealEngineObjectUE4Version
{
	VER_UE4_OLDEST_LOADABLE_PACKAGE = 214,
	VER_UE4_ADDED_NAMESPACE_AND_KEY_DATA_TO_FTEXT = 226,
	VER_UE4_ADD_COOKED_TO_UCLASS = 241,
	VER_UE4_ADDED_CHUNKID_TO_ASSETDATA_AND_UPACKAGE = 278,
	VER_UE4_K2NODE_REFERENCEGUIDS = 311,
	VER_UE4_PACKAGE_REQUIRES_LOCALIZATION_GATHER_FLAGGING = 320,
	VER_UE4_EDGRAPHPINTYPE_SERIALIZATION = 324,
	VER_UE4_CHANGED_CHUNKID_TO_BE_AN_ARRAY_OF_CHUNKIDS = 326,
	VER_UE4_WORLD_NAMED_AFTER_PACKAGE = 327,
	VER_UE4_ENGINE_VERSION_OBJECT = 336,
	VER_UE4_MEMBERREFERENCE_IN_PINTYPE = 355,
	VER_UE4_UCLASS_SERIALIZE_INTERFACES_AFTER_LINKING = 361,
	VER_UE4_LOAD_FOR_EDITOR_GAME = 365,
	VER_UE4_FTEXT_HISTORY = 368,
	VER_UE4_STORE_BONE_EXPORT_NAMES = 370,
	VER_UE4_ADD_STRING_ASSET_REFERENCES_MAP = 384,
	VER_UE4_SKELETON_ADD_SMARTNAMES = 388,
	VER_UE4_ADDED_CURRENCY_CODE_TO_FTEXT = 389,
	VER_UE4_ENUM_CLASS_SUPPORT = 390,
	VER_UE4_CASE_PRESERVING_FNAME = 400,
	VER_UE4_FTEXT_HISTORY_DATE_TIMEZONE = 422,
	VER_UE4_STRUCT_GUID_IN_PROPERTY_TAG = 441,
	VER_UE4_PACKAGE_SUMMARY_HAS_COMPATIBLE_ENGINE_VERSION = 444,
	VER_UE4_SERIALIZE_BLUEPRINT_EVENTGRAPH_FASTCALLS_IN_UFUNCTION = 451,
	VER_UE4_SERIALIZE_PINTYPE_CONST = 456,
	VER_UE4_LIBRARY_CATEGORIES_AS_FTEXT = 457,
	VER_UE4_SERIALIZE_TEXT_IN_PACKAGES = 459,
	VER_UE4_TIGHTLY_PACKED_ENUMS = 463,
	VER_UE4_ADDED_NATIVE_SERIALIZATION_FOR_IMMUTABLE_STRUCTURES = 466,
	VER_UE4_KEEP_ONLY_PACKAGE_NAMES_IN_STRING_ASSET_REFERENCES_MAP = 484,
	VER_UE4_COOKED_ASSETS_IN_EDITOR_SUPPORT = 485,
	VER_UE4_K2NODE_VAR_REFERENCEGUIDS = 488,
	VER_UE4_INNER_ARRAY_TAG_INFO = 500,
	VER_UE4_PROPERTY_GUID_IN_PROPERTY_TAG = 503,
	VER_UE4_NAME_HASHES_SERIALIZED = 504,
	VER_UE4_PRELOAD_DEPENDENCIES_IN_COOKED_EXPORTS = 507,
	VER_UE4_TemplateIndex_IN_COOKED_EXPORTS = 508,
	VER_UE4_PROPERTY_TAG_SET_MAP_SUPPORT = 509,
	VER_UE4_ADDED_SEARCHABLE_NAMES = 510,
	VER_UE4_64BIT_EXPORTMAP_SERIALSIZES = 511,
	VER_UE4_ADDED_SWEEP_WHILE_WALKING_FLAG = 513,
	VER_UE4_ADDED_SOFT_OBJECT_PATH = 514,
	VER_UE4_ADDED_PACKAGE_SUMMARY_LOCALIZATION_ID = 516,
	VER_UE4_FIX_WIDE_STRING_CRC = 517,
	VER_UE4_ADDED_PACKAGE_OWNER = 518,
	VER_UE4_SKINWEIGHT_PROFILE_DATA_LAYOUT_CHANGES = 519,
	VER_UE4_NON_OUTER_PACKAGE_IMPORT = 520,
	VER_UE4_ASSETREGISTRY_DEPENDENCYFLAGS = 521,
	VER_UE4_CORRECT_LICENSEE_FLAG = 522,
	VER_UE4_AUTOMATIC_VERSION = VER_UE4_CORRECT_LICENSEE_FLAG
};

/** Changes of the package format in the engine's 5.x line. */
enum class EUnrealEngineObjectUE5Version : uint32
{
	INITIAL_VERSION = 1000,
	NAMES_REFERENCED_FROM_EXPORT_DATA = 1001,
	PAYLOAD_TOC = 1002,
	OPTIONAL_RESOURCES = 1003,
	LARGE_WORLD_COORDINATES = 1004,
	REMOVE_OBJECT_EXPORT_PACKAGE_GUID = 1005,
	TRACK_OBJECT_EXPORT_IS_INHERITED = 1006,
	FSOFTOBJECTPATH_REMOVE_ASSET_PATH_FNAMES = 1007,
	ADD_SOFTOBJECTPATH_LIST = 1008,
	DATA_RESOURCES = 1009,
	SCRIPT_SERIALIZATION_OFFSET = 1010,
	PROPERTY_TAG_EXTENSION_AND_OVERRIDABLE_SERIALIZATION = 1011,
	PROPERTY_TAG_COMPLETE_TYPE_NAME = 1012,
	ASSETREGISTRY_PACKAGEBUILDDEPENDENCIES = 1013,
	METADATA_SERIALIZATION_OFFSET = 1014,
	VERSE_CELLS = 1015,
	PACKAGE_SAVED_HASH = 1016,
	OS_SUB_OBJECT_SHADOW_SERIALIZATION = 1017,
	AUTOMATIC_VERSION = OS_SUB_OBJECT_SHADOW_SERIALIZATION
};

/** The version of a package's data: one number of each line. A file of the 4.x line has FileVersionUE5 0. */
struct FPackageFileVersion
{
	FPackageFileVersion() = default;
	constexpr FPackageFileVersion(int32 UE4Version, EUnrealEngineObjectUE5Version UE5Version)
		: FileVersionUE4(UE4Version)
		, FileVersionUE5(static_cast<int32>(UE5Version))
	{
	}

	static constexpr FPackageFileVersion CreateUE4Version(int32 Version)
	{
		FPackageFileVersion Result;
		Result.FileVersionUE4 = Version;
		return Result;
	}
	static constexpr FPackageFileVersion CreateUE4Version(EUnrealEngineObjectUE4Version Version)
	{
		return CreateUE4Version(static_cast<int32>(Version));
	}

	void Reset() { *this = FPackageFileVersion(); }
	constexpr int32 ToValue() const
	{
		return FileVersionUE5 >= static_cast<int32>(EUnrealEngineObjectUE5Version::INITIAL_VERSION) ? FileVersionUE5 : FileVersionUE4;
	}
	/** True if every change that Other knows is known to this version. */
	constexpr bool IsCompatible(const FPackageFileVersion& Other) const
	{
		return FileVersionUE4 >= Other.FileVersionUE4 && FileVersionUE5 >= Other.FileVersionUE5;
	}

	constexpr bool operator==(const FPackageFileVersion& Other) const = default;
	constexpr bool operator==(EUnrealEngineObjectUE4Version Version) const { return FileVersionUE4 == Version; }
	constexpr bool operator!=(EUnrealEngineObjectUE4Version Version) const { return FileVersionUE4 != Version; }
	constexpr bool operator<(EUnrealEngineObjectUE4Version Version) const { return FileVersionUE4 < Version; }
	constexpr bool operator>=(EUnrealEngineObjectUE4Version Version) const { return FileVersionUE4 >= Version; }
	constexpr bool operator==(EUnrealEngineObjectUE5Version Version) const { return FileVersionUE5 == static_cast<int32>(Version); }
	constexpr bool operator!=(EUnrealEngineObjectUE5Version Version) const { return FileVersionUE5 != static_cast<int32>(Version); }
	constexpr bool operator<(EUnrealEngineObjectUE5Version Version) const { return FileVersionUE5 < static_cast<int32>(Version); }
	constexpr bool operator>=(EUnrealEngineObjectUE5Version Version) const { return FileVersionUE5 >= static_cast<int32>(Version); }

	friend CORE_API FArchive& operator<<(FArchive& Ar, FPackageFileVersion& Version);

	int32 FileVersionUE4 = 0;
	int32 FileVersionUE5 = 0;
};

/** What this engine writes, and the newest that it reads. */
inline constexpr FPackageFileVersion GPackageFileUEVersion(VER_UE4_AUTOMATIC_VERSION, EUnrealEngineObjectUE5Version::AUTOMATIC_VERSION);
inline constexpr FPackageFileVersion GOldestLoadablePackageFileUEVersion = FPackageFileVersion::CreateUE4Version(
	VER_UE4_OLDEST_LOADABLE_PACKAGE);
inline constexpr int32 GPackageFileLicenseeUEVersion = 0;

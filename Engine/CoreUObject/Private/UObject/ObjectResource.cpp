#include "UObject/ObjectResource.h"

#include "Serialization/Archive.h"

void FObjectExport::Serialize(FArchive& Ar)
{
	Ar << ClassIndex << SuperIndex;
	if (Ar.UEVer() >= VER_UE4_TemplateIndex_IN_COOKED_EXPORTS)
	{
		Ar << TemplateIndex;
	}
	Ar << OuterIndex << ObjectName;
	uint32 Flags = static_cast<uint32>(ObjectFlags);
	Ar << Flags;
	ObjectFlags = static_cast<EObjectFlags>(Flags);
	if (Ar.UEVer() >= VER_UE4_64BIT_EXPORTMAP_SERIALSIZES)
	{
		Ar << SerialSize << SerialOffset;
	}
	else
	{
		int32 Size = static_cast<int32>(SerialSize);
		int32 Offset = static_cast<int32>(SerialOffset);
		Ar << Size << Offset;
		SerialSize = Size;
		SerialOffset = Offset;
	}
	Ar << bForcedExport << bNotForClient << bNotForServer;
	if (Ar.UEVer() < EUnrealEngineObjectUE5Version::REMOVE_OBJECT_EXPORT_PACKAGE_GUID)
	{
		Ar << PackageGuid;
	}
	if (Ar.UEVer() >= EUnrealEngineObjectUE5Version::TRACK_OBJECT_EXPORT_IS_INHERITED)
	{
		Ar << bIsInheritedInstance;
	}
	Ar << PackageFlags;
	if (Ar.UEVer() >= VER_UE4_LOAD_FOR_EDITOR_GAME)
	{
		Ar << bNotAlwaysLoadedForEditorGame;
	}
	if (Ar.UEVer() >= VER_UE4_COOKED_ASSETS_IN_EDITOR_SUPPORT)
	{
		Ar << bIsAsset;
	}
	if (Ar.UEVer() >= EUnrealEngineObjectUE5Version::OPTIONAL_RESOURCES)
	{
		Ar << bGeneratePublicHash;
	}
	if (Ar.UEVer() >= VER_UE4_PRELOAD_DEPENDENCIES_IN_COOKED_EXPORTS)
	{
		Ar << FirstExportDependency << SerializationBeforeSerializationDependencies << CreateBeforeSerializationDependencies;
		Ar << SerializationBeforeCreateDependencies << CreateBeforeCreateDependencies;
	}
	if (Ar.UEVer() >= EUnrealEngineObjectUE5Version::SCRIPT_SERIALIZATION_OFFSET)
	{
		Ar << ScriptSerializationStartOffset << ScriptSerializationEndOffset;
	}
}

void FObjectImport::Serialize(FArchive& Ar)
{
	Ar << ClassPackage << ClassName << OuterIndex << ObjectName;
	if (Ar.UEVer() >= VER_UE4_NON_OUTER_PACKAGE_IMPORT && !Ar.IsFilterEditorOnly())
	{
		Ar << PackageName;
	}
	if (Ar.UEVer() >= EUnrealEngineObjectUE5Version::OPTIONAL_RESOURCES)
	{
		Ar << bImportOptional;
	}
}

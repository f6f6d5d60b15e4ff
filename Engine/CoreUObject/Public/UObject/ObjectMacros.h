#pragma once

#include "CoreTypes.h"
#include "Misc/EnumClassFlags.h"
#include "UObject/Script.h"

class FObjectInitializer;
class FReferenceCollector;
class UClass;
class UObject;

/** Marks a constructor that only the reflection system may call. */
enum EInternal
{
	EC_InternalUseOnlyConstructor
};
enum EStaticConstructor
{
	EC_StaticConstructor
};

/** Flags of an object instance. Packages store those of RF_Load. */
enum EObjectFlags
{
	RF_NoFlags = 0x00000000,

	RF_Public = 0x00000001,
	RF_Standalone = 0x00000002,
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	RF_ClassDefaultObject = 0x00000010,
	RF_ArchetypeObject = 0x00000020,
	RF_Transient = 0x00000040,
	RF_MarkAsRootSet = 0x00000080,
	RF_TagGarbageTemp = 0x00000100,
	RF_NeedInitialization = 0x00000200,
	RF_NeedLoad = 0x00000400,
	RF_KeepForCooker = 0x00000800,
	RF_NeedPostLoad = 0x00001000,
	RF_NeedPostLoadSubobjects = 0x00002000,
	RF_NewerVersionExists = 0x00004000,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	RF_BeingRegenerated = 0x00020000,
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_TextExportTransient = 0x00100000,
	RF_LoadCompleted = 0x00200000,
	RF_InheritableComponentTemplate = 0x00400000,
	RF_DuplicateTransient = 0x00800000,
	RF_StrongRefOnFrame = 0x01000000,
	RF_NonPIEDuplicateTransient = 0x02000000,
	RF_Dynamic = 0x04000000,
	RF_WillBeLoaded = 0x08000000,
	RF_HasExternalPackage = 0x10000000,
	RF_HasPlaceholderType = 0x20000000,
	RF_MirroredGarbage = 0x40000000,
	RF_AllocatedInSharedPage = 0x80000000,
};
ENUM_CLASS_FLAGS(EObjectFlags)

#define RF_AllFlags ((EObjectFlags)0xffffffff)
#define RF_Load \
	((EObjectFlags)(RF_Public | RF_Standalone | RF_Transactional | RF_ClassDefaultObject | RF_ArchetypeObject | RF_DefaultSubObject | \
		RF_TextExportTransient | RF_InheritableComponentTemplate | RF_DuplicateTransient | RF_NonPIEDuplicateTransient))
#define RF_PropagateToSubObjects ((EObjectFlags)(RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient))

/** Flags kept in the object array, not in the object. */
enum class EInternalObjectFlags : int32
{
	None = 0,
	LoaderImport = 1 << 20,
	Garbage = 1 << 21,
	AsyncLoadingPhase1 = 1 << 22,
	ReachableInCluster = 1 << 23,
	ClusterRoot = 1 << 24,
	Native = 1 << 25,
	Async = 1 << 26,
	AsyncLoading = 1 << 27,
	Unreachable = 1 << 28,
	RefCounted = 1 << 29,
	RootSet = 1 << 30,
	PendingConstruction = static_cast<int32>(1u << 31),
};
ENUM_CLASS_FLAGS(EInternalObjectFlags)

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000u,
	CLASS_Abstract = 0x00000001u,
	CLASS_DefaultConfig = 0x00000002u,
	CLASS_Config = 0x00000004u,
	CLASS_Transient = 0x00000008u,
	CLASS_Optional = 0x00000010u,
	CLASS_MatchedSerializers = 0x00000020u,
	CLASS_ProjectUserConfig = 0x00000040u,
	CLASS_Native = 0x00000080u,
	CLASS_NoExport = 0x00000100u,
	CLASS_NotPlaceable = 0x00000200u,
	CLASS_PerObjectConfig = 0x00000400u,
	CLASS_ReplicationDataIsSetUp = 0x00000800u,
	CLASS_EditInlineNew = 0x00001000u,
	CLASS_CollapseCategories = 0x00002000u,
	CLASS_Interface = 0x00004000u,
	CLASS_PerPlatformConfig = 0x00008000u,
	CLASS_Const = 0x00010000u,
	CLASS_NeedsDeferredDependencyLoading = 0x00020000u,
	CLASS_CompiledFromBlueprint = 0x00040000u,
	CLASS_MinimalAPI = 0x00080000u,
	CLASS_RequiredAPI = 0x00100000u,
	CLASS_DefaultToInstanced = 0x00200000u,
	CLASS_TokenStreamAssembled = 0x00400000u,
	CLASS_HasInstancedReference = 0x00800000u,
	CLASS_Hidden = 0x01000000u,
	CLASS_Deprecated = 0x02000000u,
	CLASS_HideDropDown = 0x04000000u,
	CLASS_GlobalUserConfig = 0x08000000u,
	CLASS_Intrinsic = 0x10000000u,
	CLASS_Constructed = 0x20000000u,
	CLASS_ConfigDoNotCheckDefaults = 0x40000000u,
	CLASS_NewerVersionExists = 0x80000000u,
};
ENUM_CLASS_FLAGS(EClassFlags)

/** Flags that a class takes from its super class. */
#define CLASS_Inherit \
	((EClassFlags)(CLASS_Transient | CLASS_Optional | CLASS_DefaultConfig | CLASS_Config | CLASS_PerObjectConfig | \
		CLASS_ConfigDoNotCheckDefaults | CLASS_NotPlaceable | CLASS_Const | CLASS_HasInstancedReference | CLASS_Deprecated | \
		CLASS_DefaultToInstanced | CLASS_GlobalUserConfig | CLASS_ProjectUserConfig | CLASS_PerPlatformConfig | \
		CLASS_NeedsDeferredDependencyLoading))
/** Flags that a Blueprint's class keeps when it is compiled again. */
#define CLASS_RecompilerClear \
	((EClassFlags)(CLASS_Inherit | CLASS_Abstract | CLASS_Native | CLASS_Intrinsic | CLASS_TokenStreamAssembled))
#define CLASS_ScriptInherit ((EClassFlags)((CLASS_Inherit | CLASS_EditInlineNew | CLASS_CollapseCategories)))
#define CLASS_AllFlags ((EClassFlags)0xFFFFFFFFu)

/** One bit a frequently tested class; a class carries the bits of its supers too. Field classes of properties use the same set. */
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0x0000000000000000,

	CASTCLASS_UField = 0x0000000000000001,
	CASTCLASS_FInt8Property = 0x0000000000000002,
	CASTCLASS_UEnum = 0x0000000000000004,
	CASTCLASS_UStruct = 0x0000000000000008,
	CASTCLASS_UScriptStruct = 0x0000000000000010,
	CASTCLASS_UClass = 0x0000000000000020,
	CASTCLASS_FByteProperty = 0x0000000000000040,
	CASTCLASS_FIntProperty = 0x0000000000000080,
	CASTCLASS_FFloatProperty = 0x0000000000000100,
	CASTCLASS_FUInt64Property = 0x0000000000000200,
	CASTCLASS_FClassProperty = 0x0000000000000400,
	CASTCLASS_FUInt32Property = 0x0000000000000800,
	CASTCLASS_FInterfaceProperty = 0x0000000000001000,
	CASTCLASS_FNameProperty = 0x0000000000002000,
	CASTCLASS_FStrProperty = 0x0000000000004000,
	CASTCLASS_FProperty = 0x0000000000008000,
	CASTCLASS_FObjectProperty = 0x0000000000010000,
	CASTCLASS_FBoolProperty = 0x0000000000020000,
	CASTCLASS_FUInt16Property = 0x0000000000040000,
	CASTCLASS_UFunction = 0x0000000000080000,
	CASTCLASS_FStructProperty = 0x0000000000100000,
	CASTCLASS_FArrayProperty = 0x0000000000200000,
	CASTCLASS_FInt64Property = 0x0000000000400000,
	CASTCLASS_FDelegateProperty = 0x0000000000800000,
	CASTCLASS_FNumericProperty = 0x0000000001000000,
	CASTCLASS_FMulticastDelegateProperty = 0x0000000002000000,
	CASTCLASS_FObjectPropertyBase = 0x0000000004000000,
	CASTCLASS_FWeakObjectProperty = 0x0000000008000000,
	CASTCLASS_FLazyObjectProperty = 0x0000000010000000,
	CASTCLASS_FSoftObjectProperty = 0x0000000020000000,
	CASTCLASS_FTextProperty = 0x0000000040000000,
	CASTCLASS_FInt16Property = 0x0000000080000000,
	CASTCLASS_FDoubleProperty = 0x0000000100000000,
	CASTCLASS_FSoftClassProperty = 0x0000000200000000,
	CASTCLASS_UPackage = 0x0000000400000000,
	CASTCLASS_ULevel = 0x0000000800000000,
	CASTCLASS_AActor = 0x0000001000000000,
	CASTCLASS_APlayerController = 0x0000002000000000,
	CASTCLASS_APawn = 0x0000004000000000,
	CASTCLASS_USceneComponent = 0x0000008000000000,
	CASTCLASS_UPrimitiveComponent = 0x0000010000000000,
	CASTCLASS_USkinnedMeshComponent = 0x0000020000000000,
	CASTCLASS_USkeletalMeshComponent = 0x0000040000000000,
	CASTCLASS_UBlueprint = 0x0000080000000000,
	CASTCLASS_UDelegateFunction = 0x0000100000000000,
	CASTCLASS_UStaticMeshComponent = 0x0000200000000000,
	CASTCLASS_FMapProperty = 0x0000400000000000,
	CASTCLASS_FSetProperty = 0x0000800000000000,
	CASTCLASS_FEnumProperty = 0x0001000000000000,
	CASTCLASS_USparseDelegateFunction = 0x0002000000000000,
	CASTCLASS_FMulticastInlineDelegateProperty = 0x0004000000000000,
	CASTCLASS_FMulticastSparseDelegateProperty = 0x0008000000000000,
	CASTCLASS_FFieldPathProperty = 0x0010000000000000,
	CASTCLASS_FLargeWorldCoordinatesRealProperty = 0x0080000000000000,
	CASTCLASS_FOptionalProperty = 0x0100000000000000,
	CASTCLASS_FVValueProperty = 0x0200000000000000,
	CASTCLASS_FVRestValueProperty = 0x0400000000000000,
	CASTCLASS_FUtf8StrProperty = 0x0800000000000000,
	CASTCLASS_FAnsiStrProperty = 0x1000000000000000,
	CASTCLASS_FVCellProperty = 0x2000000000000000,
};
#define CASTCLASS_AllFlags ((EClassCastFlags)0xFFFFFFFFFFFFFFFF)
ENUM_CLASS_FLAGS(EClassCastFlags)

enum EStructFlags : uint32
{
	STRUCT_NoFlags = 0x00000000,
	STRUCT_Native = 0x00000001,
	STRUCT_IdenticalNative = 0x00000002,
	STRUCT_HasInstancedReference = 0x00000004,
	STRUCT_NoExport = 0x00000008,
	STRUCT_Atomic = 0x00000010,
	STRUCT_Immutable = 0x00000020,
	STRUCT_AddStructReferencedObjects = 0x00000040,
	STRUCT_RequiredAPI = 0x00000200,
	STRUCT_NetSerializeNative = 0x00000400,
	STRUCT_SerializeNative = 0x00000800,
	STRUCT_CopyNative = 0x00001000,
	STRUCT_IsPlainOldData = 0x00002000,
	STRUCT_NoDestructor = 0x00004000,
	STRUCT_ZeroConstructor = 0x00008000,
	STRUCT_ExportTextItemNative = 0x00010000,
	STRUCT_ImportTextItemNative = 0x00020000,
	STRUCT_PostSerializeNative = 0x00040000,
	STRUCT_SerializeFromMismatchedTag = 0x00080000,
	STRUCT_NetDeltaSerializeNative = 0x00100000,
	STRUCT_PostScriptConstruct = 0x00200000,
	STRUCT_NetSharedSerialization = 0x00400000,
	STRUCT_Trashed = 0x00800000,
	STRUCT_NewerVersionExists = 0x01000000,
	STRUCT_CanEditChange = 0x02000000,
	STRUCT_Visitor = 0x04000000,

	STRUCT_Inherit = STRUCT_HasInstancedReference | STRUCT_Atomic,
	STRUCT_ComputedFlags = STRUCT_NetDeltaSerializeNative | STRUCT_NetSerializeNative | STRUCT_SerializeNative |
		STRUCT_PostSerializeNative | STRUCT_CopyNative | STRUCT_IsPlainOldData | STRUCT_NoDestructor | STRUCT_ZeroConstructor |
		STRUCT_IdenticalNative | STRUCT_AddStructReferencedObjects | STRUCT_ExportTextItemNative | STRUCT_ImportTextItemNative |
		STRUCT_SerializeFromMismatchedTag | STRUCT_PostScriptConstruct | STRUCT_NetSharedSerialization,
};
ENUM_CLASS_FLAGS(EStructFlags)

enum EPropertyFlags : uint64
{
	CPF_None = 0,

	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	CPF_ExportObject = 0x0000000000000008,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_Net = 0x0000000000000020,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_Parm = 0x0000000000000080,
	CPF_OutParm = 0x0000000000000100,
	CPF_ZeroConstructor = 0x0000000000000200,
	CPF_ReturnParm = 0x0000000000000400,
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	CPF_NonNullable = 0x0000000000001000,
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_RequiredParm = 0x0000000000008000,
	CPF_DisableEditOnInstance = 0x0000000000010000,
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	CPF_InstancedReference = 0x0000000000080000,
	CPF_ExperimentalExternalObjects = 0x0000000000100000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_SaveGame = 0x0000000001000000,
	CPF_NoClear = 0x0000000002000000,
	CPF_Virtual = 0x0000000004000000,
	CPF_ReferenceParm = 0x0000000008000000,
	CPF_BlueprintAssignable = 0x0000000010000000,
	CPF_Deprecated = 0x0000000020000000,
	CPF_IsPlainOldData = 0x0000000040000000,
	CPF_RepSkip = 0x0000000080000000,
	CPF_RepNotify = 0x0000000100000000,
	CPF_Interp = 0x0000000200000000,
	CPF_NonTransactional = 0x0000000400000000,
	CPF_EditorOnly = 0x0000000800000000,
	CPF_NoDestructor = 0x0000001000000000,
	CPF_AutoWeak = 0x0000004000000000,
	CPF_ContainsInstancedReference = 0x0000008000000000,
	CPF_AssetRegistrySearchable = 0x0000010000000000,
	CPF_SimpleDisplay = 0x0000020000000000,
	CPF_AdvancedDisplay = 0x0000040000000000,
	CPF_Protected = 0x0000080000000000,
	CPF_BlueprintCallable = 0x0000100000000000,
	CPF_BlueprintAuthorityOnly = 0x0000200000000000,
	CPF_TextExportTransient = 0x0000400000000000,
	CPF_NonPIEDuplicateTransient = 0x0000800000000000,
	CPF_ExposeOnSpawn = 0x0001000000000000,
	CPF_PersistentInstance = 0x0002000000000000,
	CPF_UObjectWrapper = 0x0004000000000000,
	CPF_HasGetValueTypeHash = 0x0008000000000000,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000,
	CPF_SkipSerialization = 0x0080000000000000,
	CPF_TObjectPtr = 0x0100000000000000,
	CPF_ExperimentalOverridableLogic = 0x0200000000000000,
	CPF_ExperimentalAlwaysOverriden = 0x0400000000000000,
	CPF_ExperimentalNeverOverriden = 0x0800000000000000,
	CPF_AllowSelfReference = 0x1000000000000000,
};
ENUM_CLASS_FLAGS(EPropertyFlags)

#define CPF_NativeAccessSpecifiers \
	((EPropertyFlags)(CPF_NativeAccessSpecifierPublic | CPF_NativeAccessSpecifierProtected | CPF_NativeAccessSpecifierPrivate))
#define CPF_ParmFlags ((EPropertyFlags)(CPF_Parm | CPF_OutParm | CPF_ReturnParm | CPF_RequiredParm | CPF_ReferenceParm | CPF_ConstParm))
#define CPF_PropagateToArrayInner \
	((EPropertyFlags)(CPF_ExportObject | CPF_PersistentInstance | CPF_InstancedReference | CPF_ContainsInstancedReference | CPF_Config | \
		CPF_EditConst | CPF_Deprecated | CPF_EditorOnly | CPF_AutoWeak | CPF_UObjectWrapper))
#define CPF_PropagateToMapValue ((EPropertyFlags)(CPF_PropagateToArrayInner | CPF_Edit))
#define CPF_PropagateToMapKey ((EPropertyFlags)(CPF_PropagateToArrayInner | CPF_Edit))
#define CPF_PropagateToSetElement ((EPropertyFlags)(CPF_PropagateToArrayInner | CPF_Edit))
#define CPF_InterfaceClearMask ((EPropertyFlags)(CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference))
#define CPF_DevelopmentAssets ((EPropertyFlags)(CPF_EditorOnly))
/** Flags that a property computes of its type, never loads. */
#define CPF_ComputedFlags ((EPropertyFlags)(CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash))
#define CPF_AllFlags ((EPropertyFlags)0xFFFFFFFFFFFFFFFF)

enum ELoadFlags
{
	LOAD_None = 0x00000000,
	LOAD_Async = 0x00000001,
	LOAD_NoWarn = 0x00000002,
	LOAD_EditorOnly = 0x00000004,
	LOAD_ResolvingDeferredExports = 0x00000008,
	LOAD_Verify = 0x00000010,
	LOAD_NoVerify = 0x00000080,
	LOAD_IsVerifying = 0x00000100,
	LOAD_SkipLoadImportedPackages = 0x00000200,
	LOAD_DisableDependencyPreloading = 0x00001000,
	LOAD_Quiet = 0x00002000,
	LOAD_FindIfFail = 0x00004000,
	LOAD_MemoryReader = 0x00008000,
	LOAD_NoRedirects = 0x00010000,
	LOAD_ForDiff = 0x00020000,
	LOAD_PackageForPIE = 0x00080000,
	LOAD_DeferDependencyLoads = 0x00100000,
	LOAD_ForFileDiff = 0x00200000,
	LOAD_DisableCompileOnLoad = 0x00400000,
	LOAD_DisableEngineVersionChecks = 0x00800000,
};

enum EPackageFlags : uint32
{
	PKG_None = 0x00000000,
	PKG_NewlyCreated = 0x00000001,
	PKG_ClientOptional = 0x00000002,
	PKG_ServerSideOnly = 0x00000004,
	PKG_CompiledIn = 0x00000010,
	PKG_ForDiffing = 0x00000020,
	PKG_EditorOnly = 0x00000040,
	PKG_Developer = 0x00000080,
	PKG_UncookedOnly = 0x00000100,
	PKG_Cooked = 0x00000200,
	PKG_ContainsNoAsset = 0x00000400,
	PKG_NotExternallyReferenceable = 0x00000800,
	PKG_UnversionedProperties = 0x00002000,
	PKG_ContainsMapData = 0x00004000,
	PKG_IsSaving = 0x00008000,
	PKG_Compiling = 0x00010000,
	PKG_ContainsMap = 0x00020000,
	PKG_RequiresLocalizationGather = 0x00040000,
	PKG_PlayInEditor = 0x00100000,
	PKG_ContainsScript = 0x00200000,
	PKG_DisallowExport = 0x00400000,
	PKG_CookGenerated = 0x08000000,
	PKG_DynamicImports = 0x10000000,
	PKG_RuntimeGenerated = 0x20000000,
	PKG_ReloadingForCooker = 0x40000000,
	PKG_FilterEditorOnly = 0x80000000,
};
ENUM_CLASS_FLAGS(EPackageFlags)

#define PKG_TransientFlags ((EPackageFlags)(PKG_NewlyCreated | PKG_IsSaving | PKG_ReloadingForCooker))
#define PKG_InMemoryOnly ((EPackageFlags)(PKG_CompiledIn | PKG_NewlyCreated))

enum ERenameFlags
{
	REN_None = 0x0000,
	REN_ForceNoResetLoaders = 0x0001,
	REN_Test = 0x0002,
	REN_DoNotDirty = 0x0004,
	REN_DontCreateRedirectors = 0x0010,
	REN_NonTransactional = 0x0020,
	REN_ForceGlobalUnique = 0x0040,
	REN_SkipGeneratedClasses = 0x0080,
	REN_AllowPackageLinkerMismatch = 0x0100,
};
typedef uint32 ERenameFlagsType;

/** How NotifyPreChange and its kin describe an edit. */
namespace EPropertyChangeType
{
typedef uint32 Type;
const Type Unspecified = 1 << 0;
const Type ArrayAdd = 1 << 1;
const Type ArrayRemove = 1 << 2;
const Type ArrayClear = 1 << 3;
const Type ValueSet = 1 << 4;
const Type Duplicate = 1 << 5;
const Type Interactive = 1 << 6;
const Type Redirected = 1 << 7;
const Type ArrayMove = 1 << 8;
const Type ToggleEditable = 1 << 9;
const Type ResetToDefault = 1 << 12;
}

/** What a duplicate is for. */
namespace EDuplicateMode
{
enum Type
{
	Normal,
	World,
	PIE
};
}

// Read by HeaderTool; the compiler sees nothing of them but the body.
#define UPROPERTY(...)
#define UFUNCTION(...)
#define USTRUCT(...)
#define UMETA(...)
#define UPARAM(...)
#define UENUM(...)
#define UDELEGATE(...)
#define RIGVM_METHOD(...)
#define UCLASS(...)
#define UINTERFACE(...)

#define BODY_MACRO_COMBINE_INNER(A, B, C, D) A##B##C##D
#define BODY_MACRO_COMBINE(A, B, C, D) BODY_MACRO_COMBINE_INNER(A, B, C, D)
#define GENERATED_BODY_LEGACY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY_LEGACY)
#define GENERATED_BODY(...) BODY_MACRO_COMBINE(CURRENT_FILE_ID, _, __LINE__, _GENERATED_BODY)
#define GENERATED_USTRUCT_BODY(...) GENERATED_BODY()
#define GENERATED_UCLASS_BODY(...) GENERATED_BODY_LEGACY()
#define GENERATED_UINTERFACE_BODY(...) GENERATED_BODY_LEGACY()
#define GENERATED_IINTERFACE_BODY(...) GENERATED_BODY_LEGACY()

/** Texts that metadata readers compare with. */
#define UE_SCRIPT_PACKAGE_PREFIX TEXT("/Script/")
#define DEFAULT_OBJECT_PREFIX TEXT("Default__")

/**
 * Body of a class that describes itself in code, without HeaderTool: the classes that reflection itself is made of, and
 * any other that needs no properties. IMPLEMENT_CORE_INTRINSIC_CLASS defines what this declares.
 */
#define DECLARE_CASTED_CLASS_INTRINSIC(TClass, TSuperClass, TStaticFlags, TPackage, TStaticCastFlags) \
public: \
	typedef TSuperClass Super; \
	typedef TClass ThisClass; \
	static constexpr EClassFlags StaticClassFlags = EClassFlags(TStaticFlags); \
	static constexpr EClassCastFlags StaticClassCastFlags = EClassCastFlags(TStaticCastFlags); \
	static const char* StaticPackageUTF8() { return TPackage; } \
	static UClass* StaticClass(); \
	static void __DefaultConstructor(const FObjectInitializer& Initializer); \
\
private:
#define DECLARE_CLASS_INTRINSIC(TClass, TSuperClass, TStaticFlags, TPackage) \
	DECLARE_CASTED_CLASS_INTRINSIC(TClass, TSuperClass, TStaticFlags, TPackage, CASTCLASS_None)

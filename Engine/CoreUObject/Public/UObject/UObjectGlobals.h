#pragma once

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "UObject/Class.h"
#include "UObject/GarbageCollectionSchema.h"
#include "UObject/ObjectPtr.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/TopLevelAssetPath.h"

class FLinkerInstancingContext;
class FObjectInitializer;
class UPackage;
struct FObjectInstancingGraph;

#define INVALID_OBJECT_NAME_CHARACTERS TEXT("\"' ,/.:|&!~\n\r\t@#(){}[]=;^%$`")
#define INVALID_LONGPACKAGE_CHARACTERS TEXT("\\:*?\"<>|' ,.&!~\n\r\t@#")

/** Outer that means "any": the first object of the name in any package. */
#define ANY_PACKAGE_DEPRECATED ((UPackage*)-1)

enum class EFindFirstObjectOptions
{
	None = 0,
	ExactClass = 1 << 0,
	NativeFirst = 1 << 1,
	EnsureIfAmbiguous = 1 << 2,
};
ENUM_CLASS_FLAGS(EFindFirstObjectOptions)

enum class EFindObjectFlags
{
	None = 0,
	ExactClass = 1 << 0,
};
ENUM_CLASS_FLAGS(EFindObjectFlags)

enum class EUniqueObjectNameOptions
{
	None,
	GloballyUnique = 1 << 0,
};
ENUM_CLASS_FLAGS(EUniqueObjectNameOptions)

enum class EObjectInitializerOptions
{
	None = 0,
	CopyTransientsFromClassDefaults = 1 << 0,
	InitializeProperties = 1 << 1,
};
ENUM_CLASS_FLAGS(EObjectInitializerOptions)

struct FStaticConstructObjectParameters
{
	const UClass* Class;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	EInternalObjectFlags InternalSetFlags = EInternalObjectFlags::None;
	bool bCopyTransientsFromClassDefaults = false;
	bool bAssumeTemplateIsArchetype = false;
	/** Object to take values from; null means the archetype. */
	UObject* Template = nullptr;
	FObjectInstancingGraph* InstanceGraph = nullptr;
	UPackage* ExternalPackage = nullptr;
	/** Runs after the constructor, before values are set. */
	TFunction<void()> PropertyInitCallback;

	explicit FStaticConstructObjectParameters(const UClass* InClass)
		: Class(InClass)
	{
	}
};

// Making

/** Allocates and constructs; null when the class is abstract or the arguments contradict each other, which is logged. */
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);
/**
 * Memory of an object with its identity; the class's constructor must follow. An object of that name that is of the same class
 * is destroyed first and its memory taken; one of another class is moved to the transient package, which is logged as an error.
 */
COREUOBJECT_API UObject* StaticAllocateObject(const UClass* Class, UObject* InOuter, FName Name, EObjectFlags SetFlags = RF_NoFlags,
	EInternalObjectFlags InternalSetFlags = EInternalObjectFlags::None, bool bCanReuseSubobjects = false,
	bool* bOutReusedSubobject = nullptr, UPackage* ExternalPackage = nullptr);

COREUOBJECT_API UPackage* GetTransientPackage();
COREUOBJECT_API UObject* GetTransientPackageAsObject();

template <class T>
requires std::is_base_of_v<UObject, T>
	T* NewObject(UObject* Outer = GetTransientPackageAsObject())
{
	FStaticConstructObjectParameters Params(T::StaticClass());
	Params.Outer = Outer;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}
template <class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr)
{
	FStaticConstructObjectParameters Params(T::StaticClass());
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	Params.InstanceGraph = InInstanceGraph;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}
template <class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr,
	bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr, UPackage* ExternalPackage = nullptr)
{
	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	Params.InstanceGraph = InInstanceGraph;
	Params.ExternalPackage = ExternalPackage;
	return static_cast<T*>(StaticConstructObject_Internal(Params));
}

/** A copy with everything below it; references among the copied objects point at the copies. */
COREUOBJECT_API UObject* StaticDuplicateObject(UObject const* SourceObject, UObject* DestOuter, const FName DestName = NAME_None,
	EObjectFlags FlagMask = RF_AllFlags, UClass* DestClass = nullptr, EDuplicateMode::Type DuplicateMode = EDuplicateMode::Normal,
	EInternalObjectFlags InternalFlagsMask = EInternalObjectFlags::None);

struct COREUOBJECT_API FObjectDuplicationParameters
{
	UObject* SourceObject;
	UObject* DestOuter;
	FName DestName;
	EObjectFlags FlagMask = RF_AllFlags;
	EInternalObjectFlags InternalFlagMask = EInternalObjectFlags::None;
	EObjectFlags ApplyFlags = RF_NoFlags;
	uint32 PortFlags = 0;
	EDuplicateMode::Type DuplicateMode = EDuplicateMode::Normal;
	bool bAssignExternalPackages = true;
	bool bPreserveRootComponents = false;
	bool bSkipPostLoad = false;
	/** Class of the copy; null means the source's. */
	UClass* DestClass;
	/** Copies that exist already, by source: they are referred to, not made. */
	TMap<UObject*, UObject*> DuplicationSeed;
	/** When set, receives every source and its copy. */
	TMap<UObject*, UObject*>* CreatedObjects = nullptr;

	FObjectDuplicationParameters(UObject* InSourceObject, UObject* InDestOuter);
};
COREUOBJECT_API FObjectDuplicationParameters InitStaticDuplicateObjectParams(UObject const* SourceObject, UObject* DestOuter,
	const FName DestName = NAME_None, EObjectFlags FlagMask = RF_AllFlags, UClass* DestClass = nullptr,
	EDuplicateMode::Type DuplicateMode = EDuplicateMode::Normal, EInternalObjectFlags InternalFlagsMask = EInternalObjectFlags::None);
COREUOBJECT_API UObject* StaticDuplicateObjectEx(FObjectDuplicationParameters& Parameters);

template <class T>
T* DuplicateObject(T const* SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	if (!SourceObject)
	{
		return nullptr;
	}
	return static_cast<T*>(StaticDuplicateObject(SourceObject, Outer ? Outer : GetTransientPackageAsObject(), Name));
}
template <class T>
T* DuplicateObject(const TObjectPtr<T>& SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	return DuplicateObject<T>(SourceObject.Get(), Outer, Name);
}

// Finding; none of these loads anything.

/** The object of that name directly in the outer (null: a package). Names only, no paths. */
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass = false,
	EObjectFlags ExclusiveFlags = RF_NoFlags, EInternalObjectFlags ExclusiveInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API UObject* StaticFindObjectFastInternal(const UClass* Class, const UObject* InOuter, FName InName, bool bExactClass = false,
	EObjectFlags ExclusiveFlags = RF_NoFlags, EInternalObjectFlags ExclusiveInternalFlags = EInternalObjectFlags::None);
/** By path, relative to the outer when there is one. A class of null matches any. */
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, FTopLevelAssetPath ObjectPath, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectChecked(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectSafe(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name,
	EFindFirstObjectOptions Options = EFindFirstObjectOptions::None,
	ELogVerbosity::Type AmbiguousMessageVerbosity = ELogVerbosity::NoLogging, const TCHAR* CurrentOperation = nullptr);

template <class T>
T* FindObject(UObject* Outer, FStringView Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, *FString(Name), ExactClass));
}
template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, ExactClass));
}
template <class T>
T* FindObject(UObject* Outer, const TCHAR* Name, EFindObjectFlags Flags)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), Outer, Name, EnumHasAnyFlags(Flags, EFindObjectFlags::ExactClass)));
}
template <class T>
T* FindObject(FTopLevelAssetPath InPath, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObject(T::StaticClass(), InPath, ExactClass));
}
template <class T>
T* FindObjectFast(UObject* Outer, FName Name, bool ExactClass = false, EObjectFlags ExclusiveFlags = RF_NoFlags)
{
	return static_cast<T*>(StaticFindObjectFast(T::StaticClass(), Outer, Name, ExactClass, ExclusiveFlags));
}
template <class T>
T* FindObjectChecked(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObjectChecked(T::StaticClass(), Outer, Name, ExactClass));
}
template <class T>
T* FindObjectSafe(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return static_cast<T*>(StaticFindObjectSafe(T::StaticClass(), Outer, Name, ExactClass));
}
template <class T>
T* FindFirstObject(const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None,
	ELogVerbosity::Type AmbiguousMessageVerbosity = ELogVerbosity::NoLogging, const TCHAR* CurrentOperation = nullptr)
{
	return static_cast<T*>(StaticFindFirstObject(T::StaticClass(), Name, Options, AmbiguousMessageVerbosity, CurrentOperation));
}
template <class T>
T* FindFirstObjectSafe(const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None,
	ELogVerbosity::Type AmbiguousMessageVerbosity = ELogVerbosity::NoLogging, const TCHAR* CurrentOperation = nullptr)
{
	return FindFirstObject<T>(Name, Options, AmbiguousMessageVerbosity, CurrentOperation);
}

// Loading: in memory, or else in a package that LoadPackage finds.

COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
	uint32 LoadFlags = LOAD_None, class UPackageMap* Sandbox = nullptr, bool bAllowObjectReconciliation = true,
	const FLinkerInstancingContext* InstancingContext = nullptr);
COREUOBJECT_API UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr,
	uint32 LoadFlags = LOAD_None, class UPackageMap* Sandbox = nullptr);
COREUOBJECT_API UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags,
	class FArchive* InReaderOverride = nullptr, const FLinkerInstancingContext* InstancingContext = nullptr);

template <class T>
T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None,
	class UPackageMap* Sandbox = nullptr, const FLinkerInstancingContext* InstancingContext = nullptr)
{
	return static_cast<T*>(StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox, true, InstancingContext));
}
template <class T>
T* LoadObject(FTopLevelAssetPath InPath, uint32 LoadFlags = LOAD_None)
{
	return static_cast<T*>(StaticLoadObject(T::StaticClass(), nullptr, *InPath.ToString(), nullptr, LoadFlags));
}
template <class T>
UClass* LoadClass(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None,
	class UPackageMap* Sandbox = nullptr)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox);
}

// Names and packages

/** Turns "Package.Sub.Name" into the name and its outer; Create makes the package, and loads it unless told not to. */
COREUOBJECT_API bool ResolveName(UObject*& Outer, FString& ObjectsReferenceString, bool Create, bool Throw, uint32 LoadFlags = LOAD_None,
	const FLinkerInstancingContext* InstancingContext = nullptr);
COREUOBJECT_API bool ResolveName(UObject*& Outer, FStringView& ObjectsReferenceString, bool Create, bool Throw,
	uint32 LoadFlags = LOAD_None, const FLinkerInstancingContext* InstancingContext = nullptr);
/** "Class_0" and on: a name that no object in the outer has, counting on from the last one given out for the class there. */
COREUOBJECT_API FName MakeUniqueObjectName(
	UObject* Outer, const UClass* Class, FName BaseName = NAME_None, EUniqueObjectNameOptions Options = EUniqueObjectNameOptions::None);
COREUOBJECT_API FName MakeObjectNameFromDisplayLabel(const FString& DisplayLabel, const FName CurrentObjectName);
/** The package of that name, made if need be. */
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
/** Null when it is not in memory. */
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);
COREUOBJECT_API bool IsReferenced(
	UObject*& Res, EObjectFlags KeepFlags, EInternalObjectFlags InternalKeepFlags, bool bCheckSubObjects = false);

// Undo

/** Remembers the object in the open transaction. False when there is none or the object takes no part in undo. */
COREUOBJECT_API bool SaveToTransactionBuffer(UObject* Object, bool bMarkDirty);
/** Tells those who follow a change in progress that the object has changed; all its properties when none are named. */
COREUOBJECT_API void SnapshotTransactionBuffer(UObject* Object, TArrayView<const FProperty*> Properties = TArrayView<const FProperty*>());

// Collection

/** Frees what nothing keeps: no root, native type, FGCObject, object with one of KeepFlags, nor anything these refer to. */
COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
COREUOBJECT_API bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge = true);
COREUOBJECT_API bool IsGarbageCollecting();
COREUOBJECT_API bool IsIncrementalPurgePending();
COREUOBJECT_API void IncrementalPurgeGarbage(bool bUseTimeLimit, double TimeLimit = 0.002);
inline bool UE_IsSavingPackage() { return GIsSavingPackage; }

// Defaults

template <class T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}
template <class T>
const T* GetDefault(const UClass* Class)
{
	return static_cast<const T*>(Class->GetDefaultObject());
}
template <class T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}
template <class T>
T* GetMutableDefault(const UClass* Class)
{
	return static_cast<T*>(Class->GetDefaultObject());
}

#include "UObject/ObjectInitializer.h"
#include "UObject/CoreUObjectDelegates.h"

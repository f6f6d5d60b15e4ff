#pragma once

#include "UObject/UObjectGlobals.h"

class UPackage;

/** Lookups of objects by name, outer and class, in the order in which the objects of one outer, or one class, were made. Game thread. */

/** Objects whose outer is Outer; all below it with bIncludeNestedObjects. */
COREUOBJECT_API void GetObjectsWithOuter(const UObjectBase* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true,
	EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
/** The visitor must not make or rename objects. */
COREUOBJECT_API void ForEachObjectWithOuter(const UObjectBase* Outer, TFunctionRef<void(UObject*)> Operation,
	bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags,
	EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
/** Stops, and answers false, when the visitor answers false. */
COREUOBJECT_API bool ForEachObjectWithOuterBreakable(const UObjectBase* Outer, TFunctionRef<bool(UObject*)> Operation,
	bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags,
	EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API UObjectBase* FindObjectWithOuter(
	const UObjectBase* Outer, const UClass* ClassToLookFor = nullptr, FName NameToLookFor = NAME_None);

COREUOBJECT_API void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses = true,
	EObjectFlags ExcludeFlags = RF_ClassDefaultObject, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectOfClass(const UClass* ClassToLookFor, TFunctionRef<void(UObject*)> Operation,
	bool bIncludeDerivedClasses = true, EObjectFlags ExcludeFlags = RF_ClassDefaultObject,
	EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
/** Classes below the given one; only the direct ones when not bRecursive. */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);
COREUOBJECT_API bool ClassHasInstancesAsyncLoading(const UClass* ClassToLookFor);

/** Objects that are saved in a package: all in it, but those with another external package, and those that name it as theirs. */
COREUOBJECT_API void GetObjectsWithPackage(const UPackage* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true,
	EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectWithPackage(const UPackage* Outer, TFunctionRef<bool(UObject*)> Operation,
	bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags,
	EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);

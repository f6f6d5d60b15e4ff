#pragma once

#include "UObject/TopLevelAssetPath.h"
#include "UObject/UObjectGlobals.h"

/**
 * Stand-ins for objects that exist in the engine or in a project but not here: a class of a module that this host does not
 * have, an asset of the engine's own content. A reference to one keeps its class and path, so that nothing is lost when it
 * is written back. They live in packages that are never saved. The engine has nothing like it.
 */
namespace UE::CoreUObject
{
/**
 * The object of that path, or else a stand-in for it.
 * @param ClassPath  Class of the object: "/Script/Engine.EdGraph". One that is unknown becomes a stand-in itself. Null when
 *                   nobody has said; a later call that knows replaces the stand-in under the same name.
 * @param ObjectPath Whole path: "/Engine/Dir/Asset.Asset:Inner". Its outers become stand-ins of unknown class when missing.
 * @return Null when the path is malformed.
 */
COREUOBJECT_API UObject* FindOrCreatePlaceholder(const FTopLevelAssetPath& ClassPath, const FString& ObjectPath);
COREUOBJECT_API UObject* FindOrCreatePlaceholder(UClass* Class, const FString& ObjectPath);
/** A stand-in class of that path whose super is the best known parent (null: UObject). */
COREUOBJECT_API UClass* FindOrCreatePlaceholderClass(const FTopLevelAssetPath& ClassPath, UClass* SuperClass = nullptr);

/**
 * Makes an object of an unknown class fit a reference to RequiredClass: where no more was known of its class than that it is an
 * object's, the class becomes a child of RequiredClass, and its objects get that C++ type in place.
 * @return The object, or the stand-in that takes its place. Null when it is of a class that is known not to be RequiredClass.
 */
COREUOBJECT_API UObject* FitPlaceholder(UObject* Object, UClass* RequiredClass);

/** Whether the object stands in for a missing one. */
COREUOBJECT_API bool IsPlaceholder(const UObject* Object);
/** Frees a stand-in's name for the real object, which takes over its children and every reference. */
COREUOBJECT_API void ReplacePlaceholder(UObject* Placeholder, UObject* RealObject);
/** Moves a stand-in out of the way of a real object about to be made; ReplacePlaceholder must follow. */
COREUOBJECT_API void VacatePlaceholderName(UObject* Placeholder);
/** Makes every reflected and collected reference to a key point at its value. */
COREUOBJECT_API void ReplaceObjectReferences(const TMap<UObject*, UObject*>& Replacements);
}

#pragma once

#include "CoreMinimal.h"
#include "UObject/PropertyTag.h"

class FArchive;
class UObject;

/** A saved value that has no property here: kept as it was read, to be written back into the same package. */
struct FUnknownProperty
{
	FPropertyTag Tag;
	/** The value's bytes; names and objects in it are indices into the tables of the package that it came from. */
	TArray<uint8> Value;
	/** What stood before it; None for the first. */
	FName Previous;
	/** It has a property here, but a value of this type or form is nothing to it. */
	bool bHasProperty = false;
	/** There is a property, but the form of its value is known to the engine's C++ alone, so it can be neither read nor written. */
	bool bHasNativeForm = false;
};

/** The values of each loaded object that this host has no properties for. The engine has nothing like it. Game thread. */
class COREUOBJECT_API FUnknownProperties
{
public:
	/** Of the struct or object that is being read at present. Ignored outside packages, whose other tables nobody keeps. */
	static void Add(FArchive& Ar, FUnknownProperty&& Property);
	/** Of the struct or object that is being written at present; null when there are none. */
	static const TArray<FUnknownProperty>* FindForWriting(FArchive& Ar);
	/** Whether there are some in a member of the struct or object that is being written at present. */
	static bool HasAnyWithin(FArchive& Ar, FName Member, int32 Index);
	/** All of an object's, by the path of the struct within it: "" for the object itself, "Items[2].Data" for a member. */
	static const TMap<FString, TArray<FUnknownProperty>>* FindAll(const UObject* Object);
	/** How many objects have some; a collection of garbage forgets those that it deletes. */
	static int32 NumObjects();
	/** The struct or object that is being read or written at present: "/Game/Asset.Asset:Node.Items[2]". */
	static FString DescribeCurrent();
	/** Forgets those of the struct that is being read at present, and of all below it. */
	static void RemoveCurrent(FArchive& Ar);
	/** Whether a member of the object, or a part of it, has a form that cannot be written here, so that a change of it could not be saved. */
	static bool HasNativeForm(const UObject* Object, FName Member);
	static bool HasAny(const UObject* Object) { return FindAll(Object) != nullptr; }
};

/** Tells which object's values are serialized while it lives. */
class COREUOBJECT_API FSerializedObjectScope
{
public:
	explicit FSerializedObjectScope(const UObject* Object);
	~FSerializedObjectScope();
	FSerializedObjectScope(const FSerializedObjectScope&) = delete;
	FSerializedObjectScope& operator=(const FSerializedObjectScope&) = delete;
};

/** Tells which member (or, without a name, which element) of it. */
class COREUOBJECT_API FSerializedPathScope
{
public:
	FSerializedPathScope(FName Name, int32 Index);
	~FSerializedPathScope();
	FSerializedPathScope(const FSerializedPathScope&) = delete;
	FSerializedPathScope& operator=(const FSerializedPathScope&) = delete;
};

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
};

/** The values of each loaded object that this host has no properties for. The engine has nothing like it. Game thread. */
class COREUOBJECT_API FUnknownProperties
{
public:
	/** Of the struct or object that is being read at present. Ignored outside packages, whose other tables nobody keeps. */
	static void Add(FArchive& Ar, const FPropertyTag& Tag, TArray<uint8>&& Value);
	/** Of the struct or object that is being written at present; null when there are none. */
	static const TArray<FUnknownProperty>* FindForWriting(FArchive& Ar);
	/** Whether there are some in a member of the struct or object that is being written at present. */
	static bool HasAnyWithin(FArchive& Ar, FName Member, int32 Index);
	/** All of an object's, by the path of the struct within it: "" for the object itself, "Items[2].Data" for a member. */
	static const TMap<FString, TArray<FUnknownProperty>>* FindAll(const UObject* Object);
	/** How many objects have some; a collection of garbage forgets those that it deletes. */
	static int32 NumObjects();
	/** Forgets those of the struct that is being read at present, and of all below it. */
	static void RemoveCurrent(FArchive& Ar);
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

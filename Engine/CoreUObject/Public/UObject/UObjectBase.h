#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UPackage;

DECLARE_LOG_CATEGORY_EXTERN(LogObj, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogClass, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogGarbage, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogUObjectGlobals, Log, All);

/**
 * Identity of an object: what it is, what it is called, whose it is, where it stands in GUObjectArray. The allocator decides
 * all of it before the constructor runs; the default constructor takes it over from there.
 */
class COREUOBJECT_API UObjectBase
{
public:
	virtual ~UObjectBase();
	UObjectBase(const UObjectBase&) = delete;
	UObjectBase& operator=(const UObjectBase&) = delete;

	/** Whether the object is in GUObjectArray with a class that is. For memory that may be no object any more. */
	bool IsValidLowLevel() const;
	bool IsValidLowLevelFast(bool bRecursive = true) const;

	FORCEINLINE uint32 GetUniqueID() const { return static_cast<uint32>(InternalIndex); }
	FORCEINLINE UClass* GetClass() const { return ClassPrivate; }
	FORCEINLINE UObject* GetOuter() const { return OuterPrivate; }
	FORCEINLINE FName GetFName() const { return NamePrivate; }
	FORCEINLINE EObjectFlags GetFlags() const { return ObjectFlags; }
	/** The package that saves the object when that is not its outermost, else null. */
	UPackage* GetExternalPackage() const;
	void SetExternalPackage(UPackage* InPackage);

	/** Sets exactly these flags, for code that knows all of them. */
	FORCEINLINE void AtomicallySetFlags(EObjectFlags FlagsToAdd) { ObjectFlags = static_cast<EObjectFlags>(ObjectFlags | FlagsToAdd); }
	FORCEINLINE void AtomicallyClearFlags(EObjectFlags FlagsToClear)
	{
		ObjectFlags = static_cast<EObjectFlags>(ObjectFlags & ~FlagsToClear);
	}

protected:
	/** Takes the identity that StaticAllocateObject prepared for the object whose constructor is running. */
	UObjectBase();

	FORCEINLINE void SetFlagsTo(EObjectFlags NewFlags) { ObjectFlags = NewFlags; }
	/** Moves the object in the hash tables. Nothing else is told. */
	void LowLevelRename(FName NewName, UObject* NewOuter = nullptr);
	/** For a class that is made again under an object. */
	void SetClass(UClass* NewClass);

private:
	EObjectFlags ObjectFlags;
	int32 InternalIndex;
	UClass* ClassPrivate;
	FName NamePrivate;
	UObject* OuterPrivate;

	friend class FUObjectArray;
	friend class FUObjectHashTables;
	friend struct FObjectBootstrap;
	friend class FBlueprintCompileReinstancer;
};

/** Makes every type that the loaded modules have registered since the last call, with its default object. Game thread. */
COREUOBJECT_API void ProcessNewlyLoadedUObjects(FName Package = NAME_None, bool bCanProcessNewlyLoadedObjects = true);

/** Whether the reflection system has made UObject and its own classes. */
COREUOBJECT_API bool UObjectInitialized();

#pragma once

#include "CoreMinimal.h"

class FDeclaredDefaults;
class FObjectInitializer;
class FObjectProperty;
class UClass;
class UObject;

/** A sub-object that the constructor of a declared class makes. */
struct FDeclaredSubobject
{
	FName Name;
	/** Null where a derived class leaves it out. */
	const UClass* Class = nullptr;
	/** A derived class may leave it out. */
	bool bOptional = false;
	/** Of the owner: what points at the sub-object. */
	TArray<const FObjectProperty*> Members;
	/** Of the sub-object: what points at another sub-object of the same owner, and the other's index. */
	TArray<TPair<const FObjectProperty*, int32>> Siblings;
	/** Of the sub-object: what the constructors set, the base class's first. */
	TArray<TSharedPtr<const FDeclaredDefaults>> Values;
};

/**
 * What the constructor of a class would make with CreateDefaultSubobject if the class had more than a declaration: all of its
 * sub-objects, those of its supers included.
 */
class FDeclaredSubobjects
{
public:
	/** The class's own list or its nearest super's; null for a class whose constructor is compiled, and for one that makes nothing. */
	static const FDeclaredSubobjects* Find(const UClass* Class);

	/** INDEX_NONE where there is none. */
	int32 FindIndex(FName Name) const;
	TArray<FDeclaredSubobject>& GetAll() { return All; }
	const TArray<FDeclaredSubobject>& GetAll() const { return All; }

	/** Makes the sub-objects of an object that is being constructed. They point at one another; the object's members come after. */
	void Make(const FObjectInitializer& Initializer) const;
	/** Points the object's members at its sub-objects, and at nothing where one is left out. */
	void SetMembers(UObject* Object) const;
	/** Points the object's sub-objects at one another, and gives them what the constructors set. */
	void SetValues(UObject* Object) const;
	/** Bytes that the sub-objects of one object take. */
	int64 GetMemorySize() const;

private:
	/** The sub-object of an object; null where none was made. */
	UObject* GetPart(UObject* Object, int32 Index) const;
	void Join(UObject* Object) const;

	TArray<FDeclaredSubobject> All;
};

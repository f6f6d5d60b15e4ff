#pragma once

#include "UObject/UObjectBase.h"

#include <unordered_map>
#include <vector>

/**
 * The indices by name, outer and class. Lists are threaded through an array parallel to the object array, so that adding and
 * removing cost nothing but a few writes and lists keep the order in which objects came.
 */
class FUObjectHashTables
{
public:
	static FUObjectHashTables& Get();

	void Add(UObjectBase* Object);
	void Remove(UObjectBase* Object);
	void AddToClassTree(UClass* Class, UClass* Super);
	void RemoveFromClassTree(UClass* Class, UClass* Super);

	UObject* FindInOuter(const UObject* Outer, FName Name, TFunctionRef<bool(UObject*)> Accept) const;
	UObject* FindByName(FName Name, TFunctionRef<bool(UObject*)> Accept) const;
	/** Exactly of the class. Copied, so that the caller may change the tables. */
	void AppendObjectsOfClass(const UClass* Class, TArray<UObject*>& Out) const;
	/** Directly in the outer. */
	void AppendObjectsInOuter(const UObjectBase* Outer, TArray<UObject*>& Out) const;
	const TArray<UClass*>* FindDirectSubclasses(const UClass* Class) const;
	/** The next number of an unnamed object of the class in the outer. */
	int32 NextNameNumber(const UObject* Outer, const UClass* Class);

private:
	struct FLinks
	{
		int32 NextInBucket = INDEX_NONE;
		/** Both ways: parts of one name, such as the root components of all actors, are one long list. */
		int32 PrevOfName = INDEX_NONE;
		int32 NextOfName = INDEX_NONE;
		int32 PrevOfClass = INDEX_NONE;
		int32 NextOfClass = INDEX_NONE;
		int32 PrevInOuter = INDEX_NONE;
		int32 NextInOuter = INDEX_NONE;
	};
	struct FEnds
	{
		int32 First = INDEX_NONE;
		int32 Last = INDEX_NONE;
	};
	using FListMap = std::unordered_map<const UObjectBase*, FEnds>;

	void Grow();
	void AddToBuckets(int32 Index);
	size_t BucketOf(const UObjectBase* Outer, FName Name) const;
	size_t BucketOfName(FName Name) const;
	void Append(FListMap& Map, const UObjectBase* Key, int32 Index, int32 FLinks::*Prev, int32 FLinks::*Next);
	void Unlink(FListMap& Map, const UObjectBase* Key, int32 Index, int32 FLinks::*Prev, int32 FLinks::*Next);
	void CopyList(const FListMap& Map, const UObjectBase* Key, int32 FLinks::*Next, TArray<UObject*>& Out) const;

	std::vector<FLinks> Links;
	std::vector<int32> Buckets;
	std::vector<int32> NameBuckets;
	size_t NumObjects = 0;
	FListMap ByClass;
	FListMap ByOuter;
	std::unordered_map<const UClass*, TArray<UClass*>> Subclasses;
	std::unordered_map<const UObjectBase*, std::unordered_map<const UClass*, int32>> NameNumbers;
};

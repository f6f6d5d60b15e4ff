#include "UObject/UObjectHash.h"

#include "UObject/Package.h"
#include "UObjectHashTables.h"

FUObjectHashTables& FUObjectHashTables::Get()
{
	// Never destroyed: statics of other libraries may still hold objects when the program ends.
	static FUObjectHashTables& Tables = *new FUObjectHashTables;
	return Tables;
}

size_t FUObjectHashTables::BucketOfName(FName Name) const
{
	return (GetTypeHash(Name) * 0x9E3779B9u) & (NameBuckets.size() - 1);
}

size_t FUObjectHashTables::BucketOf(const UObjectBase* Outer, FName Name) const
{
	const uint64 Address = reinterpret_cast<uint64>(Outer) >> 4;
	return ((GetTypeHash(Name) ^ static_cast<uint32>(Address ^ (Address >> 28))) * 0x9E3779B9u) & (Buckets.size() - 1);
}

void FUObjectHashTables::AddToBuckets(int32 Index)
{
	const UObjectBase* const Object = GUObjectArray.IndexToObjectUnsafe(Index).Object;
	int32& Bucket = Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
	Links[Index].NextInBucket = Bucket;
	Bucket = Index;
	int32& NameBucket = NameBuckets[BucketOfName(Object->GetFName())];
	Links[Index].PrevOfName = INDEX_NONE;
	Links[Index].NextOfName = NameBucket;
	if (NameBucket != INDEX_NONE)
	{
		Links[NameBucket].PrevOfName = Index;
	}
	NameBucket = Index;
}

void FUObjectHashTables::Grow()
{
	const size_t NewSize = std::max<size_t>(1 << 14, Buckets.size() * 2);
	const std::vector<int32> OldBuckets = std::move(Buckets);
	Buckets.assign(NewSize, INDEX_NONE);
	NameBuckets.assign(NewSize, INDEX_NONE);
	for (int32 Index : OldBuckets)
	{
		while (Index != INDEX_NONE)
		{
			const int32 Next = Links[Index].NextInBucket;
			AddToBuckets(Index);
			Index = Next;
		}
	}
}

void FUObjectHashTables::Append(FListMap& Map, const UObjectBase* Key, int32 Index, int32 FLinks::*Prev, int32 FLinks::*Next)
{
	FEnds& Ends = Map[Key];
	Links[Index].*Prev = Ends.Last;
	Links[Index].*Next = INDEX_NONE;
	(Ends.Last == INDEX_NONE ? Ends.First : Links[Ends.Last].*Next) = Index;
	Ends.Last = Index;
}

void FUObjectHashTables::Unlink(FListMap& Map, const UObjectBase* Key, int32 Index, int32 FLinks::*Prev, int32 FLinks::*Next)
{
	const auto Found = Map.find(Key);
	check(Found != Map.end());
	const FLinks& Link = Links[Index];
	(Link.*Prev == INDEX_NONE ? Found->second.First : Links[Link.*Prev].*Next) = Link.*Next;
	(Link.*Next == INDEX_NONE ? Found->second.Last : Links[Link.*Next].*Prev) = Link.*Prev;
	if (Found->second.First == INDEX_NONE)
	{
		Map.erase(Found);
	}
}

void FUObjectHashTables::CopyList(const FListMap& Map, const UObjectBase* Key, int32 FLinks::*Next, TArray<UObject*>& Out) const
{
	const auto Found = Map.find(Key);
	for (int32 Index = Found == Map.end() ? INDEX_NONE : Found->second.First; Index != INDEX_NONE; Index = Links[Index].*Next)
	{
		Out.Add(static_cast<UObject*>(GUObjectArray.IndexToObjectUnsafe(Index).Object));
	}
}

void FUObjectHashTables::Add(UObjectBase* Object)
{
	const int32 Index = Object->InternalIndex;
	if (static_cast<size_t>(Index) >= Links.size())
	{
		Links.resize(std::max<size_t>(Index + 1, Links.size() * 2));
	}
	if (++NumObjects > Buckets.size())
	{
		Grow();
	}
	AddToBuckets(Index);
	Append(ByClass, Object->GetClass(), Index, &FLinks::PrevOfClass, &FLinks::NextOfClass);
	Append(ByOuter, Object->GetOuter(), Index, &FLinks::PrevInOuter, &FLinks::NextInOuter);
}

void FUObjectHashTables::Remove(UObjectBase* Object)
{
	const int32 Index = Object->InternalIndex;
	int32* Link = &Buckets[BucketOf(Object->GetOuter(), Object->GetFName())];
	while (*Link != Index)
	{
		check(*Link != INDEX_NONE);
		Link = &Links[*Link].NextInBucket;
	}
	*Link = Links[Index].NextInBucket;
	const int32 Previous = Links[Index].PrevOfName;
	const int32 Next = Links[Index].NextOfName;
	(Previous == INDEX_NONE ? NameBuckets[BucketOfName(Object->GetFName())] : Links[Previous].NextOfName) = Next;
	if (Next != INDEX_NONE)
	{
		Links[Next].PrevOfName = Previous;
	}
	Unlink(ByClass, Object->GetClass(), Index, &FLinks::PrevOfClass, &FLinks::NextOfClass);
	Unlink(ByOuter, Object->GetOuter(), Index, &FLinks::PrevInOuter, &FLinks::NextInOuter);
	NameNumbers.erase(Object);
	--NumObjects;
}

void FUObjectHashTables::AddToClassTree(UClass* Class, UClass* Super)
{
	Subclasses[Super].AddUnique(Class);
}

void FUObjectHashTables::RemoveFromClassTree(UClass* Class, UClass* Super)
{
	if (const auto Found = Subclasses.find(Super); Found != Subclasses.end())
	{
		Found->second.Remove(Class);
	}
}

UObject* FUObjectHashTables::FindInOuter(const UObject* Outer, FName Name, TFunctionRef<bool(UObject*)> Accept) const
{
	if (Buckets.empty())
	{
		return nullptr;
	}
	for (int32 Index = Buckets[BucketOf(Outer, Name)]; Index != INDEX_NONE; Index = Links[Index].NextInBucket)
	{
		UObject* const Object = static_cast<UObject*>(GUObjectArray.IndexToObjectUnsafe(Index).Object);
		if (Object->GetOuter() == Outer && Object->GetFName() == Name && Accept(Object))
		{
			return Object;
		}
	}
	return nullptr;
}

UObject* FUObjectHashTables::FindByName(FName Name, TFunctionRef<bool(UObject*)> Accept) const
{
	if (NameBuckets.empty())
	{
		return nullptr;
	}
	for (int32 Index = NameBuckets[BucketOfName(Name)]; Index != INDEX_NONE; Index = Links[Index].NextOfName)
	{
		UObject* const Object = static_cast<UObject*>(GUObjectArray.IndexToObjectUnsafe(Index).Object);
		if (Object->GetFName() == Name && Accept(Object))
		{
			return Object;
		}
	}
	return nullptr;
}

void FUObjectHashTables::AppendObjectsOfClass(const UClass* Class, TArray<UObject*>& Out) const
{
	CopyList(ByClass, Class, &FLinks::NextOfClass, Out);
}

void FUObjectHashTables::AppendObjectsInOuter(const UObjectBase* Outer, TArray<UObject*>& Out) const
{
	CopyList(ByOuter, Outer, &FLinks::NextInOuter, Out);
}

const TArray<UClass*>* FUObjectHashTables::FindDirectSubclasses(const UClass* Class) const
{
	const auto Found = Subclasses.find(Class);
	return Found == Subclasses.end() ? nullptr : &Found->second;
}

int32 FUObjectHashTables::NextNameNumber(const UObject* Outer, const UClass* Class)
{
	return NameNumbers[Outer][Class]++;
}

namespace
{
bool IsExcluded(const UObject* Object, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	return Object->HasAnyFlags(ExclusionFlags) || Object->HasAnyInternalFlags(ExclusionInternalFlags | EInternalObjectFlags::Unreachable);
}
}

void GetObjectsWithOuter(const UObjectBase* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags,
	EInternalObjectFlags ExclusionInternalFlags)
{
	const FUObjectHashTables& Tables = FUObjectHashTables::Get();
	TArray<UObject*> Found;
	Tables.AppendObjectsInOuter(Outer, Found);
	// Breadth first: a nested object comes after all objects of its outer's level, as callers of the engine see it.
	for (int32 Index = 0; Index < Found.Num(); ++Index)
	{
		UObject* const Object = Found[Index];
		if (!IsExcluded(Object, ExclusionFlags, ExclusionInternalFlags))
		{
			Results.Add(Object);
		}
		if (bIncludeNestedObjects)
		{
			Tables.AppendObjectsInOuter(Object, Found);
		}
	}
}

void ForEachObjectWithOuter(const UObjectBase* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects,
	EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	ForEachObjectWithOuterBreakable(
		Outer,
		[&Operation](UObject* Object)
		{
			Operation(Object);
			return true;
		},
		bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
}

bool ForEachObjectWithOuterBreakable(const UObjectBase* Outer, TFunctionRef<bool(UObject*)> Operation, bool bIncludeNestedObjects,
	EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Outer, Objects, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
	for (UObject* const Object : Objects)
	{
		if (!Operation(Object))
		{
			return false;
		}
	}
	return true;
}

UObjectBase* FindObjectWithOuter(const UObjectBase* Outer, const UClass* ClassToLookFor, FName NameToLookFor)
{
	TArray<UObject*> Objects;
	GetObjectsWithOuter(Outer, Objects, false);
	for (UObject* const Object : Objects)
	{
		if ((!ClassToLookFor || Object->IsA(ClassToLookFor)) && (NameToLookFor == NAME_None || Object->GetFName() == NameToLookFor))
		{
			return Object;
		}
	}
	return nullptr;
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	const TArray<UClass*>* const Direct = FUObjectHashTables::Get().FindDirectSubclasses(ClassToLookFor);
	if (!Direct)
	{
		return;
	}
	for (UClass* const Class : *Direct)
	{
		Results.Add(Class);
		if (bRecursive)
		{
			GetDerivedClasses(Class, Results, true);
		}
	}
}

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags,
	EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UClass*> Classes;
	Classes.Add(const_cast<UClass*>(ClassToLookFor));
	if (bIncludeDerivedClasses)
	{
		GetDerivedClasses(ClassToLookFor, Classes, true);
	}
	TArray<UObject*> Found;
	for (const UClass* const Class : Classes)
	{
		FUObjectHashTables::Get().AppendObjectsOfClass(Class, Found);
	}
	for (UObject* const Object : Found)
	{
		if (!IsExcluded(Object, ExcludeFlags, ExclusionInternalFlags))
		{
			Results.Add(Object);
		}
	}
}

void ForEachObjectOfClass(const UClass* ClassToLookFor, TFunctionRef<void(UObject*)> Operation, bool bIncludeDerivedClasses,
	EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	GetObjectsOfClass(ClassToLookFor, Objects, bIncludeDerivedClasses, ExcludeFlags, ExclusionInternalFlags);
	for (UObject* const Object : Objects)
	{
		Operation(Object);
	}
}

bool ClassHasInstancesAsyncLoading(const UClass* ClassToLookFor)
{
	// Nothing loads off the game thread here.
	return false;
}

void GetObjectsWithPackage(const UPackage* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags,
	EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Inside;
	GetObjectsWithOuter(Outer, Inside, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
	for (UObject* const Object : Inside)
	{
		const UPackage* const External = Object->GetExternalPackage();
		if (!External || External == Outer)
		{
			Results.Add(Object);
		}
	}
	for (int32 Index = 0; Index < GUObjectArray.GetObjectArrayNum(); ++Index)
	{
		UObject* const Object = static_cast<UObject*>(GUObjectArray.IndexToObjectUnsafe(Index).Object);
		if (Object && Object->HasAnyFlags(RF_HasExternalPackage) && Object->GetExternalPackage() == Outer && !Object->IsIn(Outer) &&
			!IsExcluded(Object, ExclusionFlags, ExclusionInternalFlags))
		{
			Results.Add(Object);
		}
	}
}

void ForEachObjectWithPackage(const UPackage* Outer, TFunctionRef<bool(UObject*)> Operation, bool bIncludeNestedObjects,
	EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	GetObjectsWithPackage(Outer, Objects, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
	for (UObject* const Object : Objects)
	{
		if (!Operation(Object))
		{
			return;
		}
	}
}

#pragma once

#include "BlueprintDiff.h"
#include "Containers/Map.h"

/** How items of two lists are told to be the same: by id first, then by name. */
namespace ItemMatch
{
/** Indices of the items by a key; INDEX_NONE for a key that several have, which tells none of them. */
template <class KeyType, class ItemType, class GetKeyType, class WantedType>
TMap<KeyType, int32> IndexBy(const TArray<ItemType>& Items, const GetKeyType& GetKey, const WantedType& IsWanted)
{
	TMap<KeyType, int32> Indices;
	Indices.Reserve(Items.Num());
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		if (IsWanted(Index))
		{
			int32& Found = Indices.FindOrAdd(GetKey(Items[Index]), Index);
			Found = Found == Index ? Index : INDEX_NONE;
		}
	}
	return Indices;
}

/**
 * @param bNamesOfAll Whether an item whose id is not on the other side may still be the one of its name there; without it, names tell
 *                    only those that have no id of their own.
 */
template <class ItemType, class GetNameType>
FItemMatch Match(const TArray<ItemType>& Before, const TArray<ItemType>& After, const GetNameType& GetName, bool bNamesOfAll)
{
	FItemMatch Matched;
	Matched.BeforeOf.Init(INDEX_NONE, After.Num());
	Matched.AfterOf.Init(INDEX_NONE, Before.Num());
	const auto Pair = [&](int32 BeforeIndex, int32 AfterIndex)
	{
		Matched.BeforeOf[AfterIndex] = BeforeIndex;
		Matched.AfterOf[BeforeIndex] = AfterIndex;
	};
	const auto GetId = [](const ItemType& Item)
	{ return Item.Id; };
	const TMap<FGuid, int32> BeforeIds = IndexBy<FGuid>(Before, GetId, [&](int32 Index)
		{ return Before[Index].Id.IsValid(); });
	const TMap<FGuid, int32> AfterIds = IndexBy<FGuid>(After, GetId, [&](int32 Index)
		{ return After[Index].Id.IsValid(); });
	for (const auto& [Id, AfterIndex] : AfterIds)
	{
		const int32* const BeforeIndex = AfterIndex == INDEX_NONE ? nullptr : BeforeIds.Find(Id);
		if (BeforeIndex && *BeforeIndex != INDEX_NONE)
		{
			Pair(*BeforeIndex, AfterIndex);
		}
	}
	const auto IsOpen = [&](const TArray<ItemType>& Items, const TMap<FGuid, int32>& Ids, const TArray<int32>& Others, int32 Index)
	{
		const int32* const Own = Ids.Find(Items[Index].Id);
		return Others[Index] == INDEX_NONE && (bNamesOfAll || !Own || *Own == INDEX_NONE);
	};
	const TMap<FString, int32> BeforeNames = IndexBy<FString>(Before, GetName, [&](int32 Index)
		{ return IsOpen(Before, BeforeIds, Matched.AfterOf, Index); });
	const TMap<FString, int32> AfterNames = IndexBy<FString>(After, GetName, [&](int32 Index)
		{ return IsOpen(After, AfterIds, Matched.BeforeOf, Index); });
	for (const auto& [Name, AfterIndex] : AfterNames)
	{
		const int32* const BeforeIndex = AfterIndex == INDEX_NONE ? nullptr : BeforeNames.Find(Name);
		if (BeforeIndex && *BeforeIndex != INDEX_NONE)
		{
			Pair(*BeforeIndex, AfterIndex);
		}
	}
	return Matched;
}
}

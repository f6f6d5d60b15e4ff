#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Hash/CityHash.h"

/** The names that a conversation has given to nodes, by the nodes' GUIDs and back. */
class FVexelNodeNameTable
{
public:
	/** Null for a node without a name. Valid until the table changes. */
	const FString* FindName(const FGuid& NodeGuid) const { return NamesByGuid.Find(NodeGuid); }
	/** Letter case does not matter. */
	bool HasName(const FString& Name) const { return GuidsByName.Contains(Name); }
	/** Null where no node has the name. Letter case does not matter. Valid until the table changes. */
	const FGuid* FindGuid(const FString& Name) const { return GuidsByName.Find(Name); }
	/** The first of "Base_0", "Base_1", ... that is nobody's. */
	FString MakeFreeName(const FString& Base) const;
	/** Neither the GUID nor the name may be in the table. */
	void Add(const FGuid& NodeGuid, const FString& Name);

	/** An object with a key for each GUID, as 32 digits, and the node's name as its value. */
	TSharedRef<FJsonObject> ToJson() const;
	/** Replaces the table. Entries that are no pair of a GUID and a name, or repeat one, are left out. */
	void FromJson(const TSharedRef<FJsonObject>& Object);

private:
	struct FGuidKeyFuncs : TDefaultMapHashableKeyFuncs<FGuid, FString, false>
	{
		static uint32 GetKeyHash(const FGuid& Guid)
		{
			static_assert(sizeof(FGuid) == 16);
			return static_cast<uint32>(CityHash64(reinterpret_cast<const char*>(&Guid), sizeof(FGuid)));
		}
	};

	TMap<FGuid, FString, FDefaultSetAllocator, FGuidKeyFuncs> NamesByGuid;
	TMap<FString, FGuid> GuidsByName;
	/** By base, a number below which no name is free: a graph may have thousands of nodes of one title. */
	mutable TMap<FString, int32> FirstFreeNumbers;
};

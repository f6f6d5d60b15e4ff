#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "UObject/ObjectKey.h"
#include "UObject/WeakObjectPtr.h"
#include "VexelId.h"

class UBlueprintNodeSpawner;
class UObject;

/**
 * The actions of the editor's database by the ids of the nodes that they make. All mappings share it. The template node of an action is
 * looked at once; afterwards only what an entry of the database changed is looked at again. Game thread.
 */
class FVexelNodeTypeIndex
{
public:
	static FVexelNodeTypeIndex& Get();

	/** The first action of the database whose node has the id, in whatever letter case; null for none. */
	UBlueprintNodeSpawner* Find(const TVexelNodeTypeId& Id);

	/** The ids that look most like one that names nothing, the nearest first. */
	TArray<FString> FindNearest(const TVexelNodeTypeId& Id, int32 MaxCount);

	UE_NONCOPYABLE(FVexelNodeTypeIndex)

private:
	FVexelNodeTypeIndex();

	/** One of the actions that make nodes of one id. */
	struct FCandidate
	{
		FObjectKey Entry;
		/** Of the entry in the database, then of the action in the entry. */
		uint64 Order;
		TWeakObjectPtr<UBlueprintNodeSpawner> Spawner;
	};
	using FCandidates = TArray<FCandidate>;

	void Refresh();
	void AddEntry(const FObjectKey& Key, const TArray<TObjectPtr<UBlueprintNodeSpawner>>& Actions);
	void RemoveEntry(const FObjectKey& Key);

	TMap<TVexelNodeTypeId, FCandidates> CandidatesById;
	TMap<FObjectKey, TArray<TVexelNodeTypeId>> IdsByEntry;
	TSet<FObjectKey> ChangedEntries;
	bool bIsBuilt = false;
	bool bHasRemovals = false;
	uint32 NextEntryOrder = 0;
};

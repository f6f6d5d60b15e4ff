#include "Blueprint/VexelNodeTypeIndex.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Blueprint/VexelNearestTexts.h"

#include "BlueprintActionDatabase.h"
#include "BlueprintBoundEventNodeSpawner.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraphNode.h"

FVexelNodeTypeIndex& FVexelNodeTypeIndex::Get()
{
	static FVexelNodeTypeIndex Index;
	return Index;
}

FVexelNodeTypeIndex::FVexelNodeTypeIndex()
{
	const auto Remember = [this](UObject* Key)
	{
		if (Key)
		{
			ChangedEntries.Add(FObjectKey(Key));
		}
		else
		{
			bHasRemovals = true;
		}
	};
	FBlueprintActionDatabase& Database = FBlueprintActionDatabase::Get();
	Database.OnEntryUpdated().AddLambda(Remember);
	Database.OnEntryRemoved().AddLambda(Remember);
}

UBlueprintNodeSpawner* FVexelNodeTypeIndex::Find(const TVexelNodeTypeId& Id)
{
	check(IsInGameThread());
	Refresh();
	const FCandidates* const Candidates = CandidatesById.Find(Id);
	const FCandidate* First = nullptr;
	for (int32 Index = 0; Candidates && Index < Candidates->Num(); ++Index)
	{
		const FCandidate& Candidate = (*Candidates)[Index];
		if (Candidate.Spawner.IsValid() && (!First || Candidate.Order < First->Order))
		{
			First = &Candidate;
		}
	}
	return First ? First->Spawner.Get() : nullptr;
}

TArray<FString> FVexelNodeTypeIndex::FindNearest(const TVexelNodeTypeId& Id, int32 MaxCount)
{
	check(IsInGameThread());
	Refresh();
	FVexelNearestTexts Nearest(Id.ToString());
	for (const auto& [Known, Candidates] : CandidatesById)
	{
		Nearest.Offer(Known.ToString());
	}
	return Nearest.Get(MaxCount);
}

void FVexelNodeTypeIndex::Refresh()
{
	// Brings the database up to date, which tells of what changed.
	const FBlueprintActionDatabase::FActionRegistry& Actions = FBlueprintActionDatabase::Get().GetAllActions();
	if (!bIsBuilt)
	{
		bIsBuilt = true;
		ChangedEntries.Reset();
		Actions.GetKeys(ChangedEntries);
	}
	if (bHasRemovals)
	{
		bHasRemovals = false;
		for (const auto& [Key, Ids] : IdsByEntry)
		{
			if (!Actions.Contains(Key))
			{
				ChangedEntries.Add(Key);
			}
		}
	}
	// A template may load what its action is about, and the database hear of that.
	const TSet<FObjectKey> Changed = MoveTemp(ChangedEntries);
	ChangedEntries.Reset();
	for (const FObjectKey& Key : Changed)
	{
		RemoveEntry(Key);
		if (const FBlueprintActionDatabase::FActionList* const List = Actions.Find(Key))
		{
			AddEntry(Key, *List);
		}
	}
}

void FVexelNodeTypeIndex::AddEntry(const FObjectKey& Key, const TArray<TObjectPtr<UBlueprintNodeSpawner>>& Actions)
{
	FVexelBlueprintMapping Mapping;
	TArray<TVexelNodeTypeId>& Ids = IdsByEntry.Add(Key);
	const uint64 EntryOrder = static_cast<uint64>(NextEntryOrder++) << 32;
	for (int32 Index = 0; Index < Actions.Num(); ++Index)
	{
		// An event of a component or a placed actor is nothing until it is bound to one.
		const bool bIsWhole = Actions[Index] && !Actions[Index]->IsA<UBlueprintBoundEventNodeSpawner>();
		const UEdGraphNode* const Template = bIsWhole ? Actions[Index]->GetTemplateNode() : nullptr;
		TVexelNodeTypeId Id = Template ? Mapping.MakeNodeTypeReference(*Template) : TVexelNodeTypeId();
		if (!Id.IsEmpty())
		{
			CandidatesById.FindOrAdd(Id).Add({Key, EntryOrder | static_cast<uint32>(Index), Actions[Index].Get()});
			Ids.Add(MoveTemp(Id));
		}
	}
}

void FVexelNodeTypeIndex::RemoveEntry(const FObjectKey& Key)
{
	TArray<TVexelNodeTypeId> Ids;
	if (!IdsByEntry.RemoveAndCopyValue(Key, Ids))
	{
		return;
	}
	for (const TVexelNodeTypeId& Id : Ids)
	{
		FCandidates* const Candidates = CandidatesById.Find(Id);
		if (Candidates)
		{
			Candidates->RemoveAll([&Key](const FCandidate& Candidate)
				{ return Candidate.Entry == Key; });
		}
		if (Candidates && Candidates->IsEmpty())
		{
			CandidatesById.Remove(Id);
		}
	}
}

#include "BlueprintActionDatabase.h"

#include "BlueprintClassActions.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectIterator.h"

FBlueprintActionDatabase* FBlueprintActionDatabase::Instance = nullptr;

FBlueprintActionDatabase& FBlueprintActionDatabase::Get()
{
	static FBlueprintActionDatabase Database;
	return Database;
}

FBlueprintActionDatabase* FBlueprintActionDatabase::TryGet()
{
	return Instance;
}

FBlueprintActionDatabase::FBlueprintActionDatabase()
{
	Instance = this;
	RefreshAll();
}

const FBlueprintActionDatabase::FActionRegistry& FBlueprintActionDatabase::GetAllActions()
{
	check(IsInGameThread());
	RefreshChangedAssets();
	return ActionRegistry;
}

void FBlueprintActionDatabase::RefreshAll()
{
	ActionRegistry.Empty();
	ChangedAssets.Empty();
	++Generation;
	// Actions are objects too; the classes are listed before any is made.
	TArray<UClass*> Classes;
	for (TObjectIterator<UClass> Class; Class; ++Class)
	{
		Classes.Add(*Class);
	}
	for (UClass* const Class : Classes)
	{
		RefreshClassActions(Class);
	}
	for (TObjectIterator<UBlueprint> Blueprint; Blueprint; ++Blueprint)
	{
		RefreshAssetActions(*Blueprint);
	}
}

void FBlueprintActionDatabase::RefreshClassActions(UClass* Class)
{
	FActionList Actions;
	if (Class->IsChildOf(UEdGraphNode::StaticClass()))
	{
		BlueprintClassActions::AddOfNodeClass(*Class, Actions);
	}
	else if (UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class))
	{
		RefreshAssetActions(Blueprint);
		return;
	}
	else if (BlueprintClassActions::IsUsable(*Class))
	{
		BlueprintClassActions::Add(*Class, Actions);
	}
	SetActions(Class, MoveTemp(Actions));
}

void FBlueprintActionDatabase::RefreshAssetActions(UObject* AssetObject)
{
	if (AssetObject && !AssetObject->HasAnyFlags(RF_ClassDefaultObject | RF_Transient))
	{
		ChangedAssets.Add(FObjectKey(AssetObject));
	}
}

void FBlueprintActionDatabase::ClearAssetActions(UObject* AssetObject)
{
	ChangedAssets.Remove(FObjectKey(AssetObject));
	RemoveActions(FObjectKey(AssetObject), AssetObject);
}

void FBlueprintActionDatabase::RefreshChangedAssets()
{
	DropDeadEntries();
	const TSet<FObjectKey> Changed = MoveTemp(ChangedAssets);
	ChangedAssets.Empty();
	for (const FObjectKey& Key : Changed)
	{
		UBlueprint* const Blueprint = Cast<UBlueprint>(Key.ResolveObjectPtr());
		if (Blueprint)
		{
			FActionList Actions;
			BlueprintClassActions::AddOfBlueprint(*Blueprint, Actions);
			SetActions(Blueprint, MoveTemp(Actions));
		}
	}
}

void FBlueprintActionDatabase::DropDeadEntries()
{
	if (ChangedAssets.IsEmpty())
	{
		return;
	}
	// An asset goes rarely, and never without others changing.
	for (FActionRegistry::TIterator Entry(ActionRegistry); Entry; ++Entry)
	{
		if (!Entry.Key().ResolveObjectPtr())
		{
			Entry.RemoveCurrent();
			++Generation;
		}
	}
}

void FBlueprintActionDatabase::SetActions(UObject* Key, FActionList&& Actions)
{
	if (Actions.IsEmpty())
	{
		RemoveActions(FObjectKey(Key), Key);
		return;
	}
	++Generation;
	FActionList& Kept = ActionRegistry.FindOrAdd(FObjectKey(Key));
	for (UBlueprintNodeSpawner* const Old : Kept)
	{
		Old->ClearCachedTemplateNode();
	}
	Kept = MoveTemp(Actions);
	EntryUpdated.Broadcast(Key);
}

void FBlueprintActionDatabase::RemoveActions(const FObjectKey& Key, UObject* KeyObject)
{
	FActionList Removed;
	if (!ActionRegistry.RemoveAndCopyValue(Key, Removed))
	{
		return;
	}
	++Generation;
	for (UBlueprintNodeSpawner* const Old : Removed)
	{
		Old->ClearCachedTemplateNode();
	}
	EntryRemoved.Broadcast(KeyObject);
}

void FBlueprintActionDatabase::AddReferencedObjects(FReferenceCollector& Collector)
{
	for (TPair<FObjectKey, FActionList>& Entry : ActionRegistry)
	{
		Collector.AddReferencedObjects(Entry.Value);
	}
}

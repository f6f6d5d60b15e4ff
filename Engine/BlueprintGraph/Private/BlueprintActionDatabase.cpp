#include "BlueprintActionDatabase.h"

#include "BlueprintActionDatabaseRegistrar.h"
#include "BlueprintClassActions.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "UObject/CoreUObjectDelegates.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectHash.h"
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
	FCoreUObjectDelegates::OnAssetLoaded.AddRaw(this, &FBlueprintActionDatabase::RefreshAssetActions);
	FCoreUObjectDelegates::GetPostGarbageCollect().AddRaw(this, &FBlueprintActionDatabase::DropDeadEntries);
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
	const FActionRegistry Old = MoveTemp(ActionRegistry);
	ActionRegistry.Empty();
	ChangedAssets.Empty();
	// Actions are objects too: the classes are listed before any is made.
	TArray<UClass*> Classes;
	for (TObjectIterator<UClass> Class; Class; ++Class)
	{
		Classes.Add(*Class);
	}
	FBlueprintActionDatabaseRegistrar Registrar(ActionRegistry);
	for (UClass* const Class : Classes)
	{
		if (Class->IsChildOf(UEdGraphNode::StaticClass()))
		{
			Registrar.RegisterNodeClass(*Class);
		}
		else if (BlueprintClassActions::IsUsable(*Class) && !UBlueprint::GetBlueprintFromClass(Class))
		{
			FActionList Actions;
			BlueprintClassActions::Add(*Class, Actions);
			if (!Actions.IsEmpty())
			{
				ActionRegistry.FindOrAdd(FObjectKey(Class)).Append(MoveTemp(Actions));
			}
		}
	}
	for (TObjectIterator<UBlueprint> Blueprint; Blueprint; ++Blueprint)
	{
		RefreshAssetActions(*Blueprint);
	}
	for (const auto& [Key, Actions] : Old)
	{
		if (!ActionRegistry.Contains(Key))
		{
			EntryRemoved.Broadcast(Key.ResolveObjectPtr());
		}
	}
	for (const auto& [Key, Actions] : ActionRegistry)
	{
		EntryUpdated.Broadcast(Key.ResolveObjectPtr());
	}
}

FBlueprintActionDatabase::FActionList FBlueprintActionDatabase::GetActionsOfNodes(UObject& Key)
{
	FActionRegistry Registry;
	FBlueprintActionDatabaseRegistrar Registrar(Registry, &Key);
	TArray<UClass*> NodeClasses;
	GetDerivedClasses(UEdGraphNode::StaticClass(), NodeClasses);
	for (UClass* const NodeClass : NodeClasses)
	{
		Registrar.RegisterNodeClass(*NodeClass);
	}
	FActionList Actions;
	Registry.RemoveAndCopyValue(FObjectKey(&Key), Actions);
	return Actions;
}

void FBlueprintActionDatabase::RefreshClassActions(UClass* Class)
{
	if (UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class))
	{
		RefreshAssetActions(Blueprint);
		return;
	}
	FActionList Actions = GetActionsOfNodes(*Class);
	if (BlueprintClassActions::IsUsable(*Class))
	{
		BlueprintClassActions::Add(*Class, Actions);
	}
	SetActions(Class, MoveTemp(Actions));
}

void FBlueprintActionDatabase::RefreshAssetActions(UObject* AssetObject)
{
	const bool bGivesActions = Cast<UBlueprint>(AssetObject) || Cast<UScriptStruct>(AssetObject) || Cast<UEnum>(AssetObject);
	if (bGivesActions && !AssetObject->HasAnyFlags(RF_ClassDefaultObject | RF_Transient))
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
	const TSet<FObjectKey> Changed = MoveTemp(ChangedAssets);
	ChangedAssets.Empty();
	for (const FObjectKey& Key : Changed)
	{
		UObject* const Asset = Key.ResolveObjectPtr();
		if (!IsValid(Asset))
		{
			continue;
		}
		FActionList Actions;
		if (UBlueprint* const Blueprint = Cast<UBlueprint>(Asset))
		{
			BlueprintClassActions::AddOfBlueprint(*Blueprint, Actions);
		}
		else
		{
			Actions = GetActionsOfNodes(*Asset);
		}
		SetActions(Asset, MoveTemp(Actions));
	}
}

void FBlueprintActionDatabase::DropDeadEntries()
{
	bool bRemoved = false;
	for (FActionRegistry::TIterator Entry(ActionRegistry); Entry; ++Entry)
	{
		if (!Entry.Key().ResolveObjectPtr())
		{
			Entry.RemoveCurrent();
			bRemoved = true;
		}
	}
	if (bRemoved)
	{
		EntryRemoved.Broadcast(nullptr);
	}
}

void FBlueprintActionDatabase::SetActions(UObject* Key, FActionList&& Actions)
{
	if (Actions.IsEmpty())
	{
		RemoveActions(FObjectKey(Key), Key);
		return;
	}
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

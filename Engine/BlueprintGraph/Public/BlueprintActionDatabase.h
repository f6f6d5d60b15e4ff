#pragma once

#include "CoreMinimal.h"
#include "UObject/GCObject.h"
#include "UObject/ObjectKey.h"

class UBlueprint;
class UBlueprintNodeSpawner;
class UClass;

/**
 * Every action that a Blueprint graph's menu could offer, by the class or asset that it is about. Built from reflection when it is first
 * asked
 * for; a Blueprint that changed is looked at again at the next question. Game thread.
 */
class BLUEPRINTGRAPH_API FBlueprintActionDatabase : public FGCObject
{
public:
	typedef TArray<TObjectPtr<UBlueprintNodeSpawner>> FActionList;
	typedef TMap<FObjectKey, FActionList> FActionRegistry;

	DECLARE_EVENT_OneParam(FBlueprintActionDatabase, FOnDatabaseEntryUpdated, UObject*);

	/** Builds the database at the first call. */
	static FBlueprintActionDatabase& Get();
	/** Null while nobody has asked for the database. */
	static FBlueprintActionDatabase* TryGet();

	/** Brought up to date first. The lists hold until the next change. */
	const FActionRegistry& GetAllActions();

	void RefreshAll();
	void RefreshClassActions(UClass* Class);
	/** At the next question: an asset may change many times before anyone asks. */
	void RefreshAssetActions(UObject* AssetObject);
	void ClearAssetActions(UObject* AssetObject);

	/** After the actions of a class or an asset were made again. */
	FOnDatabaseEntryUpdated& OnEntryUpdated() { return EntryUpdated; }
	/** With null where the class or asset is gone. */
	FOnDatabaseEntryUpdated& OnEntryRemoved() { return EntryRemoved; }

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override { return TEXT("FBlueprintActionDatabase"); }

private:
	FBlueprintActionDatabase();

	void RefreshChangedAssets();
	void DropDeadEntries();
	/** The actions that node classes offer for the object. */
	static FActionList GetActionsOfNodes(UObject& Key);
	void SetActions(UObject* Key, FActionList&& Actions);
	void RemoveActions(const FObjectKey& Key, UObject* KeyObject);

	FActionRegistry ActionRegistry;
	TSet<FObjectKey> ChangedAssets;
	FOnDatabaseEntryUpdated EntryUpdated;
	FOnDatabaseEntryUpdated EntryRemoved;
	static FBlueprintActionDatabase* Instance;
};

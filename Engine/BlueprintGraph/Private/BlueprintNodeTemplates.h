#pragma once

#include "CoreMinimal.h"
#include "UObject/GCObject.h"
#include "UObject/ObjectKey.h"

class UBlueprint;
class UBlueprintNodeSpawner;
class UEdGraph;
class UEdGraphNode;

/**
 * Keeps the templates of actions: nodes in the graphs of one hidden Blueprint of an actor. The oldest are given up when there are more than
 * fit, so that tens of thousands of actions can be looked through in little memory. Game thread.
 */
class FBlueprintNodeTemplates : public FGCObject
{
public:
	static FBlueprintNodeTemplates& Get();

	/** Null when none is kept. */
	UEdGraphNode* Find(const UBlueprintNodeSpawner& Spawner) const;
	/** Makes the action's node. Null when the action makes none without bindings. */
	UEdGraphNode* Make(const UBlueprintNodeSpawner& Spawner);
	void Forget(const UBlueprintNodeSpawner& Spawner);
	bool IsTemplateGraph(const UEdGraph* Graph) const { return Graph && (Graph == EventGraph || Graph == FunctionGraph); }

	virtual void AddReferencedObjects(FReferenceCollector& Collector) override;
	virtual FString GetReferencerName() const override { return TEXT("FBlueprintNodeTemplates"); }

private:
	void MakeBlueprint();
	void GiveUpOldest();
	static void Destroy(UEdGraphNode* Node);

	TObjectPtr<UBlueprint> Blueprint;
	TObjectPtr<UEdGraph> EventGraph;
	/** For nodes that stand in functions alone. */
	TObjectPtr<UEdGraph> FunctionGraph;
	TMap<FObjectKey, TObjectPtr<UEdGraphNode>> Templates;
	/** In the order in which they were made; some may be gone. */
	TArray<FObjectKey> Order;
	int32 FirstInOrder = 0;
};

#pragma once

#include "K2Node_Tunnel.h"

#include "K2Node_Composite.generated.h"

/** Nodes collapsed into a graph of their own. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Composite : public UK2Node_Tunnel
{
	GENERATED_BODY()

public:
	/** Outered to this node, and listed among the sub-graphs of the node's graph. */
	UPROPERTY()
	TObjectPtr<UEdGraph> BoundGraph = nullptr;

	UK2Node_Composite(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UK2Node_Tunnel* GetEntryNode() const;
	UK2Node_Tunnel* GetExitNode() const;
	virtual bool DrawNodeAsEntry() const override { return false; }
	virtual bool DrawNodeAsExit() const override { return false; }
	virtual bool CanUserDeleteNode() const override { return true; }
	virtual bool CanDuplicateNode() const override { return true; }
	virtual TArray<UEdGraph*> GetSubGraphs() const override
	{
		return BoundGraph ? TArray<UEdGraph*>({BoundGraph.Get()}) : TArray<UEdGraph*>();
	}
	virtual UObject* GetJumpTargetForDoubleClick() const override { return BoundGraph; }
	virtual void AllocateDefaultPins() override;
	virtual bool HasKnownDefinition() const override;
	virtual void PostPlacedNewNode() override;
	virtual void PostPasteNode() override;
	virtual void DestroyNode() override;
	/** Names the collapsed graph; another name when a sibling has this one. */
	virtual void OnRenameNode(const FString& NewName) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual UEdGraph* GetExpansion() const override { return BoundGraph; }

private:
	void NameBoundGraph(const FString& WantedName);
	void ConnectTunnels();
};

#pragma once

#include "CoreMinimal.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "EdGraph.generated.h"

class UEdGraph;
class UEdGraphNode;
class UEdGraphSchema;

/** Kinds of change that graphs report, as flags. */
enum EEdGraphActionType
{
	GRAPHACTION_Default = 0x0,
	GRAPHACTION_AddNode = 0x1 << 0,
	GRAPHACTION_SelectNode = 0x1 << 1,
	GRAPHACTION_RemoveNode = 0x1 << 2,
	GRAPHACTION_EditNode = 0x1 << 3,
};

/** One change of a graph. */
struct FEdGraphEditAction
{
	EEdGraphActionType Action = GRAPHACTION_Default;
	UEdGraph* Graph = nullptr;
	TSet<const UEdGraphNode*> Nodes;
	bool bUserInvoked = false;

	FEdGraphEditAction() = default;
	explicit FEdGraphEditAction(EEdGraphActionType InAction, UEdGraph* InGraph, UEdGraphNode* InNode, bool bInUserInvoked)
		: Action(InAction)
		, Graph(InGraph)
		, bUserInvoked(bInUserInvoked)
	{
		Nodes.Add(InNode);
	}
};

/** A graph of another Blueprint (a macro), found again by its id. */
USTRUCT()
struct FGraphReference
{
	GENERATED_BODY()

protected:
	UPROPERTY()
	mutable TObjectPtr<UEdGraph> MacroGraph = nullptr;

	/** Blueprint that holds the graph. */
	UPROPERTY()
	TObjectPtr<class UBlueprint> GraphBlueprint = nullptr;

	UPROPERTY()
	FGuid GraphGuid;

public:
	ENGINE_API void SetGraph(UEdGraph* InGraph);
	/** The graph, found by its id when the pointer is stale; null when the Blueprint is not loaded or has lost it. */
	ENGINE_API UEdGraph* GetGraph() const;
	class UBlueprint* GetBlueprint() const { return GraphBlueprint; }
	const FGuid& GetGraphGuid() const { return GraphGuid; }
};

/** A graph: nodes under the rules of a schema. */
UCLASS()
class ENGINE_API UEdGraph : public UObject
{
	GENERATED_BODY()

public:
	UEdGraph(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY()
	TSubclassOf<UEdGraphSchema> Schema;

	UPROPERTY()
	TArray<TObjectPtr<UEdGraphNode>> Nodes;

	/** False for a graph whose contents belong to something else. */
	UPROPERTY()
	uint32 bEditable : 1;

	UPROPERTY()
	uint32 bAllowDeletion : 1;

	UPROPERTY()
	uint32 bAllowRenaming : 1;

	/** Graphs that nodes of this graph hold (collapsed graphs), outered to those nodes. */
	UPROPERTY()
	TArray<TObjectPtr<UEdGraph>> SubGraphs;

	UPROPERTY()
	FGuid GraphGuid;

	/** Id of the interface's graph that this one implements. */
	UPROPERTY()
	FGuid InterfaceGuid;

	DECLARE_MULTICAST_DELEGATE_OneParam(FOnGraphChanged, const FEdGraphEditAction&);

	/** Makes a node of the class with a new name in this graph, transactional, without pins. */
	UEdGraphNode* CreateNode(TSubclassOf<UEdGraphNode> NewNodeClass, bool bFromUI, bool bSelectNewNode);
	UEdGraphNode* CreateNode(TSubclassOf<UEdGraphNode> NewNodeClass, bool bSelectNewNode = true)
	{
		return CreateNode(NewNodeClass, false, bSelectNewNode);
	}
	/** Puts a node that is outered to this graph into it, and tells. */
	void AddNode(UEdGraphNode* NodeToAdd, bool bUserAction = false, bool bSelectNewNode = true);
	/** Takes the node out; bBreakAllLinks also unlinks it. False when it is not in the graph. */
	bool RemoveNode(UEdGraphNode* NodeToRemove, bool bBreakAllLinks = true, bool bAlwaysMarkDirty = true);
	void SelectNodeSet(TSet<const UEdGraphNode*> NodeSelection, bool bFromUI = false);

	const UEdGraphSchema* GetSchema() const;

	FDelegateHandle AddOnGraphChangedHandler(const FOnGraphChanged::FDelegate& InHandler);
	void RemoveOnGraphChangedHandler(FDelegateHandle Handle);
	void NotifyGraphChanged();
	void NotifyNodeChanged(const UEdGraphNode* InNode);

	template <class ClassType>
	void GetNodesOfClass(TArray<ClassType*>& OutNodes) const
	{
		for (UEdGraphNode* const Node : Nodes)
		{
			if (ClassType* const Match = Cast<ClassType>(Node))
			{
				OutNodes.Add(Match);
			}
		}
	}

	template <class ClassType, class ContainedType>
	void GetNodesOfClassEx(TArray<ContainedType*>& OutNodes) const
	{
		for (UEdGraphNode* const Node : Nodes)
		{
			if (ClassType* const Match = Cast<ClassType>(Node))
			{
				OutNodes.Add(Match);
			}
		}
	}

	/** The graphs below this one, at any depth. */
	void GetAllChildrenGraphs(TArray<UEdGraph*>& Graphs) const;
	/** The nearest graph that holds the object. */
	static UEdGraph* GetOuterGraph(UObject* Object);
	/** A free place below the lowest node. */
	FVector2D GetGoodPlaceForNewNode() const;
	void MoveNodesToAnotherGraph(UEdGraph* DestinationGraph, bool bIsLoading, bool bInIsCompiling);

	// UObject
	virtual void PostInitProperties() override;
	using UObject::PostDuplicate;
	virtual void PostDuplicate(bool bDuplicateForPIE) override;
	virtual void PostLoad() override;
	virtual void PostEditUndo() override;

private:
	void NotifyGraphChanged(const FEdGraphEditAction& Action);

	FOnGraphChanged OnGraphChanged;

	template <typename NodeType>
	friend struct FGraphNodeCreator;
};

/**
 * Makes one node in the order that nodes expect: CreateNode, the caller sets its properties, Finalize.
 * A creator that goes away without Finalize is a mistake.
 */
template <typename NodeType>
struct FGraphNodeCreator
{
	explicit FGraphNodeCreator(UEdGraph& InGraph)
		: Graph(InGraph)
	{
	}

	~FGraphNodeCreator() { checkf(bPlaced, TEXT("Created node was not finalized in a FGraphNodeCreator<>")); }

	NodeType* CreateNode(bool bSelectNewNode = true, TSubclassOf<NodeType> InClass = TSubclassOf<NodeType>(NodeType::StaticClass()))
	{
		Node = static_cast<NodeType*>(Graph.CreateNode(*InClass, bSelectNewNode));
		return Node;
	}

	NodeType* CreateUserInvokedNode(bool bSelectNewNode = true)
	{
		Node = static_cast<NodeType*>(Graph.CreateNode(NodeType::StaticClass(), true, bSelectNewNode));
		return Node;
	}

	void Finalize()
	{
		check(!bPlaced);
		Node->CreateNewGuid();
		Node->PostPlacedNewNode();
		if (Node->Pins.Num() == 0)
		{
			Node->AllocateDefaultPins();
		}
		bPlaced = true;
	}

private:
	NodeType* Node = nullptr;
	UEdGraph& Graph;
	bool bPlaced = false;
};

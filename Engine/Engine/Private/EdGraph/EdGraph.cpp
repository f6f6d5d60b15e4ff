#include "EdGraph/EdGraph.h"

#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraph/EdGraphSchema.h"
#include "Engine/Blueprint.h"
#include "UObject/UObjectGlobals.h"

void FGraphReference::SetGraph(UEdGraph* InGraph)
{
	MacroGraph = InGraph;
	GraphBlueprint = InGraph ? InGraph->GetTypedOuter<UBlueprint>() : nullptr;
	GraphGuid = InGraph ? InGraph->GraphGuid : FGuid();
}

UEdGraph* FGraphReference::GetGraph() const
{
	// A graph that was removed lives on, outside of its Blueprint, for an undo to bring it back.
	if (MacroGraph && (!GraphBlueprint || MacroGraph->IsIn(GraphBlueprint)))
	{
		return MacroGraph;
	}
	if (!GraphBlueprint || !GraphGuid.IsValid())
	{
		return nullptr;
	}
	TArray<UEdGraph*> Graphs;
	GraphBlueprint->GetAllGraphs(Graphs);
	UEdGraph* const* const Found = Graphs.FindByPredicate([this](const UEdGraph* Graph)
		{ return Graph->GraphGuid == GraphGuid; });
	if (Found)
	{
		MacroGraph = *Found;
	}
	return Found ? *Found : nullptr;
}

UEdGraph::UEdGraph(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bEditable(true)
	, bAllowDeletion(true)
	, bAllowRenaming(true)
{
}

UEdGraphNode* UEdGraph::CreateNode(TSubclassOf<UEdGraphNode> NewNodeClass, bool bFromUI, bool bSelectNewNode)
{
	UEdGraphNode* const NewNode = NewObject<UEdGraphNode>(this, NewNodeClass, NAME_None, RF_Transactional);
	if (HasAnyFlags(RF_Transient))
	{
		NewNode->SetFlags(RF_Transient);
	}
	AddNode(NewNode, bFromUI, bSelectNewNode);
	return NewNode;
}

void UEdGraph::AddNode(UEdGraphNode* NodeToAdd, bool bUserAction, bool bSelectNewNode)
{
	check(NodeToAdd->GetOuter() == this);
	Modify();
	Nodes.Add(NodeToAdd);
	const int32 Action = GRAPHACTION_AddNode | (bSelectNewNode ? GRAPHACTION_SelectNode : 0);
	NotifyGraphChanged(FEdGraphEditAction(static_cast<EEdGraphActionType>(Action), this, NodeToAdd, bUserAction));
}

bool UEdGraph::RemoveNode(UEdGraphNode* NodeToRemove, bool bBreakAllLinks, bool bAlwaysMarkDirty)
{
	if (!NodeToRemove || !Nodes.Contains(NodeToRemove))
	{
		return false;
	}
	Modify(bAlwaysMarkDirty);
	NodeToRemove->Modify(bAlwaysMarkDirty);
	if (bBreakAllLinks)
	{
		NodeToRemove->BreakAllNodeLinks();
	}
	Nodes.Remove(NodeToRemove);
	NotifyGraphChanged(FEdGraphEditAction(GRAPHACTION_RemoveNode, this, NodeToRemove, false));
	return true;
}

void UEdGraph::SelectNodeSet(TSet<const UEdGraphNode*> NodeSelection, bool bFromUI)
{
	FEdGraphEditAction Action;
	Action.Action = GRAPHACTION_SelectNode;
	Action.Graph = this;
	Action.bUserInvoked = bFromUI;
	Action.Nodes = MoveTemp(NodeSelection);
	NotifyGraphChanged(Action);
}

const UEdGraphSchema* UEdGraph::GetSchema() const
{
	return Schema ? GetDefault<UEdGraphSchema>(Schema.Get()) : nullptr;
}

FDelegateHandle UEdGraph::AddOnGraphChangedHandler(const FOnGraphChanged::FDelegate& InHandler)
{
	return OnGraphChanged.Add(InHandler);
}

void UEdGraph::RemoveOnGraphChangedHandler(FDelegateHandle Handle)
{
	OnGraphChanged.Remove(Handle);
}

void UEdGraph::NotifyGraphChanged()
{
	FEdGraphEditAction Action;
	Action.Graph = this;
	NotifyGraphChanged(Action);
}

void UEdGraph::NotifyNodeChanged(const UEdGraphNode* InNode)
{
	FEdGraphEditAction Action;
	Action.Action = GRAPHACTION_EditNode;
	Action.Graph = this;
	Action.Nodes.Add(InNode);
	NotifyGraphChanged(Action);
}

void UEdGraph::NotifyGraphChanged(const FEdGraphEditAction& Action)
{
	OnGraphChanged.Broadcast(Action);
}

void UEdGraph::GetAllChildrenGraphs(TArray<UEdGraph*>& Graphs) const
{
	// A damaged package may hold a graph that contains itself.
	TArray<UEdGraph*> Pending;
	const auto AddNew = [&Graphs, &Pending](const UEdGraph* Parent)
	{
		for (UEdGraph* const SubGraph : Parent->SubGraphs)
		{
			if (SubGraph && !Graphs.Contains(SubGraph))
			{
				Graphs.Add(SubGraph);
				Pending.Add(SubGraph);
			}
		}
	};
	AddNew(this);
	while (Pending.Num() > 0)
	{
		AddNew(Pending.Pop());
	}
}

UEdGraph* UEdGraph::GetOuterGraph(UObject* Object)
{
	return Object ? Object->GetTypedOuter<UEdGraph>() : nullptr;
}

FVector2D UEdGraph::GetGoodPlaceForNewNode() const
{
	constexpr double Gap = 256.0;
	FVector2D Place = FVector2D::ZeroVector;
	if (Nodes.Num() > 0 && Nodes[0])
	{
		Place.X = Nodes[0]->NodePosX;
		for (const UEdGraphNode* const Node : Nodes)
		{
			if (Node)
			{
				Place.X = FMath::Min(Place.X, static_cast<double>(Node->NodePosX));
				Place.Y = FMath::Max(Place.Y, Node->NodePosY + Gap);
			}
		}
	}
	return Place;
}

void UEdGraph::MoveNodesToAnotherGraph(UEdGraph* DestinationGraph, bool bIsLoading, bool bInIsCompiling)
{
	check(DestinationGraph && DestinationGraph != this);
	const ERenameFlagsType RenameFlags = (bIsLoading ? REN_ForceNoResetLoaders : REN_None) |
		(bInIsCompiling ? REN_NonTransactional | REN_DoNotDirty : REN_None) | REN_DontCreateRedirectors;
	DestinationGraph->Modify();
	Modify();
	TArray<TObjectPtr<UEdGraphNode>> Moving = MoveTemp(Nodes);
	Nodes.Empty();
	for (UEdGraphNode* const Node : Moving)
	{
		if (!Node)
		{
			continue;
		}
		const bool bNameIsTaken = StaticFindObjectFast(nullptr, DestinationGraph, Node->GetFName()) != nullptr;
		const FString NewName = bNameIsTaken ? MakeUniqueObjectName(DestinationGraph, Node->GetClass()).ToString() : Node->GetName();
		Node->Rename(*NewName, DestinationGraph, RenameFlags);
		DestinationGraph->Nodes.Add(Node);
	}
	NotifyGraphChanged();
	DestinationGraph->NotifyGraphChanged();
}

void UEdGraph::PostInitProperties()
{
	Super::PostInitProperties();
	if (!HasAnyFlags(RF_ClassDefaultObject | RF_NeedLoad))
	{
		GraphGuid = FGuid::NewGuid();
	}
}

void UEdGraph::PostDuplicate(bool bDuplicateForPIE)
{
	Super::PostDuplicate(bDuplicateForPIE);
	if (!bDuplicateForPIE)
	{
		GraphGuid = FGuid::NewGuid();
	}
}

void UEdGraph::PostLoad()
{
	Super::PostLoad();
	if (!GraphGuid.IsValid())
	{
		GraphGuid = FGuid::NewGuid();
	}
	Nodes.Remove(nullptr);
	SubGraphs.Remove(nullptr);
	// A damaged package may hold references that one side alone knows of, which would outlive the pin on the other side.
	for (UEdGraphNode* const Node : Nodes)
	{
		UEdGraphPin::SanitizePinsPostUndoRedo(Node, Node->Pins);
		UEdGraphPin::SanitizeFamilies(Node->Pins);
	}
}

void UEdGraph::PostEditUndo()
{
	Super::PostEditUndo();
	NotifyGraphChanged();
}

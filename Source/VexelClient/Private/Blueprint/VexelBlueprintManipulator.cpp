#include "Blueprint/VexelBlueprintManipulator.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Blueprint/VexelNearestTexts.h"
#include "Blueprint/VexelNodeTypeIndex.h"
#include "GraphFormatter/GraphFormatter.h"

#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphSchema.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"

namespace
{
/** Both spacings of a layout, in units of the graph. */
constexpr double LayoutSpacing = 200.0;
/** Ids that an unknown one is answered with. */
constexpr int32 MaxNearest = 5;

FVexelError_BlueprintManipulationFailed MakeError(const FVexelErrorPlace& Place, FString Detail)
{
	return FVexelError_BlueprintManipulationFailed(Place, MoveTemp(Detail));
}

/** The transaction of one edit of a graph. */
class FGraphEdit
{
public:
	FGraphEdit(const FText& Description, UEdGraph& InGraph)
		: Transaction(Description)
		, Graph(InGraph)
		, NumNodesBefore(Graph.Nodes.Num())
		, bWasDirty(Graph.GetPackage()->IsDirty())
	{
		Graph.Modify();
	}

	/** The nodes that the edit has added so far, those that the editor put between pins too, are the conversation's to place. */
	void RememberNewNodes(FVexelPlacedNodes& Placed) const
	{
		for (int32 Index = NumNodesBefore; Index < Graph.Nodes.Num(); ++Index)
		{
			Placed.Remember(*Graph.Nodes[Index]);
		}
	}

	/** Leaves neither an entry of undo nor a package to save. What the editor had begun is its own to take back. */
	void Refuse()
	{
		Transaction.Cancel();
		Graph.GetPackage()->SetDirtyFlag(bWasDirty);
	}

private:
	FScopedTransaction Transaction;
	UEdGraph& Graph;
	const int32 NumNodesBefore;
	const bool bWasDirty;
};

void SetDefault(const UEdGraphSchema& Schema, UEdGraphPin& Pin, const FString& Value)
{
	const FString Before = Pin.GetDefaultAsString();
	Schema.TrySetDefaultValue(Pin, Value);
	// What the pin cannot hold stays as it was given, for the compile to say what is wrong with it.
	if (Pin.GetDefaultAsString() == Before && Before != Value)
	{
		Pin.DefaultValue = Value;
	}
}

FString ListNearest(const TArray<FString>& Ids)
{
	const FString List = FString::JoinBy(Ids, TEXT(", "), [](const FString& Id)
		{ return FString::Printf(TEXT("'%s'"), *Id); });
	return List.IsEmpty() ? List : TEXT(". Nearest: ") + List;
}

/** "PrintString" of "PrintString_7": numbers make no two nodes alike. */
FString WithoutNumber(const FString& NodeId)
{
	FString Title;
	FString Number;
	const bool bHasNumber = NodeId.Split(TEXT("_"), &Title, &Number, ESearchCase::CaseSensitive, ESearchDir::FromEnd) && Number.IsNumeric();
	return bHasNumber ? Title : NodeId;
}

FString ListPins(const UEdGraphNode& Node, FVexelBlueprintMapping& Mapping)
{
	TArray<FString> Names;
	for (const UEdGraphPin* const Pin : Node.Pins)
	{
		if (Pin && !Pin->bHidden)
		{
			Names.Add(FString::Printf(
				TEXT("'%s' (%s)"), *Mapping.MakePinReference(*Pin), Pin->Direction == EGPD_Input ? TEXT("input") : TEXT("output")));
		}
	}
	return FString::Join(Names, TEXT(", "));
}
}

FVexelBlueprintManipulator::FVexelBlueprintManipulator(UBlueprint& InBlueprint, FVexelBlueprintMapping& InMapping)
	: Blueprint(&InBlueprint)
	, Mapping(InMapping)
{
}

TVexelExpected<TVexelNodeId> FVexelBlueprintManipulator::SpawnNode(
	const TVexelGraphId& GraphId, const TVexelNodeTypeId& TypeId, const TArray<TTuple<FName, FString>>& PinDefaults) const
{
	VEXEL_TRY(UEdGraph* const Graph, FindGraph(VEXEL_HERE, GraphId));
	UBlueprintNodeSpawner* Spawner = nullptr;
	if (TypeId.IsEmpty() || !Mapping.ResolveNodeTypeForGraph(TypeId, *Graph, Spawner) || !Spawner)
	{
		return MakeError(VEXEL_HERE, TEXT("Node type is not valid") + ListNearestTypes(TypeId));
	}
	FGraphEdit Edit(INVTEXT("(Vexel) Spawn Node"), *Graph);
	UEdGraphNode* const Node = Spawner->Invoke(Graph, IBlueprintNodeBinder::FBindingSet(), Graph->GetGoodPlaceForNewNode());
	if (!Node)
	{
		Edit.Refuse();
		return MakeError(VEXEL_HERE, TEXT("Failed to create node from spawner."));
	}
	for (const TTuple<FName, FString>& PinDefault : PinDefaults)
	{
		if (UEdGraphPin* const Pin = Node->FindPin(PinDefault.Get<0>(), EGPD_MAX))
		{
			SetDefault(*Graph->GetSchema(), *Pin, PinDefault.Get<1>());
		}
	}
	Edit.RememberNewNodes(Mapping.GetPlacedNodes());
	FinishEdit();
	return Mapping.MakeNodeReference(*Node, true);
}

TVexelExpected<TVexelNodeId> FVexelBlueprintManipulator::RemoveNode(const TVexelGraphId& GraphId, const TVexelNodeId& NodeId) const
{
	VEXEL_TRY(UEdGraph* const Graph, FindGraph(VEXEL_HERE, GraphId));
	VEXEL_TRY(UEdGraphNode* const Node, FindNode(VEXEL_HERE, *Graph, NodeId));
	const FGraphEdit Edit(INVTEXT("(Vexel) Remove Node"), *Graph);
	FBlueprintEditorUtils::RemoveNode(Blueprint.Get(), Node, true);
	FinishEdit();
	return NodeId;
}

TVexelExpected<TTuple<TVexelNodeId, TVexelNodeId>> FVexelBlueprintManipulator::EditConnection(const TVexelGraphId& GraphId,
	const TVexelNodeId& FromNode, const TVexelPinId& FromPin, const TVexelNodeId& ToNode, const TVexelPinId& ToPin, const bool bConnect) const
{
	VEXEL_TRY(UEdGraph* const Graph, FindGraph(VEXEL_HERE, GraphId));
	VEXEL_TRY(UEdGraphNode* const From, FindNode(VEXEL_HERE, *Graph, FromNode));
	VEXEL_TRY(UEdGraphPin* const Source, FindPin(VEXEL_HERE, *From, FromPin));
	VEXEL_TRY(UEdGraphNode* const To, FindNode(VEXEL_HERE, *Graph, ToNode));
	VEXEL_TRY(UEdGraphPin* const Target, FindPin(VEXEL_HERE, *To, ToPin));
	const UEdGraphSchema& Schema = *Graph->GetSchema();
	const FString Ends = FString::Printf(TEXT("from '%s'.'%s' to '%s'.'%s'"), *FromNode, *FromPin, *ToNode, *ToPin);
	if (!bConnect && !Source->LinkedTo.Contains(Target))
	{
		return MakeError(VEXEL_HERE, TEXT("No connection found ") + Ends);
	}
	const FPinConnectionResponse Response = bConnect ? Schema.CanCreateConnection(Source, Target) : FPinConnectionResponse();
	const FString Refusal =
		FString::Printf(TEXT("Connection not allowed %s%s%s"), *Ends, Response.Message.IsEmpty() ? TEXT("") : TEXT(": "), *Response.Message.ToString());
	if (bConnect && Response.Response == CONNECT_RESPONSE_DISALLOW)
	{
		return MakeError(VEXEL_HERE, Refusal);
	}

	FGraphEdit Edit(INVTEXT("(Vexel) Edit connection"), *Graph);
	Source->Modify();
	Target->Modify();
	if (!bConnect)
	{
		Schema.BreakSinglePinLink(Source, Target);
	}
	else if (!Schema.TryCreateConnection(Source, Target))
	{
		Edit.Refuse();
		return MakeError(VEXEL_HERE, Refusal);
	}
	Edit.RememberNewNodes(Mapping.GetPlacedNodes());
	FinishEdit();
	return TTuple<TVexelNodeId, TVexelNodeId>(Mapping.MakeNodeReference(*From, true), Mapping.MakeNodeReference(*To, true));
}

TVexelExpected<void> FVexelBlueprintManipulator::FormatSelectedNodes(
	const TVexelGraphId& GraphId, const TArray<TVexelNodeId>& NodeIds) const
{
	VEXEL_TRY(UEdGraph* const Graph, FindGraph(VEXEL_HERE, GraphId));
	TArray<UEdGraphNode*> Nodes;
	for (const TVexelNodeId& NodeId : NodeIds)
	{
		VEXEL_TRY(UEdGraphNode* const Node, FindNode(VEXEL_HERE, *Graph, NodeId));
		Nodes.Add(Node);
	}
	const FScopedTransaction Transaction(INVTEXT("(Vexel) Format nodes"));
	FVexelPlacedNodes& Placed = Mapping.GetPlacedNodes();
	Nodes = Placed.WithLinked(Nodes);
	TSet<UEdGraphNode*> NewNodes;
	for (UEdGraphNode* const Node : Nodes)
	{
		if (Placed.Contains(*Node))
		{
			NewNodes.Add(Node);
		}
	}
	GraphFormatter::FormatSelectedNodes(*Graph, Nodes, LayoutSpacing, LayoutSpacing, NewNodes);
	for (const UEdGraphNode* const Node : NewNodes)
	{
		Placed.Remember(*Node);
	}
	FinishEdit();
	return {};
}

TVexelTaskResult<TSharedRef<FCompilerResultsLog>> FVexelBlueprintManipulator::CompileBlueprint() const
{
	using FLog = TSharedRef<FCompilerResultsLog>;
	return TVexelTaskResult<void>(TVexelExpected<void>()).ThenOn(EVexelTaskThread::GameThread, [Compiled = Blueprint]() -> TVexelExpected<FLog>
		{
			UBlueprint* const Target = Compiled.Get();
			if (!Target)
			{
				return MakeError(VEXEL_HERE, TEXT("Blueprint is invalid."));
			}
			const TSharedRef<FCompilerResultsLog> Log = MakeShared<FCompilerResultsLog>(true);
			FBlueprintEditorUtils::RefreshAllNodes(Target);
			FKismetEditorUtilities::CompileBlueprint(Target, EBlueprintCompileOptions::None, &Log.Get());
			return Log; });
}

TVexelExpected<UEdGraph*> FVexelBlueprintManipulator::FindGraph(const FVexelErrorPlace& Place, const TVexelGraphId& GraphId) const
{
	if (!Blueprint.IsValid())
	{
		return MakeError(Place, TEXT("Blueprint is invalid."));
	}
	UEdGraph* Graph = nullptr;
	if (!Mapping.ResolveGraphInBlueprint(GraphId, *Blueprint, Graph))
	{
		return MakeError(Place, TEXT("Graph reference is invalid or does not exist in the blueprint."));
	}
	return Graph;
}

TVexelExpected<UEdGraphNode*> FVexelBlueprintManipulator::FindNode(
	const FVexelErrorPlace& Place, const UEdGraph& Graph, const TVexelNodeId& NodeId) const
{
	UEdGraphNode* Node = nullptr;
	if (!Mapping.ResolveNodeInGraph(NodeId, Graph, Node))
	{
		return MakeError(Place,
			FString::Printf(TEXT("Node '%s' not found in the graph '%s'%s"), *NodeId, *Mapping.MakeGraphReference(Graph),
				*ListNearestNodes(Graph, NodeId)));
	}
	return Node;
}

TVexelExpected<UEdGraphPin*> FVexelBlueprintManipulator::FindPin(
	const FVexelErrorPlace& Place, const UEdGraphNode& Node, const TVexelPinId& PinId) const
{
	UEdGraphPin* Pin = nullptr;
	if (!Mapping.ResolvePinInNode(PinId, Node, Pin))
	{
		const TVexelNodeId NodeId = Mapping.MakeNodeReference(Node, false);
		return MakeError(
			Place, FString::Printf(TEXT("Pin '%s' not found in node '%s'. Its pins: %s"), *PinId, *NodeId, *ListPins(Node, Mapping)));
	}
	return Pin;
}

FString FVexelBlueprintManipulator::ListNearestTypes(const TVexelNodeTypeId& TypeId) const
{
	return MayList() ? ListNearest(FVexelNodeTypeIndex::Get().FindNearest(TypeId, MaxNearest)) : FString();
}

FString FVexelBlueprintManipulator::ListNearestNodes(const UEdGraph& Graph, const TVexelNodeId& NodeId) const
{
	if (!MayList())
	{
		return FString();
	}
	FVexelNearestTexts Nearest(WithoutNumber(NodeId.ToString()));
	for (const UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node)
		{
			const FString Id = Mapping.MakeNodeReference(*Node, false).ToString();
			Nearest.Offer(Id, WithoutNumber(Id));
		}
	}
	return ListNearest(Nearest.Get(MaxNearest));
}

void FVexelBlueprintManipulator::FinishEdit() const
{
	bUnfinished = true;
	if (!bFinishLater)
	{
		Refresh();
	}
}

void FVexelBlueprintManipulator::Refresh() const
{
	if (bUnfinished && Blueprint.IsValid())
	{
		bUnfinished = false;
		FBlueprintEditorUtils::RefreshAllNodes(Blueprint.Get());
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint.Get());
	}
}

FVexelBlueprintManipulator::FBatch::~FBatch()
{
	Manipulator.bFinishLater = false;
	Manipulator.Refresh();
}

#include "GraphFlow.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "K2Node.h"
#include "K2Node_Composite.h"

namespace
{
bool HasExecPin(const UK2Node& Node, EEdGraphPinDirection Direction)
{
	return Node.Pins.ContainsByPredicate([Direction](const UEdGraphPin* Pin)
		{ return Pin->Direction == Direction && UEdGraphSchema_K2::IsExecPin(*Pin); });
}

/** Execution starts where it comes from nowhere: events, entries, inputs. */
bool IsStart(const UK2Node& Node)
{
	return HasExecPin(Node, EGPD_Output) && !HasExecPin(Node, EGPD_Input);
}

/** The pin at the other side of a collapsed graph's wall: of the tunnel inside for the node outside, and back. Null anywhere else. */
const UEdGraphPin* CrossWall(const UEdGraphPin& Pin)
{
	const UEdGraphNode* const Node = Pin.GetOwningNodeUnchecked();
	const UK2Node_Tunnel* Other = nullptr;
	if (const UK2Node_Composite* const Composite = Cast<UK2Node_Composite>(Node))
	{
		Other = Pin.Direction == EGPD_Input ? Composite->GetEntryNode() : Composite->GetExitNode();
	}
	else if (const UK2Node_Tunnel* const Tunnel = Cast<UK2Node_Tunnel>(Node); Tunnel && Tunnel->GetClass() == UK2Node_Tunnel::StaticClass())
	{
		Other = Pin.Direction == EGPD_Input ? Tunnel->InputSinkNode.Get() : Tunnel->OutputSourceNode.Get();
		const bool bIsCollapsed = Cast<UK2Node_Composite>(Other) != nullptr;
		Other = bIsCollapsed ? Other : nullptr;
	}
	return Other ? Other->FindPin(Pin.PinName, Pin.Direction == EGPD_Input ? EGPD_Output : EGPD_Input) : nullptr;
}

/** A disabled node lets execution through from its one input to its one output. */
const UEdGraphPin* PassDisabled(const UEdGraphPin& Input)
{
	const UK2Node* const Node = Cast<UK2Node>(Input.GetOwningNodeUnchecked());
	return Node && !Node->IsNodeEnabled() && Input.PinName == UEdGraphSchema_K2::PN_Execute ? Node->GetThenPin() : nullptr;
}
}

FGraphFlow::FGraphFlow(const UEdGraph& Graph)
{
	CollectNodes(Graph);
	ReachExecuted();
	ReachGivers();
}

void FGraphFlow::CollectNodes(const UEdGraph& Graph)
{
	TArray<const UEdGraph*> Graphs = {&Graph};
	TSet<const UEdGraph*> Seen = {&Graph};
	while (!Graphs.IsEmpty())
	{
		const UEdGraph* const Current = Graphs.Pop();
		for (const UEdGraphNode* const Item : Current->Nodes)
		{
			const UK2Node* const Node = Cast<UK2Node>(Item);
			if (!Node || !Node->IsNodeEnabled())
			{
				continue;
			}
			Nodes.Add(Node);
			const UK2Node_Composite* const Composite = Cast<UK2Node_Composite>(Node);
			const UEdGraph* const Inner = Composite ? Composite->BoundGraph.Get() : nullptr;
			if (Inner && !Seen.Contains(Inner))
			{
				Seen.Add(Inner);
				Graphs.Push(Inner);
			}
		}
	}
}

void FGraphFlow::FollowExecution(const UEdGraphPin& Output, TArray<const UEdGraphPin*>& OutInputs)
{
	TArray<const UEdGraphPin*> Outputs = {&Output};
	TSet<const UEdGraphPin*> Seen = {&Output};
	while (!Outputs.IsEmpty())
	{
		const UEdGraphPin* const Current = Outputs.Pop();
		for (const UEdGraphPin* const Input : Current->LinkedTo)
		{
			const UEdGraphPin* const Wall = CrossWall(*Input);
			const UEdGraphPin* const Further = Wall ? Wall : PassDisabled(*Input);
			if (!Further)
			{
				OutInputs.Add(Input);
			}
			else if (!Seen.Contains(Further))
			{
				Seen.Add(Further);
				Outputs.Push(Further);
			}
			// The walls of what execution goes through are themselves reached.
			if (Wall)
			{
				OutInputs.Add(Input);
				OutInputs.Add(Wall);
			}
		}
	}
}

void FGraphFlow::ReachExecuted()
{
	TArray<const UK2Node*> Work;
	const auto Reach = [this, &Work](const UK2Node* Node)
	{
		if (Node && Node->IsNodeEnabled() && !Reached.Contains(Node))
		{
			Reached.Add(Node);
			Work.Push(Node);
		}
	};
	for (const UK2Node* const Node : Nodes)
	{
		const UK2Node_Tunnel* const Tunnel = Cast<UK2Node_Tunnel>(Node);
		const bool bIsInnerEntry = Tunnel && Cast<UK2Node_Composite>(Tunnel->OutputSourceNode.Get());
		if (IsStart(*Node) && !bIsInnerEntry)
		{
			Reach(Node);
		}
	}
	TArray<const UEdGraphPin*> Inputs;
	while (!Work.IsEmpty())
	{
		const UK2Node* const Node = Work.Pop();
		// What a collapsed graph does is followed from the wire that leads into it.
		const bool bIsWall = Node->IsA<UK2Node_Composite>();
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			if (bIsWall || Pin->Direction != EGPD_Output || !UEdGraphSchema_K2::IsExecPin(*Pin))
			{
				continue;
			}
			Inputs.Reset();
			FollowExecution(*Pin, Inputs);
			for (const UEdGraphPin* const Input : Inputs)
			{
				Reach(Cast<UK2Node>(Input->GetOwningNodeUnchecked()));
			}
		}
	}
}

void FGraphFlow::ReachGivers()
{
	TArray<const UK2Node*> Work = Reached.Array();
	const auto Reach = [this, &Work](const UEdGraphPin* Giver)
	{
		const UK2Node* const Node = Giver ? Cast<UK2Node>(Giver->GetOwningNodeUnchecked()) : nullptr;
		const bool bGivesWithoutExecution = Node && (Node->IsNodePure() || Node->IsNodeSafeToIgnore() || !HasExecPin(*Node, EGPD_Input));
		if (bGivesWithoutExecution && !Reached.Contains(Node))
		{
			Reached.Add(Node);
			Work.Push(Node);
		}
	};
	while (!Work.IsEmpty())
	{
		const UK2Node* const Node = Work.Pop();
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			if (UEdGraphSchema_K2::IsExecPin(*Pin))
			{
				continue;
			}
			if (const UEdGraphPin* const Wall = CrossWall(*Pin))
			{
				Reach(Wall);
			}
			if (Pin->Direction == EGPD_Input)
			{
				for (const UEdGraphPin* const Giver : Pin->LinkedTo)
				{
					Reach(Giver);
				}
			}
		}
	}
}

TArray<const UK2Node*> FGraphFlow::FindCyclesOfPureNodes() const
{
	enum class EState : uint8
	{
		Open,
		Done
	};
	struct FStep
	{
		const UK2Node* Node;
		int32 NextPin;
	};
	TArray<const UK2Node*> Cycles;
	TMap<const UK2Node*, EState> States;
	for (const UK2Node* const Start : Nodes)
	{
		if (!Start->IsNodePure() || States.Contains(Start))
		{
			continue;
		}
		// Depth first with a stack of its own: a chain may be as long as the graph.
		TArray<FStep> Stack = {{Start, 0}};
		States.Add(Start, EState::Open);
		while (!Stack.IsEmpty())
		{
			FStep& Step = Stack.Last();
			if (!Step.Node->Pins.IsValidIndex(Step.NextPin))
			{
				States[Step.Node] = EState::Done;
				Stack.Pop();
				continue;
			}
			const UEdGraphPin* const Pin = Step.Node->Pins[Step.NextPin++];
			const bool bTakesValue = Pin->Direction == EGPD_Input && !UEdGraphSchema_K2::IsExecPin(*Pin) && Pin->LinkedTo.Num() > 0;
			const UK2Node* const Giver = bTakesValue ? Cast<UK2Node>(Pin->LinkedTo[0]->GetOwningNodeUnchecked()) : nullptr;
			if (!Giver || !Giver->IsNodePure())
			{
				continue;
			}
			const EState* const State = States.Find(Giver);
			if (!State)
			{
				States.Add(Giver, EState::Open);
				Stack.Add({Giver, 0});
			}
			else if (*State == EState::Open)
			{
				Cycles.Add(Giver);
			}
		}
	}
	return Cycles;
}

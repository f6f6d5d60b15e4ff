#include "GraphFormatter/FormatterGraph.h"

#include "GraphFormatter/NodeMeasure.h"

#include "Algo/StableSort.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphNode_Comment.h"
#include "EdGraphSchema_K2.h"
#include "K2Node_Event.h"

namespace
{
bool IsExec(const UEdGraphPin& Pin)
{
	return Pin.PinType.PinCategory == UEdGraphSchema_K2::PC_Exec;
}

bool IsOfEventItself(const UEdGraphPin& Pin)
{
	return Pin.PinName == UK2Node_Event::DelegateOutputName && Pin.GetOwningNode()->IsA<UK2Node_Event>();
}
}

FFormatterGraph::FFormatterGraph(const TArray<UEdGraphNode*>& Selection)
{
	TArray<FNodeMeasure> Measures;
	for (UEdGraphNode* const Node : Selection)
	{
		if (Node && !Node->IsA<UEdGraphNode_Comment>() && !Indices.Contains(Node))
		{
			Indices.Add(Node, Nodes.Num());
			Measures.Emplace(*Node);
			FFormatterNode& Added = Nodes.AddDefaulted_GetRef();
			Added.Node = Node;
			Added.Size = Measures.Last().GetSize();
			Added.Position = FVector2D(Node->NodePosX, Node->NodePosY);
		}
	}
	for (int32 Index = 0; Index < Nodes.Num(); ++Index)
	{
		FFormatterNode& From = Nodes[Index];
		for (const UEdGraphPin* const Pin : From.Node->Pins)
		{
			From.bExec |= IsExec(*Pin);
			for (const UEdGraphPin* const Linked : Pin->LinkedTo)
			{
				if (IsOfEventItself(*Pin) || IsOfEventItself(*Linked))
				{
					AddTie(Index, Measures[Index], *Pin, *Linked);
					continue;
				}
				const int32* const To = Indices.Find(Linked->GetOwningNode());
				From.bFixed |= !To;
				if (To && *To != Index && Pin->Direction == EGPD_Output)
				{
					From.Outputs.Add(Wires.Num());
					Nodes[*To].Inputs.Add(Wires.Num());
					Wires.Add({Index, *To, Measures[Index].GetPinY(*Pin), Measures[*To].GetPinY(*Linked), IsExec(*Pin)});
				}
			}
		}
	}
	for (FFormatterNode& Node : Nodes)
	{
		Algo::StableSort(Node.Inputs, [this](int32 A, int32 B)
			{ return Wires[A].ToY < Wires[B].ToY; });
	}
}

void FFormatterGraph::AddTie(int32 Node, const FNodeMeasure& Measure, const UEdGraphPin& Pin, const UEdGraphPin& Linked)
{
	const double OwnY = Measure.GetPinY(Pin);
	const double OtherY = FNodeMeasure(*Linked.GetOwningNode()).GetPinY(Linked);
	const bool bIsEvent = Pin.Direction == EGPD_Output;
	Ties.Add({Node, Linked.GetOwningNode(), bIsEvent, bIsEvent ? OwnY : OtherY, bIsEvent ? OtherY : OwnY});
}

int32 FFormatterGraph::FindIndex(const UEdGraphNode& Node) const
{
	const int32* const Index = Indices.Find(&Node);
	return Index ? *Index : INDEX_NONE;
}

TArray<TArray<int32>> FFormatterGraph::FindComponents() const
{
	TArray<TArray<int32>> Components;
	TArray<int32> ComponentOf;
	ComponentOf.Init(INDEX_NONE, Nodes.Num());
	TArray<int32> Open;
	for (int32 Start = 0; Start < Nodes.Num(); ++Start)
	{
		if (ComponentOf[Start] != INDEX_NONE)
		{
			continue;
		}
		const int32 Component = Components.AddDefaulted();
		ComponentOf[Start] = Component;
		Open.Push(Start);
		while (!Open.IsEmpty())
		{
			const int32 Index = Open.Pop();
			const auto Visit = [&](int32 Neighbour)
			{
				if (ComponentOf[Neighbour] == INDEX_NONE)
				{
					ComponentOf[Neighbour] = Component;
					Open.Push(Neighbour);
				}
			};
			for (const int32 Wire : Nodes[Index].Outputs)
			{
				Visit(Wires[Wire].To);
			}
			for (const int32 Wire : Nodes[Index].Inputs)
			{
				Visit(Wires[Wire].From);
			}
		}
	}
	for (int32 Index = 0; Index < Nodes.Num(); ++Index)
	{
		Components[ComponentOf[Index]].Add(Index);
	}
	return Components;
}

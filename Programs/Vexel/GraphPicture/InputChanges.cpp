#include "InputChanges.h"

#include "NodeText.h"

namespace
{
class FFinder
{
public:
	FFinder(const FMergedGraph& InGraph, const FGraphDifference& InDifference)
		: Graph(InGraph)
		, Difference(InDifference)
	{
	}

	TMap<int32, TArray<FInputChange>> Find()
	{
		for (const FNodeDifference& Node : Difference.Nodes)
		{
			if (Node.After != INDEX_NONE && !Node.bFollows)
			{
				Look(Node.After);
			}
		}
		for (const FWireDifference& Wire : Difference.Wires)
		{
			Look(Wire.Kind == EDifference::Added ? Wire.To.Node : Graph.FromBefore(Wire.To.Node));
		}
		while (!Open.IsEmpty())
		{
			LookBehind(Open.Pop());
		}
		TMap<int32, TArray<FInputChange>> Changes;
		for (const int32 Node : Seen)
		{
			TArray<FInputChange> OfNode = Compare(Node);
			if (!OfNode.IsEmpty())
			{
				Changes.Add(Node, MoveTemp(OfNode));
			}
		}
		return Changes;
	}

private:
	void Look(int32 Node)
	{
		if (!Graph.IsOld(Node) && !Seen.Contains(Node))
		{
			Seen.Add(Node);
			Open.Add(Node);
		}
	}

	/** What is computed from a node that only computes. */
	void LookBehind(int32 Index)
	{
		const FNodeSnapshot& Node = Graph.Get(Index);
		if (!Node.bPure)
		{
			return;
		}
		for (const FPinSnapshot& Pin : Node.Pins)
		{
			if (Pin.bInput)
			{
				continue;
			}
			for (const FPinLink& To : Pin.Links)
			{
				Look(To.Node);
			}
		}
	}

	TArray<FInputChange> Compare(int32 Index) const
	{
		TArray<FInputChange> Changes;
		const FNodeSnapshot& Now = Graph.Get(Index);
		const FNodeSnapshot* const Then = Graph.FindEarlier(Index);
		if (!Then || !Now.IsDrawn() || Graph.GetDifference(Index) == EDifference::Added)
		{
			return Changes;
		}
		const FItemMatch Pins = MatchPins(*Then, Now);
		for (const int32 Pin : FindShownInputs(Now))
		{
			if (Pins.BeforeOf[Pin] == INDEX_NONE)
			{
				continue;
			}
			FInputChange Change{Now.Pins[Pin].Label, WritePinExpression(*Graph.GetBefore(), Then->Pins[Pins.BeforeOf[Pin]]),
				WritePinExpression(Graph.GetAfter(), Now.Pins[Pin])};
			if (!Change.Before.Text.Equals(Change.After.Text))
			{
				Changes.Add(MoveTemp(Change));
			}
		}
		return Changes;
	}

	const FMergedGraph& Graph;
	const FGraphDifference& Difference;
	TSet<int32> Seen;
	TArray<int32> Open;
};
}

TMap<int32, TArray<FInputChange>> FindInputChanges(const FMergedGraph& Graph, const FGraphDifference& Difference)
{
	return FFinder(Graph, Difference).Find();
}

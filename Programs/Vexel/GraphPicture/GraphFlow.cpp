#include "GraphFlow.h"

#include "StyledText.h"

namespace
{
/** Ways that lie deeper are drawn in a section of their own: they would have no room, and nobody could follow them. */
constexpr int32 MaxDepth = 12;
constexpr int32 MinTextWidth = 30;

bool HasExecInput(const FNodeSnapshot& Node)
{
	return Node.Pins.ContainsByPredicate([](const FPinSnapshot& Pin)
		{ return Pin.bInput && Pin.bExec; });
}

/** Whether a node's only way needs its name: it has others that lead nowhere, and is not the usual one. */
bool NeedsLabel(const FNodeSnapshot& Node, const FMergedGraph::FWay& Way)
{
	int32 NumOutputs = 0;
	for (const FPinSnapshot& Pin : Node.Pins)
	{
		NumOutputs += !Pin.bInput && Pin.bExec && !Pin.bHidden ? 1 : 0;
	}
	return NumOutputs > 1 && !Way.Label.Equals(TEXT("then"), ESearchCase::IgnoreCase);
}
}

FGraphFlow::FGraphFlow(const FMergedGraph& InGraph, int32 InWidth)
	: Graph(InGraph)
	, Width(InWidth)
{
	Drawn.Init(false, Graph.Num());
	NumberJunctions();
	for (const int32 Root : FindRoots())
	{
		if (Graph.Get(Root).bGhost)
		{
			// The editor offers them; they are no part of the Blueprint until somebody connects them.
			Ghosts.Add(Root);
			Drawn[Root] = true;
			continue;
		}
		DrawRoot(Root);
	}
	DrawUnreached();
}

void FGraphFlow::NumberJunctions()
{
	for (int32 Node = 0; Node < Graph.Num(); ++Node)
	{
		if (!Graph.IsOld(Node) && Graph.Get(Node).IsDrawn() && Graph.CountEntering(Node) > 1)
		{
			Numbers.Add(Node, Numbers.Num() + 1);
		}
	}
}

/** Where execution begins, from the top of the graph to its bottom. */
TArray<int32> FGraphFlow::FindRoots() const
{
	TArray<int32> Roots;
	for (int32 Node = 0; Node < Graph.Num(); ++Node)
	{
		const FNodeSnapshot& Candidate = Graph.Get(Node);
		if (Graph.IsInUse(Node) && Candidate.IsDrawn() && !Candidate.bPure && !HasExecInput(Candidate))
		{
			Roots.Add(Node);
		}
	}
	Roots.StableSort([this](int32 A, int32 B)
		{ return Graph.Get(A).Position.Y < Graph.Get(B).Position.Y; });
	return Roots;
}

void FGraphFlow::DrawRoot(int32 Root)
{
	Drawn[Root] = true;
	const FPlace Place{.Parent = Lines.Num()};
	Lines.Add({.Kind = EFlowLine::Root, .Difference = Graph.GetDifference(Root), .Node = Root, .Rail = TEXT("● "), .NextRail = TEXT("  ")});
	const TArray<FMergedGraph::FWay> Ways = Graph.FindWays(Root);
	if (Ways.Num() == 1)
	{
		DrawOldWay(Ways[0], Place);
		if (Ways[0].Next != INDEX_NONE)
		{
			DrawEntry(Ways[0].Next, Place, FindExpected(Ways[0], Root, {}));
		}
	}
	else
	{
		DrawWays(Ways, Place, {});
	}
	DrawPostponed();
}

void FGraphFlow::DrawUnreached()
{
	int32 Heading = INDEX_NONE;
	// Chains first that have a beginning; what is left then runs in circles.
	for (const bool bBeginning : {true, false})
	{
		for (int32 Node = 0; Node < Graph.Num(); ++Node)
		{
			const FNodeSnapshot& Candidate = Graph.Get(Node);
			const bool bWanted = Graph.IsInUse(Node) && Candidate.IsDrawn() && !Candidate.bPure && !Drawn[Node];
			if (!bWanted || (bBeginning && Graph.CountEntering(Node) > 0))
			{
				continue;
			}
			if (Heading == INDEX_NONE)
			{
				Heading = Lines.Num();
				Lines.Add({.Kind = EFlowLine::Unreached});
			}
			const FPlace Place{.Parent = Heading};
			if (Graph.IsOld(Node))
			{
				DrawOldWay({.OldNext = Node}, Place);
			}
			else
			{
				// What nothing runs was not led to before either, or the wire that did is drawn where it was.
				DrawChain(Node, Place, {Node});
			}
			DrawPostponed();
		}
	}
}

TArray<int32> FGraphFlow::FindLasting(int32 Start) const
{
	TArray<int32> Lasting;
	TSet<int32> Seen;
	TArray<int32> Open = {Start};
	while (!Open.IsEmpty())
	{
		const int32 Node = Open.Pop();
		if (Node == INDEX_NONE || Seen.Contains(Node))
		{
			continue;
		}
		Seen.Add(Node);
		if (Graph.GetDifference(Node) == EDifference::Changed)
		{
			Lasting.Add(Node);
			continue;
		}
		for (const FMergedGraph::FWay& Way : Graph.FindWays(Node))
		{
			Open.Add(Graph.IsOld(Node) ? Way.OldNext : Way.Next);
		}
	}
	return Lasting;
}

TArray<int32> FGraphFlow::FindExpected(const FMergedGraph::FWay& Way, int32 Owner, const TArray<int32>& OfOwner) const
{
	if (!Graph.HasEdit() || Way.IsSame())
	{
		return {Way.Next};
	}
	// Behind a new node it is as it was behind the node before that.
	return Graph.GetDifference(Owner) == EDifference::Added ? OfOwner : FindLasting(Way.OldNext);
}

bool FGraphFlow::HasRoom(const FPlace& Place) const
{
	return Place.Depth < MaxDepth && GetTextWidth(Place.Rail) + MinTextWidth <= Width;
}

void FGraphFlow::DrawChain(int32 First, const FPlace& Place, TArray<int32> Expected)
{
	int32 Node = First;
	while (Node != INDEX_NONE)
	{
		const EDifference Difference = Graph.GetDifference(Node);
		if (Graph.HasEdit() && Difference == EDifference::Changed && !Expected.Contains(Node))
		{
			AddPointer(Node, Place, EDifference::Added, Drawn[Node]);
		}
		else if (Drawn[Node])
		{
			AddPointer(Node, Place, Difference, true);
		}
		if (Drawn[Node])
		{
			return;
		}
		Drawn[Node] = true;
		const TArray<FMergedGraph::FWay> Ways = Graph.FindWays(Node);
		const bool bLast = Ways.IsEmpty();
		FFlowLine& Line = Lines.Add_GetRef({.Difference = Difference, .Node = Node, .Parent = Place.Parent});
		Line.Rail = Place.Rail + (bLast ? TEXT("└ ") : TEXT("│ "));
		Line.NextRail = Place.Rail + (bLast ? TEXT("  ") : TEXT("│ "));
		if (Ways.Num() != 1)
		{
			DrawWays(Ways, Place, Expected);
			return;
		}
		Line.Label = NeedsLabel(Graph.Get(Node), Ways[0]) ? Ways[0].Label : FString();
		DrawOldWay(Ways[0], Place);
		Expected = FindExpected(Ways[0], Node, Expected);
		Node = Ways[0].Next;
	}
}

void FGraphFlow::DrawWays(const TArray<FMergedGraph::FWay>& Ways, const FPlace& Place, const TArray<int32>& Expected)
{
	const int32 Owner = Lines.Num() - 1;
	const int32 OwnerNode = Lines[Owner].Node;
	for (int32 Index = 0; Index < Ways.Num(); ++Index)
	{
		const FMergedGraph::FWay& Way = Ways[Index];
		const bool bLast = Index + 1 == Ways.Num();
		FFlowLine& Line = Lines.Add_GetRef({.Kind = EFlowLine::Way, .Label = Way.Label, .Parent = Owner});
		if (Graph.HasEdit() && (Way.Next == INDEX_NONE) != (Way.OldNext == INDEX_NONE))
		{
			Line.Difference = Way.Next == INDEX_NONE ? EDifference::Removed : EDifference::Added;
		}
		Line.Node = OwnerNode;
		Line.Rail = Place.Rail + (bLast ? TEXT("└▸ ") : TEXT("├▸ "));
		const FPlace Inner{Place.Rail + (bLast ? TEXT("   ") : TEXT("│  ")), Place.Depth + 1, Lines.Num() - 1};
		DrawOldWay(Way, Inner);
		if (Way.Next != INDEX_NONE)
		{
			DrawEntry(Way.Next, Inner, FindExpected(Way, OwnerNode, Expected));
		}
	}
}

void FGraphFlow::DrawEntry(int32 Node, const FPlace& Place, const TArray<int32>& Expected)
{
	if (!Drawn[Node] && !HasRoom(Place))
	{
		const bool bWireCame = Graph.HasEdit() && !Expected.Contains(Node);
		Postpone(Node, Place, bWireCame ? EDifference::Added : EDifference::Changed);
		return;
	}
	DrawChain(Node, Place, Expected);
}

void FGraphFlow::DrawOldWay(const FMergedGraph::FWay& Way, const FPlace& Place)
{
	if (Way.OldNext == INDEX_NONE || Way.IsSame())
	{
		return;
	}
	const bool bGoesOn = Way.Next != INDEX_NONE;
	int32 Node = Way.OldNext;
	while (Node != INDEX_NONE && Graph.IsOld(Node) && !Drawn[Node])
	{
		if (!HasRoom(Place))
		{
			Postpone(Node, Place, EDifference::Removed);
			return;
		}
		Drawn[Node] = true;
		const TArray<FMergedGraph::FWay> Ways = Graph.FindWays(Node);
		const bool bLast = Ways.IsEmpty() && !bGoesOn;
		FFlowLine& Line = Lines.Add_GetRef({.Difference = EDifference::Removed, .Node = Node, .Parent = Place.Parent});
		Line.Rail = Place.Rail + (bLast ? TEXT("└ ") : TEXT("│ "));
		Line.NextRail = Place.Rail + (bLast ? TEXT("  ") : TEXT("│ "));
		if (Ways.Num() != 1)
		{
			DrawWays(Ways, Place, {});
			return;
		}
		Line.Label = NeedsLabel(Graph.Get(Node), Ways[0]) ? Ways[0].Label : FString();
		Node = Ways[0].OldNext;
	}
	// A wire that was led over new nodes, or over nodes that are gone, still leads to where it did.
	if (Node != INDEX_NONE && !FindLasting(Way.Next).Contains(Node))
	{
		AddPointer(Node, Place, EDifference::Removed, !bGoesOn);
	}
}

void FGraphFlow::DrawPostponed()
{
	for (int32 Index = 0; Index < Postponed.Num(); ++Index)
	{
		const int32 Node = Postponed[Index];
		if (Drawn[Node])
		{
			continue;
		}
		const FPlace Place{.Parent = Lines.Num()};
		Lines.Add({.Kind = EFlowLine::Root, .Node = INDEX_NONE});
		if (Graph.IsOld(Node))
		{
			DrawOldWay({.OldNext = Node}, Place);
		}
		else
		{
			DrawChain(Node, Place, {Node});
		}
	}
	Postponed.Reset();
}

void FGraphFlow::Postpone(int32 Node, const FPlace& Place, EDifference Difference)
{
	if (!Numbers.Contains(Node))
	{
		Numbers.Add(Node, Numbers.Num() + 1);
	}
	Postponed.Add(Node);
	AddPointer(Node, Place, Difference, true);
}

void FGraphFlow::AddPointer(int32 Node, const FPlace& Place, EDifference Difference, bool bLast)
{
	FFlowLine& Line = Lines.Add_GetRef({.Kind = EFlowLine::Pointer, .Difference = Difference, .Node = Node, .Parent = Place.Parent});
	Line.Rail = Place.Rail + (bLast ? TEXT("└ ") : TEXT("│ "));
}

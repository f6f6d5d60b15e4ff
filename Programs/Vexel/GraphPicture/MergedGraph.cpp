#include "GraphFlow.h"

FMergedGraph::FMergedGraph(const FGraphSnapshot& InAfter, const FGraphSnapshot* InBefore, const FGraphDifference* Difference)
	: After(InAfter)
	, Before(InBefore)
	, NumAfter(InAfter.Nodes.Num())
{
	if (!Before)
	{
		return;
	}
	FItemMatch Matched = MatchNodes(*Before, After);
	BeforeOf = MoveTemp(Matched.BeforeOf);
	AfterOf = MoveTemp(Matched.AfterOf);
	for (const FNodeDifference& Node : Difference->Nodes)
	{
		if (Node.Kind == EDifference::Added && Node.Before != INDEX_NONE)
		{
			Awakened.Add(Node.After);
		}
	}
}

EDifference FMergedGraph::GetDifference(int32 Node) const
{
	if (IsOld(Node))
	{
		return EDifference::Removed;
	}
	const bool bNew = Before && (BeforeOf[Node] == INDEX_NONE || Awakened.Contains(Node));
	return bNew ? EDifference::Added : EDifference::Changed;
}

const FNodeSnapshot* FMergedGraph::FindEarlier(int32 Node) const
{
	const bool bBoth = Before && !IsOld(Node) && BeforeOf[Node] != INDEX_NONE;
	return bBoth ? &Before->Nodes[BeforeOf[Node]] : nullptr;
}

int32 FMergedGraph::FromBefore(int32 BeforeIndex) const
{
	return AfterOf[BeforeIndex] == INDEX_NONE ? NumAfter + BeforeIndex : AfterOf[BeforeIndex];
}

int32 FMergedGraph::FindNext(const FGraphSnapshot& Side, const FPinSnapshot& Pin) const
{
	const bool bLeadsOn = Pin.bExec && !Pin.bInput && !Pin.Links.IsEmpty();
	const FPinLink Entry = !bLeadsOn ? FPinLink() : Side.FollowReroutes(Pin.Links[0]);
	return Entry.IsSet() && !Side.Nodes[Entry.Node].bPure ? Entry.Node : INDEX_NONE;
}

TArray<FMergedGraph::FWay> FMergedGraph::FindWays(int32 Node) const
{
	TArray<FWay> Ways;
	const auto AddWay = [&Ways](const FPinSnapshot& Pin, int32 Next, int32 OldNext)
	{
		if (Next != INDEX_NONE || OldNext != INDEX_NONE)
		{
			Ways.Add({Pin.Label, Next, OldNext});
		}
	};
	const auto FindOldNext = [this](const FPinSnapshot& Pin)
	{
		const int32 Next = FindNext(*Before, Pin);
		return Next == INDEX_NONE ? INDEX_NONE : FromBefore(Next);
	};
	const FNodeSnapshot& Now = Get(Node);
	if (IsOld(Node))
	{
		for (const FPinSnapshot& Pin : Now.Pins)
		{
			AddWay(Pin, INDEX_NONE, FindOldNext(Pin));
		}
		return Ways;
	}
	const FNodeSnapshot* const Earlier = FindEarlier(Node);
	const FItemMatch Pins = Earlier ? MatchPins(*Earlier, Now) : FItemMatch();
	for (int32 Index = 0; Index < Now.Pins.Num(); ++Index)
	{
		const int32 EarlierPin = Earlier ? Pins.BeforeOf[Index] : INDEX_NONE;
		AddWay(Now.Pins[Index], FindNext(After, Now.Pins[Index]),
			EarlierPin == INDEX_NONE ? INDEX_NONE : FindOldNext(Earlier->Pins[EarlierPin]));
	}
	for (int32 Index = 0; Index < Pins.AfterOf.Num(); ++Index)
	{
		if (Pins.AfterOf[Index] == INDEX_NONE)
		{
			AddWay(Earlier->Pins[Index], INDEX_NONE, FindOldNext(Earlier->Pins[Index]));
		}
	}
	return Ways;
}

int32 FMergedGraph::CountEntering(int32 Node) const
{
	const FGraphSnapshot& Side = GetGraph(Node);
	int32 Num = 0;
	TSet<int32> Reroutes;
	TArray<const FNodeSnapshot*> Open = {&Get(Node)};
	while (!Open.IsEmpty())
	{
		for (const FPinSnapshot& Pin : Open.Pop()->Pins)
		{
			if (!Pin.bInput || !Pin.bExec)
			{
				continue;
			}
			for (const FPinLink& Source : Pin.Links)
			{
				const FNodeSnapshot& Leading = Side.Nodes[Source.Node];
				if (Leading.Form != ENodeForm::Reroute)
				{
					++Num;
				}
				else if (!Reroutes.Contains(Source.Node))
				{
					Reroutes.Add(Source.Node);
					Open.Add(&Leading);
				}
			}
		}
	}
	return Num;
}

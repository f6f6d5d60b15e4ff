#include "GraphFormatter/ColumnBalance.h"

namespace
{
/** Exchanges by point. They end by themselves long before, but for a rare circle of exchanges that change nothing. */
constexpr int32 MaxExchangesPerPoint = 8;
}

int32 FColumnBalance::AddPoint(int32 Column)
{
	FPoint Point;
	Point.Column = Column;
	return Points.Add(MoveTemp(Point));
}

void FColumnBalance::AddWire(int32 From, int32 To, int32 LeastLength)
{
	const int32 Index = Wires.Add({From, To, LeastLength});
	Points[From].Wires.Add(Index);
	Points[To].Wires.Add(Index);
	check(GetSlack(Wires[Index]) >= 0);
}

void FColumnBalance::Run()
{
	while (!GrowTree())
	{
	}
	WalkTree();
	for (int32 Exchanges = 0; Exchanges < MaxExchangesPerPoint * Points.Num(); ++Exchanges)
	{
		const int32 Branch = FindBadBranch();
		if (Branch == INDEX_NONE)
		{
			break;
		}
		Exchange(Branch);
		WalkTree();
	}
}

bool FColumnBalance::GrowTree()
{
	for (FWire& Wire : Wires)
	{
		Wire.bInTree = false;
	}
	TArray<bool> Reached;
	Reached.Init(false, Points.Num());
	Reached[0] = true;
	TArray<int32> Open = {0};
	for (int32 Next = 0; Next < Open.Num(); ++Next)
	{
		for (const int32 Index : Points[Open[Next]].Wires)
		{
			const int32 Other = GetOther(Wires[Index], Open[Next]);
			if (!Reached[Other] && GetSlack(Wires[Index]) == 0)
			{
				Reached[Other] = true;
				Wires[Index].bInTree = true;
				Open.Add(Other);
			}
		}
	}
	// The wire that is least too long draws the tree to what it leads to.
	const FWire* Nearest = nullptr;
	for (const FWire& Wire : Wires)
	{
		if (Reached[Wire.From] != Reached[Wire.To] && (!Nearest || GetSlack(Wire) < GetSlack(*Nearest)))
		{
			Nearest = &Wire;
		}
	}
	const int32 Shift = !Nearest ? 0 : Reached[Nearest->From] ? GetSlack(*Nearest)
															  : -GetSlack(*Nearest);
	for (const int32 Point : Open)
	{
		Points[Point].Column += Shift;
	}
	return !Nearest;
}

void FColumnBalance::WalkTree()
{
	TreeOrder.Reset();
	TreeOrder.Add(0);
	Points[0].TreeWire = INDEX_NONE;
	for (int32 Next = 0; Next < TreeOrder.Num(); ++Next)
	{
		const int32 Point = TreeOrder[Next];
		Points[Point].Pull = 0;
		for (const int32 Index : Points[Point].Wires)
		{
			Points[Point].Pull += Wires[Index].From == Point ? 1 : -1;
			if (Wires[Index].bInTree && Index != Points[Point].TreeWire)
			{
				const int32 Other = GetOther(Wires[Index], Point);
				Points[Other].TreeWire = Index;
				TreeOrder.Add(Other);
			}
		}
	}
	for (int32 Next = TreeOrder.Num() - 1; Next > 0; --Next)
	{
		const int32 Point = TreeOrder[Next];
		Points[GetOther(Wires[Points[Point].TreeWire], Point)].Pull += Points[Point].Pull;
	}
}

int32 FColumnBalance::FindBadBranch()
{
	for (int32 Step = 0; Step < Points.Num(); ++Step)
	{
		const int32 Point = (NextBranch + Step) % Points.Num();
		const int32 Branch = Points[Point].TreeWire;
		if (Branch == INDEX_NONE)
		{
			continue;
		}
		const int32 Gain = Wires[Branch].From == Point ? Points[Point].Pull : -Points[Point].Pull;
		if (Gain < 0)
		{
			NextBranch = Point + 1;
			return Point;
		}
	}
	return INDEX_NONE;
}

TArray<bool> FColumnBalance::FindBehind(int32 Point) const
{
	TArray<bool> Behind;
	Behind.Init(false, Points.Num());
	Behind[Point] = true;
	for (const int32 Each : TreeOrder)
	{
		const int32 Way = Points[Each].TreeWire;
		Behind[Each] = Behind[Each] || (Way != INDEX_NONE && Behind[GetOther(Wires[Way], Each)]);
	}
	return Behind;
}

void FColumnBalance::Exchange(int32 Branch)
{
	const TArray<bool> Behind = FindBehind(Branch);
	FWire& Removed = Wires[Points[Branch].TreeWire];
	const bool bTailBehind = Behind[Removed.From];
	// The other way round than the branch, the one that is least too long.
	FWire* Entering = nullptr;
	for (FWire& Wire : Wires)
	{
		const bool bOtherWay = Behind[Wire.From] != Behind[Wire.To] && Behind[Wire.To] == bTailBehind;
		if (bOtherWay && (!Entering || GetSlack(Wire) < GetSlack(*Entering)))
		{
			Entering = &Wire;
		}
	}
	check(Entering);
	const int32 Slack = GetSlack(*Entering);
	for (int32 Point = 0; Point < Points.Num(); ++Point)
	{
		Points[Point].Column += !Behind[Point] ? 0 : bTailBehind ? -Slack
																 : Slack;
	}
	Removed.bInTree = false;
	Entering->bInTree = true;
}

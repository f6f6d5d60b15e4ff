#include "GraphFormatter/ColumnBalance.h"
#include "GraphFormatter/LaneBlocks.h"
#include "GraphFormatter/LaneHeights.h"
#include "GraphFormatter/LaneOrder.h"
#include "Math/RandomStream.h"

#include <gtest/gtest.h>

// The parts of the formatter, beside what trying everything gives.

namespace
{
struct FWire
{
	int32 From;
	int32 To;
	int32 LeastLength;
};

/** The least length of all wires that any columns give, of a few points. */
int32 FindLeastLength(int32 NumPoints, const TArray<FWire>& Wires)
{
	const int32 NumColumns = 2 * NumPoints;
	int32 Least = MAX_int32;
	TArray<int32> Columns;
	Columns.Init(0, NumPoints);
	while (true)
	{
		int32 Length = 0;
		for (const FWire& Wire : Wires)
		{
			const int32 Way = Columns[Wire.To] - Columns[Wire.From];
			Length = Way < Wire.LeastLength || Length == MAX_int32 ? MAX_int32 : Length + Way;
		}
		Least = FMath::Min(Least, Length);
		int32 Digit = 0;
		while (Digit < NumPoints && ++Columns[Digit] == NumColumns)
		{
			Columns[Digit++] = 0;
		}
		if (Digit == NumPoints)
		{
			return Least;
		}
	}
}

TEST(ColumnBalance, FindsTheShortestWires)
{
	constexpr int32 NumPoints = 5;
	FRandomStream Random(7);
	for (int32 Graph = 0; Graph < 60; ++Graph)
	{
		FColumnBalance Balance;
		TArray<FWire> Wires;
		for (int32 Point = 0; Point < NumPoints; ++Point)
		{
			Balance.AddPoint(2 * Point);
			// Each hangs together with one before it, and some with more.
			for (int32 Other = 0; Other < Point; ++Other)
			{
				if (Other == Random.RandRange(0, Point - 1) || Other == Point - 1)
				{
					Wires.Add({Other, Point, Random.RandRange(0, 2)});
					Balance.AddWire(Other, Point, Wires.Last().LeastLength);
				}
			}
		}
		Balance.Run();
		int32 Length = 0;
		for (const FWire& Wire : Wires)
		{
			const int32 Way = Balance.GetColumn(Wire.To) - Balance.GetColumn(Wire.From);
			EXPECT_GE(Way, Wire.LeastLength);
			Length += Way;
		}
		EXPECT_EQ(FindLeastLength(NumPoints, Wires), Length) << "graph " << Graph;
	}
}

TEST(ColumnBalance, TakesPointsAlongThatAreNoWorseOff)
{
	// 0 -> 1 -> 2 hang on 3 by one wire; the three move to it as one.
	FColumnBalance Balance;
	for (const int32 Column : {0, 1, 2, 9})
	{
		Balance.AddPoint(Column);
	}
	Balance.AddWire(0, 1, 1);
	Balance.AddWire(1, 2, 1);
	Balance.AddWire(2, 3, 1);
	Balance.Run();
	EXPECT_EQ(3, Balance.GetColumn(3) - Balance.GetColumn(0));
}

/** Blocks of one node each in two columns, wired as the pairs say; a node is 100 high with its pins in the middle. */
TArray<FLaneBlock> MakeColumns(int32 NumLeft, int32 NumRight, const TArray<TPair<int32, int32>>& Wires)
{
	constexpr double HalfHeight = 50;
	TArray<FLaneBlock> Blocks;
	for (int32 Index = 0; Index < NumLeft + NumRight; ++Index)
	{
		FLaneBlock& Block = Blocks.AddDefaulted_GetRef();
		Block.FirstColumn = Index < NumLeft ? 0 : 1;
		Block.Cells.Add({-HalfHeight, HalfHeight, {}, {}});
		Block.Nodes.Add({Index, 0});
	}
	for (const auto& [Left, Right] : Wires)
	{
		Blocks[Left].Cells[0].Right.Add({NumLeft + Right, 0, 0});
		Blocks[NumLeft + Right].Cells[0].Left.Add({Left, 0, 0});
	}
	return Blocks;
}

TEST(LaneOrder, UntanglesWhatCanBe)
{
	const TArray<FLaneBlock> Blocks = MakeColumns(4, 4, {{0, 3}, {1, 2}, {2, 1}, {3, 0}});
	FLaneOrder Order(Blocks);
	EXPECT_EQ(6, Order.GetCost());
	Order.Improve();
	EXPECT_EQ(0, Order.GetCost());
}

TEST(LaneOrder, CrossesNoMoreThanItMust)
{
	// Each of two with each of three: of the pairs, three cross however they stand.
	const TArray<FLaneBlock> Blocks = MakeColumns(2, 3, {{0, 0}, {0, 1}, {0, 2}, {1, 0}, {1, 1}, {1, 2}});
	FLaneOrder Order(Blocks);
	Order.Improve();
	EXPECT_EQ(3, Order.GetCost());
}

TEST(LaneHeights, KeepTheOrderAndTheGapsAndLevelWhatTheyCan)
{
	FRandomStream Random(3);
	for (int32 Graph = 0; Graph < 20; ++Graph)
	{
		TArray<TPair<int32, int32>> Wires;
		for (int32 Wire = 0; Wire < 12; ++Wire)
		{
			Wires.Emplace(Random.RandRange(0, 7), Random.RandRange(0, 7));
		}
		const TArray<FLaneBlock> Blocks = MakeColumns(8, 8, Wires);
		const FLaneOrder Order(Blocks);
		FLaneHeights Heights(Blocks);
		Heights.Place(Order.Get());
		constexpr double Least = 100;
		constexpr double Hair = 1e-3;
		for (int32 Index = 0; Index < 16; ++Index)
		{
			if (Index != 7 && Index != 15)
			{
				EXPECT_GE(Heights.Get()[Index + 1] - Heights.Get()[Index], Least - Hair);
			}
		}
	}
	const TArray<FLaneBlock> Straight = MakeColumns(3, 3, {{0, 0}, {1, 1}, {2, 2}});
	FLaneHeights Heights(Straight);
	Heights.Place(FLaneOrder(Straight).Get());
	EXPECT_NEAR(0, Heights.GetLength(), 1e-3);
}
}

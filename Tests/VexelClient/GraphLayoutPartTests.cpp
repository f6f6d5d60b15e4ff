#include "GraphFormatter/ColumnBalance.h"
#include "GraphFormatter/LaneBlocks.h"
#include "GraphFormatter/LaneHeights.h"
#include "GraphFormatter/LaneOrder.h"
#include "GraphFormatter/Obstacles.h"
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

TEST(LaneHeights, ABlockPassesOthersToFreeRoomAtItsWire)
{
	// The order has the second one of the right column below the others, far from what it is wired to.
	const TArray<FLaneBlock> Blocks = MakeColumns(3, 3, {{0, 2}, {2, 1}});
	FLaneHeights Heights(Blocks);
	const TArray<int32> Order = {0, 1, 2, 3, 4, 5};
	Heights.Place(Order);
	const double Before = Heights.GetLength();
	ASSERT_GT(Before, 100);
	EXPECT_TRUE(Heights.FillGaps());
	FLaneOrder Filled(Blocks);
	Filled.SortBy(Heights.Get());
	Heights.Settle(Filled.Get());
	EXPECT_LT(Heights.GetLength(), Before / 2);
	for (const auto& [First, End] : {TPair<int32, int32>(0, 3), TPair<int32, int32>(3, 6)})
	{
		for (int32 A = First; A < End; ++A)
		{
			for (int32 B = A + 1; B < End; ++B)
			{
				EXPECT_GE(FMath::Abs(Heights.Get()[A] - Heights.Get()[B]), 100 - 1e-3) << A << " and " << B;
			}
		}
	}
	const TArray<FLaneBlock> Straight = MakeColumns(3, 3, {{0, 0}, {1, 1}, {2, 2}});
	FLaneHeights Settled(Straight);
	Settled.Place(Order);
	EXPECT_FALSE(Settled.FillGaps()) << "nobody is better off elsewhere";
}

TEST(Obstacles, FreeHeightsLieBetweenWhatStandsBetweenTheSides)
{
	FObstacles Obstacles;
	EXPECT_EQ(1, Obstacles.FindFreeHeights(0, 100).Num()) << "where nothing stands, all is free";
	Obstacles.Add(FBox2D(FVector2D(0, 500), FVector2D(50, 600)));
	Obstacles.Add(FBox2D(FVector2D(20, 0), FVector2D(80, 100)));
	Obstacles.Add(FBox2D(FVector2D(40, 50), FVector2D(60, 200)));
	Obstacles.Add(FBox2D(FVector2D(100, 300), FVector2D(200, 400)));
	const TArray<FFreeHeights> Free = Obstacles.FindFreeHeights(0, 100);
	ASSERT_EQ(3, Free.Num()) << "what begins at a side stands beside it";
	EXPECT_EQ(0, Free[0].Bottom);
	EXPECT_EQ(200, Free[1].Top);
	EXPECT_EQ(500, Free[1].Bottom);
	EXPECT_EQ(600, Free[2].Top);
	EXPECT_EQ(1, Obstacles.FindFreeHeights(300, 400).Num());
}

TEST(Obstacles, AWayPassesWhatItNeitherBeginsNorEndsAt)
{
	FObstacles Obstacles;
	Obstacles.Add(FBox2D(FVector2D(0, 0), FVector2D(100, 100)));
	Obstacles.Add(FBox2D(FVector2D(200, 0), FVector2D(300, 100)));
	Obstacles.Add(FBox2D(FVector2D(400, 0), FVector2D(500, 100)));
	EXPECT_EQ(1, Obstacles.CountPassed({FVector2D(100, 50), FVector2D(400, 50)}));
	EXPECT_EQ(0, Obstacles.CountPassed({FVector2D(100, 50), FVector2D(200, 50)}));
	EXPECT_EQ(0, Obstacles.CountPassed({FVector2D(100, 100), FVector2D(400, 100)})) << "along an edge";
	EXPECT_EQ(1, Obstacles.CountPassed({FVector2D(250, -50), FVector2D(250, 150)})) << "upright";
	EXPECT_EQ(0, Obstacles.CountPassed({FVector2D(150, -50), FVector2D(150, 150)}));
	EXPECT_EQ(3, Obstacles.CountPassed({FVector2D(-50, 50), FVector2D(600, 60)}));
}
}

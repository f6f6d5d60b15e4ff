#include "GraphFormatter/Obstacles.h"

namespace
{
/** A side of a cell: a few nodes reach into one. */
constexpr double CellSize = 512;

bool Overlap(const FBox2D& A, const FBox2D& B)
{
	return A.Min.X < B.Max.X && B.Min.X < A.Max.X && A.Min.Y < B.Max.Y && B.Min.Y < A.Max.Y;
}
}

template <typename FunctionType>
void FObstacles::ForEachCell(const FBox2D& Rectangle, FunctionType Function)
{
	const int32 Right = FMath::FloorToInt32(Rectangle.Max.X / CellSize);
	const int32 Bottom = FMath::FloorToInt32(Rectangle.Max.Y / CellSize);
	for (int32 X = FMath::FloorToInt32(Rectangle.Min.X / CellSize); X <= Right; ++X)
	{
		for (int32 Y = FMath::FloorToInt32(Rectangle.Min.Y / CellSize); Y <= Bottom; ++Y)
		{
			Function(FIntPoint(X, Y));
		}
	}
}

void FObstacles::Add(const FBox2D& Rectangle)
{
	const int32 Index = Rectangles.Add(Rectangle);
	ForEachCell(Rectangle, [this, Index](const FIntPoint& Cell)
		{ Cells.FindOrAdd(Cell).Add(Index); });
}

double FObstacles::GetOverlap(const FBox2D& Rectangle) const
{
	double Down = 0;
	ForEachCell(Rectangle, [&](const FIntPoint& Cell)
		{
			const TArray<int32>* const Indices = Cells.Find(Cell);
			for (int32 Index = 0; Indices && Index < Indices->Num(); ++Index)
			{
				const FBox2D& Other = Rectangles[(*Indices)[Index]];
				Down = Overlap(Rectangle, Other) ? FMath::Max(Down, Other.Max.Y - Rectangle.Min.Y) : Down;
			} });
	return Down;
}

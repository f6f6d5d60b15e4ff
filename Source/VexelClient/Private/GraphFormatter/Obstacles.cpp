#include "GraphFormatter/Obstacles.h"

#include "Algo/Sort.h"

namespace
{
constexpr double FarAway = 1e12;
/** How far inside a rectangle its edge counts as outside: pins stand on edges. */
constexpr double EdgeWidth = 2;
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

TArray<FFreeHeights> FObstacles::FindFreeHeights(double Left, double Right) const
{
	TArray<const FBox2D*> Between;
	for (const FBox2D& Rectangle : Rectangles)
	{
		if (Rectangle.Min.X < Right && Left < Rectangle.Max.X)
		{
			Between.Add(&Rectangle);
		}
	}
	Algo::Sort(Between, [](const FBox2D* A, const FBox2D* B)
		{ return A->Min.Y < B->Min.Y; });
	TArray<FFreeHeights> Free;
	double Top = -FarAway;
	for (const FBox2D* const Rectangle : Between)
	{
		if (Rectangle->Min.Y > Top)
		{
			Free.Add({Top, Rectangle->Min.Y});
		}
		Top = FMath::Max(Top, Rectangle->Max.Y);
	}
	Free.Add({Top, FarAway});
	return Free;
}

int32 FObstacles::CountPassed(const FSegment2D& Way) const
{
	int32 NumPassed = 0;
	for (const FBox2D& Rectangle : Rectangles)
	{
		const FBox2D WithEdge = Rectangle.ExpandBy(EdgeWidth);
		const bool bIsEnd = WithEdge.IsInside(Way.From) || WithEdge.IsInside(Way.To);
		NumPassed += !bIsEnd && Way.Passes(Rectangle) ? 1 : 0;
	}
	return NumPassed;
}

bool FSegment2D::Passes(const FBox2D& Box) const
{
	const FBox2D Inside = Box.ExpandBy(-EdgeWidth);
	double Enter = 0;
	double Leave = 1;
	const auto Clip = [&](double Start, double Way, double Least, double Most)
	{
		if (Way == 0)
		{
			return Start > Least && Start < Most;
		}
		const double First = (Least - Start) / Way;
		const double Second = (Most - Start) / Way;
		Enter = FMath::Max(Enter, FMath::Min(First, Second));
		Leave = FMath::Min(Leave, FMath::Max(First, Second));
		return Enter < Leave;
	};
	return Clip(From.X, To.X - From.X, Inside.Min.X, Inside.Max.X) && Clip(From.Y, To.Y - From.Y, Inside.Min.Y, Inside.Max.Y);
}

#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"

/** A straight way between two points. */
struct FSegment2D
{
	FVector2D From;
	FVector2D To;

	/** Whether some of it lies inside the box. */
	bool Passes(const FBox2D& Box) const;
};

/** A range of heights in which nothing stands. */
struct FFreeHeights
{
	double Top;
	double Bottom;
};

/** Rectangles that must not be covered, found by where they lie. */
class FObstacles
{
public:
	void Add(const FBox2D& Rectangle);

	/** How far down the rectangle has to go until it clears all that it covers where it is; 0 when it covers nothing. */
	double GetOverlap(const FBox2D& Rectangle) const;

	/** Where nothing stands between two sides, from top to bottom. The first one has no top and the last one no bottom: they are infinite. */
	TArray<FFreeHeights> FindFreeHeights(double Left, double Right) const;

	/** How many rectangles a way passes that neither begins nor ends at them. */
	int32 CountPassed(const FSegment2D& Way) const;

private:
	template <typename FunctionType>
	static void ForEachCell(const FBox2D& Rectangle, FunctionType Function);

	TArray<FBox2D> Rectangles;
	/** By cell, the rectangles that reach into it. */
	TMap<FIntPoint, TArray<int32>> Cells;
};

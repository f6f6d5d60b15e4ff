#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"

/** Rectangles that must not be covered, found by where they lie. */
class FObstacles
{
public:
	void Add(const FBox2D& Rectangle);

	/** How far down the rectangle has to go until it clears all that it covers where it is; 0 when it covers nothing. */
	double GetOverlap(const FBox2D& Rectangle) const;

private:
	template <typename FunctionType>
	static void ForEachCell(const FBox2D& Rectangle, FunctionType Function);

	TArray<FBox2D> Rectangles;
	/** By cell, the rectangles that reach into it. */
	TMap<FIntPoint, TArray<int32>> Cells;
};

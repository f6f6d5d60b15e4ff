#pragma once

#include "CoreMinimal.h"

/**
 * Puts points into columns so that the wires between them are shortest together, each at least as long as it must be: the network simplex
 * method. A tree of wires that are no longer than they must be holds the points; as long as the wires that pass one of its branches would
 * be shorter on the whole without it, another wire takes the branch's place.
 */
class FColumnBalance
{
public:
	/** The columns given must be right for all wires that are added. Answers the point's index. */
	int32 AddPoint(int32 Column);
	/** LeastLength may be negative. */
	void AddWire(int32 From, int32 To, int32 LeastLength);
	/** Every point must hang together with all others by wires. */
	void Run();
	int32 GetColumn(int32 Point) const { return Points[Point].Column; }

private:
	struct FPoint
	{
		int32 Column;
		/** Wires by index, of both directions. */
		TArray<int32> Wires;
		/** The wire of the tree that leads towards its root; INDEX_NONE at the root. */
		int32 TreeWire = INDEX_NONE;
		/** How many more wires go out than in, here and in all of the tree behind. */
		int32 Pull = 0;
	};
	struct FWire
	{
		int32 From;
		int32 To;
		int32 LeastLength;
		bool bInTree = false;
	};

	int32 GetSlack(const FWire& Wire) const { return Points[Wire.To].Column - Points[Wire.From].Column - Wire.LeastLength; }
	int32 GetOther(const FWire& Wire, int32 Point) const { return Wire.From == Point ? Wire.To : Wire.From; }
	/** Whether the tree reaches every point from the first one on. */
	bool GrowTree();
	/** Roots the tree at the first point: finds each point's way there, and what pulls at it. */
	void WalkTree();
	/** A branch without which the wires would be shorter; INDEX_NONE for none. */
	int32 FindBadBranch();
	/** Puts another wire in the branch's place. */
	void Exchange(int32 Branch);
	/** The points that hang on the point when its way to the root is cut. */
	TArray<bool> FindBehind(int32 Point) const;

	TArray<FPoint> Points;
	TArray<FWire> Wires;
	/** From the root outwards. */
	TArray<int32> TreeOrder;
	/** Where the search for a bad branch goes on, so that none is looked at much more often than others. */
	int32 NextBranch = 0;
};

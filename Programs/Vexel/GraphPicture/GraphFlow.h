#pragma once

#include "BlueprintDiff.h"
#include "CoreMinimal.h"

/**
 * The nodes of a graph together with those that an edit has taken out of it, by one number each: first the nodes of the graph, then
 * the ones that are gone. Without an edit, the graph alone.
 */
class FMergedGraph
{
public:
	/** All must outlive it. Before and Difference are both null, or of the same edit. */
	FMergedGraph(const FGraphSnapshot& InAfter, const FGraphSnapshot* InBefore, const FGraphDifference* Difference);

	/** A node, and what of it runs next, on one side or on both. */
	struct FWay
	{
		FString Label = {};
		int32 Next = INDEX_NONE;
		int32 OldNext = INDEX_NONE;

		bool IsSame() const { return Next == OldNext; }
	};

	bool HasEdit() const { return Before != nullptr; }
	int32 Num() const { return NumAfter + (Before ? Before->Nodes.Num() : 0); }
	/** Whether the node is gone. Numbers of earlier nodes that are still there are not in use. */
	bool IsOld(int32 Node) const { return Node >= NumAfter; }
	bool IsInUse(int32 Node) const { return !IsOld(Node) || AfterOf[Node - NumAfter] == INDEX_NONE; }
	/** Added, Removed, or Changed for all that stays, whether anything of it differs or not. */
	EDifference GetDifference(int32 Node) const;
	const FNodeSnapshot& Get(int32 Node) const { return IsOld(Node) ? Before->Nodes[Node - NumAfter] : After.Nodes[Node]; }
	/** Of a node that is in both, how it was; null for others. */
	const FNodeSnapshot* FindEarlier(int32 Node) const;
	const FGraphSnapshot& GetGraph(int32 Node) const { return IsOld(Node) ? *Before : After; }
	const FGraphSnapshot& GetAfter() const { return After; }
	const FGraphSnapshot* GetBefore() const { return Before; }
	int32 FromBefore(int32 BeforeIndex) const;

	/** The ways out of a node, in the order of its pins; those that are gone last. */
	TArray<FWay> FindWays(int32 Node) const;
	/** Execution wires that come to a node on its own side, those behind reroute nodes each. */
	int32 CountEntering(int32 Node) const;

private:
	/** The node of that side which an output leads to; INDEX_NONE where it is no execution wire. */
	int32 FindNext(const FGraphSnapshot& Side, const FPinSnapshot& Pin) const;

	const FGraphSnapshot& After;
	const FGraphSnapshot* const Before;
	const int32 NumAfter;
	TArray<int32> BeforeOf;
	TArray<int32> AfterOf;
	/** Nodes that the editor had offered, and that are part of the graph now. */
	TSet<int32> Awakened;
};

enum class EFlowLine : uint8
{
	/** What nothing runs stands below it. */
	Unreached,
	/** A node where execution begins. */
	Root,
	Node,
	/** The name of a way out of a node. */
	Way,
	/** A wire to a node that is drawn elsewhere, or that has come or gone. */
	Pointer,
};

/** A line of a picture, of which the text is not written yet. */
struct FFlowLine
{
	EFlowLine Kind = EFlowLine::Node;
	/** Added and Removed for what came and went with the edit; Changed for what stays. */
	EDifference Difference = EDifference::Changed;
	int32 Node = INDEX_NONE;
	/** A way's name; behind a node, the name of its only way where it needs one. */
	FString Label = {};
	/** What stands before the text, and before the lines that it goes on with. */
	FString Rail = {};
	FString NextRail = {};
	/** The line that this one stands below: a way, a root or what stands for one. */
	int32 Parent = INDEX_NONE;
};

/**
 * The flow of a graph as lines: below each event or entry the nodes in the order in which they run, and the ways out of a node
 * indented below it. Each node stands in it once; a node that nothing runs stands at the end.
 */
class FGraphFlow
{
public:
	FGraphFlow(const FMergedGraph& InGraph, int32 InWidth);

	const TArray<FFlowLine>& GetLines() const { return Lines; }
	/** Of a node that several wires enter, or that is drawn away from its place, the number by which it is pointed to; 0 for others. */
	int32 GetNumber(int32 Node) const { return Numbers.FindRef(Node); }
	/** Nodes that the editor offers and nobody has linked. */
	const TArray<int32>& GetGhosts() const { return Ghosts; }

private:
	/** Where a chain stands. */
	struct FPlace
	{
		FString Rail = {};
		int32 Depth = 0;
		int32 Parent = INDEX_NONE;
	};

	void NumberJunctions();
	TArray<int32> FindRoots() const;
	void DrawRoot(int32 Root);
	void DrawUnreached();
	void DrawChain(int32 First, const FPlace& Place, TArray<int32> Expected);
	void DrawWays(const TArray<FMergedGraph::FWay>& Ways, const FPlace& Place, const TArray<int32>& Expected);
	void DrawEntry(int32 Node, const FPlace& Place, const TArray<int32>& Expected);
	/** What ran behind a wire that has gone, as far as it is gone too. */
	void DrawOldWay(const FMergedGraph::FWay& Way, const FPlace& Place);
	void DrawPostponed();
	void Postpone(int32 Node, const FPlace& Place, EDifference Difference);
	void AddPointer(int32 Node, const FPlace& Place, EDifference Difference, bool bLast);
	/** Where the nodes that came, or went, lead to in the end among those that stay. */
	TArray<int32> FindLasting(int32 Node) const;
	TArray<int32> FindExpected(const FMergedGraph::FWay& Way, int32 Owner, const TArray<int32>& OfOwner) const;
	bool HasRoom(const FPlace& Place) const;

	const FMergedGraph& Graph;
	const int32 Width;
	TArray<FFlowLine> Lines;
	TArray<bool> Drawn;
	TMap<int32, int32> Numbers;
	TArray<int32> Ghosts;
	TArray<int32> Postponed;
};

#include "GraphFormatter/BlockPlacement.h"

#include "GraphFormatter/CommentFrames.h"
#include "GraphFormatter/FormatterGraph.h"

#include "Algo/AnyOf.h"
#include "Algo/IndexOf.h"
#include "Algo/StableSort.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphNode_Comment.h"

namespace
{
/** The editor's own grid. */
constexpr double Grid = 16;
/** What it is worth that a tie passes one node less, in units of its length. */
constexpr double LengthOfPassedNode = 600;

double SnapDown(double Value)
{
	return Grid * FMath::FloorToInt32(Value / Grid);
}

double SnapUp(double Value)
{
	return Grid * FMath::CeilToInt32(Value / Grid);
}

FVector2D MiddleOfSide(const FBox2D& Bounds, double X)
{
	return FVector2D(X, (Bounds.Min.Y + Bounds.Max.Y) / 2);
}
}

FBlockPlacement::FBlockPlacement(const UEdGraph& Graph, FFormatterGraph& InLayout, const FLayoutGaps& InGaps)
	: Layout(InLayout)
	, Gaps(InGaps)
{
	TMap<const UEdGraphNode*, FBox2D> Kept;
	for (const UEdGraphNode* const Node : Graph.Nodes)
	{
		const int32 Index = Node ? Layout.FindIndex(*Node) : INDEX_NONE;
		if (Node && Node->IsA<UEdGraphNode_Comment>())
		{
			Comments.Add(FCommentFrames::GetBounds(*Node));
		}
		else if (Node && (Index == INDEX_NONE || Layout.Nodes[Index].bFixed))
		{
			Obstacles.Add(Kept.Add(Node, FCommentFrames::GetBounds(*Node)));
		}
	}
	for (const auto& [Node, Bounds] : Kept)
	{
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			for (const UEdGraphPin* const Linked : Pin->LinkedTo)
			{
				const FBox2D* const Other = Pin->Direction == EGPD_Output ? Kept.Find(Linked->GetOwningNode()) : nullptr;
				if (Other)
				{
					Wires.Add({MiddleOfSide(Bounds, Bounds.Max.X), MiddleOfSide(*Other, Other->Min.X)});
				}
			}
		}
	}
	AddChains(Kept);
	IsPlaced.Init(false, Layout.Nodes.Num());
}

void FBlockPlacement::AddChains(const TMap<const UEdGraphNode*, FBox2D>& Kept)
{
	TSet<const UEdGraphNode*> Known;
	for (const auto& [Start, StartBounds] : Kept)
	{
		if (Known.Contains(Start))
		{
			continue;
		}
		Known.Add(Start);
		FBox2D Chain = StartBounds;
		TArray<const UEdGraphNode*> Open = {Start};
		while (!Open.IsEmpty())
		{
			for (const UEdGraphPin* const Pin : Open.Pop()->Pins)
			{
				for (const UEdGraphPin* const Linked : Pin->LinkedTo)
				{
					const UEdGraphNode* const Node = Linked->GetOwningNode();
					const FBox2D* const Bounds = Known.Contains(Node) ? nullptr : Kept.Find(Node);
					if (Bounds)
					{
						Known.Add(Node);
						Chain += *Bounds;
						Open.Push(Node);
					}
				}
			}
		}
		Chains.Add(Chain);
	}
}

void FBlockPlacement::Place(TArray<FLayoutBlock>& Blocks)
{
	// From top to bottom as they came in, so that those above keep their places; the new ones around them.
	Algo::StableSort(Blocks, [](const FLayoutBlock& A, const FLayoutBlock& B)
		{ return A.bNew != B.bNew ? B.bNew : A.Place.Y != B.Place.Y ? A.Place.Y < B.Place.Y
																	: A.Place.X < B.Place.X; });
	TArray<const FLayoutBlock*> Waiting;
	for (const FLayoutBlock& Block : Blocks)
	{
		if (Block.bNew && !LiesOnComment(Block))
		{
			Waiting.Add(&Block);
			continue;
		}
		MoveDown(Block);
		Keep(Block);
	}
	// What is new belongs to no comment of those that are there.
	for (const FBox2D& Comment : Comments)
	{
		Obstacles.Add(Comment);
		Chains.Add(Comment);
	}
	while (!Waiting.IsEmpty())
	{
		// What follows from where others stand comes as soon as they do.
		const int32 Tied = Algo::IndexOfByPredicate(Waiting, [this](const FLayoutBlock* Block)
			{ return PutNearCaller(*Block); });
		const FLayoutBlock& Block = *Waiting[FMath::Max(0, Tied)];
		if (Tied == INDEX_NONE)
		{
			PutIntoGap(Block);
		}
		Keep(Block);
		Waiting.RemoveAt(FMath::Max(0, Tied));
	}
}

void FBlockPlacement::MoveDown(const FLayoutBlock& Block)
{
	double Down;
	do
	{
		Down = 0;
		for (const int32 Node : Block.Component)
		{
			const double Overlap = Layout.Nodes[Node].bFixed ? 0 : Obstacles.GetOverlap(GetBounds(Node));
			Down = FMath::Max(Down, Overlap > 0 ? Overlap + Gaps.BetweenNodes : 0);
		}
		Move(Block, FVector2D(0, FMath::CeilToInt32(Down)));
	} while (Down > 0);
}

void FBlockPlacement::PutIntoGap(const FLayoutBlock& Block)
{
	const FBox2D Bounds = GetBounds(Block);
	const double Height = Bounds.GetSize().Y;
	const TArray<FFreeHeights> Free = Chains.FindFreeHeights(Bounds.Min.X, Bounds.Max.X);
	// Above the first one nothing is looked for: what comes first is what its reader put first.
	for (int32 Index = 1; Index < Free.Num(); ++Index)
	{
		const double Top = SnapUp(Free[Index].Top + Gaps.BetweenBlocks);
		const FVector2D Way(0, Top - Bounds.Min.Y);
		const bool bIsLast = Index == Free.Num() - 1;
		if (bIsLast || (Top + Height + Gaps.BetweenBlocks <= Free[Index].Bottom && !IsCrossedByWires(Bounds.ShiftBy(Way))))
		{
			Move(Block, Way);
			return;
		}
	}
}

bool FBlockPlacement::PutNearCaller(const FLayoutBlock& Block)
{
	const TOptional<FCaller> Caller = FindCaller(Block);
	if (!Caller)
	{
		return false;
	}
	const FBox2D Event = GetBounds(Caller->Tie->bIsEvent ? Caller->Tie->Node : Layout.FindIndex(*Caller->Tie->OtherNode));
	const FVector2D To(Caller->Bounds.Min.X, Caller->Bounds.Min.Y + Caller->Tie->CallerY);
	const FVector2D Start(Event.Max.X, Event.Min.Y + Caller->Tie->EventY);
	const FBox2D Bounds = GetBounds(Block);
	FVector2D Best(0, 0);
	double LeastCost = MAX_dbl;
	// Before what it is handed to, so that the wire goes on to the right; or where its column stands, if that is nearer to being free.
	for (const double Aside : {SnapDown(To.X - Gaps.BetweenColumns - Event.Max.X), 0.0})
	{
		for (const FFreeHeights& Free : Obstacles.FindFreeHeights(Bounds.Min.X + Aside, Bounds.Max.X + Aside))
		{
			const double Highest = SnapUp(Free.Top + Gaps.BetweenBlocks) - Bounds.Min.Y;
			const double Lowest = SnapDown(Free.Bottom - Gaps.BetweenBlocks) - Bounds.Max.Y;
			const FVector2D Way(Aside, FMath::Clamp(SnapUp(Caller->Bounds.Min.Y - Event.Min.Y), Highest, FMath::Max(Highest, Lowest)));
			const FSegment2D Tie{Start + Way, To};
			const double Cost = (Tie.To - Tie.From).Size() + LengthOfPassedNode * Obstacles.CountPassed(Tie) +
				(Tie.To.X < Tie.From.X ? LengthOfPassedNode : 0);
			if (Highest <= Lowest && Cost < LeastCost && !IsCrossedByWires(Bounds.ShiftBy(Way)))
			{
				LeastCost = Cost;
				Best = Way;
			}
		}
	}
	Move(Block, Best);
	return true;
}

TOptional<FBlockPlacement::FCaller> FBlockPlacement::FindCaller(const FLayoutBlock& Block) const
{
	for (const FFormatterTie& Tie : Layout.Ties)
	{
		const int32 Other = Layout.FindIndex(*Tie.OtherNode);
		if (!Tie.bIsEvent || !Block.Component.Contains(Tie.Node) || Block.Component.Contains(Other))
		{
			continue;
		}
		if (Other == INDEX_NONE)
		{
			return FCaller{&Tie, FCommentFrames::GetBounds(*Tie.OtherNode)};
		}
		if (IsPlaced[Other])
		{
			return FCaller{&Tie, GetBounds(Other)};
		}
	}
	return {};
}

bool FBlockPlacement::LiesOnComment(const FLayoutBlock& Block) const
{
	return Algo::AnyOf(Block.Component, [this](int32 Node)
		{
			const UEdGraphNode& CameIn = *Layout.Nodes[Node].Node;
			return Algo::AnyOf(Comments, [&CameIn](const FBox2D& Comment)
				{ return Comment.IsInside(FVector2D(CameIn.NodePosX, CameIn.NodePosY)); }); });
}

void FBlockPlacement::Keep(const FLayoutBlock& Block)
{
	Chains.Add(GetBounds(Block));
	for (const int32 Node : Block.Component)
	{
		IsPlaced[Node] = true;
		if (!Layout.Nodes[Node].bFixed)
		{
			Obstacles.Add(GetBounds(Node));
		}
	}
}

void FBlockPlacement::Move(const FLayoutBlock& Block, const FVector2D& Way)
{
	for (const int32 Node : Block.Component)
	{
		Layout.Nodes[Node].Position += Layout.Nodes[Node].bFixed ? FVector2D::ZeroVector : Way;
	}
}

FBox2D FBlockPlacement::GetBounds(const FLayoutBlock& Block) const
{
	FBox2D Bounds(ForceInit);
	for (const int32 Node : Block.Component)
	{
		Bounds += GetBounds(Node);
	}
	return Bounds;
}

FBox2D FBlockPlacement::GetBounds(int32 Node) const
{
	const FFormatterNode& Laid = Layout.Nodes[Node];
	return FBox2D(Laid.Position, Laid.Position + Laid.Size);
}

bool FBlockPlacement::IsCrossedByWires(const FBox2D& Bounds) const
{
	return Algo::AnyOf(Wires, [&Bounds](const FSegment2D& Wire)
		{ return Wire.Passes(Bounds); });
}

#include "GraphFormatter/CommentFrames.h"

#include "GraphFormatter/NodeMeasure.h"

#include "Algo/AnyOf.h"
#include "Algo/StableSort.h"
#include "EdGraph/EdGraph.h"
#include "EdGraphNode_Comment.h"

namespace
{
/** Between the outermost nodes and the frame; above them the comment's text has its place. */
constexpr double SideMargin = 32;
constexpr double TextMargin = 64;
}

FBox2D FCommentFrames::GetBounds(const UEdGraphNode& Node)
{
	const FVector2D Position(Node.NodePosX, Node.NodePosY);
	const FVector2D Size = Node.IsA<UEdGraphNode_Comment>() ? FVector2D(Node.NodeWidth, Node.NodeHeight) : FNodeMeasure(Node).GetSize();
	return FBox2D(Position, Position + Size);
}

FCommentFrames::FCommentFrames(const UEdGraph& Graph)
{
	for (UEdGraphNode* const Node : Graph.Nodes)
	{
		if (UEdGraphNode_Comment* const Comment = Cast<UEdGraphNode_Comment>(Node))
		{
			Frames.Add({Comment, {}});
		}
	}
	Algo::StableSort(Frames, [](const FFrame& A, const FFrame& B)
		{ return GetBounds(*A.Comment).GetArea() < GetBounds(*B.Comment).GetArea(); });
	for (FFrame& Frame : Frames)
	{
		// What begins on a comment lies on it: how far a node reaches is known only roughly.
		const FBox2D Bounds = GetBounds(*Frame.Comment);
		for (UEdGraphNode* const Node : Graph.Nodes)
		{
			const bool bBeginsOnIt = Node && Node != Frame.Comment && Bounds.IsInside(FVector2D(Node->NodePosX, Node->NodePosY));
			const bool bIsComment = bBeginsOnIt && Node->IsA<UEdGraphNode_Comment>();
			if (bBeginsOnIt && (!bIsComment || Bounds.IsInside(GetBounds(*Node).Max)))
			{
				Frame.Held.Add(Node);
			}
		}
	}
}

void FCommentFrames::FitAround(const TSet<const UEdGraphNode*>& Moved)
{
	TSet<const UEdGraphNode*> Changed = Moved;
	for (const FFrame& Frame : Frames)
	{
		if (!Algo::AnyOf(Frame.Held, [&Changed](const UEdGraphNode* Node)
				{ return Changed.Contains(Node); }))
		{
			continue;
		}
		FBox2D Bounds(ForceInit);
		for (const UEdGraphNode* const Node : Frame.Held)
		{
			Bounds += GetBounds(*Node);
		}
		Frame.Comment->Modify();
		Frame.Comment->NodePosX = FMath::FloorToInt32(Bounds.Min.X - SideMargin);
		Frame.Comment->NodePosY = FMath::FloorToInt32(Bounds.Min.Y - TextMargin);
		Frame.Comment->NodeWidth = FMath::CeilToInt32(Bounds.Max.X + SideMargin) - Frame.Comment->NodePosX;
		Frame.Comment->NodeHeight = FMath::CeilToInt32(Bounds.Max.Y + SideMargin) - Frame.Comment->NodePosY;
		Changed.Add(Frame.Comment);
	}
}

#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"

class UEdGraph;
class UEdGraphNode;
class UEdGraphNode_Comment;

/** The comments of a graph with the nodes that lie on them, taken before a layout to be fitted around the same nodes afterwards. */
class FCommentFrames
{
public:
	explicit FCommentFrames(const UEdGraph& Graph);

	/** Fits every comment of which one of the nodes has been moved. */
	void FitAround(const TSet<const UEdGraphNode*>& Moved);

	/** The rectangle that the node covers. */
	static FBox2D GetBounds(const UEdGraphNode& Node);

private:
	struct FFrame
	{
		UEdGraphNode_Comment* Comment;
		TArray<UEdGraphNode*> Held;
	};

	/** Those that lie on others come before them. */
	TArray<FFrame> Frames;
};

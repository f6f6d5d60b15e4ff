#pragma once

#include "CoreMinimal.h"
#include "GraphFlow.h"
#include "PinExpression.h"

/** An input of a node that stays, whose value differs as a reader sees it: itself, or something that it is computed from. */
struct FInputChange
{
	FString Label;
	FPinExpression Before;
	FPinExpression After;
};

/**
 * Such inputs by node. The cost is that of the edit: only what changed, and what is computed from it, is looked at. Nodes that only
 * follow a new name do not count.
 */
TMap<int32, TArray<FInputChange>> FindInputChanges(const FMergedGraph& Graph, const FGraphDifference& Difference);

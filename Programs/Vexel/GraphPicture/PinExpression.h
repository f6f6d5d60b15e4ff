#pragma once

#include "CoreMinimal.h"

struct FGraphSnapshot;
struct FPinSnapshot;

/** The value that flows into an input, written as an expression: "Health - Damage", "Get Actor Location(Target: Door)". */
struct FPinExpression
{
	/** Empty where the input has no value. */
	FString Text;
	/** Indices of the pure nodes that the text names. */
	TSet<int32> Named;
	/** Those of conversions, of which the text has the value alone. */
	TSet<int32> Unnamed;
	/** Whether the text was too long, so that some of the nodes may be missing in it. What lies too deep is in neither set. */
	bool bCut = false;
};

FPinExpression WritePinExpression(const FGraphSnapshot& Graph, const FPinSnapshot& Input);

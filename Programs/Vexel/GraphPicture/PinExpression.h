#pragma once

#include "CoreMinimal.h"

struct FGraphSnapshot;
struct FPinSnapshot;

/** The value that flows into an input, written as an expression: "Health - Damage", "Get Actor Location(Target: Door)". */
struct FPinExpression
{
	/** Empty where the input has no value. */
	FString Text;
	/** Indices of the pure nodes that the text shows. */
	TSet<int32> Used;
	/** Whether something is left out of the text because it would be too long or too deep. */
	bool bCut = false;
};

FPinExpression WritePinExpression(const FGraphSnapshot& Graph, const FPinSnapshot& Input);

/** The value of an input while nothing is linked to it; empty where there is none. */
FString WritePinDefault(const FGraphSnapshot& Graph, const FPinSnapshot& Input);

#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

struct FBlueprintDiff;

/**
 * What differs between two states of a Blueprint, as text for whoever reviews it: "+" before what is new, "-" before what is gone, "~"
 * before what is another now. Nodes stand in the flow of their graph as DrawGraph draws it, with the nodes around them, and what lies
 * between is left out. No line is wider than Width, unless that is too narrow for any picture.
 * @param MaxLines How many lines there may be; the last one then counts the changes that have none.
 */
TArray<FStyledLine> DrawDiff(const FBlueprintDiff& Diff, int32 Width, int32 MaxLines = MAX_int32);

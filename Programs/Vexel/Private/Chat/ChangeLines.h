#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

struct FBlueprintDiff;

/** What one edit did, behind an indent and as short as a chat needs it; no line is wider than Width. */
TArray<FStyledLine> DrawChanges(const TArray<FBlueprintDiff>& Changes, int32 Width, const TCHAR* Indent);

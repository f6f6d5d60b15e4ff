#pragma once

#include "Dom/JsonValue.h"

struct FBlueprintDiff;

/** What differs in each Blueprint, for another program (Docs/Chat.md). */
TArray<TSharedPtr<FJsonValue>> MakeDiffDocuments(const TArray<FBlueprintDiff>& Diffs);
TSharedRef<FJsonObject> MakeDiffDocument(const FBlueprintDiff& Diff);

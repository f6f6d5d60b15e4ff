#pragma once

#include "CoreMinimal.h"

struct FChatToolCall;

/**
 * What a call of a tool that edits was asked to change, a short line each: "+" what comes, "-" what goes, "~" what changes. Empty
 * for a tool that only reads. A long list is cut, and its last line counts the rest.
 */
TArray<FString> SummarizeEdits(const FChatToolCall& Call);

/** What a call is about, in a word: the Blueprint, asset or query of its input; empty where it names none. */
FString DescribeSubject(const FChatToolCall& Call);

#pragma once

#include "CoreMinimal.h"

/**
 * Calls tools one after another in one conversation, so that the ids that one call answers hold in the next. Each line of the text is a
 * call, {"tool": NAME, "input": {...}}, or a number of steps, {"undo": 2} or {"redo": 1}. Each line is answered by a line of JSON on
 * standard output: what it was, and its "answer" or its "error". Answers the exit status: done when no line failed.
 */
int32 RunToolCalls(const FString& Text);

#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** How much of its work a tool that answered has done: all, or a part where its answer lists "errors". */
int32 GetStatusOf(const FJsonObject& Answer);

/**
 * Calls tools one after another in one conversation, so that the ids that one call answers hold in the next. Each line of the text is a
 * call, {"tool": NAME, "input": {...}}, or a number of steps, {"undo": 2} or {"redo": 1}. Each line is answered by a line of JSON on
 * standard output: what it was, and its "answer" or its "error". Answers the exit status: done when no
 * line failed, and in part when only items of calls did.
 */
int32 RunToolCalls(const FString& Text);

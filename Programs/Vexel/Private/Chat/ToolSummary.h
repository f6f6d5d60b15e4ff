#pragma once

#include "CoreMinimal.h"

class FJsonObject;
struct FChatToolCall;

/**
 * What a tool says in its answer of parts of its work that it could not do, and of errors and warnings that it found, a line each. A
 * long list is cut, and its last line counts the rest.
 */
TArray<FString> FindProblems(const FJsonObject& Answer);

/** What a call is about, in a word: the Blueprint, asset or query of its input; empty where it names none. */
FString DescribeSubject(const FChatToolCall& Call);

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "Tools/Blueprint/VexelBlueprintToolTarget.h"

/** What the tools that add and remove a function graph are told. */
struct FParsedAddRemoveGraphInput
{
	FString Blueprint;
	FString Graph;

	using FApply = TFunctionRef<TVexelExpected<void>(const FVexelBlueprintToolTarget& Target)>;

	static TVexelExpected<FParsedAddRemoveGraphInput> Parse(const FVexelToolInput& Input);

	/** Finds the Blueprint in the conversation's ids, has the edit made and answers the Blueprint as it is then. */
	TVexelExpected<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, FApply Apply) const;
};

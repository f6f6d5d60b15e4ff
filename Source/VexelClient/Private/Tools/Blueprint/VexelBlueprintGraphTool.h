#pragma once

#include "CoreMinimal.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

/** What the tools that add and remove a function graph are told. */
struct FParsedAddRemoveGraphInput
{
	FString Blueprint;
	FString Graph;

	static const TVexelToolSchema<FParsedAddRemoveGraphInput>& GetSchema();
};

/** Finds the Blueprint in the conversation's ids, has one of its graphs edited, and answers the Blueprint as it is then. */
class FVexelBlueprintGraphTool : public TVexelTool<FParsedAddRemoveGraphInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelExpected<void> EditGraph(const FVexelBlueprintRequestHelper& Target, const FString& GraphId) const = 0;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(
		const FVexelToolContext& Context, const FParsedAddRemoveGraphInput& Input) const override final;

private:
	TVexelExpected<TSharedRef<FJsonObject>> EditAndExport(const FVexelToolContext& Context, const FParsedAddRemoveGraphInput& Input) const;
};

#pragma once

#include "Tools/VexelTool.h"

/** "graph_remove": removes a function from a Blueprint. */
class FVexelToolBlueprintGraphRemove : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

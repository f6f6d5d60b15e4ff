#pragma once

#include "Tools/VexelTool.h"

/** "graph_add": adds a function to a Blueprint. */
class FVexelToolBlueprintGraphAdd : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

#pragma once

#include "Tools/VexelTool.h"

/** "node_spawn": places nodes in a graph, each with values for its pins. */
class FVexelToolBlueprintNodeSpawn : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

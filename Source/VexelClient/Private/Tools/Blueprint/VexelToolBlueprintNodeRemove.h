#pragma once

#include "Tools/VexelTool.h"

/** "node_remove": removes nodes from a graph. */
class FVexelToolBlueprintNodeRemove : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

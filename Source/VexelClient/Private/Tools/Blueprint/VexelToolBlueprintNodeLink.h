#pragma once

#include "Tools/VexelTool.h"

/** "node_link": makes links between pins, or breaks them, and lays out the nodes that they touch. */
class FVexelToolBlueprintNodeLink : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

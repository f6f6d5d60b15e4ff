#pragma once

#include "Tools/VexelTool.h"

/** "read_blueprint": answers a Blueprint's export by the property model. Its one argument "blueprint" is the object path. */
class FVexelToolBlueprintLoad : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

#pragma once

#include "Tools/VexelTool.h"

/** "compile": compiles a Blueprint and answers what the compiler says of it. */
class FVexelToolBlueprintCompile : public FVexelTool
{
public:
	using FVexelTool::FVexelTool;

	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const override;
};

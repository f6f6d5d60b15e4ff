#include "Tools/VexelTool.h"

TVexelExpected<FString> FVexelToolInput::GetString(const TCHAR* Name) const
{
	FString Value;
	if (!Values->TryGetStringField(FString(Name), Value))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Missing `%s`", Name);
	}
	return Value;
}

FName FVexelTool::GetName() const
{
	return FName(Row.Name);
}

FName FVexelTool::GetIcon() const
{
	return FName(Row.Icon);
}

FString FVexelTool::GetProgressText() const
{
	return Row.ProgressText ? FString(Row.ProgressText) : FString::Printf(TEXT("Using %s"), *GetName().ToString());
}

FString FVexelTool::GetDoneText() const
{
	return Row.DoneText ? FString(Row.DoneText) : FString::Printf(TEXT("Analyzing data from %s"), *GetName().ToString());
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolNoResponse::Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return VEXEL_ERROR(FVexelError_ToolNoResponse, "");
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolUnavailable::Call(const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return VEXEL_ERROR(FVexelError_ToolCallFailed, "The tool '%s' is not available in this version of the plug-in", *GetName().ToString());
}

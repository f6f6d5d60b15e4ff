#include "Tools/VexelTool.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelChatConversation.h"

TSharedRef<FVexelBlueprintMapping> FVexelToolContext::GetMapping() const
{
	return Conversation ? Conversation->GetMapping() : MakeShared<FVexelBlueprintMapping>();
}

FVexelError MakeToolError(FVexelError&& Cause, const TCHAR* While)
{
	if (Cause.IsA<FVexelError_ToolInvalidInput>())
	{
		return MoveTemp(Cause);
	}
	return VEXEL_ERROR_CAUSED(FVexelError_ToolCallFailed, Cause, "%s", While);
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

VEXEL_DEFINE_TOOL(FVexelToolNoResponse)
VEXEL_DEFINE_TOOL(FVexelToolUnavailable)

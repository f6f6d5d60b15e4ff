#include "Tools/VexelToolCall.h"

#include "Tools/VexelToolManager.h"
#include "Tools/VexelToolReply.h"
#include "VexelLog.h"

void FVexelToolCall::Run(const TSharedRef<FVexelHttp>& ApiClient) const
{
	VEXEL_LOG(Log, "Processing tool call: `%s` -> `%s`. Chat: `%s`", *ToolName, *Context.ReplyId, *Context.ChatId);
	const TSharedRef<FJsonObject> ScopeData = MakeShared<FJsonObject>();
	ScopeData->SetStringField(TEXT("tool_name"), ToolName);
	ScopeData->SetStringField(TEXT("chat_id"), Context.ChatId);
	ScopeData->SetStringField(TEXT("reply_id"), Context.ReplyId);
	FVexelErrorContextScope Scope(TEXT("tool_execution"), ScopeData);

	const TVexelExpected<TSharedRef<FVexelTool>> Tool = FVexelToolManager::Get().FindTool(FName(*ToolName.Left(NAME_SIZE - 1)));
	OnStarted(Tool ? Tool.GetValue()->GetProgressText() : FString::Printf(TEXT("Using %s"), *ToolName));
	if (!IsWanted())
	{
		// Whoever was told has cancelled the request.
		return;
	}
	const FString DoneText = Tool ? Tool.GetValue()->GetDoneText() : ToolName;
	CallTool(Tool).OnComplete([ApiClient, Call = *this, DoneText](const TVexelExpected<TSharedRef<FJsonObject>>& Value)
		{
			const auto Finish = [ApiClient, Call, DoneText, Value, ErrorContext = FVexelErrorContext::Capture()]
			{
				FVexelErrorContextRestore Restore(ErrorContext);
				MakeShared<FVexelToolReply>(ApiClient, Call.Context, Call.IsWanted)->Send(Value);
				Call.OnFinished(DoneText, Value);
			};
			if (IsInGameThread())
			{
				Finish();
			}
			else
			{
				FVexelTaskManager::ScheduleFunc(EVexelTaskThread::GameThread, Finish);
			} });
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolCall::CallTool(const TVexelExpected<TSharedRef<FVexelTool>>& Tool) const
{
	if (!Arguments || Arguments->Values.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid tool call block, missing TagInfo");
	}
	if (Tool.HasError())
	{
		return Tool.GetError();
	}
	return Tool.GetValue()->Call(Context, FVexelToolInput(Arguments.ToSharedRef()));
}

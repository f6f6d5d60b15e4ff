#include "Tools/VexelToolCall.h"

#include "Tools/VexelToolManager.h"
#include "VexelLog.h"
#include "VexelSentry.h"
#include "VexelUrlUtils.h"

namespace
{
constexpr float ReplyTimeoutSeconds = 60.0f;

TSharedRef<FJsonObject> MakeReplyBase(const FVexelToolContext& Context)
{
	const TSharedRef<FJsonObject> Reply = MakeShared<FJsonObject>();
	Reply->SetStringField(TEXT("chat_id"), Context.ChatId);
	Reply->SetStringField(TEXT("reply_id"), Context.ReplyId);
	return Reply;
}

void Post(const TSharedPtr<FVexelHttp>& ApiClient, const FString& Path, const TSharedRef<FJsonObject>& Reply)
{
	ApiClient->Request(EVexelHttpVerb::Post, Path)
		.WithAuth()
		.WithTimeout(ReplyTimeoutSeconds)
		.WithPayload(Reply)
		.SendAndAwait()
		.OnComplete([](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result)
			{
				if (Result.HasError())
				{
					FVexelError Error = Result.GetError();
					Error.AppendContext(TEXT("while sending tool reply"));
					FVexelSentry::CaptureError(MoveTemp(Error), VEXEL_HERE);
				} });
}

void PostResult(
	const TSharedPtr<FVexelHttp>& ApiClient, const FVexelToolContext& Context, const TVexelExpected<TSharedRef<FJsonObject>>& Result)
{
	const TSharedRef<FJsonObject> Reply = MakeReplyBase(Context);
	// A sub-agent's id is the stream's own words.
	const FString ChatId = FVexelUrlUtils::EncodeSegment(Context.ChatId);
	if (Result.HasValue())
	{
		Reply->SetObjectField(TEXT("tool_reply"), Result.GetValue());
		Post(ApiClient, TEXT("/api/tool_reply/") + ChatId, Reply);
		return;
	}
	Reply->SetStringField(TEXT("error_message"), Result.GetError().ToShortString());
	Post(ApiClient, TEXT("/api/tool_error/") + ChatId, Reply);
}
}

void FVexelToolCall::Run(const TSharedPtr<FVexelHttp>& ApiClient) const
{
	VEXEL_LOG(Log, "Processing tool call: `%s` -> `%s`. Chat: `%s`", *ToolName, *Context.ReplyId, *Context.ChatId);
	const TSharedRef<FJsonObject> ScopeData = MakeShared<FJsonObject>();
	ScopeData->SetStringField(TEXT("tool_name"), ToolName);
	ScopeData->SetStringField(TEXT("chat_id"), Context.ChatId);
	ScopeData->SetStringField(TEXT("reply_id"), Context.ReplyId);
	FVexelErrorContextScope Scope(TEXT("tool_execution"), ScopeData);

	const TVexelExpected<TSharedRef<FVexelTool>> Tool = FVexelToolManager::Get().FindTool(FName(*ToolName.Left(NAME_SIZE - 1)));
	OnStarted(Tool ? Tool.GetValue()->GetProgressText() : FString::Printf(TEXT("Using %s"), *ToolName));
	TVexelTaskResult<TSharedRef<FJsonObject>> Result;
	if (!Arguments)
	{
		Result = VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid tool call block, missing TagInfo");
	}
	else if (Tool.HasError())
	{
		Result = Tool.GetError();
	}
	else
	{
		Result = Tool.GetValue()->Call(Context, FVexelToolInput(Arguments.ToSharedRef()));
	}

	const FString DoneText = Tool ? Tool.GetValue()->GetDoneText() : ToolName;
	Result.OnComplete([ApiClient, Call = *this, DoneText](const TVexelExpected<TSharedRef<FJsonObject>>& Value)
		{
			const auto Finish = [ApiClient, Call, DoneText, Value]
			{
				PostResult(ApiClient, Call.Context, Value);
				Call.OnFinished(DoneText, Value.HasError() ? &Value.GetError() : nullptr);
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

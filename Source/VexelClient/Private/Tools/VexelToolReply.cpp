#include "Tools/VexelToolReply.h"

#include "Containers/Ticker.h"
#include "VexelErrorContext.h"
#include "VexelLog.h"
#include "VexelSentry.h"
#include "VexelUrlUtils.h"

namespace
{
constexpr float TimeoutSeconds = 60.0f;

/** The pause before each further attempt. */
constexpr float Pauses[] = {0.5f, 1.0f, 2.0f, 4.0f, 8.0f};

/** The longest pause that the service itself may ask for. */
constexpr float MaxAskedPause = 30.0f;

/** Of an answer that says "too large". */
constexpr int32 StatusTooLarge = 413;

bool MayPass(int32 Status)
{
	constexpr int32 PassingStatuses[] = {408, 425, 429, 500, 502, 503, 504};
	return MakeArrayView(PassingStatuses).Contains(Status);
}
}

FVexelToolReply::FVexelToolReply(const TSharedRef<FVexelHttp>& InApiClient, const FVexelToolContext& InContext, TFunction<bool()> InIsWanted)
	: ApiClient(InApiClient)
	, Context(InContext)
	, IsWanted(MoveTemp(InIsWanted))
{
}

void FVexelToolReply::Send(const TVexelExpected<TSharedRef<FJsonObject>>& Result)
{
	SetBody(Result);
	Post();
}

void FVexelToolReply::SetBody(const TVexelExpected<TSharedRef<FJsonObject>>& Result)
{
	Body = MakeShared<FJsonObject>();
	Body->SetStringField(TEXT("chat_id"), Context.ChatId);
	Body->SetStringField(TEXT("reply_id"), Context.ReplyId);
	bIsResult = Result.HasValue();
	// A sub-agent's id is the stream's own words.
	const FString ChatId = FVexelUrlUtils::EncodeSegment(Context.ChatId);
	if (bIsResult)
	{
		Body->SetObjectField(TEXT("tool_reply"), Result.GetValue());
		Path = TEXT("/api/tool_reply/") + ChatId;
	}
	else
	{
		Body->SetStringField(TEXT("error_message"), Result.GetError().ToShortString());
		Path = TEXT("/api/tool_error/") + ChatId;
	}
}

void FVexelToolReply::Post()
{
	if (!IsWanted())
	{
		return;
	}
	++NumAttempts;
	HttpRequest = ApiClient->Request(EVexelHttpVerb::Post, Path).WithAuth().WithTimeout(TimeoutSeconds).WithPayload(Body).Send();
	HttpRequest->Await().OnComplete([This = AsShared()](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Answer)
		{ This->OnAnswer(Answer); });
}

void FVexelToolReply::OnAnswer(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Answer)
{
	if (Answer.HasValue() || Answer.GetError().IsA<FVexelError_HttpCancelled>())
	{
		return;
	}
	const FVexelError& Error = Answer.GetError();
	const TSharedPtr<FVexelHttpResponse> Response = HttpRequest->GetResponse();
	if (const TOptional<float> Pause = FindPause(Error, Response))
	{
		VEXEL_LOG(Log, "The reply of tool call `%s` did not reach the service and is sent again in %.1f s: %s",
			*Context.ReplyId, *Pause, *Error.ToShortString());
		PostLater(*Pause);
		return;
	}
	const FVexelError Failure =
		VEXEL_ERROR_CAUSED(FVexelError_ToolCallFailed, Error, "The reply of tool call '%s' did not reach the service", *Context.ReplyId);
	if (bIsResult && Response && Response->GetStatus() == StatusTooLarge)
	{
		// The assistant waits for a reply, so it is told that it must ask for less.
		SetBody(VEXEL_ERROR(FVexelError_ToolCallFailed, "The result is larger than the service takes"));
		PostLater(0.0f);
	}
	FVexelSentry::CaptureError(FVexelError(Failure), VEXEL_HERE);
}

void FVexelToolReply::PostLater(float PauseSeconds)
{
	FTSTicker::GetCoreTicker().AddTicker(
		FTickerDelegate::CreateLambda([This = AsShared(), ErrorContext = FVexelErrorContext::Capture()](float)
			{
				FVexelErrorContextRestore Restore(ErrorContext);
				This->Post();
				return false; }),
		PauseSeconds);
}

TOptional<float> FVexelToolReply::FindPause(const FVexelError& Error, const TSharedPtr<FVexelHttpResponse>& Response) const
{
	const bool bStatus = Error.IsA<FVexelError_HttpStatus>();
	if (NumAttempts > int32(UE_ARRAY_COUNT(Pauses)) || (bStatus && (!Response || !MayPass(Response->GetStatus()))))
	{
		return NullOpt;
	}
	const float Pause = Pauses[NumAttempts - 1];
	int32 Asked = 0;
	if (Response && LexTryParseString(Asked, *Response->GetHeader(TEXT("Retry-After"))))
	{
		return FMath::Clamp(float(Asked), Pause, FMath::Max(Pause, MaxAskedPause));
	}
	return Pause;
}

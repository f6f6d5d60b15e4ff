#include "Chat/VexelChatRequest.h"

#include "Chat/VexelEditorContext.h"
#include "Misc/EngineVersion.h"
#include "VexelErrorContext.h"
#include "VexelInternalConfig.h"
#include "VexelLog.h"

namespace
{
/** A service that sends nothing for that long, not even while a tool of ours runs, is taken for gone. */
FConfigValueBase StallTimeoutSetting(TEXT("ChatStallTimeoutSeconds"), TEXT("300"));
constexpr double MaxStallTimeoutSeconds = 24.0 * 60.0 * 60.0;

/** No answer that a person reads comes near it. */
constexpr int32 MaxAnswerBytes = 64 << 20;
}

FVexelChatRequest::FVexelChatRequest(
	const TSharedRef<FVexelChatConversation>& InConversation, FVexelChatMessage InPrompt, FString InCheckpointId, FString InUserId)
	: Conversation(InConversation)
	, Prompt(MoveTemp(InPrompt))
	, Response(EVexelChatRole::Assistant, EVexelChatMessageState::InProgress)
	, CheckpointId(MoveTemp(InCheckpointId))
	, UserId(MoveTemp(InUserId))
	, Sink(*this)
	, Parser(Sink)
{
}

FVexelChatRequest::~FVexelChatRequest()
{
	if (HttpRequest)
	{
		HttpRequest->Cancel();
	}
}

bool FVexelChatRequest::Send(FVexelHttp& ApiClient)
{
	if (State != EVexelChatRequestState::Preparing)
	{
		VEXEL_LOG(Warning, "Attempted to send a chat request that is not in the preparing state.");
		return false;
	}
	const TSharedPtr<FJsonObject> Payload = PreparePayload();
	if (!Payload)
	{
		VEXEL_LOG(Error, "Failed to prepare JSON payload for chat request.");
		return false;
	}
	VEXEL_LOG(Log, "[Request] Sending request with checkpoint_id=%s, total messages in payload=%d",
		*CheckpointId, Conversation->GetMessages().Num() + 1);
	if (!SetInProgress())
	{
		return false;
	}

	const TWeakPtr<FVexelChatRequest> WeakThis = AsWeak();
	HttpRequest = ApiClient.Request(EVexelHttpVerb::Post, TEXT("/api/chat"))
					  .WithAuth()
					  .WithStallTimeout(float(StallTimeoutSetting.GetNumber(1.0, MaxStallTimeoutSeconds)))
					  .WithAnswerLimit(MaxAnswerBytes)
					  .WithPayload(Payload)
					  .WithProgress([WeakThis](TConstArrayView<uint8> WholeBody)
						  {
							  if (const TSharedPtr<FVexelChatRequest> This = WeakThis.Pin())
							  {
								  This->OnBodyReceived(WholeBody);
							  } })
					  .Send();
	// The result keeps the request alive until its end; its pieces of text are in the game thread's queue before it.
	HttpRequest->Await().OnComplete([This = AsShared()](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result)
		{ FVexelTaskManager::ScheduleFunc(EVexelTaskThread::GameThread, [This, Result]
			  { This->OnHttpComplete(Result); }); });
	return true;
}

void FVexelChatRequest::Cancel()
{
	if (IsFinal() || !HttpRequest)
	{
		VEXEL_LOG(Warning, "Attempted to cancel a chat request that is not valid.");
		return;
	}
	HttpRequest->Cancel();
}

void FVexelChatRequest::OnBodyReceived(TConstArrayView<uint8> WholeBody)
{
	if (WholeBody.Num() < NumProcessedBytes)
	{
		VEXEL_LOG(Warning, "Received response bytes are less than already processed bytes. Ignoring.");
		return;
	}
	const TConstArrayView<uint8> NewBytes = WholeBody.RightChop(int32(NumProcessedBytes));
	if (NewBytes.IsEmpty())
	{
		return;
	}
	const TSharedRef<FJsonObject> ScopeData = MakeShared<FJsonObject>();
	ScopeData->SetNumberField(TEXT("new_bytes"), NewBytes.Num());
	ScopeData->SetNumberField(TEXT("response_bytes"), WholeBody.Num());
	FVexelErrorContextScope Scope(TEXT("chunk_processing"), ScopeData);

	VEXEL_LOG(VeryVerbose, "[Vexel] Before UTF-8 convert, payload size = %d", NewBytes.Num());
	FString Text = Utf8Stream.Convert(NewBytes);
	NumProcessedBytes = WholeBody.Num();
	ParseOnGameThread(MoveTemp(Text));
}

void FVexelChatRequest::ParseOnGameThread(FString Text)
{
	if (IsInGameThread())
	{
		Parser.Parse(Text);
		return;
	}
	FVexelTaskManager::ScheduleFunc(EVexelTaskThread::GameThread,
		[WeakThis = AsWeak(), Context = FVexelErrorContext::Capture(), Text = MoveTemp(Text)]
		{
			FVexelErrorContextRestore Restore(Context);
			const TSharedPtr<FVexelChatRequest> This = WeakThis.Pin();
			if (This && This->State == EVexelChatRequestState::InProgress)
			{
				This->Parser.Parse(Text);
			}
		});
}

void FVexelChatRequest::PushSubAgentChatId(const FString& SubChatId)
{
	VEXEL_LOG(Log, "Pushing sub-agent chat ID: %s", *SubChatId);
	SubAgentChatIds.Push(SubChatId);
}

void FVexelChatRequest::PopSubAgentChatId(const FString& ExpectedSubChatId)
{
	const FString Popped = SubAgentChatIds.IsEmpty() ? FString() : SubAgentChatIds.Pop();
	if (!Popped.Equals(ExpectedSubChatId))
	{
		VEXEL_LOG(Warning, "Popped sub-agent chat ID %s does not match expected %s. Agent stack may be corrupted!", *Popped, *ExpectedSubChatId);
	}
	VEXEL_LOG(Log, "Popped sub-agent chat ID: %s", *Popped);
}

FString FVexelChatRequest::GetChatIdForToolReply() const
{
	return SubAgentChatIds.IsEmpty() ? GetChatId() : SubAgentChatIds.Last();
}

void FVexelChatRequest::FSink::OnText(FStringView Text)
{
	bool bNewBlock = false;
	const int32 BlockIndex = Request.Response.AppendText(Text, bNewBlock);
	if (bNewBlock)
	{
		Request.OnBlock.ExecuteIfBound(Request.AsShared(), BlockIndex);
	}
	Request.OnText.ExecuteIfBound(Request.AsShared(), BlockIndex, Text);
}

void FVexelChatRequest::FSink::OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info)
{
	if (Type == EVexelChatMessageBlockType::Text)
	{
		VEXEL_LOG(Warning, "Unexpected block type %d in content processing, reverting to text", int32(Type));
		return;
	}
	const int32 BlockIndex = Request.Response.AddBlock(FVexelChatMessageBlock::MakeFromTag(Type, Info));
	Request.OnBlock.ExecuteIfBound(Request.AsShared(), BlockIndex);
}

TSharedPtr<FJsonObject> FVexelChatRequest::PreparePayload() const
{
	if (!Conversation->IsValid())
	{
		VEXEL_LOG(Error, "Attempted to prepare JSON payload for an invalid conversation.");
		return nullptr;
	}
	if (!Conversation->GetChatMode().IsValid())
	{
		VEXEL_LOG(Error, "Attempted to prepare JSON payload for a conversation with an invalid chat mode.");
		return nullptr;
	}
	TArray<TSharedPtr<FJsonValue>> Messages;
	for (const FVexelChatMessage& Message : Conversation->GetMessages())
	{
		if (!Message.IsValid())
		{
			VEXEL_LOG(Error, "Encountered an invalid chat message in conversation history.");
			return nullptr;
		}
		Messages.Add(MakeShared<FJsonValueObject>(Message.ToServiceJson()));
	}
	Messages.Add(MakeShared<FJsonValueObject>(Prompt.ToServiceJson()));

	const FEngineVersion& EngineVersion = FEngineVersion::Current();
	const TSharedRef<FJsonObject> Payload = MakeShared<FJsonObject>();
	Payload->SetStringField(TEXT("chat_id"), GetChatId());
	Payload->SetStringField(TEXT("user_id"), UserId);
	Payload->SetStringField(TEXT("checkpoint_id"), CheckpointId);
	Payload->SetStringField(TEXT("conversation_title"), Conversation->GetTitle());
	Payload->SetStringField(TEXT("chat_mode"), Conversation->GetChatMode().ChatMode);
	Payload->SetStringField(
		TEXT("engine_version"), FString::Printf(TEXT("%d.%d"), int32(EngineVersion.GetMajor()), int32(EngineVersion.GetMinor())));
	Payload->SetArrayField(TEXT("messages"), Messages);
	Payload->SetObjectField(TEXT("context"), FVexelEditorContext::Capture().ToJson());
	return Payload;
}

bool FVexelChatRequest::SetInProgress()
{
	if (State != EVexelChatRequestState::Preparing)
	{
		VEXEL_LOG(Warning, "Attempted to set a chat request to in-progress state that is not preparing.");
		return false;
	}
	State = EVexelChatRequestState::InProgress;
	OnStateChanged.ExecuteIfBound(AsShared());
	return true;
}

void FVexelChatRequest::Complete(EVexelChatRequestState FinalState)
{
	if (State != EVexelChatRequestState::InProgress)
	{
		VEXEL_LOG(Warning, "Attempted to complete a chat request that is not in progress.");
		return;
	}
	State = FinalState;
	if (FinalState != EVexelChatRequestState::Failed)
	{
		Response.SetState(EVexelChatMessageState::Completed);
	}
	OnStateChanged.ExecuteIfBound(AsShared());
}

void FVexelChatRequest::OnHttpComplete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result)
{
	// The network thread is done with this request, so what it kept may be read here.
	Parser.Parse(Utf8Stream.Finish());
	Parser.Finish();

	if (Result.HasValue())
	{
		VEXEL_LOG(Log, "Chat request `%s` succeeded", *GetChatId());
		Complete(EVexelChatRequestState::Succeeded);
		return;
	}
	if (Result.GetError().IsA<FVexelError_HttpCancelled>())
	{
		VEXEL_LOG(Log, "Chat request `%s` cancelled", *GetChatId());
		Complete(EVexelChatRequestState::Cancelled);
		return;
	}
	Error = MakeFailure(Result.GetError());
	Complete(EVexelChatRequestState::Failed);
}

FVexelError FVexelChatRequest::MakeFailure(const FVexelError& Cause) const
{
	const TSharedPtr<FVexelHttpResponse> HttpResponse = HttpRequest->GetResponse();
	if (!Cause.IsA<FVexelError_HttpStatus>() || !HttpResponse)
	{
		return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "Chat request %s failed", *GetChatId());
	}
	FString Detail;
	const TSharedPtr<FJsonObject> Body = HttpResponse->GetContentJson();
	if (Body && Body->TryGetStringField(TEXT("detail"), Detail) && !Detail.IsEmpty())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "%s", *Detail);
	}
	return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "Chat request %s failed with HTTP status %d after receiving %d bytes",
		*GetChatId(), HttpResponse->GetStatus(), HttpResponse->GetContent().Num());
}

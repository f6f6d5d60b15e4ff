#include "Chat/VexelChatRequest.h"

#include "Chat/VexelChatImageStore.h"
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

/** Images of a long conversation that go along with a turn. */
constexpr int32 MaxImageBytesInRequest = 40 << 20;

/** What of an answer that tells of an error is shown to the user. */
constexpr int32 MaxDetailLength = 2000;
}

FVexelChatRequest::FVexelChatRequest(const TSharedRef<FVexelChatConversation>& InConversation, FVexelChatMessage InPrompt,
	FString InCheckpointId, FString InUserId, TSharedPtr<const FVexelChatImageStore> InImages)
	: Conversation(InConversation)
	, Prompt(MoveTemp(InPrompt))
	, CheckpointId(MoveTemp(InCheckpointId))
	, UserId(MoveTemp(InUserId))
	, Images(MoveTemp(InImages))
{
	Reader.OnBlock = [this](int32 BlockIndex)
	{ OnBlock.ExecuteIfBound(AsShared(), BlockIndex); };
	Reader.OnTextAdded = [this](int32 BlockIndex, FStringView Text)
	{ OnText.ExecuteIfBound(AsShared(), BlockIndex, Text); };
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
	if (bCancelled)
	{
		// By somebody who was told that it begins.
		Complete(EVexelChatRequestState::Cancelled);
		return true;
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

void FVexelChatRequest::Cancel(bool bKeepAnswer)
{
	if (State != EVexelChatRequestState::InProgress)
	{
		VEXEL_LOG(Warning, "Attempted to cancel a chat request that is not valid.");
		return;
	}
	bCancelled = true;
	bKeepsAnswer = bKeepAnswer;
	Reader.Stop();
	if (HttpRequest)
	{
		HttpRequest->Cancel();
	}
}

void FVexelChatRequest::OnBodyReceived(TConstArrayView<uint8> WholeBody)
{
	const TSharedRef<FJsonObject> ScopeData = MakeShared<FJsonObject>();
	ScopeData->SetNumberField(TEXT("new_bytes"), WholeBody.Num() - Reader.GetNumProcessedBytes());
	ScopeData->SetNumberField(TEXT("response_bytes"), WholeBody.Num());
	FVexelErrorContextScope Scope(TEXT("chunk_processing"), ScopeData);

	FString Text = Reader.TakeNewText(WholeBody);
	if (IsInGameThread())
	{
		Reader.Read(Text);
		return;
	}
	FVexelTaskManager::ScheduleFunc(EVexelTaskThread::GameThread,
		[WeakThis = AsWeak(), Context = FVexelErrorContext::Capture(), Text = MoveTemp(Text)]
		{
			FVexelErrorContextRestore Restore(Context);
			if (const TSharedPtr<FVexelChatRequest> This = WeakThis.Pin())
			{
				This->Reader.Read(Text);
			}
		});
}

void FVexelChatRequest::AddPromptToConversation()
{
	PromptKey = Conversation->GetMessageKey(Conversation->AddMessage(Prompt));
}

int32 FVexelChatRequest::FindPromptInConversation() const
{
	return Conversation->FindMessageByKey(PromptKey);
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
	for (const FVexelChatMessage& Message : Conversation->GetMessages())
	{
		if (!Message.IsValid())
		{
			VEXEL_LOG(Error, "Encountered an invalid chat message in conversation history.");
			return nullptr;
		}
	}

	const FEngineVersion& EngineVersion = FEngineVersion::Current();
	const TSharedRef<FJsonObject> Payload = MakeShared<FJsonObject>();
	Payload->SetStringField(TEXT("chat_id"), GetChatId());
	Payload->SetStringField(TEXT("user_id"), UserId);
	Payload->SetStringField(TEXT("checkpoint_id"), CheckpointId);
	Payload->SetStringField(TEXT("conversation_title"), Conversation->GetTitle());
	Payload->SetStringField(TEXT("chat_mode"), Conversation->GetChatMode().ChatMode);
	Payload->SetStringField(
		TEXT("engine_version"), FString::Printf(TEXT("%d.%d"), int32(EngineVersion.GetMajor()), int32(EngineVersion.GetMinor())));
	Payload->SetArrayField(TEXT("messages"), PrepareMessages());
	Payload->SetObjectField(TEXT("context"), FVexelEditorContext::Capture().ToJson());
	return Payload;
}

TArray<TSharedPtr<FJsonValue>> FVexelChatRequest::PrepareMessages() const
{
	TArray<const FVexelChatMessage*> Messages;
	Messages.Reserve(Conversation->GetMessages().Num() + 1);
	for (const FVexelChatMessage& Message : Conversation->GetMessages())
	{
		Messages.Add(&Message);
	}
	Messages.Add(&Prompt);

	int32 NumImageBytes = 0;
	const auto LoadImage = [&](const FString& AssetId)
	{
		TArray<uint8> Bytes = Images ? Images->Load(GetChatId(), AssetId) : TArray<uint8>();
		NumImageBytes += Bytes.Num();
		if (Bytes.IsEmpty() || NumImageBytes > MaxImageBytesInRequest)
		{
			VEXEL_LOG(Warning, "The image '%s' is %s and is not sent", *AssetId,
				Bytes.IsEmpty() ? TEXT("not at hand") : TEXT("one too many in this conversation"));
			return TArray<uint8>();
		}
		return Bytes;
	};
	// From the last one, because the newest images are those that the turn is about.
	TArray<TSharedPtr<FJsonValue>> Values;
	Values.SetNum(Messages.Num());
	for (int32 Index = Messages.Num() - 1; Index >= 0; --Index)
	{
		Values[Index] = MakeShared<FJsonValueObject>(Messages[Index]->ToServiceJson(LoadImage));
	}
	return Values;
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
		GetResponse().SetState(EVexelChatMessageState::Completed);
	}
	OnStateChanged.ExecuteIfBound(AsShared());
}

void FVexelChatRequest::OnHttpComplete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result)
{
	const bool bConnectionCancelled = Result.HasError() && Result.GetError().IsA<FVexelError_HttpCancelled>();
	if (!bCancelled && !bConnectionCancelled)
	{
		// The network thread is done with this request. Whoever is told of a last block may cancel it still.
		Reader.Finish();
	}
	if (bCancelled || bConnectionCancelled)
	{
		VEXEL_LOG(Log, "Chat request `%s` cancelled", *GetChatId());
		Complete(EVexelChatRequestState::Cancelled);
		return;
	}
	if (Result.HasValue())
	{
		VEXEL_LOG(Log, "Chat request `%s` succeeded", *GetChatId());
		Complete(EVexelChatRequestState::Succeeded);
		return;
	}
	Error = MakeFailure(Result.GetError());
	Complete(EVexelChatRequestState::Failed);
}

FVexelError FVexelChatRequest::MakeFailure(const FVexelError& Cause) const
{
	const TSharedPtr<FVexelHttpResponse> HttpResponse = HttpRequest->GetResponse();
	if (!Cause.IsA<FVexelError_Http>())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "Unknown error when processing chat request");
	}
	if (!Cause.IsA<FVexelError_HttpStatus>() || !HttpResponse)
	{
		return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "Chat request %s failed", *GetChatId());
	}
	FString Detail;
	const TSharedPtr<FJsonObject> Body = HttpResponse->GetContentJson();
	if (Body && Body->TryGetStringField(TEXT("detail"), Detail) && !Detail.IsEmpty())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "%s", *Detail.Left(MaxDetailLength));
	}
	return VEXEL_ERROR_CAUSED(FVexelError_ChatRequestFailed, Cause, "Chat request %s failed with HTTP status %d after receiving %d bytes",
		*GetChatId(), HttpResponse->GetStatus(), HttpResponse->GetContent().Num());
}

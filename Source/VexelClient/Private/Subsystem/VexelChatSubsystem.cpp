#include "Subsystem/VexelChatSubsystem.h"

#include "Auth/VexelAuth.h"
#include "Chat/VexelChatHistoryManager.h"
#include "Chat/VexelChatRequest.h"
#include "Editor.h"
#include "Misc/Guid.h"
#include "Misc/Paths.h"
#include "Tools/VexelToolCall.h"
#include "VexelClient.h"
#include "VexelLog.h"
#include "VexelSentry.h"

namespace
{
/** Modes that the client offers by itself. */
TArray<FVexelChatModeInfo> MakeChatModes()
{
	return {
		FVexelChatModeInfo(TEXT("vexel_agent"), TEXT("Agent"), true),
		FVexelChatModeInfo(TEXT("vexel_agent_lite"), TEXT("Agent Lite"), true),
	};
}

/** Id of the logged-in user; empty without one. */
FString GetUserId()
{
	FString UserId;
	FVexelAuth::WithAccessTokenAndUser([&](const FString&, const FString& User)
		{ UserId = User; });
	return UserId;
}

const TCHAR* ToPrintable(const TOptional<FString>& Text)
{
	return Text ? **Text : TEXT("<null>");
}
}

UVexelChatSubsystem::UVexelChatSubsystem() = default;
UVexelChatSubsystem::~UVexelChatSubsystem() = default;

UVexelChatSubsystem* UVexelChatSubsystem::Get()
{
	return GEditor ? GEditor->GetEditorSubsystem<UVexelChatSubsystem>() : nullptr;
}

void UVexelChatSubsystem::Initialize(FSubsystemCollectionBase& Collection)
{
	HistoryManager = MakeShared<FVexelChatHistoryManager>(FPaths::ProjectSavedDir() / TEXT("ChatHistories"));
	HistoryManager->Load();
	AuthHandle = FVexelAuth::AddAuthStateChangedCallback(
		FVexelAuth::FOnAuthStateChanged::FDelegate::CreateLambda([WeakThis = TWeakObjectPtr<UVexelChatSubsystem>(this)](FVexelAuth::EState)
			{ FVexelTaskManager::ScheduleFunc(EVexelTaskThread::GameThread, [WeakThis]
				  {
						if (UVexelChatSubsystem* const This = WeakThis.Get())
						{
							This->OnAuthDataChanged();
						} }); }));
}

void UVexelChatSubsystem::Deinitialize()
{
	FVexelAuth::RemoveAuthStateChangedCallback(AuthHandle);
	for (const auto& [ChatId, Request] : ActiveRequests)
	{
		Request->OnStateChanged.Unbind();
		Request->OnBlock.Unbind();
		Request->OnText.Unbind();
		Request->Cancel();
	}
	ActiveRequests.Empty();
	HistoryManager.Reset();
}

TSharedPtr<FVexelChatConversation> UVexelChatSubsystem::CreateConversation(const FVexelChatModeInfo& Mode)
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return nullptr;
	}
	if (!Mode.IsValid())
	{
		VEXEL_LOG(Error, "Cannot create new conversation: ChatModeInfo is not valid");
		return nullptr;
	}
	const FString UserId = GetUserId();
	if (UserId.IsEmpty())
	{
		VEXEL_LOG(Error, "Cannot create new conversation: No user ID.");
		return nullptr;
	}
	const FString ChatId = FGuid::NewGuid().ToString(EGuidFormats::DigitsWithHyphensLower);
	const TSharedRef<FVexelChatConversation> Conversation = MakeShared<FVexelChatConversation>(UserId, ChatId, Mode);
	HistoryManager->Add(Conversation);
	return Conversation;
}

void UVexelChatSubsystem::DeleteConversation(const TSharedPtr<FVexelChatConversation>& Conversation)
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return;
	}
	if (!Conversation || !Conversation->IsValid())
	{
		VEXEL_LOG(Warning, "Cannot delete conversation: Conversation is not valid");
		return;
	}
	const FString ChatId = Conversation->GetChatId();
	VEXEL_LOG(Log, "Deleting conversation with ID: %s", *ChatId);
	CancelRequest(ChatId);
	if (!HistoryManager->Delete(ChatId))
	{
		VEXEL_LOG(Warning, "Conversation with ID %s not found", *ChatId);
	}
}

TSharedPtr<FVexelChatConversation> UVexelChatSubsystem::FindActiveConversation(const FString& ChatId) const
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return nullptr;
	}
	return HistoryManager->Find(ChatId);
}

TSharedPtr<FVexelChatConversation> UVexelChatSubsystem::GetNewestConversation() const
{
	const TArray<TSharedRef<FVexelChatConversation>> History = GetHistory();
	return History.IsEmpty() ? nullptr : History[0].ToSharedPtr();
}

TArray<TSharedRef<FVexelChatConversation>> UVexelChatSubsystem::GetHistory() const
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return {};
	}
	return HistoryManager->GetConversations();
}

TArray<FVexelChatModeInfo> UVexelChatSubsystem::GetAllChatModes()
{
	return MakeChatModes();
}

FVexelChatModeInfo UVexelChatSubsystem::GetDefaultAgentChatMode()
{
	for (const FVexelChatModeInfo& Mode : GetAllChatModes())
	{
		if (Mode.bAgentMode)
		{
			return Mode;
		}
	}
	VEXEL_LOG(Warning, "No agentic chat mode defined, returning fallback mode");
	return FVexelChatModeInfo(TEXT("vexel_agent"), TEXT("Vexel Agent"), true);
}

FVexelChatModeInfo UVexelChatSubsystem::GetDefaultChatMode()
{
	const TArray<FVexelChatModeInfo> Modes = GetAllChatModes();
	if (!Modes.IsEmpty())
	{
		return Modes[0];
	}
	VEXEL_LOG(Warning, "No chat modes defined, returning fallback mode");
	return FVexelChatModeInfo(TEXT("vexel_lite"), TEXT("Vexel Lite"), false);
}

TSharedPtr<FVexelChatRequest> UVexelChatSubsystem::PrepareChatRequest(
	const FString& ChatId, const FString& Message, const TOptional<FString>& CheckpointId)
{
	VEXEL_LOG(Log, "[Subsystem] PrepareChatRequest called. ChatId=%s, MessageLen=%d, CheckpointIdParam='%s'",
		*ChatId, Message.Len(), ToPrintable(CheckpointId));
	const TSharedPtr<FVexelChatConversation> Conversation = FindActiveConversation(ChatId);
	if (!Conversation || !Conversation->IsValid())
	{
		VEXEL_LOG(Error, "Cannot prepare chat request: Conversation is not valid");
		return nullptr;
	}
	FVexelChatMessage Prompt(EVexelChatRole::User);
	Prompt.AddBlock(FVexelChatMessageBlock::MakeText(Message));
	const FString Checkpoint = CheckpointId ? *CheckpointId : Conversation->FindLastCheckpointId();
	const TSharedRef<FVexelChatRequest> Request =
		MakeShared<FVexelChatRequest>(Conversation.ToSharedRef(), MoveTemp(Prompt), Checkpoint, GetUserId());
	Request->OnStateChanged.BindUObject(this, &UVexelChatSubsystem::OnMessageRequestStateChanged);
	Request->OnBlock.BindUObject(this, &UVexelChatSubsystem::OnMessageRequestUpdated);
	Request->OnText.BindWeakLambda(this, [this](const TSharedRef<FVexelChatRequest>& Source, int32, FStringView Text)
		{ Events.OnTextAppended.Broadcast(Source->GetChatId(), Text); });
	return Request;
}

TVexelExpected<void> UVexelChatSubsystem::SendMessage(const FString& ChatId, const FString& Message)
{
	if (HasActiveRequest(ChatId))
	{
		return VEXEL_ERROR(FVexelError_ChatRequestFailed, "The conversation is still waiting for an answer");
	}
	const TSharedPtr<FVexelChatRequest> Request = PrepareChatRequest(ChatId, Message, TOptional<FString>());
	if (!Request)
	{
		return VEXEL_ERROR(FVexelError_ChatRequestFailed, "There is no conversation '%s'", *ChatId);
	}
	ActiveRequests.Add(ChatId, Request.ToSharedRef());
	const TSharedPtr<FVexelHttp> ApiClient = FVexelClient::Get().GetApiClient();
	if (!Request->Send(*ApiClient))
	{
		ActiveRequests.Remove(ChatId);
		return VEXEL_ERROR(FVexelError_ChatRequestFailed, "The conversation '%s' cannot be sent", *ChatId);
	}
	return TVexelExpected<void>();
}

bool UVexelChatSubsystem::CancelRequest(const FString& ChatId)
{
	const TSharedRef<FVexelChatRequest>* const Request = ActiveRequests.Find(ChatId);
	if (!Request)
	{
		return false;
	}
	(*Request)->Cancel();
	return true;
}

bool UVexelChatSubsystem::HasActiveRequest(const FString& ChatId) const
{
	return ActiveRequests.Contains(ChatId);
}

void UVexelChatSubsystem::OnMessageRequestStateChanged(const TSharedRef<FVexelChatRequest>& Request)
{
	switch (Request->GetState())
	{
		case EVexelChatRequestState::Preparing:
			break;
		case EVexelChatRequestState::InProgress:
			OnRequestInProgress(Request);
			break;
		case EVexelChatRequestState::Succeeded:
			OnRequestSucceeded(Request);
			break;
		case EVexelChatRequestState::Failed:
			OnRequestFailed(Request);
			break;
		case EVexelChatRequestState::Cancelled:
			break;
	}
	if (Request->IsFinal())
	{
		ActiveRequests.Remove(Request->GetChatId());
	}
	Events.OnRequestStateChanged.Broadcast(Request->GetChatId(), Request->GetState(), Request->GetError().GetPtrOrNull());
}

void UVexelChatSubsystem::OnRequestInProgress(const TSharedRef<FVexelChatRequest>& Request)
{
	if (!Request->GetConversation()->IsValid())
	{
		VEXEL_LOG(Error, "Received InProgress request without a valid conversation, cannot save to history!");
		return;
	}
	Request->GetConversation()->AddMessage(Request->GetPrompt());
	SaveConversation(*Request->GetConversation());
}

void UVexelChatSubsystem::OnRequestSucceeded(const TSharedRef<FVexelChatRequest>& Request)
{
	FVexelChatConversation& Conversation = *Request->GetConversation();
	const int32 UserMessageIndex = Conversation.GetMessages().Num() - 1;
	if (UserMessageIndex < 0 || Conversation.GetMessages()[UserMessageIndex].GetRole() != EVexelChatRole::User)
	{
		VEXEL_LOG(Error, "Received success request, but user message index %d is invalid in conversation %s",
			UserMessageIndex, *Conversation.GetChatId());
		return;
	}
	const FVexelChatMessage& Response = Request->GetResponse();
	VEXEL_LOG(Log, "Has message blocks: %d", Response.NumBlocks());
	VEXEL_LOG(Log, "Last checkpoint block: %d", Response.FindLastCheckpoint());
	if (Response.IsValid())
	{
		Conversation.AddMessage(Response);
	}
	SaveConversation(Conversation);
}

void UVexelChatSubsystem::OnRequestFailed(const TSharedRef<FVexelChatRequest>& Request)
{
	FVexelChatConversation& Conversation = *Request->GetConversation();
	FVexelChatMessage& Response = Request->GetResponse();
	const int32 LastCheckpoint = Response.FindLastCheckpoint();
	VEXEL_LOG(Warning, "Request failed, marking blocks after last checkpoint (index %d) as failed for conversation %s",
		LastCheckpoint, *Conversation.GetChatId());
	Response.MarkFailedAfter(LastCheckpoint);
	if (Response.IsValid())
	{
		Conversation.AddMessage(Response);
		SaveConversation(Conversation);
	}
}

void UVexelChatSubsystem::OnMessageRequestUpdated(const TSharedRef<FVexelChatRequest>& Request, int32 BlockIndex)
{
	const FVexelChatMessage& Response = Request->GetResponse();
	if (!Response.IsValid())
	{
		VEXEL_LOG(Error, "Received update for request without a valid response message, unable to process new blocks.");
		return;
	}
	if (!Response.GetBlocks().IsValidIndex(BlockIndex))
	{
		VEXEL_LOG(Error, "Received update for request with invalid message block at index %d", BlockIndex);
		return;
	}
	// A copy, because a handler may add blocks.
	const FVexelChatMessageBlock Block = Response.GetBlocks()[BlockIndex];
	Events.OnBlockAdded.Broadcast(Request->GetChatId(), Block);
	switch (Block.GetType())
	{
		case EVexelChatMessageBlockType::SubChainStart:
		case EVexelChatMessageBlockType::SubChainEnd:
			HandleSubChain(Request, Block);
			break;
		case EVexelChatMessageBlockType::ToolCall:
			HandleToolCall(Request, Block);
			break;
		default:
			break;
	}
}

void UVexelChatSubsystem::HandleSubChain(const TSharedRef<FVexelChatRequest>& Request, const FVexelChatMessageBlock& Block)
{
	const bool bStart = Block.GetType() == EVexelChatMessageBlockType::SubChainStart;
	if (!bStart && Block.GetType() != EVexelChatMessageBlockType::SubChainEnd)
	{
		VEXEL_LOG(Error, "Received sub-chain block, but block type is not SubChain");
		return;
	}
	const FString SubChatId = Block.SubChain_GetChatId();
	if (SubChatId.IsEmpty())
	{
		VEXEL_LOG(Warning, "Received sub-chain block with empty chat ID");
		return;
	}
	if (bStart)
	{
		Request->PushSubAgentChatId(SubChatId);
	}
	else
	{
		Request->PopSubAgentChatId(SubChatId);
	}
}

void UVexelChatSubsystem::HandleToolCall(const TSharedRef<FVexelChatRequest>& Request, const FVexelChatMessageBlock& Block)
{
	if (Block.GetType() != EVexelChatMessageBlockType::ToolCall)
	{
		VEXEL_LOG(Error, "Received tool call block, but block type is not ToolCall");
		return;
	}
	if (!Request->GetConversation()->IsValid())
	{
		VEXEL_LOG(Error, "Received tool call block, but conversation is not valid");
		return;
	}

	const FString ChatId = Request->GetChatId();
	FVexelToolCall Call;
	Call.ToolName = Block.Tool_GetToolName();
	Call.Arguments = Block.GetInfo();
	Call.Context = {Request->GetChatIdForToolReply(), Block.Tool_GetToolReplyId(), Request->GetConversation()};
	Call.OnStarted = [this, ChatId, ReplyId = Call.Context.ReplyId](const FString& ProgressText)
	{ Events.OnToolStarted.Broadcast(ChatId, ReplyId, ProgressText); };
	Call.OnFinished = [WeakThis = TWeakObjectPtr<UVexelChatSubsystem>(this), ChatId, ReplyId = Call.Context.ReplyId](
						  const FString& DoneText, const FVexelError* Error)
	{
		if (UVexelChatSubsystem* const This = WeakThis.Get())
		{
			This->Events.OnToolFinished.Broadcast(ChatId, ReplyId, DoneText, Error);
		}
	};
	Call.Run(FVexelClient::Get().GetApiClient());
}

void UVexelChatSubsystem::SaveConversation(const FVexelChatConversation& Conversation)
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return;
	}
	TVexelExpected<void> Saved = HistoryManager->Save(Conversation);
	if (Saved.HasError())
	{
		Events.OnSaveFailed.Broadcast(Conversation.GetChatId(), Saved.GetError());
		FVexelSentry::CaptureError(MoveTemp(Saved).GetError(), VEXEL_HERE);
	}
}

void UVexelChatSubsystem::OnAuthDataChanged()
{
	// The news may be older than a request that was made under the login it tells of.
	const FString UserId = GetUserId();
	TArray<TSharedRef<FVexelChatRequest>> Requests;
	ActiveRequests.GenerateValueArray(Requests);
	for (const TSharedRef<FVexelChatRequest>& Request : Requests)
	{
		if (!Request->GetUserId().Equals(UserId))
		{
			Request->Cancel();
		}
	}
}

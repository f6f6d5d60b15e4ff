#include "Subsystem/VexelChatSubsystem.h"

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthUserInfo.h"
#include "Chat/VexelChatHistoryManager.h"
#include "Chat/VexelChatImageStore.h"
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
	const FString Directory = FPaths::ProjectSavedDir() / TEXT("ChatHistories");
	HistoryManager = MakeShared<FVexelChatHistoryManager>(Directory);
	ImageStore = MakeShared<FVexelChatImageStore>(Directory / TEXT("Images"));
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
	if (const TSharedRef<FVexelChatRequest>* const Request = ActiveRequests.Find(ChatId))
	{
		(*Request)->Cancel();
	}
	if (!HistoryManager->Delete(ChatId))
	{
		VEXEL_LOG(Warning, "Conversation with ID %s not found", *ChatId);
		return;
	}
	AttachedImages.Remove(ChatId);
	ImageStore->DeleteAll(ChatId);
	Events.OnConversationChanged.Broadcast(ChatId);
}

TSharedPtr<FVexelChatConversation> UVexelChatSubsystem::FindActiveConversation(const FString& ChatId)
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return nullptr;
	}
	if (!HasActiveRequest(ChatId) && HistoryManager->Refresh(ChatId))
	{
		Events.OnConversationChanged.Broadcast(ChatId);
	}
	return HistoryManager->Find(ChatId);
}

TSharedPtr<FVexelChatConversation> UVexelChatSubsystem::GetNewestConversation()
{
	for (const FVexelChatHeader& Header : GetHistory())
	{
		if (const TSharedPtr<FVexelChatConversation> Conversation = FindActiveConversation(Header.ChatId))
		{
			return Conversation;
		}
	}
	return nullptr;
}

TArray<FVexelChatHeader> UVexelChatSubsystem::GetHistory() const
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return {};
	}
	TArray<FVexelChatHeader> Headers = HistoryManager->GetHeaders();
	const FString UserId = GetUserId();
	if (!UserId.IsEmpty())
	{
		Headers.RemoveAll([&](const FVexelChatHeader& Header)
			{ return !Header.UserId.Equals(UserId); });
	}
	return Headers;
}

TArray<FString> UVexelChatSubsystem::GetSetAsideFiles() const
{
	return HistoryManager ? HistoryManager->FindSetAside() : TArray<FString>();
}

TVexelExpected<void> UVexelChatSubsystem::RevertToCheckpoint(const FString& ChatId, const FString& CheckpointId)
{
	VEXEL_TRY(const TSharedRef<FVexelChatConversation> Conversation, FindIdleConversation(ChatId));
	// An id that stands there twice means its last place.
	TOptional<FVexelCheckpoint> Found;
	for (const FVexelCheckpoint& Checkpoint : Conversation->GetCheckpoints())
	{
		if (Checkpoint.Id.Equals(CheckpointId))
		{
			Found = Checkpoint;
		}
	}
	if (!Found || !Conversation->RevertToBlockIndex(Found->MessageIndex, Found->BlockIndex))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Conversation not reverted", "There is no checkpoint '%s'", *CheckpointId);
	}
	return StoreChange(ChatId);
}

TVexelExpected<void> UVexelChatSubsystem::SetTitle(const FString& ChatId, const FString& Title)
{
	VEXEL_TRY(const TSharedRef<FVexelChatConversation> Conversation, FindIdleConversation(ChatId));
	if (Title.TrimStartAndEnd().IsEmpty())
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Conversation not renamed", "The title is empty");
	}
	Conversation->SetTitle(Title);
	return StoreChange(ChatId);
}

TVexelExpected<void> UVexelChatSubsystem::SetChatMode(const FString& ChatId, const FVexelChatModeInfo& Mode)
{
	VEXEL_TRY(const TSharedRef<FVexelChatConversation> Conversation, FindIdleConversation(ChatId));
	if (!Mode.IsValid())
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Chat mode not set", "The chat mode is not valid");
	}
	Conversation->SetChatMode(Mode);
	return StoreChange(ChatId);
}

TVexelExpected<FString> UVexelChatSubsystem::AttachImage(const FString& ChatId, TConstArrayView<uint8> Bytes)
{
	if (!FindActiveConversation(ChatId))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Image not taken", "There is no conversation '%s'", *ChatId);
	}
	TArray<FString>& Attached = AttachedImages.FindOrAdd(ChatId);
	if (Attached.Num() >= MaxAttachedImages)
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Image not taken", "A message has at most %d images", MaxAttachedImages);
	}
	VEXEL_TRY(const FString AssetId, ImageStore->Attach(ChatId, Bytes));
	Attached.AddUnique(AssetId);
	return AssetId;
}

bool UVexelChatSubsystem::DetachImage(const FString& ChatId, const FString& AssetId)
{
	TArray<FString>* const Attached = AttachedImages.Find(ChatId);
	return Attached && Attached->Remove(AssetId) > 0;
}

FString UVexelChatSubsystem::FindImage(const FString& ChatId, const FString& AssetId) const
{
	return ImageStore ? ImageStore->FindPath(ChatId, AssetId) : FString();
}

TArray<FVexelChatModeInfo> UVexelChatSubsystem::GetAllChatModes()
{
	return FVexelChatModeInfo::GetOfferedModes();
}

TArray<FVexelChatModeInfo> UVexelChatSubsystem::GetAllowedChatModes()
{
	const FVexelAuthUserInfo User = FVexelAuthUserInfo::GetCurrent();
	return GetAllChatModes().FilterByPredicate([&User](const FVexelChatModeInfo& Mode)
		{ return !User.IsValid() || User.CanUseChatMode(Mode); });
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
	return FVexelChatModeInfo::MakeLiteMode();
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
	for (const FString& AssetId : AttachedImages.FindRef(ChatId))
	{
		Prompt.AddBlock(FVexelChatMessageBlock::MakeImage(AssetId));
	}
	const FString Checkpoint = CheckpointId ? *CheckpointId : Conversation->FindLastCheckpointId();
	const TSharedRef<FVexelChatRequest> Request =
		MakeShared<FVexelChatRequest>(Conversation.ToSharedRef(), MoveTemp(Prompt), Checkpoint, GetUserId(), ImageStore);
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
	(*Request)->Cancel(true);
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
			OnRequestCancelled(Request);
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
	Request->AddPromptToConversation();
	AttachedImages.Remove(Request->GetChatId());
	static_cast<void>(SaveConversation(Request->GetChatId()));
}

void UVexelChatSubsystem::OnRequestSucceeded(const TSharedRef<FVexelChatRequest>& Request)
{
	const int32 UserMessageIndex = Request->FindPromptInConversation();
	if (UserMessageIndex == INDEX_NONE)
	{
		VEXEL_LOG(Error, "Received success request, but user message index %d is invalid in conversation %s",
			UserMessageIndex, *Request->GetChatId());
		return;
	}
	const FVexelChatMessage& Response = Request->GetResponse();
	VEXEL_LOG(Log, "Has message blocks: %d", Response.NumBlocks());
	VEXEL_LOG(Log, "Last checkpoint block: %d", Response.FindLastCheckpoint());
	AddResponseToConversation(*Request);
}

void UVexelChatSubsystem::OnRequestFailed(const TSharedRef<FVexelChatRequest>& Request)
{
	FVexelChatMessage& Response = Request->GetResponse();
	const int32 LastCheckpoint = Response.FindLastCheckpoint();
	VEXEL_LOG(Warning, "Request failed, marking blocks after last checkpoint (index %d) as failed for conversation %s",
		LastCheckpoint, *Request->GetChatId());
	Response.MarkFailedAfter(LastCheckpoint);
	AddResponseToConversation(*Request);
}

void UVexelChatSubsystem::OnRequestCancelled(const TSharedRef<FVexelChatRequest>& Request)
{
	// The conversation may be gone by now, or have been cut back to where it was before the question.
	const bool bStored = HistoryManager && HistoryManager->Find(Request->GetChatId()) && Request->FindPromptInConversation() != INDEX_NONE;
	FVexelChatMessage& Response = Request->GetResponse();
	if (Request->KeepsAnswer() && bStored && Response.NumBlocks() > 0)
	{
		Response.MarkFailedAfter(Response.FindLastCheckpoint());
		AddResponseToConversation(*Request);
	}
}

void UVexelChatSubsystem::AddResponseToConversation(const FVexelChatRequest& Request)
{
	if (Request.GetResponse().NumBlocks() > 0)
	{
		Request.GetConversation()->AddMessage(Request.GetResponse());
	}
	static_cast<void>(SaveConversation(Request.GetChatId()));
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
	if (!Request->IsWanted())
	{
		// Whoever was told has cancelled it.
		return;
	}
	switch (Block.GetType())
	{
		case EVexelChatMessageBlockType::SubChainStart:
		case EVexelChatMessageBlockType::SubChainEnd:
			HandleSubChain(Request, Block);
			break;
		case EVexelChatMessageBlockType::ToolCall:
			HandleToolCall(Request, Block);
			break;
		case EVexelChatMessageBlockType::Image:
			FetchImage(Request->GetChatId(), Block);
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

void UVexelChatSubsystem::FetchImage(const FString& ChatId, const FVexelChatMessageBlock& Block)
{
	if (Block.Image_GetUrl().IsEmpty())
	{
		return;
	}
	FVexelClient& Module = FVexelClient::Get();
	const FString AssetId = Block.Image_GetAssetId();
	ImageStore->Fetch(*Module.GetAuxiliaryHttpClient(), Module.GetApiClient()->GetBaseUrl(), ChatId, AssetId, Block.Image_GetUrl())
		.OnComplete([WeakThis = TWeakObjectPtr<UVexelChatSubsystem>(this), ChatId, AssetId](const TVexelExpected<FString>& Path)
			{
				if (Path.HasError())
				{
					VEXEL_LOG(Warning, "The image '%s' is not at hand: %s", *AssetId, *Path.GetError().ToChainString());
				}
				else if (UVexelChatSubsystem* const This = WeakThis.Get())
				{
					This->OnImageStored(ChatId, AssetId, Path.GetValue());
				} });
}

void UVexelChatSubsystem::OnImageStored(const FString& ChatId, const FString& AssetId, const FString& Path)
{
	if (HistoryManager && !HistoryManager->Find(ChatId))
	{
		// The conversation was deleted in the meantime.
		ImageStore->DeleteAll(ChatId);
		return;
	}
	Events.OnImageStored.Broadcast(ChatId, AssetId, Path);
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
	const FString ReplyId = Block.Tool_GetToolReplyId();
	const FVexelToolCall Call{
		.ToolName = Block.Tool_GetToolName(),
		.Arguments = Block.GetInfo(),
		.Context = {Request->GetChatIdForToolReply(), ReplyId, Request->GetConversation()},
		.IsWanted = [Request]
		{ return Request->IsWanted(); },
		.OnStarted = [this, ChatId, ReplyId](const FString& ProgressText)
		{ Events.OnToolStarted.Broadcast(ChatId, ReplyId, ProgressText); },
		.OnFinished =
			[WeakThis = TWeakObjectPtr<UVexelChatSubsystem>(this), ChatId, ReplyId](const FString& DoneText, const TVexelExpected<TSharedRef<FJsonObject>>& Answer)
		{
			if (UVexelChatSubsystem* const This = WeakThis.Get())
			{
				This->Events.OnToolFinished.Broadcast(ChatId, ReplyId, DoneText, Answer);
			}
		}};
	Call.Run(FVexelClient::Get().GetApiClient().ToSharedRef());
}

TVexelExpected<TSharedRef<FVexelChatConversation>> UVexelChatSubsystem::FindIdleConversation(const FString& ChatId)
{
	if (HasActiveRequest(ChatId))
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Conversation in use", "The conversation is still waiting for an answer");
	}
	const TSharedPtr<FVexelChatConversation> Conversation = FindActiveConversation(ChatId);
	if (!Conversation)
	{
		return VEXEL_ERROR_TITLED(FVexelError, "Conversation not found", "There is no conversation '%s'", *ChatId);
	}
	return Conversation.ToSharedRef();
}

TVexelExpected<void> UVexelChatSubsystem::SaveConversation(const FString& ChatId)
{
	if (!HistoryManager)
	{
		VEXEL_LOG(Warning, "ChatHistoryManager is not valid");
		return TVexelExpected<void>();
	}
	const TSharedPtr<FVexelChatConversation> Conversation = HistoryManager->Find(ChatId);
	const int32 Revision = Conversation ? Conversation->GetRevision() : 0;
	TVexelExpected<void> Saved = HistoryManager->Save(ChatId);
	if (Conversation && Conversation->GetRevision() != Revision)
	{
		// What another editor has stored came into it.
		Events.OnConversationChanged.Broadcast(ChatId);
	}
	if (Saved.HasError())
	{
		Events.OnSaveFailed.Broadcast(ChatId, Saved.GetError());
		FVexelSentry::CaptureError(FVexelError(Saved.GetError()), VEXEL_HERE);
	}
	return Saved;
}

TVexelExpected<void> UVexelChatSubsystem::StoreChange(const FString& ChatId)
{
	const TVexelExpected<void> Saved = SaveConversation(ChatId);
	Events.OnConversationChanged.Broadcast(ChatId);
	return Saved;
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

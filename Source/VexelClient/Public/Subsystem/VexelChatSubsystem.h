#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatConversation.h"
#include "Data/VexelChatRequestState.h"
#include "EditorSubsystem.h"
#include "VexelExpected.h"

#include "VexelChatSubsystem.generated.h"

class FVexelChatHistoryManager;
class FVexelChatRequest;

/** What the user interface is told of a turn while it runs. Broadcast on the game thread. */
struct FVexelChatEvents
{
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnBlockAdded, const FString& /*ChatId*/, const FVexelChatMessageBlock&);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnTextAppended, const FString& /*ChatId*/, FStringView);
	/** The error is null but for a failed request. */
	DECLARE_MULTICAST_DELEGATE_ThreeParams(FOnRequestStateChanged, const FString& /*ChatId*/, EVexelChatRequestState, const FVexelError*);
	DECLARE_MULTICAST_DELEGATE_ThreeParams(
		FOnToolStarted, const FString& /*ChatId*/, const FString& /*ReplyId*/, const FString& /*ProgressText*/);
	/** The error is null when the tool did its work. */
	DECLARE_MULTICAST_DELEGATE_FourParams(
		FOnToolFinished, const FString& /*ChatId*/, const FString& /*ReplyId*/, const FString& /*DoneText*/, const FVexelError*);

	/** What was said stays in memory, and what was stored before as it was. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnSaveFailed, const FString& /*ChatId*/, const FVexelError&);

	FOnBlockAdded OnBlockAdded;
	FOnTextAppended OnTextAppended;
	FOnRequestStateChanged OnRequestStateChanged;
	FOnToolStarted OnToolStarted;
	FOnToolFinished OnToolFinished;
	FOnSaveFailed OnSaveFailed;
};

/**
 * Owns the user's conversations and the requests in flight, one a conversation: sends each turn, performs the tool calls of the
 * answer, keeps the history saved, and cancels what runs when the login changes. Game thread.
 */
UCLASS()
class VEXELCLIENT_API UVexelChatSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	UVexelChatSubsystem();
	virtual ~UVexelChatSubsystem();

	/** The instance of the running editor; null before the editor has one. */
	static UVexelChatSubsystem* Get();

	virtual void Initialize(FSubsystemCollectionBase& Collection) override;
	virtual void Deinitialize() override;

	/** A new conversation of the logged-in user; null, with a log line, for an invalid mode or without a user. */
	TSharedPtr<FVexelChatConversation> CreateConversation(const FVexelChatModeInfo& Mode);
	/** Cancels the conversation's request and removes it with its file. */
	void DeleteConversation(const TSharedPtr<FVexelChatConversation>& Conversation);
	TSharedPtr<FVexelChatConversation> FindActiveConversation(const FString& ChatId) const;
	TSharedPtr<FVexelChatConversation> GetNewestConversation() const;
	/** All conversations, the newest first. */
	TArray<TSharedRef<FVexelChatConversation>> GetHistory() const;

	static TArray<FVexelChatModeInfo> GetAllChatModes();
	static FVexelChatModeInfo GetDefaultAgentChatMode();
	static FVexelChatModeInfo GetDefaultChatMode();

	/** Builds a turn in its preparing state; null, with a log line, without such a conversation. An unset checkpoint means the last one. */
	TSharedPtr<FVexelChatRequest> PrepareChatRequest(const FString& ChatId, const FString& Message, const TOptional<FString>& CheckpointId);

	/** Prepares a turn and sends it. An error when the conversation is unknown or has a request in flight already. */
	TVexelExpected<void> SendMessage(const FString& ChatId, const FString& Message);
	/** Cancels the conversation's request; false when it has none. */
	bool CancelRequest(const FString& ChatId);
	bool HasActiveRequest(const FString& ChatId) const;

	FVexelChatEvents& GetEvents() { return Events; }

private:
	void OnMessageRequestStateChanged(const TSharedRef<FVexelChatRequest>& Request);
	void OnMessageRequestUpdated(const TSharedRef<FVexelChatRequest>& Request, int32 BlockIndex);
	void OnAuthDataChanged();

	void OnRequestInProgress(const TSharedRef<FVexelChatRequest>& Request);
	void OnRequestSucceeded(const TSharedRef<FVexelChatRequest>& Request);
	void OnRequestFailed(const TSharedRef<FVexelChatRequest>& Request);

	void HandleSubChain(const TSharedRef<FVexelChatRequest>& Request, const FVexelChatMessageBlock& Block);
	void HandleToolCall(const TSharedRef<FVexelChatRequest>& Request, const FVexelChatMessageBlock& Block);
	void SaveConversation(const FVexelChatConversation& Conversation);

	FVexelChatEvents Events;
	TSharedPtr<FVexelChatHistoryManager> HistoryManager;
	TMap<FString, TSharedRef<FVexelChatRequest>> ActiveRequests;
	FDelegateHandle AuthHandle;
};

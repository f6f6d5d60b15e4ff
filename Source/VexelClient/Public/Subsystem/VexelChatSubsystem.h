#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatConversation.h"
#include "Data/VexelChatHeader.h"
#include "Data/VexelChatRequestState.h"
#include "EditorSubsystem.h"
#include "VexelExpected.h"

#include "VexelChatSubsystem.generated.h"

class FVexelChatHistoryManager;
class FVexelChatImageStore;
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
	/** With what the tool answers to the service, or why it failed. */
	DECLARE_MULTICAST_DELEGATE_FourParams(FOnToolFinished, const FString& /*ChatId*/, const FString& /*ReplyId*/,
		const FString& /*DoneText*/, const TVexelExpected<TSharedRef<FJsonObject>>& /*Answer*/);

	/** An image that the service has shown is at hand now, in a file. */
	DECLARE_MULTICAST_DELEGATE_ThreeParams(FOnImageStored, const FString& /*ChatId*/, const FString& /*AssetId*/, const FString& /*Path*/);

	/** The conversation is another than it was, by more than the running turn: cut back, renamed, set to another mode, taken in, deleted. */
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnConversationChanged, const FString& /*ChatId*/);

	/** What was said stays in memory, and what was stored before as it was. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnSaveFailed, const FString& /*ChatId*/, const FVexelError&);

	FOnBlockAdded OnBlockAdded;
	FOnTextAppended OnTextAppended;
	FOnRequestStateChanged OnRequestStateChanged;
	FOnToolStarted OnToolStarted;
	FOnToolFinished OnToolFinished;
	FOnImageStored OnImageStored;
	FOnConversationChanged OnConversationChanged;
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
	/**
	 * The conversation of an id, opened from its file when it is not open yet. It stays open, and answers of a running request come
	 * into this object. Null where there is none.
	 */
	TSharedPtr<FVexelChatConversation> FindActiveConversation(const FString& ChatId);
	/** The user's conversation that was changed last; null without any. */
	TSharedPtr<FVexelChatConversation> GetNewestConversation();
	/** The user's conversations, the one changed last first, without opening any. While nobody is logged in, those of all users. */
	TArray<FVexelChatHeader> GetHistory() const;
	/** Paths of stored conversations that were damaged and set aside. */
	TArray<FString> GetSetAsideFiles() const;

	// These three are stored at once. They fail for an unknown conversation and for one whose request still runs.

	/** Cuts a conversation back to the checkpoint of an id; what came after it goes. */
	TVexelExpected<void> RevertToCheckpoint(const FString& ChatId, const FString& CheckpointId);
	/** Fails for a title without letters. */
	TVexelExpected<void> SetTitle(const FString& ChatId, const FString& Title);
	/** The mode of later turns. Fails for an invalid mode. */
	TVexelExpected<void> SetChatMode(const FString& ChatId, const FVexelChatModeInfo& Mode);

	/** Images that one message may have. */
	static constexpr int32 MaxAttachedImages = 4;

	/**
	 * Attaches an image to the next message of a conversation and answers its id. Fails for more than MaxAttachedImages, for one of
	 * more than 5 MiB and for what is no PNG, JPEG, GIF or WebP.
	 */
	TVexelExpected<FString> AttachImage(const FString& ChatId, TConstArrayView<uint8> Bytes);
	/** Takes an attached image back; false where it is not attached. */
	bool DetachImage(const FString& ChatId, const FString& AssetId);
	/** Path of an image of a conversation's messages; empty while it is not at hand. */
	FString FindImage(const FString& ChatId, const FString& AssetId) const;

	static TArray<FVexelChatModeInfo> GetAllChatModes();
	/** Those of them that the features of the logged-in account allow; all while the account is not known. */
	static TArray<FVexelChatModeInfo> GetAllowedChatModes();
	static FVexelChatModeInfo GetDefaultAgentChatMode();
	static FVexelChatModeInfo GetDefaultChatMode();

	/** Builds a turn in its preparing state; null, with a log line, without such a conversation. An unset checkpoint means the last one. */
	TSharedPtr<FVexelChatRequest> PrepareChatRequest(const FString& ChatId, const FString& Message, const TOptional<FString>& CheckpointId);

	/** Prepares a turn and sends it. An error when the conversation is unknown or has a request in flight already. */
	TVexelExpected<void> SendMessage(const FString& ChatId, const FString& Message);
	/**
	 * Cancels the conversation's request for the user; false when it has none. What has come of the answer is kept in the conversation,
	 * marked as failed after its last checkpoint.
	 */
	bool CancelRequest(const FString& ChatId);
	bool HasActiveRequest(const FString& ChatId) const;

	FVexelChatEvents& GetEvents() { return Events; }

private:
	void OnMessageRequestStateChanged(const TSharedRef<FVexelChatRequest>& Request);
	void OnMessageRequestUpdated(const TSharedRef<FVexelChatRequest>& Request, int32 BlockIndex);
	void OnAuthDataChanged();

	void OnRequestInProgress(const TSharedRef<FVexelChatRequest>& Request);
	void OnRequestSucceeded(const TSharedRef<FVexelChatRequest>& Request);
	void OnRequestCancelled(const TSharedRef<FVexelChatRequest>& Request);
	void OnRequestFailed(const TSharedRef<FVexelChatRequest>& Request);
	void AddResponseToConversation(const FVexelChatRequest& Request);

	void HandleSubChain(const TSharedRef<FVexelChatRequest>& Request, const FVexelChatMessageBlock& Block);
	/** Has an image of the answer fetched and stored. One that cannot be had stays a reference. */
	void FetchImage(const FString& ChatId, const FVexelChatMessageBlock& Block);
	void OnImageStored(const FString& ChatId, const FString& AssetId, const FString& Path);
	void HandleToolCall(const TSharedRef<FVexelChatRequest>& Request, const FVexelChatMessageBlock& Block);
	/** The conversation of an id, where it may be changed now. */
	TVexelExpected<TSharedRef<FVexelChatConversation>> FindIdleConversation(const FString& ChatId);
	/** Stores a conversation and tells of a failure; the answer is for callers who tell their own. */
	TVexelExpected<void> SaveConversation(const FString& ChatId);
	/** Stores a conversation that the user has changed, and tells of the change. */
	TVexelExpected<void> StoreChange(const FString& ChatId);

	FVexelChatEvents Events;
	TSharedPtr<FVexelChatHistoryManager> HistoryManager;
	TSharedPtr<FVexelChatImageStore> ImageStore;
	TMap<FString, TSharedRef<FVexelChatRequest>> ActiveRequests;
	/** Ids of the images of each conversation's next message. */
	TMap<FString, TArray<FString>> AttachedImages;
	FDelegateHandle AuthHandle;
};

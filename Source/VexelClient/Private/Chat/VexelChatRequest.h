#pragma once

#include "CoreMinimal.h"
#include "Chat/Utils/VexelAnswerReader.h"
#include "Data/VexelChatConversation.h"
#include "Data/VexelChatRequestState.h"
#include "Delegates/Delegate.h"
#include "VexelHttp.h"

class FVexelChatImageStore;

/**
 * One user turn: sends a conversation with a new prompt to the service and cuts the streamed answer into the blocks of the
 * response message as it arrives. Made in Preparing, sent once, then exactly one of Succeeded, Failed or Cancelled. Everything
 * here happens on the game thread but the reading of bytes, which happens on the network thread in order.
 */
class FVexelChatRequest : public TSharedFromThis<FVexelChatRequest>
{
public:
	DECLARE_DELEGATE_OneParam(FOnStateChanged, const TSharedRef<FVexelChatRequest>&);
	/** A new block of the response message. */
	DECLARE_DELEGATE_TwoParams(FOnBlock, const TSharedRef<FVexelChatRequest>&, int32 /*BlockIndex*/);
	/** Text added to a block of the response message. */
	DECLARE_DELEGATE_ThreeParams(FOnText, const TSharedRef<FVexelChatRequest>&, int32 /*BlockIndex*/, FStringView);

	/** @param Images Where the bytes of the messages' images are; null for a conversation without. */
	FVexelChatRequest(const TSharedRef<FVexelChatConversation>& Conversation, FVexelChatMessage Prompt, FString CheckpointId, FString UserId,
		TSharedPtr<const FVexelChatImageStore> Images);
	~FVexelChatRequest();

	/** The body that Send() posts; null, with a log line, for a conversation that cannot be sent. */
	TSharedPtr<FJsonObject> PreparePayload() const;

	/** Sends the turn. Refused with a log line when not Preparing, or when the conversation cannot be sent. */
	bool Send(FVexelHttp& ApiClient);

	/**
	 * Ends the turn at any moment: nothing that arrives later is read, and no tool is called any more. The state changes to
	 * Cancelled when the connection is gone.
	 * @param bKeepAnswer Whether what has come of the answer is of use to whoever asked.
	 */
	void Cancel(bool bKeepAnswer = false);
	bool KeepsAnswer() const { return bKeepsAnswer; }

	/** Reads a report of the whole body received so far. Called by the request itself; in the order of arrival. */
	void OnBodyReceived(TConstArrayView<uint8> WholeBody);

	EVexelChatRequestState GetState() const { return State; }
	bool IsFinal() const { return State > EVexelChatRequestState::InProgress; }
	/** Whether the answer, and the replies to its tool calls, are still of use: until the request is cancelled or fails. */
	bool IsWanted() const { return !bCancelled && State <= EVexelChatRequestState::Succeeded; }
	const FString& GetChatId() const { return Conversation->GetChatId(); }
	/** Who was logged in when the request was made. */
	const FString& GetUserId() const { return UserId; }
	const FString& GetCheckpointId() const { return CheckpointId; }
	const TSharedRef<FVexelChatConversation>& GetConversation() const { return Conversation; }
	/** Puts the prompt at the conversation's end. */
	void AddPromptToConversation();
	/** Where the prompt stands in the conversation; INDEX_NONE before it was put there and when it is there no more. */
	int32 FindPromptInConversation() const;
	FVexelChatMessage& GetResponse() { return Reader.GetResponse(); }
	const FVexelChatMessage& GetResponse() const { return Reader.GetResponse(); }
	/** Why a failed request failed. */
	const TOptional<FVexelError>& GetError() const { return Error; }

	void PushSubAgentChatId(const FString& SubChatId);
	/** Pops the innermost sub-agent; a mismatch with the id that the tag names is logged. */
	void PopSubAgentChatId(const FString& ExpectedSubChatId);
	/** Chat that a tool reply is addressed to: the innermost sub-agent's, else the request's own. */
	FString GetChatIdForToolReply() const;

	FOnStateChanged OnStateChanged;
	FOnBlock OnBlock;
	FOnText OnText;

private:
	TArray<TSharedPtr<FJsonValue>> PrepareMessages() const;
	bool SetInProgress();
	void Complete(EVexelChatRequestState FinalState);
	void OnHttpComplete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result);
	FVexelError MakeFailure(const FVexelError& Cause) const;

	TSharedRef<FVexelChatConversation> Conversation;
	FVexelChatMessage Prompt;
	/** The prompt's key in the conversation; 0 before it is there. */
	int32 PromptKey = 0;
	FString CheckpointId;
	FString UserId;
	TSharedPtr<const FVexelChatImageStore> Images;
	EVexelChatRequestState State = EVexelChatRequestState::Preparing;
	/** From the user's word to the end of the connection the state is still InProgress. */
	bool bCancelled = false;
	bool bKeepsAnswer = false;
	TOptional<FVexelError> Error;
	TArray<FString> SubAgentChatIds;
	/** Takes bytes on the network thread and reads text on the game thread. */
	FVexelAnswerReader Reader;
	TSharedPtr<FVexelHttpRequest> HttpRequest;
};

#pragma once

#include "CoreMinimal.h"
#include "Chat/Utils/VexelChunkParser.h"
#include "Chat/Utils/VexelUtf8Stream.h"
#include "Data/VexelChatConversation.h"
#include "Data/VexelChatRequestState.h"
#include "Delegates/Delegate.h"
#include "VexelHttp.h"

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

	FVexelChatRequest(const TSharedRef<FVexelChatConversation>& Conversation, FVexelChatMessage Prompt, FString CheckpointId, FString UserId);
	~FVexelChatRequest();

	/** Sends the turn. Refused with a log line when not Preparing, or when the conversation cannot be sent. */
	bool Send(FVexelHttp& ApiClient);

	/** Ends the turn at any moment; the state changes to Cancelled when the connection is gone. */
	void Cancel();

	/** Reads a report of the whole body received so far. Called by the request itself; in the order of arrival. */
	void OnBodyReceived(TConstArrayView<uint8> WholeBody);

	EVexelChatRequestState GetState() const { return State; }
	bool IsFinal() const { return State > EVexelChatRequestState::InProgress; }
	const FString& GetChatId() const { return Conversation->GetChatId(); }
	/** Who was logged in when the request was made. */
	const FString& GetUserId() const { return UserId; }
	const FString& GetCheckpointId() const { return CheckpointId; }
	const TSharedRef<FVexelChatConversation>& GetConversation() const { return Conversation; }
	const FVexelChatMessage& GetPrompt() const { return Prompt; }
	FVexelChatMessage& GetResponse() { return Response; }
	const FVexelChatMessage& GetResponse() const { return Response; }
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
	/** Puts what the parser finds into the response. */
	class FSink : public IVexelChunkSink
	{
	public:
		explicit FSink(FVexelChatRequest& InRequest)
			: Request(InRequest)
		{
		}
		virtual void OnText(FStringView Text) override;
		virtual void OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info) override;

	private:
		FVexelChatRequest& Request;
	};

	TSharedPtr<FJsonObject> PreparePayload() const;
	bool SetInProgress();
	void Complete(EVexelChatRequestState FinalState);
	void OnHttpComplete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Result);
	FVexelError MakeFailure(const FVexelError& Cause) const;
	void ParseOnGameThread(FString Text);

	TSharedRef<FVexelChatConversation> Conversation;
	FVexelChatMessage Prompt;
	FVexelChatMessage Response;
	FString CheckpointId;
	FString UserId;
	EVexelChatRequestState State = EVexelChatRequestState::Preparing;
	TOptional<FVexelError> Error;
	TArray<FString> SubAgentChatIds;
	FSink Sink;
	FVexelChunkParser Parser;
	TSharedPtr<FVexelHttpRequest> HttpRequest;

	/** Of the network thread while the request runs. */
	int64 NumProcessedBytes = 0;
	FVexelUtf8Stream Utf8Stream;
};

#pragma once

#include "Chat/Utils/VexelChunkParser.h"
#include "Chat/Utils/VexelUtf8Stream.h"
#include "CoreMinimal.h"
#include "Data/VexelChatMessage.h"

/**
 * Makes the response message of a turn from the bytes of its answer, while they arrive. Bytes are taken on one thread and text is
 * read on one thread, which may be another; both in order.
 */
class FVexelAnswerReader final : private IVexelChunkSink
{
public:
	FVexelAnswerReader();
	UE_NONCOPYABLE(FVexelAnswerReader)

	/** The new text of a report of the whole body received so far. A report of a shorter body is logged and ignored. */
	FString TakeNewText(TConstArrayView<uint8> WholeBody);
	int32 GetNumProcessedBytes() const { return NumProcessedBytes; }

	/** Cuts text into the response's blocks. */
	void Read(FStringView Text);
	/** Ends the answer: what still waits for its rest becomes text. No thread may take bytes any more. */
	void Finish();
	/** What comes later is not read, nor the rest of the piece that is being read now. */
	void Stop() { bStopped = true; }

	FVexelChatMessage& GetResponse() { return Response; }
	const FVexelChatMessage& GetResponse() const { return Response; }

	/** Called while text is read: a new block of the response, and text that was added to a block. Both must be set. */
	TFunction<void(int32 BlockIndex)> OnBlock;
	TFunction<void(int32 BlockIndex, FStringView Text)> OnTextAdded;

private:
	virtual void OnText(FStringView Text) override;
	virtual void OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info) override;

	FVexelChatMessage Response;
	FVexelChunkParser Parser;
	bool bStopped = false;

	/** Of the thread that takes bytes. */
	int32 NumProcessedBytes = 0;
	FVexelUtf8Stream Utf8Stream;
};

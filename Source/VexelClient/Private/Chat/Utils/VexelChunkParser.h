#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatMessageBlockType.h"

class FJsonObject;

/** Receives what the parser cuts out of an answer, in the answer's order, inside the call that completed it. */
class IVexelChunkSink
{
public:
	virtual ~IVexelChunkSink() = default;

	/** Text outside tags. One run of text may come in several pieces. The view holds only during the call. */
	virtual void OnText(FStringView Text) = 0;

	/** A whole tag with its information object, which is the sink's to keep. */
	virtual void OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info) = 0;
};

/**
 * Cuts a streamed answer into text and self-closing tags:
 *
 *     I look at the door. <ToolCall info={"tool_name":"read_blueprint","reply_id":"1","blueprint":"/Game/BP_Door"}/>
 *
 * Chunks may end anywhere, inside an opening, a value or an escape too. A tag holds attributes "key=value" whose value is JSON;
 * a value without a key is the key "info". What looks like a tag but breaks the grammar is text again, as it came; so is a tag
 * that is still open when the answer ends, grows past MaxTagLength or nests past MaxValueDepth. Single-threaded: chunks come in order.
 */
class FVexelChunkParser
{
public:
	/** Longest tag, in characters. An image's bytes are not in its tag, so a real one is far shorter. */
	static constexpr int32 MaxTagLength = 8 * 1024 * 1024;

	/** Deepest value. One that JSON itself still takes could not be stored any more, being part of a conversation. */
	static constexpr int32 MaxValueDepth = 64;

	explicit FVexelChunkParser(IVexelChunkSink& Sink);

	void Parse(FStringView Chunk);

	/** Ends the answer: whatever still waits for its rest becomes text. */
	void Finish();

private:
	enum class EState : uint8
	{
		Text,
		Opening,
		BeforeKey,
		Key,
		BeforeEquals,
		BeforeValue,
		Value,
		Closing
	};

	/** How the value being read ends. */
	enum class EValueForm : uint8
	{
		/** With the brace or bracket that closes the first one. */
		Nested,
		/** With its closing quote. */
		String,
		/** Before a blank, a slash or the tag's end. */
		Bare
	};

	void ReadOpening(TCHAR Character);
	void ReadBeforeKey(TCHAR Character);
	void ReadKey(TCHAR Character);
	void ReadBeforeEquals(TCHAR Character);
	void ReadBeforeValue(TCHAR Character);
	void ReadValue(TCHAR Character);
	void ReadClosing(TCHAR Character);

	void BeginTag(EVexelChatMessageBlockType Type);
	void BeginValue(TCHAR Character);
	/** Ends a value at the end of what is held. */
	void EndValue();
	/** Ends a value with the character being read, which Parse() holds only afterwards. */
	void EndValueWith(TCHAR Character);
	void EndTag();
	/** Gives back what was held as text; the character that broke it is read again in text mode. */
	void RevertToText();

	IVexelChunkSink& Sink;
	EState State = EState::Text;

	/** All of the tag so far, from its "<", to be given back as text when it turns out to be none. */
	FString Held;
	/** Set by a reader that did not take its character: it is read again in the new state. */
	bool bReadAgain = false;

	EVexelChatMessageBlockType TagType = EVexelChatMessageBlockType::Text;
	TSharedPtr<FJsonObject> Info;
	FString Key;
	int32 KeyStart = 0;
	int32 ValueStart = 0;
	EValueForm ValueForm = EValueForm::Bare;
	int32 Depth = 0;
	bool bInString = false;
	bool bEscaped = false;
};

#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"
#include "Templates/Function.h"
#include "Templates/UniquePtr.h"

/** How the reading of a line ended. */
enum class EReadLine : uint8
{
	Line,
	/** Ctrl-C: what was typed is gone. */
	Interrupted,
	/** Ctrl-D, or the end of the file. */
	End,
};

/** Texts that can stand in the place of the word before the cursor. */
struct FCompletions
{
	/** Where that word begins in the line. */
	int32 WordBegin = 0;
	TArray<FString> Texts;
};

/** Reads lines from the user: edited, completed and remembered on a terminal, plain from anything else. One a process. */
class FLineReader
{
public:
	/** Answers completions of a line that ends at the cursor. */
	using FComplete = TFunction<FCompletions(const FString& Line)>;
	/** Called many times a second while the user types. */
	using FIdle = TFunction<void()>;

	/** @param HistoryPath File that keeps the lines of earlier programs. */
	FLineReader(const FString& HistoryPath, FComplete Complete, FIdle Idle);
	~FLineReader();
	UE_NONCOPYABLE(FLineReader)

	/** The next line without its end goes to OutLine. */
	EReadLine ReadLine(const FStyledLine& Prompt, FString& OutLine);

private:
	class FEditor;

	TUniquePtr<FEditor> Editor;
};

/** Keeps what the user types from showing, and for the next line, as long as it lives. Does nothing without a terminal. */
class FQuietInput
{
public:
	FQuietInput();
	~FQuietInput();
	UE_NONCOPYABLE(FQuietInput)

	/** The same again, after a line was read: the line editor leaves the terminal as a shell wants it. */
	void Renew();

private:
	struct FState;
	TUniquePtr<FState> State;
};

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** Reads lines from the user: edited and remembered on a terminal, plain from anything else. */
class FLineReader
{
public:
	/** @param HistoryPath File that keeps the lines of earlier programs. */
	explicit FLineReader(const FString& HistoryPath);
	~FLineReader();
	UE_NONCOPYABLE(FLineReader)

	/** The next line without its end, or nothing at the end of input. */
	TOptional<FString> ReadLine(const FString& Prompt);

private:
	bool bTerminal;
	FString HistoryPath;
};

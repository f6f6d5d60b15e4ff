#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

/** A text file, in lines. */
struct FVexelSourceText
{
	/** "utf-8", "utf-16" or "windows-1252"; a literal. */
	const TCHAR* Encoding = TEXT("");
	/** Without their ends. What stands behind the last end is a line when there is something. */
	TArray<FString> Lines;

	/** Reads a whole file. "Invalid input" for one that is larger than 8 MB or no text, "Tool call failed" for one that cannot be read. */
	static TVexelExpected<FVexelSourceText> Load(const FString& File);

	/** Lines, counted from 1, each with an end. */
	FString Join(int32 FirstLine, int32 LastLine) const;
};

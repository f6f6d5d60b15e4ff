#pragma once

#include "CoreMinimal.h"

#include <string>

/** Helpers for texts and strings. Any thread. */
class VEXELCORE_API FVexelStringUtil
{
public:
	/** The source string of a localised text, before any translation; false for a text that was put together of others. */
	static bool TryGetTextSource(const FText& Text, FString& OutSource);

	/**
	 * A text that can do nothing to a terminal but be read there: every control character is a replacement character, but for
	 * tabs and line ends; a carriage return in front of a line end goes.
	 */
	static FString ToPrintable(FStringView Text);

	/** The same on one line, with each run of blanks and line ends a single blank, and cut where it is longer than the limit. */
	static FString ToPrintableLine(FStringView Text, int32 MaxLength);

	/** The string as UTF-8; unpaired surrogates become replacement characters. */
	static std::string ToStdStringUtf8(const FString& String);
};

#pragma once

#include "CoreMinimal.h"

#include <string>

/** Helpers for texts and strings. Any thread. */
class VEXELCORE_API FVexelStringUtil
{
public:
	/** The source string of a localised text, before any translation; false for a text that was put together of others. */
	static bool TryGetTextSource(const FText& Text, FString& OutSource);

	/** The string as UTF-8; unpaired surrogates become replacement characters. */
	static std::string ToStdStringUtf8(const FString& String);
};

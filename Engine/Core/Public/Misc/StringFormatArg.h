#pragma once

#include "Containers/UnrealString.h"

/** One value of FString::Format(), kept as the text that it will become. */
struct CORE_API FStringFormatArg
{
	FStringFormatArg(int32 Value);
	FStringFormatArg(uint32 Value);
	FStringFormatArg(int64 Value);
	FStringFormatArg(uint64 Value);
	FStringFormatArg(float Value);
	FStringFormatArg(double Value);
	FStringFormatArg(FString Value);
	FStringFormatArg(FStringView Value);
	FStringFormatArg(const TCHAR* Value);
	FStringFormatArg(const ANSICHAR* Value);

	FString Text;
};

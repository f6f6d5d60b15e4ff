#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"

enum class EBase64Mode : uint8
{
	/** With '+', '/' and padding. */
	Standard,
	/** With '-', '_', and no padding. */
	UrlSafe
};

struct CORE_API FBase64
{
	/** Of a text, its UTF-8 bytes are meant. */
	static FString Encode(const FString& Source, EBase64Mode Mode = EBase64Mode::Standard);
	static FString Encode(const TArray<uint8>& Source, EBase64Mode Mode = EBase64Mode::Standard);
	static FString Encode(const uint8* Source, uint32 Length, EBase64Mode Mode = EBase64Mode::Standard);
	/** Answers false, with an empty result, for anything that is not base 64. */
	static bool Decode(const FString& Source, FString& OutDest, EBase64Mode Mode = EBase64Mode::Standard);
	static bool Decode(const FString& Source, TArray<uint8>& OutDest, EBase64Mode Mode = EBase64Mode::Standard);
	static constexpr uint32 GetEncodedDataSize(uint32 NumBytes) { return (NumBytes + 2) / 3 * 4; }
};

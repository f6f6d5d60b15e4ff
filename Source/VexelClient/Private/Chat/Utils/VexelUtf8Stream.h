#pragma once

#include "CoreMinimal.h"

/** Reads UTF-8 that arrives in pieces cut anywhere. A byte that belongs to no character becomes U+FFFD. */
class FVexelUtf8Stream
{
public:
	/** The text of the bytes, and of those kept from before; an unfinished last character is kept for the next piece. */
	FString Convert(TConstArrayView<uint8> Bytes);

	/** Ends the stream: what is still kept becomes U+FFFD. */
	FString Finish();

private:
	/** The first bytes of a character whose rest has not arrived; at most three. */
	TArray<uint8, TInlineAllocator<4>> Kept;
};

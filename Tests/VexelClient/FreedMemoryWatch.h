#pragma once

#include "CoreMinimal.h"

/**
 * Looks into the blocks that the process frees while this lives, on any thread, for a text in the engine's own characters. One at
 * a time. Under a sanitizer, which frees in its own way, it sees nothing: IsAble() says so.
 */
class FFreedMemoryWatch
{
public:
	/** @param Block The one block to look at; every block without one. */
	explicit FFreedMemoryWatch(const FString& Needle, const void* Block = nullptr);
	~FFreedMemoryWatch();
	UE_NONCOPYABLE(FFreedMemoryWatch)

	static bool IsAble();
	/** How many blocks were freed that are looked at. */
	int32 GetNumFreed() const;
	/** How many of them held the text. */
	int32 GetNumFound() const;
};

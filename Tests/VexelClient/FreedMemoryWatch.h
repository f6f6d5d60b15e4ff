#pragma once

#include "CoreMinimal.h"

/**
 * Looks into every block that the process frees while this lives, on any thread, for a text in the engine's own characters. One at
 * a time. Under a sanitizer, which frees in its own way, it sees nothing: IsAble() says so.
 */
class FFreedMemoryWatch
{
public:
	explicit FFreedMemoryWatch(const FString& Needle);
	~FFreedMemoryWatch();
	UE_NONCOPYABLE(FFreedMemoryWatch)

	static bool IsAble();
	/** How many freed blocks held the text. */
	int32 GetNumFound() const;
};

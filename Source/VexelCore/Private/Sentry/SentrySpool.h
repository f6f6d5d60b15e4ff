#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** Envelopes that wait on disk, each a file. Full, it loses its oldest. One thread at a time. */
class FSentrySpool
{
public:
	static constexpr int32 MaxFiles = 100;
	static constexpr int64 MaxFileBytes = 256 * 1024;

	explicit FSentrySpool(const FString& Directory);

	/** An envelope that is too large is left out. */
	void Add(const FString& Envelope);

	struct FWaiting
	{
		FString Path;
		FString Envelope;
	};
	/** The one that has waited longest; unset when none does. Files that cannot be read or are none of ours are deleted. */
	TOptional<FWaiting> FindOldest() const;
	void Remove(const FWaiting& Waiting);

private:
	/** Names in the order in which they were added. */
	TArray<FString> List() const;

	FString Directory;
};

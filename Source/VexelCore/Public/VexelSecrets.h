#pragma once

#include "CoreMinimal.h"

/** The secrets that went through this process, so that no line of the log and no text that leaves the process holds one. Any thread. */
class VEXELCORE_API FVexelSecrets
{
public:
	/**
	 * Remembers a secret, as it is and as it stands in an address. The secure store, authenticated requests and logins remember
	 * theirs by themselves. Texts of fewer than eight characters are not remembered: words of a report would vanish for nothing.
	 */
	static void Add(const FString& Secret);

	/** The text with every remembered secret, and whatever follows "Bearer ", replaced. */
	static FString Redact(const FString& Text);
};

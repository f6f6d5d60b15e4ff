#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** Where reports go, taken from "https://PUBLICKEY@host/prefix/PROJECT". */
struct FSentryDsn
{
	/** Unset for a text that is none. */
	static TOptional<FSentryDsn> Parse(const FString& Text);

	/** "https://host/prefix/api/PROJECT/envelope/" */
	FString EnvelopeUrl;
	FString PublicKey;
};

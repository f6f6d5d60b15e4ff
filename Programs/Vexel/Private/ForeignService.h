#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

/** What a service that is not this program's own needs before the plug-in talks to it. */
namespace ForeignService
{
/**
 * Answers why an address cannot be a service's, or nothing: it must be one of https, or one of this machine, since a token goes
 * there.
 */
TOptional<FString> CheckAddress(const FString& Url);

/**
 * Makes the plug-in log in with that service's own stored token, never with another's, and stores the one of "--token-fd" there
 * first when there is one: a refresh token, read from an open file descriptor to its first line end or its end.
 */
TOptional<FString> Prepare(const FString& Url, const FString& TokenDescriptor);
}

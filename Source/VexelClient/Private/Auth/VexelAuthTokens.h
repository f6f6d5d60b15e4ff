#pragma once

#include "Auth/VexelAuthSecret.h"
#include "Misc/Optional.h"

class FVexelSecretFields;

/** What a token endpoint answers. Complete only with both tokens and a life time. */
struct FTokenResponse
{
	/** A token that could not stand in a header counts as none. */
	static FTokenResponse Parse(const FVexelSecretFields& Fields);

	bool IsComplete() const { return !AccessToken.IsEmpty() && !RefreshToken.IsEmpty() && ExpiresInSeconds.IsSet(); }

	FVexelAuthSecret AccessToken;
	FVexelAuthSecret RefreshToken;
	TOptional<double> ExpiresInSeconds;
};

namespace VexelAuthTokens
{
/**
 * The user's id, which is the subject claim of the access token; empty without one. The signature is the service's business: the
 * id addresses and displays, it grants nothing.
 */
FString ReadUserId(const FString& AccessToken);

/** A life time within what can be counted on: a service may say anything. */
double ClampLife(double ExpiresInSeconds);

/** How long after its arrival a token of that life time is to be replaced: a little before it expires. */
double GetRefreshDelay(double ExpiresInSeconds);
}

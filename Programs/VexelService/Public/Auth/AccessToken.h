#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace VexelService
{

/** What an access token says. Times are seconds since 1970, UTC. */
struct FAccessClaims
{
	/** The user's id. */
	std::string Subject;
	/** The client id that the token was issued to. */
	std::string Audience;
	/** The refresh-token family that the token came from; a revoked family takes its access tokens with it. */
	std::string Family;
	/** The hash of the refresh token that was issued along with it. */
	std::string Grant;
	std::int64_t IssuedAt = 0;
	std::int64_t ExpiresAt = 0;
};

/** Writes the claims as a signed JSON Web Token (HS256). */
std::string SignAccessToken(const FAccessClaims& Claims, std::string_view Key);

/** The claims of a token that this key signed; nothing for any other text. The caller checks expiry and audience. */
std::optional<FAccessClaims> ReadAccessToken(std::string_view Token, std::string_view Key);

}

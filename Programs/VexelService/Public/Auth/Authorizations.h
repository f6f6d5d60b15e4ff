#pragma once

#include "Auth/TokenService.h"
#include "Server/ServiceConfig.h"
#include "Support/Refusal.h"

#include <cstdint>
#include <list>
#include <mutex>
#include <string>
#include <string_view>

namespace VexelService
{

/** The redirect URI of a client that has no server of its own: it fetches the code by polling alone. */
inline constexpr std::string_view NoRedirectUri = "urn:vexel:oauth:noredirect";

/** What a client asks for on the authorization page. */
struct FAuthorizationRequest
{
	std::string ClientId;
	std::string RedirectUri;
	/** Base64url of the SHA-256 of a verifier that only the client knows. */
	std::string CodeChallenge;
	/** The client's own secret mark of this login. */
	std::string State;
	std::string DeviceId;
};

/** How a client that polls names its login. */
struct FPolledLogin
{
	std::string ClientId;
	std::string DeviceId;
	std::string State;
};

/** An authorization code with everything that must fit it. */
struct FCodeExchange
{
	std::string Code;
	std::string RedirectUri;
	std::string ClientId;
	std::string CodeVerifier;
	std::string DeviceId;
	std::string State;
};

enum class EAuthorizationStatus
{
	/** Never asked for, or so long ago that it is forgotten. */
	Unknown,
	/** The user has not decided. */
	Pending,
	Approved,
	Denied
};

/**
 * The logins that are under way: each waits for the user's decision, then has a code that is exchanged once, for tokens. In memory
 * alone, since none outlives ten minutes. Any thread.
 */
class FAuthorizations
{
public:
	/** How many are kept; beyond it the oldest is forgotten. */
	static constexpr std::size_t MaxAuthorizations = 256;

	FAuthorizations(const FLoginConfig& Config, FTokenService& InTokens, FClock InClock);

	/** Answers why a request cannot be one of this service's client, or a request that can. */
	TOrRefusal<FAuthorizationRequest> Check(FAuthorizationRequest Request) const;

	/** Keeps a checked request for the user's decision. Returns its id, which is no secret. */
	std::string Add(FAuthorizationRequest Request);

	/** The user's decision, taken once. Returns the address that the browser goes to with it; empty for a client without one. */
	TOrRefusal<std::string> Decide(std::string_view Id, bool bApprove);

	EAuthorizationStatus GetStatus(std::string_view Id) const;
	EAuthorizationStatus GetStatus(const FPolledLogin& Login) const;

	/** The code of an approved login, for the client that shows its verifier. */
	TOrRefusal<std::string> GetCode(const FPolledLogin& Login, std::string_view CodeVerifier) const;

	/**
	 * Spends a code. Whatever does not fit spends it too, so that nobody can try verifiers; using it again revokes the tokens
	 * that it gave, because one of the two users stole it.
	 */
	TOrRefusal<FTokenSet> Redeem(const FCodeExchange& Exchange);

private:
	struct FRecord
	{
		std::string Id;
		FAuthorizationRequest Request;
		EAuthorizationStatus Status = EAuthorizationStatus::Pending;
		std::int64_t ExpiresAt = 0;
		std::string Code;
		std::int64_t CodeExpiresAt = 0;
		bool bSpent = false;
		/** The session that the code opened; empty until then. */
		std::string Family;
	};

	/** The first of the records that has not expired and fits; null for none. The mutex is held. */
	template <typename TRecords, typename TPredicate>
	static auto* FindIn(TRecords& In, std::int64_t Now, TPredicate Fits);
	const FRecord* FindLogin(const FPolledLogin& Login) const;

	const std::int64_t RequestLifetime;
	const std::int64_t CodeLifetime;
	FTokenService& Tokens;
	const FClock Clock;
	mutable std::mutex Mutex;
	/** The oldest first. So few that each is looked at, with a comparison whose time says nothing. */
	std::list<FRecord> Records;
};

}

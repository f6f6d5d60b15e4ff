#pragma once

#include "Auth/StateFile.h"
#include "Server/ServiceConfig.h"
#include "Support/Refusal.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** What a token request answers. */
struct FTokenSet
{
	std::string AccessToken;
	std::string RefreshToken;
	std::int64_t ExpiresInSeconds = 0;
	/** Names the session that the tokens belong to, for RevokeFamily; not for clients. */
	std::string Family;
};

/** Seconds since 1970, UTC. */
using FClock = std::function<std::int64_t()>;

FClock SystemClock();

/**
 * Issues and checks the service's tokens. A refresh token works once: using it gives its successor, and using it again
 * revokes every token that descends from the same first one, because one of the two users stole it. Only hashes of refresh
 * tokens are kept. All members may be called from any thread.
 */
class FTokenService
{
public:
	/** Takes up the saved state, or starts afresh with a new key and client id. The user id of a fresh state is always "local-user". */
	static TOrRefusal<std::unique_ptr<FTokenService>> Open(const FServiceConfig& Config, FStateFile State, FClock Clock);

	const std::string& GetClientId() const { return ClientId; }
	const std::string& GetUserId() const { return UserId; }

	/** Starts a new family for the local user and returns its first refresh token. */
	TOrRefusal<std::string> MintRefreshToken();

	/** Starts a new family for the local user, who has just agreed to it. */
	TOrRefusal<FTokenSet> StartSession();

	/** Spends a refresh token. */
	TOrRefusal<FTokenSet> Refresh(std::string_view RefreshToken, std::string_view ForClient);

	/** Revokes the family of a refresh or access token of this client. A token that is not known is no error. */
	TOrRefusal<bool> Revoke(std::string_view Token, std::string_view ForClient);

	/** Ends a session. One that is not known, or no longer, is no error. */
	TOrRefusal<bool> RevokeFamily(const std::string& Family);

	/** The id of the user whom an Authorization header names; refused with status 401. */
	TOrRefusal<std::string> Authorize(std::string_view AuthorizationHeader) const;

private:
	struct FRefreshRecord
	{
		std::string Hash;
		std::string Family;
		std::int64_t ExpiresAt = 0;
		bool bSpent = false;
	};

	FTokenService(const FServiceConfig& Config, FStateFile InState, FClock InClock);

	bool TakeUp(const FJson& Document);
	FJson Describe() const;
	bool SaveOrRestore(std::vector<FRefreshRecord> Earlier);
	/** Adds the family's next refresh token and saves; Earlier is what stands again when that fails. The mutex is held. */
	TOrRefusal<FTokenSet> Issue(const std::string& Family, std::vector<FRefreshRecord> Earlier);
	/** Drops and saves. The mutex is held. */
	TOrRefusal<bool> EndFamily(const std::string& Family);
	FRefreshRecord* FindRecord(std::string_view RefreshToken);
	std::string AddRecord(const std::string& Family);
	void DropFamily(const std::string& Family);

	const std::int64_t AccessLifetime;
	const std::int64_t RefreshLifetime;
	const FStateFile State;
	const FClock Clock;
	std::string SigningKey;
	std::string ClientId;
	std::string UserId;
	mutable std::mutex Mutex;
	std::vector<FRefreshRecord> Records;
};

}

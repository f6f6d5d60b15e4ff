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
 *
 * There is one second chance. A client that dies between the answer and its disk still has the used token and nothing else, and its
 * user would be logged out. So the token that was used last works once more for a short grace, as long as nothing of what it gave
 * was ever used. That is traded for this: who steals the token and uses it within the grace, before its owner does anything
 * at all with the successor, is not found out at once. Neither keeps what the other holds, though: the first answer is void from
 * then on, and whoever shows its refresh token ends the session for both.
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
		/** The hash of what it gave when it was used last; empty before. */
		std::string Successor;
		/** Until when, once it is spent, it may work once more; 0 when it has done so. */
		std::int64_t SecondChanceEndsAt = 0;
		/** Whether another token was given in its place: it is spent, and its access token is none any more. */
		bool bVoid = false;
		/**
		 * Whether its access token was shown. Not saved, as that would be a write for each first request: a service that is
		 * started again within the grace takes it for unused.
		 */
		mutable bool bAccessUsed = false;
	};

	FTokenService(const FServiceConfig& Config, FStateFile InState, FClock InClock);

	bool TakeUp(const FJson& Document);
	FJson Describe() const;
	bool SaveOrRestore(std::vector<FRefreshRecord> Earlier);
	/**
	 * Adds the family's next refresh token, as the successor of the one that was shown for it, and saves; Earlier is what stands
	 * again when that fails. The mutex is held.
	 */
	TOrRefusal<FTokenSet> Issue(const std::string& Family, const std::string& ShownHash, std::vector<FRefreshRecord> Earlier);
	/** What a used token gave, where that was never used and the token may be used once more; null otherwise. The mutex is held. */
	FRefreshRecord* FindUnusedSuccessor(const FRefreshRecord& Used);
	/** Drops and saves. The mutex is held. */
	TOrRefusal<bool> EndFamily(const std::string& Family);
	FRefreshRecord* FindRecord(std::string_view RefreshToken);
	FRefreshRecord* FindHash(std::string_view Hash);
	/** The token of a new record, which is the last one. */
	std::string AddRecord(const std::string& Family);
	void DropFamily(const std::string& Family);

	const std::int64_t AccessLifetime;
	const std::int64_t RefreshLifetime;
	const std::int64_t RefreshGrace;
	const FStateFile State;
	const FClock Clock;
	std::string SigningKey;
	std::string ClientId;
	std::string UserId;
	mutable std::mutex Mutex;
	std::vector<FRefreshRecord> Records;
};

}

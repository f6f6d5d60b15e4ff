#include "Auth/TokenService.h"

#include "Auth/AccessToken.h"
#include "Auth/Crypto.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t SecretBytes = 32;

// The one user of every local service: conversations are filed by it, so it must not change from run to run.
constexpr const char* LocalUserId = "local-user";

FRefusal BadGrant()
{
	return {400, "The refresh token is not valid.", "invalid_grant"};
}

FRefusal UnknownClient()
{
	return {401, "The client id is not known.", "invalid_client"};
}

FRefusal StateNotSaved()
{
	return {500, "The service could not save its state.", "server_error"};
}

FRefusal NotAuthorized(std::string Detail)
{
	return {401, std::move(Detail)};
}

std::string HashOf(std::string_view Token)
{
	return Base64UrlEncode(Sha256(Token));
}

bool StartsWithIgnoringCase(std::string_view Text, std::string_view Prefix)
{
	return Text.size() >= Prefix.size() && std::equal(Prefix.begin(), Prefix.end(), Text.begin(), [](char A, char B)
											   { return (A | 0x20) == (B | 0x20); });
}

}

FClock SystemClock()
{
	return []
	{
		using namespace std::chrono;
		return static_cast<std::int64_t>(duration_cast<seconds>(system_clock::now().time_since_epoch()).count());
	};
}

FTokenService::FTokenService(const FServiceConfig& Config, FStateFile InState, FClock InClock)
	: AccessLifetime(Config.AccessTokenLifetime.count())
	, RefreshLifetime(Config.RefreshTokenLifetime.count())
	, RefreshGrace(Config.RefreshTokenGrace.count())
	, State(std::move(InState))
	, Clock(std::move(InClock))
{
}

TOrRefusal<std::unique_ptr<FTokenService>> FTokenService::Open(const FServiceConfig& Config, FStateFile State, FClock Clock)
{
	std::unique_ptr<FTokenService> Service(new FTokenService(Config, std::move(State), std::move(Clock)));
	const TOrRefusal<FJson> Saved = Service->State.Load();
	if (!Saved)
	{
		return Saved.Error();
	}
	if (Saved->is_null())
	{
		Service->SigningKey = RandomBytes(SecretBytes);
		Service->ClientId = "vexel-" + RandomId();
		Service->UserId = LocalUserId;
	}
	else if (!Service->TakeUp(*Saved))
	{
		return FRefusal{500, "the saved state lacks a key, a client id or a user id"};
	}
	return Service;
}

TOrRefusal<std::string> FTokenService::MintRefreshToken()
{
	const std::lock_guard Lock(Mutex);
	std::vector<FRefreshRecord> Earlier = Records;
	std::string Token = AddRecord(RandomId());
	if (!SaveOrRestore(std::move(Earlier)))
	{
		return StateNotSaved();
	}
	return Token;
}

TOrRefusal<FTokenSet> FTokenService::Refresh(std::string_view RefreshToken, std::string_view ForClient)
{
	if (ForClient != ClientId)
	{
		return UnknownClient();
	}
	const std::lock_guard Lock(Mutex);
	FRefreshRecord* const Record = FindRecord(RefreshToken);
	if (!Record)
	{
		return BadGrant();
	}
	std::vector<FRefreshRecord> Earlier = Records;
	const std::string Family = Record->Family;
	const std::string Hash = Record->Hash;
	if (!Record->bSpent)
	{
		Record->bSpent = true;
		Record->SecondChanceEndsAt = Clock() + RefreshGrace;
		return Issue(Family, Hash, std::move(Earlier));
	}
	if (FRefreshRecord* const Unused = FindUnusedSuccessor(*Record))
	{
		// It stays, as one that is used up for good: whoever shows it ends the session.
		Unused->bSpent = true;
		Unused->bVoid = true;
		Record->SecondChanceEndsAt = 0;
		return Issue(Family, Hash, std::move(Earlier));
	}
	const TOrRefusal<bool> Revoked = EndFamily(Family);
	return Revoked ? BadGrant() : Revoked.Error();
}

FTokenService::FRefreshRecord* FTokenService::FindUnusedSuccessor(const FRefreshRecord& Used)
{
	FRefreshRecord* const Successor = Clock() < Used.SecondChanceEndsAt ? FindHash(Used.Successor) : nullptr;
	return Successor && !Successor->bSpent && !Successor->bAccessUsed ? Successor : nullptr;
}

TOrRefusal<FTokenSet> FTokenService::StartSession()
{
	const std::lock_guard Lock(Mutex);
	return Issue(RandomId(), std::string(), Records);
}

TOrRefusal<FTokenSet> FTokenService::Issue(const std::string& Family, const std::string& ShownHash, std::vector<FRefreshRecord> Earlier)
{
	std::string RefreshToken = AddRecord(Family);
	const std::string Grant = Records.back().Hash;
	if (FRefreshRecord* const Shown = FindHash(ShownHash))
	{
		Shown->Successor = Grant;
	}
	// The client must never hold a token that a restarted service would not know.
	if (!SaveOrRestore(std::move(Earlier)))
	{
		return StateNotSaved();
	}
	const std::int64_t Now = Clock();
	const FAccessClaims Claims{.Subject = UserId,
		.Audience = ClientId,
		.Family = Family,
		.Grant = Grant,
		.IssuedAt = Now,
		.ExpiresAt = Now + AccessLifetime};
	return FTokenSet{SignAccessToken(Claims, SigningKey), std::move(RefreshToken), AccessLifetime, Family};
}

TOrRefusal<bool> FTokenService::Revoke(std::string_view Token, std::string_view ForClient)
{
	if (ForClient != ClientId)
	{
		return UnknownClient();
	}
	const std::lock_guard Lock(Mutex);
	std::string Family;
	if (const FRefreshRecord* const Record = FindRecord(Token))
	{
		Family = Record->Family;
	}
	else if (const std::optional<FAccessClaims> Claims = ReadAccessToken(Token, SigningKey))
	{
		Family = Claims->Family;
	}
	else
	{
		return true;
	}
	return EndFamily(Family);
}

TOrRefusal<bool> FTokenService::RevokeFamily(const std::string& Family)
{
	const std::lock_guard Lock(Mutex);
	return EndFamily(Family);
}

TOrRefusal<bool> FTokenService::EndFamily(const std::string& Family)
{
	std::vector<FRefreshRecord> Earlier = Records;
	DropFamily(Family);
	if (!SaveOrRestore(std::move(Earlier)))
	{
		return StateNotSaved();
	}
	return true;
}

TOrRefusal<std::string> FTokenService::Authorize(std::string_view AuthorizationHeader) const
{
	constexpr std::string_view Scheme = "Bearer ";
	if (!StartsWithIgnoringCase(AuthorizationHeader, Scheme))
	{
		return NotAuthorized("An access token is required.");
	}
	const std::optional<FAccessClaims> Claims = ReadAccessToken(AuthorizationHeader.substr(Scheme.size()), SigningKey);
	if (!Claims || Claims->Audience != ClientId || Claims->Subject != UserId)
	{
		return NotAuthorized("The access token is not valid.");
	}
	if (Clock() >= Claims->ExpiresAt)
	{
		return NotAuthorized("The access token has expired.");
	}
	const std::lock_guard Lock(Mutex);
	const auto Issued = std::find_if(Records.begin(), Records.end(), [&](const FRefreshRecord& Record)
		{ return Record.Family == Claims->Family && Record.Hash == Claims->Grant; });
	if (Issued == Records.end() || Issued->bVoid)
	{
		return NotAuthorized("The access token has been revoked.");
	}
	Issued->bAccessUsed = true;
	return Claims->Subject;
}

bool FTokenService::TakeUp(const FJson& Document)
{
	SigningKey = Base64UrlDecode(TextMember(Document, "signing_key")).value_or("");
	ClientId = TextMember(Document, "client_id");
	UserId = TextMember(Document, "user_id");
	for (const FJson& Item : ArrayMember(Document, "refresh_tokens"))
	{
		const FJson* const ExpiresAt = FindMember(Item, "expires_at");
		const FJson* const Spent = FindMember(Item, "spent");
		if (!ExpiresAt || !ExpiresAt->is_number_integer() || !Spent || !Spent->is_boolean())
		{
			continue;
		}
		FRefreshRecord& Record = Records.emplace_back();
		Record.Hash = TextMember(Item, "hash");
		Record.Family = TextMember(Item, "family");
		Record.ExpiresAt = ExpiresAt->get<std::int64_t>();
		Record.bSpent = Spent->get<bool>();
		Record.Successor = TextMember(Item, "successor");
		const FJson* const SecondChance = FindMember(Item, "second_chance_ends_at");
		Record.SecondChanceEndsAt = SecondChance && SecondChance->is_number_integer() ? SecondChance->get<std::int64_t>() : 0;
		const FJson* const Void = FindMember(Item, "void");
		Record.bVoid = Void && Void->is_boolean() && Void->get<bool>();
	}
	return SigningKey.size() == SecretBytes && !ClientId.empty() && !UserId.empty();
}

FJson FTokenService::Describe() const
{
	FJson Tokens = FJson::array();
	for (const FRefreshRecord& Record : Records)
	{
		Tokens.push_back({{"hash", Record.Hash}, {"family", Record.Family}, {"expires_at", Record.ExpiresAt}, {"spent", Record.bSpent},
			{"successor", Record.Successor}, {"second_chance_ends_at", Record.SecondChanceEndsAt}, {"void", Record.bVoid}});
	}
	return {{"signing_key", Base64UrlEncode(SigningKey)}, {"client_id", ClientId}, {"user_id", UserId}, {"refresh_tokens", std::move(Tokens)}};
}

bool FTokenService::SaveOrRestore(std::vector<FRefreshRecord> Earlier)
{
	if (State.Save(Describe()))
	{
		return true;
	}
	Records = std::move(Earlier);
	return false;
}

FTokenService::FRefreshRecord* FTokenService::FindRecord(std::string_view RefreshToken)
{
	const std::int64_t Now = Clock();
	std::erase_if(Records, [Now](const FRefreshRecord& Record)
		{ return Record.ExpiresAt <= Now; });
	return FindHash(HashOf(RefreshToken));
}

FTokenService::FRefreshRecord* FTokenService::FindHash(std::string_view Hash)
{
	const auto Found = std::find_if(Records.begin(), Records.end(), [&](const FRefreshRecord& Record)
		{ return SecretsEqual(Record.Hash, Hash); });
	return Found == Records.end() ? nullptr : &*Found;
}

std::string FTokenService::AddRecord(const std::string& Family)
{
	std::string Token = Base64UrlEncode(RandomBytes(SecretBytes));
	FRefreshRecord& Record = Records.emplace_back();
	Record.Hash = HashOf(Token);
	Record.Family = Family;
	Record.ExpiresAt = Clock() + RefreshLifetime;
	return Token;
}

void FTokenService::DropFamily(const std::string& Family)
{
	std::erase_if(Records, [&](const FRefreshRecord& Record)
		{ return Record.Family == Family; });
}

}

#include "Auth/Authorizations.h"

#include "Auth/Crypto.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t ChallengeLength = 43;
constexpr std::size_t MinStateLength = 22;
constexpr std::size_t MaxTextLength = 256;
constexpr std::string_view CallbackPath = "/auth-callback";

bool IsUrlSafe(std::string_view Text)
{
	return std::all_of(Text.begin(), Text.end(), [](char Character)
		{ return (Character >= 'A' && Character <= 'Z') || (Character >= 'a' && Character <= 'z') || (Character >= '0' && Character <= '9') ||
			  Character == '-' || Character == '_'; });
}

bool IsPort(std::string_view Text)
{
	int Port = 0;
	const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Port);
	return Error == std::errc() && End == Text.data() + Text.size() && Text.front() != '0' && Port > 0 && Port <= 65535;
}

// The plug-in's own callback on the user's machine, on whichever port it got, and nothing else: a code goes there.
bool IsRedirectUri(std::string_view Uri)
{
	if (Uri == NoRedirectUri)
	{
		return true;
	}
	for (const std::string_view Origin : {"http://localhost:", "http://127.0.0.1:"})
	{
		if (Uri.starts_with(Origin) && Uri.ends_with(CallbackPath) && Uri.size() > Origin.size() + CallbackPath.size())
		{
			return IsPort(Uri.substr(Origin.size(), Uri.size() - Origin.size() - CallbackPath.size()));
		}
	}
	return false;
}

bool ChallengeFits(std::string_view Challenge, std::string_view Verifier)
{
	return SecretsEqual(Challenge, Base64UrlEncode(Sha256(Verifier)));
}

FRefusal BadRequest(std::string Detail)
{
	return {400, std::move(Detail), "invalid_request"};
}

FRefusal BadCode()
{
	return {400, "The authorization code is not valid.", "invalid_grant"};
}

FRefusal NotWaiting()
{
	return {404, "No login waits for a decision under this id. It was decided already, or it took too long.", "invalid_request"};
}

}

FAuthorizations::FAuthorizations(const FLoginConfig& Config, FTokenService& InTokens, FClock InClock)
	: RequestLifetime(Config.RequestLifetime.count())
	, CodeLifetime(Config.CodeLifetime.count())
	, Tokens(InTokens)
	, Clock(std::move(InClock))
{
}

TOrRefusal<FAuthorizationRequest> FAuthorizations::Check(FAuthorizationRequest Request) const
{
	if (Request.ClientId != Tokens.GetClientId())
	{
		return BadRequest("The client is not known to this service.");
	}
	if (!IsRedirectUri(Request.RedirectUri))
	{
		return BadRequest("The redirect address is none of the plug-in's.");
	}
	if (Request.CodeChallenge.size() != ChallengeLength || !IsUrlSafe(Request.CodeChallenge))
	{
		return BadRequest("\"code_challenge\" must be the base64url text of a SHA-256.");
	}
	if (Request.State.size() < MinStateLength || Request.State.size() > MaxTextLength || !IsUrlSafe(Request.State))
	{
		return BadRequest("\"state\" must be 22 to 256 characters of base64url.");
	}
	if (Request.DeviceId.empty() || Request.DeviceId.size() > MaxTextLength || !IsUrlSafe(Request.DeviceId))
	{
		return BadRequest("\"device_id\" must be 1 to 256 letters, digits and hyphens.");
	}
	return Request;
}

std::string FAuthorizations::Add(FAuthorizationRequest Request)
{
	const std::lock_guard Lock(Mutex);
	const std::int64_t Now = Clock();
	Records.remove_if([Now](const FRecord& Record)
		{ return Record.ExpiresAt <= Now; });
	if (Records.size() == MaxAuthorizations)
	{
		Records.pop_front();
	}
	FRecord Record;
	Record.Id = RandomId();
	Record.Request = std::move(Request);
	Record.ExpiresAt = Now + RequestLifetime;
	return Records.emplace_back(std::move(Record)).Id;
}

template <typename TRecords, typename TPredicate>
auto* FAuthorizations::FindIn(TRecords& In, std::int64_t Now, TPredicate Fits)
{
	const auto Found = std::find_if(In.begin(), In.end(), [&](const FRecord& Record)
		{ return Record.ExpiresAt > Now && Fits(Record); });
	return Found == In.end() ? nullptr : &*Found;
}

const FAuthorizations::FRecord* FAuthorizations::FindLogin(const FPolledLogin& Login) const
{
	return FindIn(Records, Clock(), [&](const FRecord& Record)
		{ return SecretsEqual(Record.Request.State, Login.State) && Record.Request.ClientId == Login.ClientId &&
			  SecretsEqual(Record.Request.DeviceId, Login.DeviceId); });
}

TOrRefusal<std::string> FAuthorizations::Decide(std::string_view Id, bool bApprove)
{
	const std::lock_guard Lock(Mutex);
	FRecord* const Record = FindIn(Records, Clock(), [Id](const FRecord& Candidate)
		{ return Candidate.Id == Id && Candidate.Status == EAuthorizationStatus::Pending; });
	if (!Record)
	{
		return NotWaiting();
	}
	Record->Status = bApprove ? EAuthorizationStatus::Approved : EAuthorizationStatus::Denied;
	if (bApprove)
	{
		Record->Code = RandomId() + RandomId();
		Record->CodeExpiresAt = Clock() + CodeLifetime;
	}
	if (Record->Request.RedirectUri == NoRedirectUri)
	{
		return std::string();
	}
	// Every part is base64url, which needs no encoding in a query.
	return Record->Request.RedirectUri + "?auth_request_id=" + Record->Id + (bApprove ? "&code=" + Record->Code : "&error=access_denied") +
		"&state=" + Record->Request.State;
}

EAuthorizationStatus FAuthorizations::GetStatus(std::string_view Id) const
{
	const std::lock_guard Lock(Mutex);
	const FRecord* const Record = FindIn(Records, Clock(), [Id](const FRecord& Candidate)
		{ return Candidate.Id == Id; });
	return Record ? Record->Status : EAuthorizationStatus::Unknown;
}

EAuthorizationStatus FAuthorizations::GetStatus(const FPolledLogin& Login) const
{
	const std::lock_guard Lock(Mutex);
	const FRecord* const Record = FindLogin(Login);
	return Record ? Record->Status : EAuthorizationStatus::Unknown;
}

TOrRefusal<std::string> FAuthorizations::GetCode(const FPolledLogin& Login, std::string_view CodeVerifier) const
{
	const std::lock_guard Lock(Mutex);
	const FRecord* const Record = FindLogin(Login);
	if (!Record || Record->Status != EAuthorizationStatus::Approved || !ChallengeFits(Record->Request.CodeChallenge, CodeVerifier))
	{
		return FRefusal{400, "There is no code for this login.", "invalid_grant"};
	}
	return Record->Code;
}

TOrRefusal<FTokenSet> FAuthorizations::Redeem(const FCodeExchange& Exchange)
{
	const std::lock_guard Lock(Mutex);
	FRecord* const Record = FindIn(Records, Clock(), [&](const FRecord& Candidate)
		{ return Candidate.Status == EAuthorizationStatus::Approved && SecretsEqual(Candidate.Code, Exchange.Code); });
	if (!Record)
	{
		return BadCode();
	}
	if (Record->bSpent)
	{
		const TOrRefusal<bool> Revoked = Tokens.RevokeFamily(Record->Family);
		return Revoked ? BadCode() : Revoked.Error();
	}
	Record->bSpent = true;
	const FAuthorizationRequest& Request = Record->Request;
	const bool bFits = Clock() < Record->CodeExpiresAt && Exchange.ClientId == Request.ClientId &&
		Exchange.RedirectUri == Request.RedirectUri &&
		Exchange.DeviceId == Request.DeviceId && SecretsEqual(Exchange.State, Request.State) &&
		ChallengeFits(Request.CodeChallenge, Exchange.CodeVerifier);
	if (!bFits)
	{
		return BadCode();
	}
	TOrRefusal<FTokenSet> Session = Tokens.StartSession();
	if (Session)
	{
		Record->Family = Session->Family;
	}
	return Session;
}

}

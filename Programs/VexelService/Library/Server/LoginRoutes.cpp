#include "Server/LoginRoutes.h"

#include "Auth/Crypto.h"
#include "Server/LoginPages.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t FormKeyBytes = 32;
constexpr std::size_t CookieLength = 22;
constexpr std::string_view CookieName = "vexel_consent=";
constexpr const char* OutcomePath = "/auth/local?auth_request_id=";

// The consent cookie of a browser that has one; empty for none.
std::string ReadCookie(const httplib::Request& Request)
{
	const std::string Cookies = "; " + Request.get_header_value("Cookie") + ";";
	const std::size_t Found = Cookies.find("; " + std::string(CookieName));
	if (Found == std::string::npos)
	{
		return {};
	}
	const std::size_t Begin = Found + 2 + CookieName.size();
	const std::string Value = Cookies.substr(Begin, Cookies.find(';', Begin) - Begin);
	return Value.size() == CookieLength && Base64UrlDecode(Value) ? Value : std::string();
}

// Whether a browser says that the request comes from the service's own page. A client that is no browser says nothing.
bool ComesFromOwnPage(const httplib::Request& Request)
{
	const std::string Site = Request.get_header_value("Sec-Fetch-Site");
	return (!Request.has_header("Origin") || Request.get_header_value("Origin") == "http://" + Request.get_header_value("Host")) &&
		(Site.empty() || Site == "same-origin");
}

const char* DescribeStatus(EAuthorizationStatus Status)
{
	switch (Status)
	{
		case EAuthorizationStatus::Approved:
			return "approved";
		case EAuthorizationStatus::Denied:
			return "error";
		default:
			return "not_found";
	}
}

TOrRefusal<FTokenSet> RefuseGrantType()
{
	return FRefusal{400, "This grant type is not supported.", "unsupported_grant_type"};
}

}

FLoginRoutes::FLoginRoutes(const FServiceConfig& InConfig, FTokenService& InTokens, FClock Clock)
	: User(InConfig.User)
	, Config(InConfig.Login)
	, Tokens(InTokens)
	, Authorizations(InConfig.Login, InTokens, std::move(Clock))
	, FormKey(RandomBytes(FormKeyBytes))
{
}

void FLoginRoutes::AddTo(httplib::Server& Http)
{
	Http.Get("/api/auth/plugin-client-id", Bind(&FLoginRoutes::AnswerClientId));
	Http.Get("/oauth/authorize", Bind(&FLoginRoutes::AnswerAuthorize));
	Http.Post("/oauth/decision", Bind(&FLoginRoutes::AnswerDecision));
	Http.Get("/auth/local", Bind(&FLoginRoutes::AnswerOutcome));
	Http.Post("/oauth/poll", Bind(&FLoginRoutes::AnswerPoll));
	Http.Post("/oauth/token", Bind(&FLoginRoutes::AnswerToken));
	Http.Post("/oauth/revoke", Bind(&FLoginRoutes::AnswerRevocation));
	Http.Get("/oauth/page.css", [](const httplib::Request&, httplib::Response& Response)
		{ LoginPages::SendStyle(Response); });
}

void FLoginRoutes::Stop()
{
	const std::lock_guard Lock(Mutex);
	bStopped = true;
	Changed.notify_all();
}

httplib::Server::Handler FLoginRoutes::Bind(FHandler Handler)
{
	return [this, Handler](const httplib::Request& Request, httplib::Response& Response)
	{
		if (!MayAnswer(Request.path))
		{
			SendRefusal(Response, {500, "The service was told to fail here.", "server_error"});
			return;
		}
		(this->*Handler)(Request, Response);
	};
}

bool FLoginRoutes::MayAnswer(const std::string& Path)
{
	if (Config.Delay.count() > 0)
	{
		std::unique_lock Lock(Mutex);
		Changed.wait_for(Lock, Config.Delay, [this]
			{ return bStopped; });
	}
	return std::find(Config.FailingPaths.begin(), Config.FailingPaths.end(), Path) == Config.FailingPaths.end();
}

void FLoginRoutes::AnswerClientId(const httplib::Request&, httplib::Response& Response)
{
	SendJson(Response, 200, {{"clientId", Tokens.GetClientId()}});
}

TOrRefusal<FAuthorizationRequest> FLoginRoutes::ReadAuthorization(const httplib::Request& Request) const
{
	TOrRefusal<FParameters> Parameters = ReadParameters(Request);
	if (!Parameters)
	{
		return Parameters.Error();
	}
	// A page that is shown inside another, or fetched by one, is not seen by the user as what it is.
	if (Request.has_header("Sec-Fetch-Dest") && Request.get_header_value("Sec-Fetch-Dest") != "document")
	{
		return FRefusal{400, "This page only opens by itself, in the browser's own window."};
	}
	static const std::pair<const char*, const char*> Fixed[] = {
		{"response_type", "code"}, {"code_challenge_method", "S256"}, {"scope", "api.read"}};
	for (const auto& [Key, Value] : Fixed)
	{
		if ((*Parameters)[Key] != Value)
		{
			return FRefusal{400, std::string("\"") + Key + "\" must be \"" + Value + "\"."};
		}
	}
	return Authorizations.Check({
		.ClientId = (*Parameters)["client_id"],
		.RedirectUri = (*Parameters)["redirect_uri"],
		.CodeChallenge = (*Parameters)["code_challenge"],
		.State = (*Parameters)["state"],
		.DeviceId = (*Parameters)["device_id"],
	});
}

void FLoginRoutes::AnswerAuthorize(const httplib::Request& Request, httplib::Response& Response)
{
	const TOrRefusal<FAuthorizationRequest> Authorization = ReadAuthorization(Request);
	if (!Authorization)
	{
		LoginPages::SendRefusal(Response, Authorization.Error());
		return;
	}
	const std::string Id = Authorizations.Add(*Authorization);
	if (Config.Decision != ELoginDecision::Ask)
	{
		const TOrRefusal<std::string> Target = Authorizations.Decide(Id, Config.Decision == ELoginDecision::Approve);
		Response.set_redirect(Target && !Target->empty() ? *Target : OutcomePath + Id, 303);
		return;
	}
	std::string Cookie = ReadCookie(Request);
	if (Cookie.empty())
	{
		Cookie = RandomId();
		Response.set_header("Set-Cookie", std::string(CookieName) + Cookie + "; Path=/oauth; HttpOnly; SameSite=Strict");
	}
	LoginPages::SendConsent(
		Response, {.User = User, .Request = *Authorization, .RequestId = Id, .FormToken = MakeFormToken(Cookie, Id)});
}

std::string FLoginRoutes::MakeFormToken(const std::string& Cookie, const std::string& RequestId) const
{
	return Base64UrlEncode(HmacSha256(FormKey, Cookie + "." + RequestId));
}

TOrRefusal<std::string> FLoginRoutes::ReadDecision(const httplib::Request& Request)
{
	TOrRefusal<FParameters> Form = ReadForm(Request);
	if (!Form)
	{
		return Form.Error();
	}
	const std::string& Id = (*Form)["auth_request_id"];
	const std::string Cookie = ReadCookie(Request);
	if (!ComesFromOwnPage(Request) || Cookie.empty() || !SecretsEqual((*Form)["form_token"], MakeFormToken(Cookie, Id)))
	{
		return FRefusal{403, "The answer did not come from this service's own page."};
	}
	const std::string& Decision = (*Form)["decision"];
	if (Decision != "approve" && Decision != "deny")
	{
		return FRefusal{400, "\"decision\" must be \"approve\" or \"deny\"."};
	}
	TOrRefusal<std::string> Target = Authorizations.Decide(Id, Decision == "approve");
	return Target && Target->empty() ? OutcomePath + Id : Target;
}

void FLoginRoutes::AnswerDecision(const httplib::Request& Request, httplib::Response& Response)
{
	const TOrRefusal<std::string> Target = ReadDecision(Request);
	if (!Target)
	{
		LoginPages::SendRefusal(Response, Target.Error());
		return;
	}
	Response.set_header("Cache-Control", "no-store");
	Response.set_header("Referrer-Policy", "no-referrer");
	Response.set_redirect(*Target, 303);
}

void FLoginRoutes::AnswerOutcome(const httplib::Request& Request, httplib::Response& Response)
{
	LoginPages::SendOutcome(Response, Authorizations.GetStatus(Request.get_param_value("auth_request_id")));
}

TOrRefusal<FOrderedJson> FLoginRoutes::Poll(const httplib::Request& Request)
{
	const std::optional<FJson> Body = ParseJson(Request.body);
	if (!Body || !Body->is_object())
	{
		return FRefusal{400, "The body must be a JSON object.", "invalid_request"};
	}
	for (const char* const Key : {"grant_type", "device_id", "client_id", "state"})
	{
		if (TextMember(*Body, Key).empty())
		{
			return MissingParameter(Key);
		}
	}
	if (TextMember(*Body, "grant_type") != "device_id")
	{
		return RefuseGrantType().Error();
	}
	const FPolledLogin Login{TextMember(*Body, "client_id"), TextMember(*Body, "device_id"), TextMember(*Body, "state")};
	const FJson* const ReturnCode = FindMember(*Body, "return_code");
	if (ReturnCode && ReturnCode->is_boolean() && ReturnCode->get<bool>())
	{
		const TOrRefusal<std::string> Code = Authorizations.GetCode(Login, TextMember(*Body, "code_verifier"));
		if (!Code)
		{
			return Code.Error();
		}
		return FOrderedJson{{"code", *Code}};
	}
	return FOrderedJson{{"status", DescribeStatus(Authorizations.GetStatus(Login))}};
}

void FLoginRoutes::AnswerPoll(const httplib::Request& Request, httplib::Response& Response)
{
	Response.set_header("Cache-Control", "no-store");
	const TOrRefusal<FOrderedJson> Answer = Poll(Request);
	if (!Answer)
	{
		SendRefusal(Response, Answer.Error());
		return;
	}
	SendJson(Response, 200, *Answer);
}

TOrRefusal<FTokenSet> FLoginRoutes::ExchangeTokens(const httplib::Request& Request)
{
	TOrRefusal<FParameters> Read = ReadForm(Request);
	if (!Read)
	{
		return Read.Error();
	}
	FParameters& Form = *Read;
	const std::string GrantType = Form["grant_type"];
	const bool bRefresh = GrantType == "refresh_token";
	const std::vector<const char*> Keys = bRefresh
		? std::vector<const char*>{"refresh_token", "client_id"}
		: std::vector<const char*>{"grant_type", "code", "redirect_uri", "client_id", "code_verifier", "device_id", "state"};
	if (!GrantType.empty() && !bRefresh && GrantType != "authorization_code")
	{
		return RefuseGrantType();
	}
	for (const char* const Key : Keys)
	{
		if (Form[Key].empty())
		{
			return MissingParameter(Key);
		}
	}
	if (bRefresh)
	{
		return Tokens.Refresh(Form["refresh_token"], Form["client_id"]);
	}
	return Authorizations.Redeem({
		.Code = Form["code"],
		.RedirectUri = Form["redirect_uri"],
		.ClientId = Form["client_id"],
		.CodeVerifier = Form["code_verifier"],
		.DeviceId = Form["device_id"],
		.State = Form["state"],
	});
}

void FLoginRoutes::AnswerToken(const httplib::Request& Request, httplib::Response& Response)
{
	Response.set_header("Cache-Control", "no-store");
	const TOrRefusal<FTokenSet> TokenSet = ExchangeTokens(Request);
	if (!TokenSet)
	{
		SendRefusal(Response, TokenSet.Error());
		return;
	}
	const FOrderedJson Body = {
		{"access_token", TokenSet->AccessToken},
		{"token_type", "Bearer"},
		{"refresh_token", TokenSet->RefreshToken},
		{"expires_in", TokenSet->ExpiresInSeconds},
	};
	SendJson(Response, 200, Body);
}

void FLoginRoutes::AnswerRevocation(const httplib::Request& Request, httplib::Response& Response)
{
	TOrRefusal<FParameters> Form = ReadForm(Request);
	if (!Form)
	{
		SendRefusal(Response, Form.Error());
		return;
	}
	for (const char* const Key : {"token", "client_id"})
	{
		if ((*Form)[Key].empty())
		{
			SendRefusal(Response, MissingParameter(Key));
			return;
		}
	}
	const TOrRefusal<bool> Revoked = Tokens.Revoke((*Form)["token"], (*Form)["client_id"]);
	if (!Revoked)
	{
		SendRefusal(Response, Revoked.Error());
		return;
	}
	SendJson(Response, 200, FOrderedJson::object());
}

}

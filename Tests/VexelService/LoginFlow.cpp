#include "LoginFlow.h"

#include <regex>

namespace VexelService
{

namespace
{

std::string Match(const std::string& Text, const char* Pattern)
{
	std::smatch Found;
	return std::regex_search(Text, Found, std::regex(Pattern)) ? Found[1].str() : std::string();
}

}

std::optional<std::string> FindQueryParameter(const std::string& Url, const std::string& Name)
{
	std::smatch Found;
	return std::regex_search(Url, Found, std::regex("[?&]" + Name + "=([^&]*)")) ? std::optional(Found[1].str()) : std::nullopt;
}

httplib::Params FLoginTest::MakeAuthorization() const
{
	return {{"response_type", "code"}, {"code_challenge", Challenge}, {"code_challenge_method", "S256"}, {"client_id", GetClientId()},
		{"redirect_uri", Redirect}, {"scope", "api.read"}, {"state", State}, {"device_id", DeviceId}};
}

httplib::Result FLoginTest::OpenPage(const httplib::Params& Params, httplib::Headers Headers) const
{
	return MakeClient().Get("/oauth/authorize", Params, Headers);
}

FConsentPage FLoginTest::OpenConsent(const httplib::Params& Params) const
{
	FConsentPage Page{*OpenPage(Params), {}, {}, {}};
	EXPECT_EQ(Page.Answer.status, 200) << Page.Answer.body;
	Page.Cookie = Match(Page.Answer.get_header_value("Set-Cookie"), "^([^;]*)");
	Page.RequestId = Match(Page.Answer.body, "name=\"auth_request_id\" value=\"([^\"]*)\"");
	Page.FormToken = Match(Page.Answer.body, "name=\"form_token\" value=\"([^\"]*)\"");
	return Page;
}

httplib::Result FLoginTest::Decide(const FConsentPage& Page, const std::string& Decision, const httplib::Headers& Headers) const
{
	httplib::Headers All = Headers;
	if (!Page.Cookie.empty())
	{
		All.emplace("Cookie", Page.Cookie);
	}
	return MakeClient().Post("/oauth/decision", All,
		httplib::Params{{"auth_request_id", Page.RequestId}, {"form_token", Page.FormToken}, {"decision", Decision}});
}

std::string FLoginTest::Approve() const
{
	const httplib::Result Result = Decide(OpenConsent(), "approve");
	EXPECT_EQ(Result->status, 303) << Result->body;
	return FindQueryParameter(Result->get_header_value("Location"), "code").value_or("");
}

FJson FLoginTest::MakePoll() const
{
	return {{"grant_type", "device_id"}, {"device_id", DeviceId}, {"client_id", GetClientId()}, {"state", State}};
}

httplib::Result FLoginTest::Poll(const FJson& Body) const
{
	return MakeClient().Post("/oauth/poll", Body.dump(), "application/json");
}

std::string FLoginTest::PollStatus() const
{
	return FJson::parse(Poll(MakePoll())->body)["status"];
}

httplib::Params FLoginTest::MakeExchange(const std::string& Code) const
{
	return {{"grant_type", "authorization_code"}, {"code", Code}, {"redirect_uri", Redirect}, {"client_id", GetClientId()},
		{"code_verifier", Verifier}, {"device_id", DeviceId}, {"state", State}};
}

}

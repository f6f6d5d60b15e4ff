#pragma once

#include "ServiceFixture.h"

#include <optional>
#include <string>

namespace VexelService
{

/** What a browser got from the authorization page, to send back with a decision. */
struct FConsentPage
{
	httplib::Response Answer;
	std::string Cookie;
	std::string RequestId;
	std::string FormToken;
};

/** A client's part of logins at a real service, and that of the user's browser. */
class FLoginTest : public FServiceTest
{
protected:
	static constexpr const char* Redirect = "http://localhost:4000/auth-callback";
	static constexpr const char* DeviceId = "0123-abcd";

	/** The parameters of a good authorization request of the verifier and the state. */
	httplib::Params MakeAuthorization() const;
	httplib::Result OpenPage(const httplib::Params& Params, httplib::Headers Headers = {}) const;
	FConsentPage OpenConsent(const httplib::Params& Params) const;
	FConsentPage OpenConsent() const { return OpenConsent(MakeAuthorization()); }

	/** Presses a button of the page. Headers are more that the browser sends. */
	httplib::Result Decide(const FConsentPage& Page, const std::string& Decision, const httplib::Headers& Headers = {}) const;
	/** Opens the page, allows, and returns the code of the redirect. */
	std::string Approve() const;

	FJson MakePoll() const;
	httplib::Result Poll(const FJson& Body) const;
	/** The "status" of a poll. */
	std::string PollStatus() const;

	httplib::Params MakeExchange(const std::string& Code) const;

	std::string Verifier = "dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk";
	/** Of that verifier, as the standard's own example has it. */
	std::string Challenge = "E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM";
	std::string State = "abcdefghijklmnopqrstuv";
};

/** Of "...?a=1&b=2"; nothing for a parameter that is not there. */
std::optional<std::string> FindQueryParameter(const std::string& Url, const std::string& Name);

}

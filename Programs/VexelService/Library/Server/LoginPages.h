#pragma once

#include "Auth/Authorizations.h"
#include "Server/ServiceConfig.h"

#include <httplib.h>

#include <string>

namespace VexelService
{

/** The pages that the user's browser shows during a login: HTML and a style sheet of this service, no script at all. */
namespace LoginPages
{

/** Who asks, for what, for whose account; RequestId and FormToken come back with the decision. */
struct FConsent
{
	const FUserProfile& User;
	const FAuthorizationRequest& Request;
	std::string RequestId;
	std::string FormToken;
};

void SendConsent(httplib::Response& Response, const FConsent& Consent);
/** What became of a login. */
void SendOutcome(httplib::Response& Response, EAuthorizationStatus Status);
/** Why there is nothing to decide. Nothing of the request goes back to whoever asked. */
void SendRefusal(httplib::Response& Response, const FRefusal& Refusal);
void SendStyle(httplib::Response& Response);

}

}

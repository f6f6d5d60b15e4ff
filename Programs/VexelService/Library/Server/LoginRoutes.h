#pragma once

#include "Auth/Authorizations.h"
#include "Auth/TokenService.h"
#include "Server/HttpAnswers.h"
#include "Server/ServiceConfig.h"

#include <httplib.h>

#include <condition_variable>
#include <mutex>
#include <string>

namespace VexelService
{

/**
 * The paths of a login: the client's id, the page on which the user decides and the one behind it, polling, the exchange of codes
 * and refresh tokens, and revocation. What needs the user's agreement is bound to the service's own page: by its address, by the
 * browser's word on where a request comes from, and by a token of the form that fits a cookie.
 */
class FLoginRoutes
{
public:
	FLoginRoutes(const FServiceConfig& InConfig, FTokenService& InTokens, FClock Clock);

	void AddTo(httplib::Server& Http);

	/** Ends the pauses that answers make. */
	void Stop();

private:
	using FHandler = void (FLoginRoutes::*)(const httplib::Request&, httplib::Response&);

	/** A handler with what the configuration wants of its path: a pause, a failure. */
	httplib::Server::Handler Bind(FHandler Handler);
	/** False when the path is to fail. */
	bool MayAnswer(const std::string& Path);

	void AnswerClientId(const httplib::Request& Request, httplib::Response& Response);
	void AnswerAuthorize(const httplib::Request& Request, httplib::Response& Response);
	void AnswerDecision(const httplib::Request& Request, httplib::Response& Response);
	void AnswerOutcome(const httplib::Request& Request, httplib::Response& Response);
	void AnswerPoll(const httplib::Request& Request, httplib::Response& Response);
	void AnswerToken(const httplib::Request& Request, httplib::Response& Response);
	void AnswerRevocation(const httplib::Request& Request, httplib::Response& Response);

	TOrRefusal<FAuthorizationRequest> ReadAuthorization(const httplib::Request& Request) const;
	TOrRefusal<std::string> ReadDecision(const httplib::Request& Request);
	TOrRefusal<FOrderedJson> Poll(const httplib::Request& Request);
	TOrRefusal<FTokenSet> ExchangeTokens(const httplib::Request& Request);
	std::string MakeFormToken(const std::string& Cookie, const std::string& RequestId) const;

	const FUserProfile& User;
	const FLoginConfig& Config;
	FTokenService& Tokens;
	FAuthorizations Authorizations;
	/** Of this run alone: a form outlives no restart. */
	const std::string FormKey;

	std::mutex Mutex;
	std::condition_variable Changed;
	bool bStopped = false;
};

}

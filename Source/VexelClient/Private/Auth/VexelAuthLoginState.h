#pragma once

#include "Auth/VexelAuth.h"
#include "Auth/VexelAuthPkce.h"
#include "Auth/VexelAuthRequests.h"
#include "Auth/VexelAuthStartPage.h"
#include "HAL/CriticalSection.h"
#include "VexelHttpServer.h"

/**
 * One interactive login, from its start to the authorization code, or to why there is none. It is completed exactly once, by the
 * browser's callback, by polling, by Cancel() or by FailLoginWithError(), whichever is first; all later ones change nothing, and
 * the secrets are forgotten as soon as nobody needs them. Any thread.
 */
class FVexelAuthLoginState : public TSharedFromThis<FVexelAuthLoginState>
{
public:
	static TVexelExpected<TSharedRef<FVexelAuthLoginState>> Make();
	~FVexelAuthLoginState();
	UE_NONCOPYABLE(FVexelAuthLoginState)

	/**
	 * Listens for the browser on the callback's port, and answers which that is. Until this succeeds the redirect address is one
	 * that stands for none.
	 */
	TVexelExpected<int32> StartAuthServer();

	/** Makes a page that leads this user's browser to the target once, until the login is over, and answers the page's address. */
	TVexelExpected<FString> OpenStartPage(const FVexelAuthSecret& Target);

	/** Ends the login from outside. The port is free when this returns. Not to be called by the callback's handler. */
	void Cancel();
	void FailLoginWithError(FVexelError&& Error) const;
	/** False when the login is over already, or the state is not this login's. */
	bool CompleteWithCode(const FVexelAuth::FAuthCodeInfo& Info) const;

	bool IsComplete() const { return Result.IsComplete(); }
	const TVexelTaskResult<FVexelAuth::FAuthCodeInfo>& GetResult() const { return Result; }

	/** Before the browser is opened. */
	void SetClient(const VexelAuthRequests::FClient& InClient);
	VexelAuthRequests::FClient GetClient() const;
	FString GetRedirectUri() const;
	const FString& GetCodeChallenge() const { return CodeChallenge; }
	/** Empty texts when the login is over. */
	FVexelAuthSecret GetState() const;
	FVexelAuthSecret GetCodeVerifier() const;
	/** Everything that the exchange of the code shows. The login forgets it with this. */
	VexelAuthRequests::FCodeGrant TakeGrant(const FVexelAuth::FAuthCodeInfo& Info) const;

	/** The request of the poll that waits for its answer: the end of the login ends it. */
	void SetPollRequest(const TSharedRef<FVexelHttpRequest>& Request) const;

	/** What the local server answers to the browser. */
	FVexelHttpServerResponse HandleCallback(const FVexelHttpServerRequest& Request) const;

private:
	explicit FVexelAuthLoginState(FVexelAuthPkce&& Pkce);

	bool IsOurState(const FString& Candidate) const;
	/** After the completion: ends what waits, and forgets what is still there. */
	void Finish() const;
	TSharedPtr<FVexelHttpServer> TakeServer() const;

	const FString CodeChallenge;
	const TVexelTaskResult<FVexelAuth::FAuthCodeInfo> Result;

	mutable FCriticalSection Lock;
	mutable FVexelAuthSecret CodeVerifier;
	mutable FVexelAuthSecret State;
	FString RedirectUri;
	VexelAuthRequests::FClient Client;
	mutable TSharedPtr<FVexelHttpServer> Server;
	mutable TUniquePtr<FVexelAuthStartPage> StartPage;
	mutable TSharedPtr<FVexelHttpRequest> PollRequest;
};

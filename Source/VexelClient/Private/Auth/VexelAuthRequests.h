#pragma once

#include "Auth/VexelAuthSecret.h"
#include "Auth/VexelAuthTokens.h"
#include "VexelTaskResult.h"

class FVexelHttp;
class FVexelHttpRequest;
class FVexelHttpResponse;

/** What the login says to the service, and how its answers read. Any thread. */
namespace VexelAuthRequests
{
/**
 * Whose login it is, as the service names the plug-in and the plug-in this machine, and at which service: one that was begun there
 * goes on there, whatever the settings say by then.
 */
struct FClient
{
	TSharedPtr<FVexelHttp> Api;
	FString ClientId;
	FString DeviceId;
};

/** An authorization code and the secrets that its exchange shows. */
struct FCodeGrant
{
	FVexelAuthSecret Code;
	FString RedirectUri;
	FVexelAuthSecret CodeVerifier;
	FVexelAuthSecret State;
};

/** Fetches the plug-in's OAuth client id. */
TVexelTaskResult<FString> FetchClientId(FVexelHttp& Api);

/** The address that the user's browser opens. Shown is the same for a log: without what only the browser may know. */
struct FAuthorizeAddress
{
	FVexelAuthSecret Url;
	FString Shown;
};
FAuthorizeAddress MakeAuthorizeAddress(
	const FClient& Client, const FString& RedirectUri, const FString& CodeChallenge, const FString& State);

/** Asks whether the user has decided; ReadPollStatus() reads the answer. */
TSharedRef<FVexelHttpRequest> SendPoll(const FClient& Client, const FString& State);
enum class EPollStatus : uint8
{
	Undecided,
	Approved
};
TVexelExpected<EPollStatus> ReadPollStatus(const FVexelHttpResponse& Response);

/** Asks for the code of an approved login; ReadPollCode() reads the answer. */
TSharedRef<FVexelHttpRequest> SendCodePoll(const FClient& Client, const FString& State, const FString& CodeVerifier);
TVexelExpected<FVexelAuthSecret> ReadPollCode(const FVexelHttpResponse& Response);

TVexelTaskResult<FTokenResponse> ExchangeCode(const FClient& Client, const FCodeGrant& Grant);
TVexelTaskResult<FTokenResponse> Refresh(const FClient& Client, const FVexelAuthSecret& RefreshToken);
/**
 * Whether a refresh failed because the service has looked at the token and refused it. A service that is down, busy or broken says
 * nothing about the token, which is worth keeping then.
 */
bool WasTokenRefused(const FVexelError& RefreshFailure);
TVexelTaskResult<void> Revoke(const FClient& Client, const FVexelAuthSecret& RefreshToken);
}

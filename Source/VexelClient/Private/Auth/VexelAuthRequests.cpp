#include "Auth/VexelAuthRequests.h"

#include "Auth/VexelAuthErrors.h"
#include "Dom/JsonObject.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelLog.h"
#include "VexelSecretFields.h"
#include "VexelTry.h"

namespace
{
constexpr double MaxTimeoutSeconds = 600.0;
/** Every answer is a handful of short texts. */
constexpr int32 MaxAnswerBytes = 256 * 1024;
constexpr int32 MaxQuotedLength = 1024;
constexpr int32 StatusTooManyRequests = 429;
constexpr int32 StatusRequestTimeout = 408;
const TCHAR* const PollPath = TEXT("/oauth/poll");
const TCHAR* const TokenPath = TEXT("/oauth/token");
const TCHAR* const HiddenValue = TEXT("hidden");
FConfigValueBase TimeoutSetting(TEXT("AuthTimeoutSeconds"), TEXT("10"));

FVexelHttpPendingRequest MakeRequest(FVexelHttp& Api, EVexelHttpVerb Verb, const TCHAR* Path)
{
	FVexelHttpPendingRequest Request = Api.Request(Verb, Path);
	Request.WithTimeout(float(TimeoutSetting.GetNumber(0.1, MaxTimeoutSeconds))).WithAnswerLimit(MaxAnswerBytes);
	return Request;
}

template <typename PayloadType>
TSharedRef<FVexelHttpRequest> SendSecret(const VexelAuthRequests::FClient& Client, const TCHAR* Path, const PayloadType& Payload)
{
	return MakeRequest(*Client.Api, EVexelHttpVerb::Post, Path).WithSecrecy().WithPayload(Payload).Send();
}

/** An answer's text as a message may quote it. */
FString Quote(const FVexelHttpResponse& Response)
{
	return Response.GetContentString().Left(MaxQuotedLength);
}

FVexelSecretFields MakePollBody(const VexelAuthRequests::FClient& Client, const FString& State)
{
	FVexelSecretFields Body;
	Body.AddText(TEXT("grant_type"), TEXT("device_id"))
		.AddText(TEXT("device_id"), Client.DeviceId)
		.AddText(TEXT("client_id"), Client.ClientId)
		.AddText(TEXT("state"), State);
	return Body;
}

TVexelExpected<FString> ReadClientId(const TSharedRef<FVexelHttpResponse>& Response)
{
	const TSharedPtr<FJsonObject> Body = Response->GetContentJson();
	if (!Body)
	{
		return VEXEL_ERROR(FVexelError_Auth_ClientId, "Failed to parse plugin client ID response");
	}
	FString ClientId;
	if (!Body->TryGetStringField(TEXT("clientId"), ClientId) || ClientId.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_ClientId, "Response does not contain client_id field or it is empty");
	}
	return ClientId;
}

/** The tokens of an answer, or an error of the kind. Malformed is the text for a body that is no JSON. */
template <typename ErrorKind>
TVexelExpected<FTokenResponse> ReadTokens(const TSharedRef<FVexelHttpResponse>& Response, const TCHAR* Malformed)
{
	const TOptional<FVexelSecretFields> Body = FVexelSecretFields::FromJson(Response->GetContent());
	if (!Body)
	{
		return VEXEL_ERROR(ErrorKind, "%s", Malformed);
	}
	FTokenResponse Tokens = FTokenResponse::Parse(*Body);
	if (!Tokens.IsComplete())
	{
		return VEXEL_ERROR(ErrorKind, "Incomplete token data received");
	}
	return Tokens;
}

/** A status of the 400s that says nothing about what was sent, as an error that is none of the client's. */
FVexelError ToServiceError(const FVexelError& Error, const FVexelHttpRequest& Request)
{
	const TSharedPtr<FVexelHttpResponse> Response = Request.GetResponse();
	const int32 Status = Response ? Response->GetStatus() : 0;
	if (Status == StatusTooManyRequests || Status == StatusRequestTimeout)
	{
		return VEXEL_ERROR_TITLED(FVexelError_HttpStatus, "Service busy", "%s", *Error.ToShortString());
	}
	return Error;
}
}

TVexelTaskResult<FString> VexelAuthRequests::FetchClientId(FVexelHttp& Api)
{
	return Try(MakeRequest(Api, EVexelHttpVerb::Get, TEXT("/api/auth/plugin-client-id")).SendAndAwait())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return ReadClientId(Response); })
		.Catch<FVexelError_Http>([](const FVexelError_Http& Error) -> TVexelExpected<FString>
			{ return VexelAuthErrors::Wrap<FVexelError_Auth_ClientId>(VEXEL_HERE, Error, TEXT("while fetching plugin client ID from server")); });
}

VexelAuthRequests::FAuthorizeAddress VexelAuthRequests::MakeAuthorizeAddress(
	const FClient& Client, const FString& RedirectUri, const FString& CodeChallenge, const FString& State)
{
	const auto Make = [&](const FString& ShownState, const FString& ShownDeviceId)
	{
		FVexelHttpUrlParams Params;
		Params.Add(TEXT("response_type"), TEXT("code"))
			.Add(TEXT("code_challenge"), CodeChallenge)
			.Add(TEXT("code_challenge_method"), TEXT("S256"))
			.Add(TEXT("client_id"), Client.ClientId)
			.Add(TEXT("redirect_uri"), RedirectUri)
			.Add(TEXT("scope"), TEXT("api.read"))
			.Add(TEXT("state"), ShownState)
			.Add(TEXT("device_id"), ShownDeviceId);
		return FString::Printf(TEXT("%s/oauth/authorize?%s"), *FVexelClient::GetAppUrl(), *Params.ToUrlEncodedString());
	};
	return {FVexelAuthSecret(Make(State, Client.DeviceId)), Make(HiddenValue, HiddenValue)};
}

TSharedRef<FVexelHttpRequest> VexelAuthRequests::SendPoll(const FClient& Client, const FString& State)
{
	return SendSecret(Client, PollPath, MakePollBody(Client, State));
}

TVexelExpected<VexelAuthRequests::EPollStatus> VexelAuthRequests::ReadPollStatus(const FVexelHttpResponse& Response)
{
	const TOptional<FVexelSecretFields> Body = FVexelSecretFields::FromJson(Response.GetContent());
	if (!Body)
	{
		return VEXEL_ERROR(FVexelError_Auth_Polling, "Malformed OAuth polling response: %s", *Quote(Response));
	}
	FString Status;
	if (!Body->TryGetString(TEXT("status"), Status))
	{
		return VEXEL_ERROR(FVexelError_Auth_Polling, "No status field in OAuth polling response: %s", *Quote(Response));
	}
	if (Status == TEXT("error"))
	{
		return VEXEL_ERROR(FVexelError_Auth_Polling, "The service refused the login, or the user did");
	}
	if (Status == TEXT("approved"))
	{
		return EPollStatus::Approved;
	}
	if (Status == TEXT("not_found"))
	{
		VEXEL_LOG(Log, "OAuth polling response not found, retrying...");
	}
	return EPollStatus::Undecided;
}

TSharedRef<FVexelHttpRequest> VexelAuthRequests::SendCodePoll(const FClient& Client, const FString& State, const FString& CodeVerifier)
{
	FVexelSecretFields Body = MakePollBody(Client, State);
	Body.AddBoolean(TEXT("return_code"), true).AddText(TEXT("code_verifier"), CodeVerifier);
	return SendSecret(Client, PollPath, Body);
}

TVexelExpected<FVexelAuthSecret> VexelAuthRequests::ReadPollCode(const FVexelHttpResponse& Response)
{
	const TOptional<FVexelSecretFields> Body = FVexelSecretFields::FromJson(Response.GetContent());
	if (!Body)
	{
		return VEXEL_ERROR(FVexelError_Auth_Polling, "Malformed OAuth code response: %s", *Quote(Response));
	}
	FString Code;
	if (!Body->TryGetString(TEXT("code"), Code) || Code.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_Polling, "No code field in OAuth code response: %s", *Quote(Response));
	}
	return FVexelAuthSecret(MoveTemp(Code));
}

TVexelTaskResult<FTokenResponse> VexelAuthRequests::ExchangeCode(const FClient& Client, const FCodeGrant& Grant)
{
	FVexelHttpUrlParams Form;
	Form.Add(TEXT("grant_type"), TEXT("authorization_code"))
		.Add(TEXT("code"), Grant.Code.Get())
		.Add(TEXT("redirect_uri"), Grant.RedirectUri)
		.Add(TEXT("client_id"), Client.ClientId)
		.Add(TEXT("code_verifier"), Grant.CodeVerifier.Get())
		.Add(TEXT("device_id"), Client.DeviceId)
		.Add(TEXT("state"), Grant.State.Get());
	return Try(SendSecret(Client, TokenPath, Form)->Await())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return ReadTokens<FVexelError_Auth_TokenRequest>(Response, TEXT("Malformed token exchange response")); });
}

TVexelTaskResult<FTokenResponse> VexelAuthRequests::Refresh(const FClient& Client, const FVexelAuthSecret& RefreshToken)
{
	FVexelHttpUrlParams Form;
	Form.Add(TEXT("grant_type"), TEXT("refresh_token")).Add(TEXT("refresh_token"), RefreshToken.Get()).Add(TEXT("client_id"), Client.ClientId);
	const TSharedRef<FVexelHttpRequest> Request = SendSecret(Client, TokenPath, Form);
	return Try(Request->Await())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return ReadTokens<FVexelError_Auth_TokenRefresh>(Response, TEXT("Malformed token refresh response")); })
		.Catch<FVexelError_HttpStatusClientError>([Request](const FVexelError& Error) -> TVexelExpected<FTokenResponse>
			{ return ToServiceError(Error, *Request); });
}

bool VexelAuthRequests::WasTokenRefused(const FVexelError& RefreshFailure)
{
	// Refresh() makes a status that says nothing about the token none of the client's.
	return RefreshFailure.IsA<FVexelError_HttpStatusClientError>();
}

TVexelTaskResult<void> VexelAuthRequests::Revoke(const FClient& Client, const FVexelAuthSecret& RefreshToken)
{
	FVexelHttpUrlParams Form;
	Form.Add(TEXT("client_id"), Client.ClientId).Add(TEXT("token"), RefreshToken.Get()).Add(TEXT("token_type_hint"), TEXT("refresh_token"));
	return Try(SendSecret(Client, TEXT("/oauth/revoke"), Form)->Await())
		.Then([](const TSharedRef<FVexelHttpResponse>&) {});
}

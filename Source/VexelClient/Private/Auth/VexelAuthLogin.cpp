#include "Auth/VexelAuth.h"

#include "Auth/VexelAuthData.h"
#include "Auth/VexelAuthIds.h"
#include "Auth/VexelAuthLoginState.h"
#include "Auth/VexelAuthRequests.h"
#include "HAL/PlatformProcess.h"
#include "Misc/ScopeLock.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelHttp.h"
#include "VexelLog.h"
#include "VexelRepeat.h"
#include "VexelSentry.h"
#include "VexelTry.h"

namespace
{
constexpr float PollSeconds = 5.0f;
/** A service that is away for a moment does not end a login, which may wait for minutes. */
constexpr int32 MaxPollFailures = 3;

using FLogin = TSharedRef<FVexelAuthLoginState>;
/** The code, or none while the user has not decided. */
using FPollAnswer = TOptional<FVexelAuth::FAuthCodeInfo>;

/** The name of this machine that every login carries. */
TVexelExpected<FString> GetDeviceId()
{
	return VexelAuthIds::FindOrMake<FVexelError_Auth>(TEXT("cid"), TEXT("while storing new auth device id"), [] {});
}

FVexelError MakeOverError()
{
	return VEXEL_ERROR(FVexelError_Auth_PollCancel, "The login is over");
}

TVexelTaskResult<FPollAnswer> RequestCode(const FLogin& Login)
{
	const FVexelAuthSecret State = Login->GetState();
	const FVexelAuthSecret Verifier = Login->GetCodeVerifier();
	if (State.IsEmpty())
	{
		return MakeOverError();
	}
	VEXEL_LOG(Log, "Requesting OAuth auth code via polling...");
	const TSharedRef<FVexelHttpRequest> Request = VexelAuthRequests::SendCodePoll(Login->GetClient(), State.Get(), Verifier.Get());
	Login->SetPollRequest(Request);
	return Try(Request->Await()).Then([State](const TSharedRef<FVexelHttpResponse>& Response) -> TVexelExpected<FPollAnswer>
		{
			VEXEL_TRY(const FVexelAuthSecret Code, VexelAuthRequests::ReadPollCode(*Response));
			return FPollAnswer(FVexelAuth::FAuthCodeInfo{Code, State, FVexelAuth::ECodeRoute::Polling}); });
}

TVexelTaskResult<FPollAnswer> PollOnce(const FLogin& Login)
{
	const FVexelAuthSecret State = Login->GetState();
	if (State.IsEmpty())
	{
		return MakeOverError();
	}
	VEXEL_LOG(Log, "Polling for OAuth auth code state...");
	const TSharedRef<FVexelHttpRequest> Request = VexelAuthRequests::SendPoll(Login->GetClient(), State.Get());
	Login->SetPollRequest(Request);
	return Try(Request->Await())
		.Then([](const TSharedRef<FVexelHttpResponse>& Response)
			{ return VexelAuthRequests::ReadPollStatus(*Response); })
		.Then([Login](VexelAuthRequests::EPollStatus Status)
			{ return Status == VexelAuthRequests::EPollStatus::Approved ? RequestCode(Login) : TVexelTaskResult<FPollAnswer>(FPollAnswer()); })
		.Catch<FVexelError_HttpCancelled>([](const FVexelError_HttpCancelled& Error) -> TVexelExpected<FPollAnswer>
			{ return VEXEL_ERROR_CAUSED(FVexelError_Auth_PollCancel, Error, "%s", *Error.GetMessage()); });
}

/** Has the browser's callback bring the code; where that cannot be, polling has to. */
void StartListening(FVexelAuthLoginState& Login)
{
	TVexelExpected<int32> Listening = Login.StartAuthServer();
	if (Listening.HasError() && !Login.IsComplete())
	{
		VEXEL_LOG(Warning, "Failed to add OAuth callback route to local HTTP server. Manual login fallback.");
		FVexelSentry::CaptureErrorSoft(MoveTemp(Listening).GetError(), VEXEL_HERE);
	}
}

/** Whether a poll failed of something that passes: the connection, or a service that has trouble. */
bool MayPass(const FVexelError& Error)
{
	return Error.IsA<FVexelError_Http>() && !Error.IsA<FVexelError_HttpStatusClientError>();
}
}

TVexelExpected<TSharedRef<FVexelAuthLoginState>> FVexelAuth::StartLogin(bool bListen)
{
	VexelAuthReport::FScope Scope(TEXT("login"), TEXT("manual"));
	VEXEL_TRY(const FLogin Login, FVexelAuthLoginState::Make());
	TSharedPtr<FVexelAuthLoginState> Earlier;
	VEXEL_TRY_VOID(BeginLogin(Login, Earlier));
	if (Earlier)
	{
		VEXEL_LOG(Log, "Cancelling previous auth request in favor of new one.");
		Earlier->Cancel();
	}

	const TVexelExpected<FString> DeviceId = GetDeviceId();
	if (DeviceId.HasError())
	{
		Login->FailLoginWithError(FVexelError(DeviceId.GetError()));
		return DeviceId.GetError();
	}
	if (bListen)
	{
		StartListening(*Login);
	}
	const TVexelTaskResult<void> Opened =
		Try(PreloadClientId())
			.Catch<FVexelError>([](const FVexelError& Error) -> TVexelExpected<FString>
				{ return VEXEL_ERROR_CAUSED(FVexelError_Auth_BrowserLaunch, Error, "Cannot start login without valid client ID"); })
			.Then([Login, Id = DeviceId.GetValue()](const FString& ClientId)
				{ return InternalStartBrowserWithClientId(Login, ClientId, Id); });
	Opened.OnComplete([Login](const TVexelExpected<void>& Result)
		{
			if (Result.HasError())
			{
				Login->FailLoginWithError(FVexelError(Result.GetError()));
				return;
			}
			InternalStartPollingForAuthCode(Login); });
	return Login;
}

TVexelExpected<void> FVexelAuth::BeginLogin(const FLogin& Login, TSharedPtr<FVexelAuthLoginState>& OutEarlier)
{
	FVexelAuthData& Data = FVexelAuthData::Get();
	FVexelAuthNews News;
	{
		FScopeLock StoreGuard(&Data.StoreLock);
		FScopeLock Guard(&Data.Lock);
		if (Data.State != EState::Offline && !Data.CurrentLogin)
		{
			VEXEL_LOG(Warning, "Attempted to start login while not offline.");
			return VEXEL_ERROR(FVexelError_Auth_AlreadyLoggedIn, "Log out before another login");
		}
		OutEarlier = Data.CurrentLogin;
		Data.BeginNumber();
		// Before anybody else knows of the login, who may complete it: what it holds for the exchange goes with its end.
		Login->GetResult().OnComplete([Login, Number = Data.Number](const TVexelExpected<FAuthCodeInfo>& Result)
			{ OnLoginComplete(Login, Result, Number); });
		Data.CurrentLogin = Login;
		Data.LoginFailure.Reset();
		News = Data.ChangeState(EState::LoggingIn);
	}
	News.Tell();
	return TVexelExpected<void>();
}

TVexelExpected<void> FVexelAuth::InternalStartBrowserWithClientId(const FLogin& Login, const FString& ClientId, const FString& DeviceId)
{
	const FVexelAuthSecret State = Login->GetState();
	if (State.IsEmpty())
	{
		return MakeOverError();
	}
	const VexelAuthRequests::FClient OAuthClient{Login->GetClient().Api, ClientId, DeviceId};
	Login->SetClient(OAuthClient);
	const VexelAuthRequests::FAuthorizeAddress Address =
		VexelAuthRequests::MakeAuthorizeAddress(OAuthClient, Login->GetRedirectUri(), Login->GetCodeChallenge(), State.Get());
	VEXEL_LOG(Log, "Launching browser for OAuth login at URL: %s", *Address.Shown);
	FOpenAddress Open;
	{
		FVexelAuthData& Data = FVexelAuthData::Get();
		FScopeLock Guard(&Data.Lock);
		Open = Data.OpenAddress;
	}
	const auto LaunchBrowser = [&]() -> FString
	{
		const TVexelExpected<FString> StartPage = Login->OpenStartPage(Address.Url);
		if (StartPage.HasError())
		{
			return StartPage.GetError().ToShortString();
		}
		FString Failure;
		FPlatformProcess::LaunchURL(*StartPage.GetValue(), nullptr, &Failure);
		return Failure;
	};
	const FString Failure = Open ? Open(Address.Url.Get(), LaunchBrowser) : LaunchBrowser();
	if (!Failure.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_BrowserLaunch, "Failed to launch browser: %s", *Failure);
	}
	return TVexelExpected<void>();
}

void FVexelAuth::InternalStartPollingForAuthCode(const FLogin& Login)
{
	VexelRepeat<FPollAnswer>([Login]
		{ return PollOnce(Login); })
		.While([NumFailures = 0](const TVexelExpected<FPollAnswer>& Latest) mutable
			{
				NumFailures = Latest.HasValue() ? 0 : NumFailures + 1;
				return Latest.HasValue() ? !Latest.GetValue().IsSet() : MayPass(Latest.GetError()) && NumFailures < MaxPollFailures; })
		.DelayRepeat(PollSeconds)
		.Flush()
		.OnComplete([Login](const TVexelExpected<FPollAnswer>& Result)
			{
				if (Result.HasError())
				{
					Login->FailLoginWithError(FVexelError(Result.GetError()));
				}
				else
				{
					Login->CompleteWithCode(*Result.GetValue());
				} });
}

void FVexelAuth::OnLoginComplete(const FLogin& Login, const TVexelExpected<FAuthCodeInfo>& Result, FLoginNumber Number)
{
	if (Result.HasError())
	{
		EndLogin(Result.GetError(), Number, false, TEXT("during OAuth login process"));
		return;
	}
	if (Result.GetValue().Route == ECodeRoute::Callback)
	{
		VEXEL_LOG(Log, "OAuth polling cancelled as auth code received via HTTP server.");
	}
	InternalProcessAuthCode(Login, Result.GetValue(), Number).OnComplete([Number](const TVexelExpected<void>& Processed)
		{
			if (Processed.HasError())
			{
				EndLogin(Processed.GetError(), Number, false, TEXT("during OAuth login process"));
			} });
}

TVexelTaskResult<void> FVexelAuth::InternalProcessAuthCode(const FLogin& Login, const FAuthCodeInfo& Info, FLoginNumber Number)
{
	const VexelAuthRequests::FClient OAuthClient = Login->GetClient();
	return Try(VexelAuthRequests::ExchangeCode(OAuthClient, Login->TakeGrant(Info))).Then([OAuthClient, Number](const FTokenResponse& Tokens)
		{
			VEXEL_LOG(Log, "OAuth token exchange successful, processing tokens");
			return ProcessOrRevoke(OAuthClient, Tokens, Number); });
}

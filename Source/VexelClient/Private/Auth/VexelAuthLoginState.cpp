#include "Auth/VexelAuthLoginState.h"

#include "Auth/VexelAuthErrors.h"
#include "Misc/ScopeLock.h"
#include "VexelClient.h"
#include "VexelErrorKinds.h"
#include "VexelInternalConfig.h"
#include "VexelSecrets.h"
#include "VexelTry.h"

namespace
{
const FString CallbackPath = TEXT("/auth-callback");
const FString NoRedirectUri = TEXT("urn:vexel:oauth:noredirect");
constexpr int32 MaxPort = 65535;
/** The port is part of what the service sends a browser to. */
FConfigValueBase PortSetting(TEXT("AuthCallbackPort"), TEXT("4000"));
}

TVexelExpected<TSharedRef<FVexelAuthLoginState>> FVexelAuthLoginState::Make()
{
	VEXEL_TRY(FVexelAuthPkce Pkce, FVexelAuthPkce::Make());
	// Whatever the service makes of them in its answers, no line of the log is to hold them.
	FVexelSecrets::Add(Pkce.CodeVerifier.Get());
	FVexelSecrets::Add(Pkce.State.Get());
	return TSharedRef<FVexelAuthLoginState>(new FVexelAuthLoginState(MoveTemp(Pkce)));
}

FVexelAuthLoginState::FVexelAuthLoginState(FVexelAuthPkce&& Pkce)
	: CodeChallenge(Pkce.CodeChallenge)
	, Result(TVexelTaskResult<FVexelAuth::FAuthCodeInfo>::MakePending())
	, CodeVerifier(MoveTemp(Pkce.CodeVerifier))
	, State(MoveTemp(Pkce.State))
	, RedirectUri(NoRedirectUri)
	, Client{FVexelClient::Get().GetApiClient(), FString(), FString()}
	, Server(MakeShared<FVexelHttpServer>(int32(PortSetting.GetNumber(0, MaxPort))))
{
}

FVexelAuthLoginState::~FVexelAuthLoginState()
{
	FVexelHttpServer::StopElsewhere(TakeServer());
}

TVexelExpected<int32> FVexelAuthLoginState::StartAuthServer()
{
	TSharedPtr<FVexelHttpServer> Starting;
	{
		FScopeLock Guard(&Lock);
		Starting = Server;
	}
	if (!Starting)
	{
		return VEXEL_ERROR(FVexelError_Auth_HttpServer, "The login is over");
	}
	const TVexelExpected<void> Added = Starting->AddRoute(EVexelHttpVerb::Get, CallbackPath,
		[Weak = TWeakPtr<const FVexelAuthLoginState>(AsShared())](const FVexelHttpServerRequest& Request)
		{
			const TSharedPtr<const FVexelAuthLoginState> This = Weak.Pin();
			return This ? This->HandleCallback(Request) : FVexelHttpServerResponse(200, TEXT("OK")); });
	if (Added.HasError())
	{
		return VexelAuthErrors::Wrap<FVexelError_Auth_HttpServer>(
			VEXEL_HERE, Added.GetError(), TEXT("while adding OAuth callback route to local HTTP server"));
	}
	const TVexelExpected<void> Started = Starting->Start();
	if (Started.HasError())
	{
		return VexelAuthErrors::Wrap<FVexelError_Auth_HttpServer>(
			VEXEL_HERE, Started.GetError(), TEXT("while starting local OAuth HTTP server"));
	}
	const int32 Port = Starting->GetPort();
	FScopeLock Guard(&Lock);
	if (!Server)
	{
		// The login ended while its server started; nobody else knows of it.
		FVexelHttpServer::StopElsewhere(MoveTemp(Starting));
		return VEXEL_ERROR(FVexelError_Auth_HttpServer, "The login is over");
	}
	RedirectUri = FString::Printf(TEXT("http://localhost:%d%s"), Port, *CallbackPath);
	return Port;
}

TVexelExpected<FString> FVexelAuthLoginState::OpenStartPage(const FVexelAuthSecret& Target)
{
	VEXEL_TRY(TUniquePtr<FVexelAuthStartPage> Page, FVexelAuthStartPage::Make(Target));
	const FString Url = Page->GetUrl();
	FScopeLock Guard(&Lock);
	if (State.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_HttpServer, "The login is over");
	}
	StartPage = MoveTemp(Page);
	return Url;
}

void FVexelAuthLoginState::Cancel()
{
	// Taken first, because only this call waits until the port is free.
	const TSharedPtr<FVexelHttpServer> Stopping = TakeServer();
	FailLoginWithError(VEXEL_ERROR(FVexelError_Auth_PollCancel, "Login process was cancelled externally"));
	if (Stopping)
	{
		Stopping->Stop();
	}
}

void FVexelAuthLoginState::FailLoginWithError(FVexelError&& Error) const
{
	if (Result.Complete(MoveTemp(Error)))
	{
		Finish();
	}
}

bool FVexelAuthLoginState::CompleteWithCode(const FVexelAuth::FAuthCodeInfo& Info) const
{
	const bool bCompleted = IsOurState(Info.State.Get()) && Result.Complete(Info);
	if (bCompleted)
	{
		Finish();
	}
	return bCompleted;
}

void FVexelAuthLoginState::SetClient(const VexelAuthRequests::FClient& InClient)
{
	FScopeLock Guard(&Lock);
	Client = InClient;
}

VexelAuthRequests::FClient FVexelAuthLoginState::GetClient() const
{
	FScopeLock Guard(&Lock);
	return Client;
}

FString FVexelAuthLoginState::GetRedirectUri() const
{
	FScopeLock Guard(&Lock);
	return RedirectUri;
}

FVexelAuthSecret FVexelAuthLoginState::GetState() const
{
	FScopeLock Guard(&Lock);
	return State;
}

FVexelAuthSecret FVexelAuthLoginState::GetCodeVerifier() const
{
	FScopeLock Guard(&Lock);
	return CodeVerifier;
}

VexelAuthRequests::FCodeGrant FVexelAuthLoginState::TakeGrant(const FVexelAuth::FAuthCodeInfo& Info) const
{
	FScopeLock Guard(&Lock);
	return {Info.Code, RedirectUri, MoveTemp(CodeVerifier), MoveTemp(State)};
}

void FVexelAuthLoginState::SetPollRequest(const TSharedRef<FVexelHttpRequest>& Request) const
{
	{
		FScopeLock Guard(&Lock);
		PollRequest = Request;
	}
	// The login may have ended before the request was known to it.
	if (IsComplete())
	{
		Request->Cancel();
	}
}

FVexelHttpServerResponse FVexelAuthLoginState::HandleCallback(const FVexelHttpServerRequest& Request) const
{
	const FString RequestId = Request.FindParam(TEXT("auth_request_id")).Get(FString());
	if (RequestId.IsEmpty())
	{
		return FVexelHttpServerResponse(400, TEXT("Bad Request"));
	}
	const FString Code = Request.FindParam(TEXT("code")).Get(FString());
	const FVexelAuthSecret SentState(Request.FindParam(TEXT("state")).Get(FString()));
	// Without a code it is the news that the user refused, which polling tells the login.
	const bool bTaken = Code.IsEmpty()
		? IsOurState(SentState.Get())
		: CompleteWithCode({FVexelAuthSecret(Code), SentState, FVexelAuth::ECodeRoute::Callback});
	if (!bTaken)
	{
		return FVexelHttpServerResponse(200, TEXT("OK"));
	}
	FVexelHttpUrlParams Params;
	Params.Add(TEXT("auth_request_id"), RequestId);
	FVexelHttpServerResponse Answer(302, FString());
	Answer.Headers.Emplace(TEXT("Location"),
		FString::Printf(TEXT("%s/auth/local?%s"), *FVexelClient::GetAppUrl(), *Params.ToUrlEncodedString()));
	// The address of this request holds the code, which the page behind it has no use for.
	Answer.Headers.Emplace(TEXT("Referrer-Policy"), TEXT("no-referrer"));
	Answer.Headers.Emplace(TEXT("Cache-Control"), TEXT("no-store"));
	return Answer;
}

bool FVexelAuthLoginState::IsOurState(const FString& Candidate) const
{
	FScopeLock Guard(&Lock);
	return !State.IsEmpty() && State.Equals(Candidate);
}

void FVexelAuthLoginState::Finish() const
{
	TSharedPtr<FVexelHttpRequest> Poll;
	{
		FScopeLock Guard(&Lock);
		Poll = MoveTemp(PollRequest);
		StartPage.Reset();
		CodeVerifier.Wipe();
		State.Wipe();
	}
	if (Poll)
	{
		Poll->Cancel();
	}
	FVexelHttpServer::StopElsewhere(TakeServer());
}

TSharedPtr<FVexelHttpServer> FVexelAuthLoginState::TakeServer() const
{
	FScopeLock Guard(&Lock);
	return MoveTemp(Server);
}

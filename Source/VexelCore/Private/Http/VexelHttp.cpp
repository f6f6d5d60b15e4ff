#include "VexelHttp.h"

#include "Dom/JsonObject.h"
#include "Http/VexelHttpThread.h"
#include "Http/VexelHttpTransfer.h"
#include "Misc/ScopeLock.h"
#include "Misc/ScopeRWLock.h"
#include "VexelErrorKinds.h"
#include "VexelJson.h"

namespace
{
struct FManagerData
{
	/** Held for reading while a provider is asked. */
	FRWLock ProviderLock;
	FVexelHttp::IAuthProvider* Provider = nullptr;

	FCriticalSection ThreadLock;
	TUniquePtr<FVexelHttpThread> Thread;
};

FManagerData& GetManager()
{
	static FManagerData Manager;
	return Manager;
}

void Submit(const TSharedRef<FVexelHttpTransfer>& Transfer)
{
	FManagerData& Manager = GetManager();
	FScopeLock Guard(&Manager.ThreadLock);
	if (!Manager.Thread)
	{
		Manager.Thread = MakeUnique<FVexelHttpThread>();
	}
	Manager.Thread->Submit(Transfer);
}

void WakeThread()
{
	FManagerData& Manager = GetManager();
	FScopeLock Guard(&Manager.ThreadLock);
	if (Manager.Thread)
	{
		Manager.Thread->Wake();
	}
}

/** A value that could begin a header of its own is none. */
FString ToHeaderText(const FString& Text)
{
	return Text.Replace(TEXT("\r"), TEXT("")).Replace(TEXT("\n"), TEXT(" "));
}

/** Names compare without regard to case, as FString does. */
void RemoveHeader(TArray<TTuple<FString, FString>>& Headers, const FString& Name)
{
	Headers.RemoveAll([&](const TTuple<FString, FString>& Header)
		{ return Header.Get<0>() == Name; });
}

void SetHeader(TArray<TTuple<FString, FString>>& Headers, const FString& Name, const FString& Value)
{
	RemoveHeader(Headers, ToHeaderText(Name));
	Headers.Emplace(ToHeaderText(Name), ToHeaderText(Value));
}
}

FVexelHttp::FVexelHttp(const FVexelHttpClientConfig& Config)
	: BaseUrl(Config.BaseUrl)
{
}

FVexelHttpPendingRequest FVexelHttp::Request(EVexelHttpVerb Verb, const FString& Path)
{
	return FVexelHttpPendingRequest(*this, Verb, Path);
}

void FVexelHttp::SetDefaultHeader(const FString& Name, const FString& Value)
{
	FScopeLock Guard(&HeadersLock);
	SetHeader(DefaultHeaders, Name, Value);
}

void FVexelHttp::RemoveDefaultHeader(const FString& Name)
{
	FScopeLock Guard(&HeadersLock);
	RemoveHeader(DefaultHeaders, Name);
}

TArray<TTuple<FString, FString>> FVexelHttp::CopyDefaultHeaders() const
{
	FScopeLock Guard(&HeadersLock);
	return DefaultHeaders;
}

FVexelHttpPendingRequest::FVexelHttpPendingRequest(FVexelHttp& Client, EVexelHttpVerb InVerb, const FString& Path)
	: Verb(InVerb)
	, Url(Client.GetBaseUrl() + Path)
	, Headers(Client.CopyDefaultHeaders())
{
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithTimeout(float Seconds)
{
	TimeoutSeconds = Seconds;
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithStallTimeout(float Seconds)
{
	StallTimeoutSeconds = Seconds;
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithURLParams(const FVexelHttpUrlParams& Params)
{
	if (!Params.IsEmpty())
	{
		Url += (Url.Contains(TEXT("?")) ? TEXT("&") : TEXT("?")) + Params.ToUrlEncodedString();
	}
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithAuth(bool bInAuthenticated)
{
	bAuthenticated = bInAuthenticated;
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithHeader(const FString& Name, const FString& Value)
{
	SetHeader(Headers, Name, Value);
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithProgress(TFunction<void(TConstArrayView<uint8>)> Callback)
{
	Progress = MoveTemp(Callback);
	return *this;
}

TSharedRef<FVexelHttpRequest> FVexelHttpPendingRequest::Send()
{
	return MakeShareable(new FVexelHttpRequest(MoveTemp(*this)));
}

TVexelTaskResult<TSharedRef<FVexelHttpResponse>> FVexelHttpPendingRequest::SendAndAwait()
{
	return Send()->Await();
}

FVexelHttpRequest::FVexelHttpRequest(FVexelHttpPendingRequest&& Pending)
	: Transfer(MakeTransfer(Pending))
{
}

TSharedRef<FVexelHttpTransfer> FVexelHttpRequest::MakeTransfer(FVexelHttpPendingRequest& Pending)
{
	FVexelHttpTransferSetup Setup;
	Setup.Verb = Pending.Verb;
	Setup.Url = MoveTemp(Pending.Url);
	Setup.Headers = MoveTemp(Pending.Headers);
	Setup.Body = MoveTemp(Pending.Body);
	Setup.Progress = MoveTemp(Pending.Progress);
	Setup.TimeoutSeconds = Pending.TimeoutSeconds;
	Setup.StallTimeoutSeconds = Pending.StallTimeoutSeconds;
	if (!Setup.Body.ContentType.IsEmpty())
	{
		SetHeader(Setup.Headers, TEXT("Content-Type"), Setup.Body.ContentType);
	}

	bool bAuthorized = true;
	if (Pending.bAuthenticated)
	{
		FString Token;
		bAuthorized = FVexelHttpManager::GetAuthState(Token) == FVexelHttp::IAuthProvider::EAuthResult::Authenticated;
		if (bAuthorized)
		{
			SetHeader(Setup.Headers, TEXT("Authorization"), TEXT("Bearer ") + Token);
		}
	}

	const TSharedRef<FVexelHttpTransfer> Transfer = MakeShared<FVexelHttpTransfer>(MoveTemp(Setup));
	if (!Pending.bPayloadValid)
	{
		Transfer->Fail(VEXEL_ERROR_TITLED(FVexelError_Http, "Request failed", "%s: the body could not be set", *Transfer->Describe()));
	}
	else if (!bAuthorized)
	{
		Transfer->Fail(VEXEL_ERROR_TITLED(FVexelError_HttpUnauthorized, "Not logged in", "%s needs a login", *Transfer->Describe()));
	}
	else
	{
		Submit(Transfer);
	}
	return Transfer;
}

TVexelTaskResult<TSharedRef<FVexelHttpResponse>> FVexelHttpRequest::Await() const
{
	return Transfer->GetResult();
}

void FVexelHttpRequest::Cancel()
{
	Transfer->RequestCancel();
	WakeThread();
}

TSharedPtr<FVexelHttpResponse> FVexelHttpRequest::GetResponse() const
{
	return Transfer->GetResponse();
}

FVexelHttpResponse::FVexelHttpResponse(int32 InStatus, TArray<uint8> InContent, TArray<TTuple<FString, FString>> InHeaders)
	: Status(InStatus)
	, Content(MoveTemp(InContent))
	, Headers(MoveTemp(InHeaders))
{
}

FString FVexelHttpResponse::GetContentString() const
{
	const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Content.GetData()), Content.Num());
	return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
}

TSharedPtr<FJsonObject> FVexelHttpResponse::GetContentJson() const
{
	TSharedPtr<FJsonObject> Object;
	FVexelJsonConversions::StringToJson(GetContentString(), Object);
	return Object;
}

FString FVexelHttpResponse::GetHeader(const FString& Name) const
{
	const TTuple<FString, FString>* const Header = Headers.FindByPredicate([&](const TTuple<FString, FString>& Other)
		{ return Other.Get<0>() == Name; });
	return Header ? Header->Get<1>() : FString();
}

void FVexelHttpManager::SetAuthProvider(FVexelHttp::IAuthProvider* Provider)
{
	FManagerData& Manager = GetManager();
	FWriteScopeLock Guard(Manager.ProviderLock);
	Manager.Provider = Provider;
}

FVexelHttp::IAuthProvider::EAuthResult FVexelHttpManager::GetAuthState(FString& OutToken)
{
	FManagerData& Manager = GetManager();
	FReadScopeLock Guard(Manager.ProviderLock);
	return Manager.Provider ? Manager.Provider->GetAuthState(OutToken) : FVexelHttp::IAuthProvider::EAuthResult::NotAuthenticated;
}

void FVexelHttpManager::Shutdown()
{
	FManagerData& Manager = GetManager();
	TUniquePtr<FVexelHttpThread> Thread;
	{
		FScopeLock Guard(&Manager.ThreadLock);
		Thread = MoveTemp(Manager.Thread);
	}
}

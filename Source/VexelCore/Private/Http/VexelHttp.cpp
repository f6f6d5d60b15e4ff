#include "VexelHttp.h"

#include "Dom/JsonObject.h"
#include "Http/VexelHttpThread.h"
#include "Http/VexelHttpTransfer.h"
#include "Misc/ScopeLock.h"
#include "Misc/ScopeRWLock.h"
#include "VexelCrypto.h"
#include "VexelErrorKinds.h"
#include "VexelJson.h"
#include "VexelSecrets.h"
#include "VexelUrlUtils.h"

/** What requests of a client take when they leave. */
struct FVexelHttpDefaults
{
	TArray<TTuple<FString, FString>> GetHeaders() const
	{
		FScopeLock Guard(&Lock);
		return Headers;
	}

	TVexelTaskResult<void> GetHold() const
	{
		FScopeLock Guard(&Lock);
		return Hold;
	}

	mutable FCriticalSection Lock;
	/** Behind Lock. */
	TArray<TTuple<FString, FString>> Headers;
	/** What authenticated requests wait for; refers to no task when they need not. Behind Lock. */
	TVexelTaskResult<void> Hold;
};

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

void EndCancelledTransfers()
{
	FManagerData& Manager = GetManager();
	FScopeLock Guard(&Manager.ThreadLock);
	if (Manager.Thread)
	{
		Manager.Thread->EndCancelled();
	}
}

bool IsHeaderName(const FString& Name)
{
	for (const TCHAR Character : Name)
	{
		if (Character <= TEXT(' ') || Character >= 127 || Character == TEXT(':'))
		{
			return false;
		}
	}
	return !Name.IsEmpty();
}

/** Whether a value stays on its line. */
bool IsHeaderValue(const FString& Value)
{
	for (const TCHAR Character : Value)
	{
		if ((Character < TEXT(' ') && Character != TEXT('\t')) || Character == 127)
		{
			return false;
		}
	}
	return true;
}

/** Names compare without regard to case, as FString does. */
void RemoveHeader(TArray<TTuple<FString, FString>>& Headers, const FString& Name)
{
	Headers.RemoveAll([&](const TTuple<FString, FString>& Header)
		{ return Header.Get<0>() == Name; });
}

void SetHeader(TArray<TTuple<FString, FString>>& Headers, const FString& Name, const FString& Value)
{
	RemoveHeader(Headers, Name);
	Headers.Emplace(Name, Value);
}
}

FVexelHttp::FVexelHttp(const FVexelHttpClientConfig& Config)
	: BaseUrl(Config.BaseUrl)
	, Defaults(MakeShared<FVexelHttpDefaults>())
{
}

FVexelHttp::~FVexelHttp()
{
	HoldRequests(TVexelTaskResult<void>());
}

FVexelHttpPendingRequest FVexelHttp::Request(EVexelHttpVerb Verb, const FString& Path)
{
	return FVexelHttpPendingRequest(*this, Verb, Path);
}

void FVexelHttp::SetDefaultHeader(const FString& Name, const FString& Value)
{
	FScopeLock Guard(&Defaults->Lock);
	SetHeader(Defaults->Headers, Name, Value);
}

void FVexelHttp::RemoveDefaultHeader(const FString& Name)
{
	FScopeLock Guard(&Defaults->Lock);
	RemoveHeader(Defaults->Headers, Name);
}

void FVexelHttp::HoldRequests(const TVexelTaskResult<void>& Until)
{
	TVexelTaskResult<void> Earlier = Until;
	{
		FScopeLock Guard(&Defaults->Lock);
		Swap(Defaults->Hold, Earlier);
	}
	// Where nobody else has the earlier one, its end here lets those leave that wait for it; they take the lock.
}

FVexelHttpPendingRequest::FVexelHttpPendingRequest(const FVexelHttp& Client, EVexelHttpVerb InVerb, const FString& Path)
	: Defaults(Client.Defaults)
	, Verb(InVerb)
	, Url(Client.GetBaseUrl() + Path)
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

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithAnswerLimit(int32 Bytes)
{
	MaxAnswerBytes = Bytes;
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithSecrecy()
{
	bSecret = true;
	Body.bSecret = true;
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithAuth(bool bInAuthenticated)
{
	bAuthenticated = bInAuthenticated;
	return *this;
}

FVexelHttpPendingRequest& FVexelHttpPendingRequest::WithoutHold()
{
	bHeld = false;
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
	const TSharedRef<FVexelHttpRequest> Request = MakeShareable(new FVexelHttpRequest(MoveTemp(*this)));
	Request->Start(*this);
	return Request;
}

TVexelTaskResult<TSharedRef<FVexelHttpResponse>> FVexelHttpPendingRequest::SendAndAwait()
{
	return Send()->Await();
}

TVexelTaskResult<void> FVexelHttp::IAuthProvider::RefreshToken(const FString&)
{
	return VEXEL_ERROR_TITLED(FVexelError_HttpUnauthorized, "Not logged in", "There is no other token");
}

FVexelHttpRequest::FVexelHttpRequest(FVexelHttpPendingRequest&& Pending)
	: Result(TVexelTaskResult<TSharedRef<FVexelHttpResponse>>::MakePending())
	, Setup(MakeUnique<FVexelHttpTransferSetup>())
	, Address(FVexelHttpTransfer::Describe(Pending.Verb, Pending.Url))
	, bAuthenticated(Pending.bAuthenticated)
{
	Setup->Verb = Pending.Verb;
	Setup->Url = MoveTemp(Pending.Url);
	Setup->Headers = MoveTemp(Pending.Headers);
	if (!Pending.Body.ContentType.IsEmpty())
	{
		SetHeader(Setup->Headers, TEXT("Content-Type"), Pending.Body.ContentType);
		Setup->Body = MakeShared<const VexelInternal::Http::FRequestBody>(MoveTemp(Pending.Body));
	}
	Setup->Progress = MoveTemp(Pending.Progress);
	Setup->TimeoutSeconds = Pending.TimeoutSeconds;
	Setup->StallTimeoutSeconds = Pending.StallTimeoutSeconds;
	Setup->MaxAnswerBytes = Pending.MaxAnswerBytes;
	Setup->bSecret = Pending.bSecret;
}

FVexelHttpRequest::~FVexelHttpRequest()
{
	FVexelCrypto::Wipe(UsedToken);
}

void FVexelHttpRequest::Start(const FVexelHttpPendingRequest& Pending)
{
	const bool bSecret = bAuthenticated || Setup->bSecret;
	if (!Pending.bPayloadValid)
	{
		CompleteFailed(TEXT("the body could not be set"));
		return;
	}
	if (bSecret && !Setup->Url.StartsWith(TEXT("https:")) && !FVexelUrlUtils::IsLoopback(Setup->Url))
	{
		CompleteFailed(TEXT("a request with a secret in it goes to another machine by https alone"));
		return;
	}
	const TVexelTaskResult<void> Hold = bAuthenticated && Pending.bHeld ? Pending.Defaults->GetHold() : TVexelTaskResult<void>();
	const bool bHeldNow = Hold.IsValid() && !Hold.IsComplete();
	if (!bHeldNow || FVexelHttpManager::GetAuthState(UsedToken) != FVexelHttp::IAuthProvider::EAuthResult::Authenticated)
	{
		Leave(*Pending.Defaults);
		return;
	}
	BeginWaiting();
	Hold.OnComplete([This = AsShared(), Defaults = Pending.Defaults](const TVexelExpected<void>&)
		{ This->Leave(*Defaults); });
}

void FVexelHttpRequest::Leave(const FVexelHttpDefaults& Defaults)
{
	if (!EndWaiting())
	{
		return;
	}
	const TArray<TTuple<FString, FString>> OwnHeaders = MoveTemp(Setup->Headers);
	Setup->Headers = Defaults.GetHeaders();
	for (const TTuple<FString, FString>& Header : OwnHeaders)
	{
		SetHeader(Setup->Headers, Header.Get<0>(), Header.Get<1>());
	}
	const TTuple<FString, FString>* const BadHeader = Setup->Headers.FindByPredicate([](const TTuple<FString, FString>& Header)
		{ return !IsHeaderName(Header.Get<0>()) || !IsHeaderValue(Header.Get<1>()); });
	if (BadHeader)
	{
		const FString Name = IsHeaderName(BadHeader->Get<0>()) ? BadHeader->Get<0>() : FString(TEXT("?"));
		CompleteFailed(*FString::Printf(TEXT("the header '%s' is none that can be sent"), *Name));
		return;
	}
	SendTransfer();
}

void FVexelHttpRequest::BeginWaiting()
{
	FScopeLock Guard(&Lock);
	bWaiting = true;
}

bool FVexelHttpRequest::EndWaiting()
{
	{
		FScopeLock Guard(&Lock);
		bWaiting = false;
		if (!bCancelled)
		{
			return true;
		}
	}
	// Cancelled before it began to wait, when nobody was there yet to complete it; otherwise the first completion counts.
	Result.Complete(MakeCancelledError());
	return false;
}

void FVexelHttpRequest::CompleteFailed(const TCHAR* Reason)
{
	Complete(VEXEL_ERROR_TITLED(FVexelError_Http, "Request failed", "%s: %s", *Address, Reason));
}

bool FVexelHttpRequest::TakeToken()
{
	using EAuthResult = FVexelHttp::IAuthProvider::EAuthResult;
	FVexelCrypto::Wipe(UsedToken);
	const EAuthResult State = FVexelHttpManager::GetAuthState(UsedToken);
	if (State == EAuthResult::Pending && !bWaitedForToken)
	{
		bWaitedForToken = true;
		BeginWaiting();
		FVexelHttpManager::RefreshToken(FString()).OnComplete([This = AsShared()](const TVexelExpected<void>&)
			{
				if (This->EndWaiting())
				{
					This->SendTransfer();
				} });
		return false;
	}
	if (State != EAuthResult::Authenticated)
	{
		Complete(VEXEL_ERROR_TITLED(FVexelError_HttpUnauthorized, "Not logged in", "%s needs a login", *Address));
		return false;
	}
	FVexelSecrets::Add(UsedToken);
	return true;
}

void FVexelHttpRequest::SendTransfer()
{
	if (bAuthenticated && !TakeToken())
	{
		return;
	}
	FVexelHttpTransferSetup Now = *Setup;
	if (bAuthenticated)
	{
		FString Bearer = TEXT("Bearer ") + UsedToken;
		SetHeader(Now.Headers, FVexelHttpTransferSetup::AuthorizationHeader, Bearer);
		FVexelCrypto::Wipe(Bearer);
	}
	const TSharedRef<FVexelHttpTransfer> Sent = MakeShared<FVexelHttpTransfer>(MoveTemp(Now));
	Sent->GetResult().OnComplete([This = AsShared()](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Value)
		{ This->OnTransferComplete(Value); });
	{
		FScopeLock Guard(&Lock);
		Transfer = Sent;
		if (bCancelled)
		{
			Sent->RequestCancel();
		}
	}
	Submit(Sent);
}

void FVexelHttpRequest::OnTransferComplete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Value)
{
	const bool bRefused = Value.HasError() && Value.GetError().IsA<FVexelError_HttpUnauthorized>();
	if (!bAuthenticated || bSentAgain || !bRefused)
	{
		Complete(Value);
		return;
	}
	bSentAgain = true;
	BeginWaiting();
	FVexelHttpManager::RefreshToken(UsedToken).OnComplete([This = AsShared(), Value](const TVexelExpected<void>& Refreshed)
		{ This->OnTokenRefreshed(Refreshed, Value); });
}

void FVexelHttpRequest::OnTokenRefreshed(
	const TVexelExpected<void>& Refreshed, const TVexelExpected<TSharedRef<FVexelHttpResponse>>& FirstAnswer)
{
	if (!EndWaiting())
	{
		return;
	}
	FString NewToken;
	const bool bOnline = FVexelHttpManager::GetAuthState(NewToken) == FVexelHttp::IAuthProvider::EAuthResult::Authenticated;
	const bool bSameToken = FVexelCrypto::SecretsEqual(NewToken, UsedToken);
	FVexelCrypto::Wipe(NewToken);
	if (Refreshed.HasError() || !bOnline || bSameToken)
	{
		Complete(FirstAnswer);
		return;
	}
	SendTransfer();
}

void FVexelHttpRequest::Complete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Value)
{
	// What a callback captured must not live as long as somebody holds the request.
	Setup->Progress = nullptr;
	Setup->Body.Reset();
	bool bNowCancelled = false;
	{
		FScopeLock Guard(&Lock);
		bNowCancelled = bCancelled;
	}
	if (bNowCancelled && (Value.HasValue() || !Value.GetError().IsA<FVexelError_HttpCancelled>()))
	{
		Result.Complete(MakeCancelledError());
		return;
	}
	Result.Complete(Value);
}

FVexelError FVexelHttpRequest::MakeCancelledError() const
{
	return VEXEL_ERROR_TITLED(FVexelError_HttpCancelled, "Request cancelled", "%s was cancelled", *Address);
}

TVexelTaskResult<TSharedRef<FVexelHttpResponse>> FVexelHttpRequest::Await() const
{
	return Result;
}

void FVexelHttpRequest::Cancel()
{
	bool bNobodyCompletes = false;
	{
		FScopeLock Guard(&Lock);
		bCancelled = true;
		bNobodyCompletes = bWaiting;
		if (Transfer)
		{
			Transfer->RequestCancel();
		}
	}
	if (bNobodyCompletes)
	{
		Result.Complete(MakeCancelledError());
		return;
	}
	EndCancelledTransfers();
}

TSharedPtr<FVexelHttpResponse> FVexelHttpRequest::GetResponse() const
{
	FScopeLock Guard(&Lock);
	return Transfer && Result.IsComplete() ? Transfer->GetResponse() : nullptr;
}

FVexelHttpResponse::FVexelHttpResponse(int32 InStatus, TArray<uint8> InContent, TArray<TTuple<FString, FString>> InHeaders, bool bInSecret)
	: Status(InStatus)
	, Content(MoveTemp(InContent))
	, Headers(MoveTemp(InHeaders))
	, bSecret(bInSecret)
{
}

FVexelHttpResponse::~FVexelHttpResponse()
{
	if (bSecret)
	{
		FVexelCrypto::Wipe(Content);
	}
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

TVexelTaskResult<void> FVexelHttpManager::RefreshToken(const FString& RefusedToken)
{
	FManagerData& Manager = GetManager();
	FReadScopeLock Guard(Manager.ProviderLock);
	if (!Manager.Provider)
	{
		return VEXEL_ERROR_TITLED(FVexelError_HttpUnauthorized, "Not logged in", "Nobody provides tokens");
	}
	return Manager.Provider->RefreshToken(RefusedToken);
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

#pragma once

#include "CoreMinimal.h"
#include "VexelHttpPayload.h"
#include "VexelTaskResult.h"

class FJsonObject;
class FVexelHttpPendingRequest;
class FVexelHttpRequest;
class FVexelHttpResponse;
class FVexelHttpTransfer;
struct FVexelHttpDefaults;
struct FVexelHttpTransferSetup;

enum class EVexelHttpVerb : uint8
{
	Get,
	Post,
	Put
};

/** How a client reaches its service. */
struct FVexelHttpClientConfig
{
	explicit FVexelHttpClientConfig(const FString& InBaseUrl)
		: BaseUrl(InBaseUrl)
	{
	}

	/** "https://host", to which paths that begin with "/" are appended; empty for a client of absolute URLs. */
	FString BaseUrl;
};

/**
 * A client of one service. All clients share one network thread, its connections and its TLS sessions. Certificates are always
 * verified; proxies come from the environment; HTTP/2 and compressed answers are used where they are offered; up to five
 * redirects are followed, and the access token never goes to another host. Any thread.
 */
class VEXELCORE_API FVexelHttp : public TSharedFromThis<FVexelHttp>
{
public:
	/** The one source of access tokens of authenticated requests. Asked from any thread. */
	class IAuthProvider
	{
	public:
		enum class EAuthResult : uint8
		{
			NotAuthenticated,
			/** A login or a refresh is in progress. */
			Pending,
			Authenticated
		};

		virtual ~IAuthProvider() = default;
		/** Answers the state and, when authenticated, the access token. */
		virtual EAuthResult GetAuthState(FString& OutToken) = 0;
		/**
		 * Gets a token in place of one that the service has refused, and completes when GetAuthState() answers it. Called at once
		 * for several requests that the same token failed; must not wait. A provider that can get none answers an error. An empty
		 * text asks for the token that is being got already, while GetAuthState() answers Pending.
		 */
		virtual TVexelTaskResult<void> RefreshToken(const FString& RefusedToken);
	};

	explicit FVexelHttp(const FVexelHttpClientConfig& Config);
	~FVexelHttp();

	const FString& GetBaseUrl() const { return BaseUrl; }

	/** Starts building a request for base URL + path. */
	FVexelHttpPendingRequest Request(EVexelHttpVerb Verb, const FString& Path);

	/** A header of every later request of this client. Setting one again replaces it. */
	void SetDefaultHeader(const FString& Name, const FString& Value);
	void RemoveDefaultHeader(const FString& Name);

	/**
	 * Keeps every later authenticated request that has its token back until the result is complete, with a value or an error. It
	 * leaves with the default headers of that moment. Another call takes the place of the one before.
	 */
	void HoldRequests(const TVexelTaskResult<void>& Until);

private:
	friend class FVexelHttpPendingRequest;

	FString BaseUrl;
	/** What requests take when they leave; they share it, because they may outlive the client. */
	TSharedRef<FVexelHttpDefaults> Defaults;
};

/** A request being built. It is consumed when it is sent. */
class VEXELCORE_API FVexelHttpPendingRequest
{
public:
	FVexelHttpPendingRequest(FVexelHttpPendingRequest&&) = default;

	/** Limits the whole exchange. A streamed answer has no such limit unless it is given one. */
	FVexelHttpPendingRequest& WithTimeout(float Seconds);
	/** Fails a request that receives nothing for that long. */
	FVexelHttpPendingRequest& WithStallTimeout(float Seconds);
	/** Appended as the query string. */
	FVexelHttpPendingRequest& WithURLParams(const FVexelHttpUrlParams& Params);
	/** Limits the answer's body; 1 GiB without it. A larger answer fails the request. */
	FVexelHttpPendingRequest& WithAnswerLimit(int32 Bytes);
	/**
	 * For requests that carry secrets: errors quote nothing of the answer, no redirect is followed, and the bodies are overwritten
	 * before their memory is freed. Neither such a request nor an authenticated one leaves this machine unprotected; to another
	 * machine it takes https.
	 */
	FVexelHttpPendingRequest& WithSecrecy();
	/**
	 * Attaches the provider's access token; without one the request fails as FVexelError_HttpUnauthorized, unsent. It waits for
	 * one that is being refreshed. When the service refuses the token with status 401, the provider is asked for another one and the request is sent once more.
	 */
	FVexelHttpPendingRequest& WithAuth(bool bAuthenticated = true);
	/** Leaves at once also while the client holds requests: for those that the others are held for. */
	FVexelHttpPendingRequest& WithoutHold();
	/**
	 * Replaces a default header of the same name. A name or a value that could end its line and begin another header fails the
	 * request, unsent.
	 */
	FVexelHttpPendingRequest& WithHeader(const FString& Name, const FString& Value);

	/**
	 * Sets the body: a JSON object (shared reference or pointer), FVexelHttpUrlParams (form-encoded) or FVexelHttpMultipartPayload.
	 * A body that cannot be set fails the request when it is sent.
	 */
	template <typename PayloadType>
	FVexelHttpPendingRequest& WithPayload(const PayloadType& Payload)
	{
		bPayloadValid = VexelInternal::Http::TPayloadHelper<PayloadType>::SetRequestData(Payload, Body);
		return *this;
	}

	/**
	 * Called on the network thread with the whole body received so far, each time more arrives and before the request completes.
	 * Called only for answers of a 2xx status. The view holds during the call.
	 */
	FVexelHttpPendingRequest& WithProgress(TFunction<void(TConstArrayView<uint8>)> Callback);

	/** Sends; the answered request can be awaited and cancelled. */
	TSharedRef<FVexelHttpRequest> Send();
	TVexelTaskResult<TSharedRef<FVexelHttpResponse>> SendAndAwait();

private:
	friend class FVexelHttp;
	friend class FVexelHttpRequest;

	FVexelHttpPendingRequest(const FVexelHttp& Client, EVexelHttpVerb Verb, const FString& Path);

	TSharedRef<FVexelHttpDefaults> Defaults;
	EVexelHttpVerb Verb;
	FString Url;
	TArray<TTuple<FString, FString>> Headers;
	VexelInternal::Http::FRequestBody Body;
	TFunction<void(TConstArrayView<uint8>)> Progress;
	float TimeoutSeconds = 0.0f;
	float StallTimeoutSeconds = 0.0f;
	int32 MaxAnswerBytes = 1 << 30;
	bool bSecret = false;
	bool bAuthenticated = false;
	bool bHeld = true;
	bool bPayloadValid = true;
};

/**
 * A request in flight. It completes exactly once, on a worker thread or, when those have ended, on the network thread: with the
 * answer of a 2xx status, with FVexelError_HttpStatus or a kind below it for another status, with FVexelError_HttpCancelled, or
 * with FVexelError_Http for anything else. The messages say method, URL without query, status, and at most the first kilobyte of
 * the body.
 */
class VEXELCORE_API FVexelHttpRequest : public TSharedFromThis<FVexelHttpRequest>
{
public:
	~FVexelHttpRequest();

	TVexelTaskResult<TSharedRef<FVexelHttpResponse>> Await() const;

	/**
	 * Ends the request at any moment, also before it left: a result that is not complete yet becomes FVexelError_HttpCancelled,
	 * whatever came over the wire. After the completion this does nothing. Any thread.
	 */
	void Cancel();

	/** The answer, also of an error status; null until the request is complete and where none came. */
	TSharedPtr<FVexelHttpResponse> GetResponse() const;

private:
	friend class FVexelHttpPendingRequest;

	explicit FVexelHttpRequest(FVexelHttpPendingRequest&& Pending);
	FVexelHttpRequest(const FVexelHttpRequest&) = delete;

	void Start(const FVexelHttpPendingRequest& Pending);
	/** Takes the default headers and sends. */
	void Leave(const FVexelHttpDefaults& Defaults);
	/** Sends once, with the provider's token of the moment where the request is authenticated. */
	void SendTransfer();
	/** Takes the provider's token; false when the request waits for one or has failed. */
	bool TakeToken();
	void OnTransferComplete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Value);
	void OnTokenRefreshed(const TVexelExpected<void>& Refreshed, const TVexelExpected<TSharedRef<FVexelHttpResponse>>& FirstAnswer);
	void Complete(const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Value);
	void CompleteFailed(const TCHAR* Reason);
	void BeginWaiting();
	/** False when the request was cancelled while it waited: it is complete then. */
	bool EndWaiting();
	FVexelError MakeCancelledError() const;

	TVexelTaskResult<TSharedRef<FVexelHttpResponse>> Result;
	mutable FCriticalSection Lock;
	/** The exchange under way or done. Behind Lock. */
	TSharedPtr<FVexelHttpTransfer> Transfer;
	/** Behind Lock. */
	bool bCancelled = false;
	/** No exchange is under way that would complete the request: it is held, or its token is refreshed. Behind Lock. */
	bool bWaiting = false;

	/** What the exchange needs, kept for a second one until the request is complete; one completion at a time touches it. */
	TUniquePtr<FVexelHttpTransferSetup> Setup;
	/** Method and address, for messages. */
	const FString Address;
	FString UsedToken;
	bool bAuthenticated = false;
	bool bSentAgain = false;
	bool bWaitedForToken = false;
};

/** A finished answer. Immutable. */
class VEXELCORE_API FVexelHttpResponse
{
public:
	/** @param bSecret Whether the body is overwritten when it goes. */
	FVexelHttpResponse(int32 Status, TArray<uint8> Content, TArray<TTuple<FString, FString>> Headers, bool bSecret = false);
	~FVexelHttpResponse();
	UE_NONCOPYABLE(FVexelHttpResponse)

	int32 GetStatus() const { return Status; }
	const TArray<uint8>& GetContent() const { return Content; }
	/** The body read as UTF-8; bad bytes become replacement characters. */
	FString GetContentString() const;
	/** The body as a JSON object; null when it is none. */
	TSharedPtr<FJsonObject> GetContentJson() const;
	/** A header's value, its name compared without regard to case; empty without one. */
	FString GetHeader(const FString& Name) const;

private:
	int32 Status;
	TArray<uint8> Content;
	TArray<TTuple<FString, FString>> Headers;
	bool bSecret;
};

/** What all clients share. */
class VEXELCORE_API FVexelHttpManager
{
public:
	/**
	 * Registers the one provider of access tokens, or none. When this returns no call of the earlier provider is running or will
	 * begin, so that it may be destroyed.
	 */
	static void SetAuthProvider(FVexelHttp::IAuthProvider* Provider);

	/** Asks the provider; NotAuthenticated without one. */
	static FVexelHttp::IAuthProvider::EAuthResult GetAuthState(FString& OutToken);
	/** Asks the provider for another token than that one. */
	static TVexelTaskResult<void> RefreshToken(const FString& RefusedToken);

	/** Cancels what is in flight and ends the network thread. A later request starts it again. */
	static void Shutdown();
};

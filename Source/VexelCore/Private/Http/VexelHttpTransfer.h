#pragma once

#include "CoreMinimal.h"
#include "Http/VexelHttpBody.h"
#include "VexelErrorContext.h"
#include "VexelHttp.h"

#include <atomic>
#include <curl/curl.h>

/** All that one exchange needs. */
struct FVexelHttpTransferSetup
{
	EVexelHttpVerb Verb = EVexelHttpVerb::Get;
	FString Url;
	TArray<TTuple<FString, FString>> Headers;
	/** Null for none. */
	TSharedPtr<const VexelInternal::Http::FRequestBody> Body;
	TFunction<void(TConstArrayView<uint8>)> Progress;
	float TimeoutSeconds = 0.0f;
	float StallTimeoutSeconds = 0.0f;
	int32 MaxAnswerBytes = 0;
	bool bSecret = false;

	static const TCHAR* const AuthorizationHeader;

	FVexelHttpTransferSetup() = default;
	FVexelHttpTransferSetup(const FVexelHttpTransferSetup&) = default;
	FVexelHttpTransferSetup(FVexelHttpTransferSetup&&) = default;
	/** Overwrites the access token. */
	~FVexelHttpTransferSetup();
};

/**
 * One exchange on the network thread. Its result is completed once, whatever races: the answer, a cancellation, the end of the
 * network thread. All members but the atomic ones are the network thread's from the moment that the transfer is submitted.
 */
class FVexelHttpTransfer : public TSharedFromThis<FVexelHttpTransfer>
{
public:
	explicit FVexelHttpTransfer(FVexelHttpTransferSetup&& Setup);
	~FVexelHttpTransfer();
	UE_NONCOPYABLE(FVexelHttpTransfer)

	const TVexelTaskResult<TSharedRef<FVexelHttpResponse>>& GetResult() const { return Result; }
	TSharedPtr<FVexelHttpResponse> GetResponse() const;

	/** Any thread. A transfer whose result is not complete yet ends as cancelled, whatever came over the wire. */
	void RequestCancel() { bCancelled = true; }
	bool IsCancelled() const { return bCancelled; }

	/** Makes the handle ready to be driven; false, and a completed result, when libcurl refuses. */
	bool Prepare();
	CURL* GetHandle() const { return Handle; }

	/** Completes the result with what libcurl reports at the end. */
	void Finish(CURLcode Code);
	void FinishCancelled();
	/** Completes the result with an error, from any thread, before the transfer was submitted or without ever submitting it. */
	void Fail(FVexelError Error);

	/** Completes the result; CompleteOnWorker's last step. */
	void Complete(TVexelExpected<TSharedRef<FVexelHttpResponse>>&& Value);

	/** "POST http://host/path", without query and fragment, for messages. */
	static FString Describe(EVexelHttpVerb Verb, const FString& Url);
	FString Describe() const { return Describe(Setup.Verb, Setup.Url); }

private:
	void SetOptions();
	void SetBodyOptions();
	/** Frees what only a running transfer needs; what a callback captured must not live as long as somebody holds the request. */
	void Release();

	static size_t OnBody(char* Bytes, size_t Size, size_t Count, void* Transfer);
	static size_t OnHeader(char* Bytes, size_t Size, size_t Count, void* Transfer);
	static size_t OnUpload(char* Bytes, size_t Size, size_t Count, void* Transfer);
	static int OnSeek(void* Transfer, curl_off_t Offset, int Origin);

	size_t AppendBody(TConstArrayView<uint8> Bytes);
	size_t AppendHeader(FStringView Line);
	void CompleteOnWorker(TVexelExpected<TSharedRef<FVexelHttpResponse>> Value);
	FVexelError MakeCancelledError() const;
	FVexelError MakeStatusError(int32 Status) const;
	FVexelError MakeTransportError(CURLcode Code) const;
	FString GetTransportReason(CURLcode Code) const;

	FVexelHttpTransferSetup Setup;
	FVexelErrorContext Context;
	TVexelTaskResult<TSharedRef<FVexelHttpResponse>> Result;
	std::atomic<bool> bCancelled = false;

	mutable FCriticalSection ResponseLock;
	TSharedPtr<FVexelHttpResponse> Response;

	CURL* Handle = nullptr;
	curl_slist* HeaderList = nullptr;
	char ErrorBuffer[CURL_ERROR_SIZE] = {};
	TUniquePtr<FVexelHttpBodyReader> Upload;
	FString UnreadablePath;
	/** When the exchange began or something last arrived. */
	double LastArrivalTime = 0.0;
	TArray<uint8> Body;
	TArray<TTuple<FString, FString>> ResponseHeaders;
	int32 NumHeaderBytes = 0;
	bool bHeadersComplete = false;
	bool bTooLarge = false;
};

#include "Http/VexelHttpTransfer.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformTime.h"
#include "Http/CurlLibrary.h"
#include "Misc/ScopeLock.h"
#include "Storage/SecretBytes.h"
#include "VexelCrypto.h"
#include "VexelErrorKinds.h"
#include "VexelInternalConfig.h"
#include "VexelSecrets.h"
#include "VexelTaskManager.h"

#include <cstdlib>
#include <string>

namespace
{
/** A file of certificates (PEM) that are trusted in place of the system's: for a company's own authority. */
FConfigValueBase CaBundleSetting(TEXT("CaBundleFile"), TEXT(""));

constexpr int32 MaxHeaderBytes = 256 * 1024;
/** What is read at once: libcurl's own choice costs large downloads six times the calls. */
constexpr long ReadBytes = 100 * 1024;
/** How much of an announced length is made room for at once; the rest has to arrive first. */
constexpr curl_off_t MaxReservedBytes = 64 * 1024 * 1024;
constexpr long MaxRedirects = 5;
constexpr long ConnectTimeoutMilliseconds = 30'000;
/** What an error message quotes of a body. */
constexpr int32 MaxQuotedLength = 1024;
/** How much of the body is searched for secrets before it is quoted. */
constexpr int32 MaxSearchedBytes = 64 * 1024;

const TCHAR* ToWord(EVexelHttpVerb Verb)
{
	switch (Verb)
	{
		case EVexelHttpVerb::Get:
			return TEXT("GET");
		case EVexelHttpVerb::Post:
			return TEXT("POST");
		case EVexelHttpVerb::Put:
			return TEXT("PUT");
	}
	return TEXT("");
}

long ToMilliseconds(float Seconds)
{
	// libcurl takes 0 for no limit.
	return FMath::Max(1l, long(double(Seconds) * 1000.0));
}

/** The environment's list of hosts that no proxy is asked for, and this machine itself. */
std::string GetHostsWithoutProxy()
{
	const ANSICHAR* Listed = std::getenv("no_proxy");
	Listed = Listed ? Listed : std::getenv("NO_PROXY");
	const std::string Hosts = Listed ? Listed : "";
	return Hosts == "*" ? Hosts : Hosts + (Hosts.empty() ? "" : ",") + "localhost,127.0.0.1,::1";
}

/** Makes room for more, and leaves nothing in the memory that is given up for that. */
void MakeRoom(TArray<uint8>& Secret, int32 NumMore)
{
	if (Secret.Num() + NumMore > Secret.Max())
	{
		TArray<uint8> Larger;
		Larger.Reserve(int32(FMath::Min(int64(MAX_int32), 2 * (int64(Secret.Num()) + NumMore))));
		Larger.Append(Secret);
		FVexelCrypto::Wipe(Secret);
		Secret = MoveTemp(Larger);
	}
}

FString ToText(TConstArrayView<uint8> Bytes)
{
	const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Bytes.GetData()), Bytes.Num());
	return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
}
}

const TCHAR* const FVexelHttpTransferSetup::AuthorizationHeader = TEXT("Authorization");

FVexelHttpTransferSetup::~FVexelHttpTransferSetup()
{
	for (TTuple<FString, FString>& Header : Headers)
	{
		if (Header.Get<0>() == AuthorizationHeader)
		{
			FVexelCrypto::Wipe(Header.Get<1>());
		}
	}
}

FVexelHttpTransfer::FVexelHttpTransfer(FVexelHttpTransferSetup&& InSetup)
	: Setup(MoveTemp(InSetup))
	, Context(FVexelErrorContext::Capture())
	, Result(TVexelTaskResult<TSharedRef<FVexelHttpResponse>>::MakePending())
{
}

FVexelHttpTransfer::~FVexelHttpTransfer()
{
	curl_easy_cleanup(Handle);
	curl_slist_free_all(HeaderList);
	if (Setup.bSecret)
	{
		FVexelCrypto::Wipe(Body);
	}
}

TSharedPtr<FVexelHttpResponse> FVexelHttpTransfer::GetResponse() const
{
	FScopeLock Guard(&ResponseLock);
	return Response;
}

bool FVexelHttpTransfer::Prepare()
{
	Handle = curl_easy_init();
	if (!Handle)
	{
		Fail(VEXEL_ERROR_TITLED(FVexelError_Http, "Request failed", "%s: the request could not be set up", *Describe()));
		return false;
	}
	for (const TTuple<FString, FString>& Header : Setup.Headers)
	{
		FString Line = Header.Get<0>() + TEXT(": ") + Header.Get<1>();
		HeaderList = curl_slist_append(HeaderList, FWipedUtf8(*Line).Get());
		FVexelCrypto::Wipe(Line);
	}
	// libcurl would wait for a "100 Continue" that few services send.
	HeaderList = curl_slist_append(HeaderList, "Expect:");
	SetOptions();
	SetBodyOptions();
	LastArrivalTime = FPlatformTime::Seconds();
	return true;
}

void FVexelHttpTransfer::SetOptions()
{
	const bool bProtected = Setup.Url.StartsWith(TEXT("https:"));
	curl_easy_setopt(Handle, CURLOPT_URL, TCHAR_TO_UTF8(*Setup.Url));
	curl_easy_setopt(Handle, CURLOPT_HTTPHEADER, HeaderList);
	curl_easy_setopt(Handle, CURLOPT_PRIVATE, this);
	curl_easy_setopt(Handle, CURLOPT_ERRORBUFFER, ErrorBuffer);
	curl_easy_setopt(Handle, CURLOPT_NOSIGNAL, 1L);
	// A cancellation would wait for the system's search for the host's address, which can take half a minute.
	curl_easy_setopt(Handle, CURLOPT_QUICK_EXIT, 1L);
	curl_easy_setopt(Handle, CURLOPT_NOPROXY, GetHostsWithoutProxy().c_str());
	curl_easy_setopt(Handle, CURLOPT_USERAGENT, "Vexel");
	curl_easy_setopt(Handle, CURLOPT_PROTOCOLS_STR, "http,https");
	// A redirect must not take what was meant for a protected connection to an open one, nor secrets to another place.
	curl_easy_setopt(Handle, CURLOPT_REDIR_PROTOCOLS_STR, bProtected ? "https" : "http,https");
	curl_easy_setopt(Handle, CURLOPT_FOLLOWLOCATION, Setup.bSecret ? 0L : 1L);
	curl_easy_setopt(Handle, CURLOPT_MAXREDIRS, MaxRedirects);
	curl_easy_setopt(Handle, CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_2TLS));
	// Waiting for a connection that may be shared ends with the TLS handshake. Without TLS it would end with the first answer,
	// and one slow answer would hold up every other request.
	curl_easy_setopt(Handle, CURLOPT_PIPEWAIT, bProtected ? 1L : 0L);
	curl_easy_setopt(Handle, CURLOPT_ACCEPT_ENCODING, "");
	curl_easy_setopt(Handle, CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2));
	curl_easy_setopt(Handle, CURLOPT_SSL_CTX_FUNCTION, &CurlLibrary::PrepareTls);
	curl_easy_setopt(Handle, CURLOPT_SSL_VERIFYPEER, 1L);
	curl_easy_setopt(Handle, CURLOPT_SSL_VERIFYHOST, 2L);
	const FString CaBundle = CaBundleSetting.Get();
	if (!CaBundle.IsEmpty())
	{
		curl_easy_setopt(Handle, CURLOPT_CAINFO, TCHAR_TO_UTF8(*CaBundle));
	}
	curl_easy_setopt(Handle, CURLOPT_CONNECTTIMEOUT_MS, ConnectTimeoutMilliseconds);
	curl_easy_setopt(Handle, CURLOPT_BUFFERSIZE, ReadBytes);
	curl_easy_setopt(Handle, CURLOPT_WRITEFUNCTION, &FVexelHttpTransfer::OnBody);
	curl_easy_setopt(Handle, CURLOPT_WRITEDATA, this);
	curl_easy_setopt(Handle, CURLOPT_HEADERFUNCTION, &FVexelHttpTransfer::OnHeader);
	curl_easy_setopt(Handle, CURLOPT_HEADERDATA, this);
	if (Setup.TimeoutSeconds > 0.0f)
	{
		curl_easy_setopt(Handle, CURLOPT_TIMEOUT_MS, ToMilliseconds(Setup.TimeoutSeconds));
	}
	if (Setup.StallTimeoutSeconds > 0.0f)
	{
		curl_easy_setopt(Handle, CURLOPT_LOW_SPEED_LIMIT, 1L);
		curl_easy_setopt(Handle, CURLOPT_LOW_SPEED_TIME, long(FMath::CeilToInt(Setup.StallTimeoutSeconds)));
	}
}

void FVexelHttpTransfer::SetBodyOptions()
{
	if (Setup.Verb == EVexelHttpVerb::Get)
	{
		return;
	}
	const curl_off_t NumBytes = Setup.Body ? curl_off_t(Setup.Body->GetNum()) : 0;
	if (NumBytes > 0)
	{
		Upload = MakeUnique<FVexelHttpBodyReader>(*Setup.Body);
		curl_easy_setopt(Handle, CURLOPT_READFUNCTION, &FVexelHttpTransfer::OnUpload);
		curl_easy_setopt(Handle, CURLOPT_READDATA, this);
		curl_easy_setopt(Handle, CURLOPT_SEEKFUNCTION, &FVexelHttpTransfer::OnSeek);
		curl_easy_setopt(Handle, CURLOPT_SEEKDATA, this);
	}
	if (Setup.Verb == EVexelHttpVerb::Post)
	{
		curl_easy_setopt(Handle, CURLOPT_POST, 1L);
		curl_easy_setopt(Handle, CURLOPT_POSTFIELDSIZE_LARGE, NumBytes);
		if (NumBytes == 0)
		{
			curl_easy_setopt(Handle, CURLOPT_POSTFIELDS, "");
		}
		// A 301 or 302 that turned a POST into a GET would lose the body; a 303 asks for just that.
		curl_easy_setopt(Handle, CURLOPT_POSTREDIR, long(CURL_REDIR_POST_301 | CURL_REDIR_POST_302));
	}
	else
	{
		curl_easy_setopt(Handle, CURLOPT_UPLOAD, 1L);
		curl_easy_setopt(Handle, CURLOPT_INFILESIZE_LARGE, NumBytes);
	}
}

void FVexelHttpTransfer::Release()
{
	Setup.Progress = nullptr;
	UnreadablePath = Upload ? Upload->GetFailedPath() : FString();
	Upload.Reset();
	Setup.Body.Reset();
	curl_easy_cleanup(Handle);
	Handle = nullptr;
	curl_slist_free_all(HeaderList);
	HeaderList = nullptr;
}

void FVexelHttpTransfer::Finish(CURLcode Code)
{
	long Status = 0;
	curl_easy_getinfo(Handle, CURLINFO_RESPONSE_CODE, &Status);
	Release();
	FVexelErrorContextRestore Restore(Context);
	// libcurl is content with an answer that ends in the middle of its headers.
	if (Code != CURLE_OK || !bHeadersComplete)
	{
		CompleteOnWorker(MakeTransportError(Code == CURLE_OK ? CURLE_PARTIAL_FILE : Code));
		return;
	}
	const TSharedRef<FVexelHttpResponse> Answer =
		MakeShared<FVexelHttpResponse>(int32(Status), MoveTemp(Body), MoveTemp(ResponseHeaders), Setup.bSecret);
	{
		FScopeLock Guard(&ResponseLock);
		Response = Answer;
	}
	if (Status >= 200 && Status < 300)
	{
		CompleteOnWorker(Answer);
	}
	else
	{
		CompleteOnWorker(MakeStatusError(int32(Status)));
	}
}

void FVexelHttpTransfer::FinishCancelled()
{
	Release();
	FVexelErrorContextRestore Restore(Context);
	CompleteOnWorker(MakeCancelledError());
}

void FVexelHttpTransfer::Fail(FVexelError Error)
{
	CompleteOnWorker(MoveTemp(Error));
}

FString FVexelHttpTransfer::Describe(EVexelHttpVerb Verb, const FString& Url)
{
	FStringView Address = Url;
	int32 Index = INDEX_NONE;
	for (const TCHAR EndOfPath : {TEXT('?'), TEXT('#')})
	{
		if (Address.FindChar(EndOfPath, Index))
		{
			Address = Address.Left(Index);
		}
	}
	// A user and a password in front of the host are as secret as a query may be.
	const int32 SchemeEnd = Address.Find(TEXT("://"));
	const FStringView Rest = SchemeEnd == INDEX_NONE ? Address : Address.RightChop(SchemeEnd + 3);
	const FStringView Host = Rest.FindChar(TEXT('/'), Index) ? Rest.Left(Index) : Rest;
	if (Host.FindLastChar(TEXT('@'), Index))
	{
		return FString(ToWord(Verb)) + TEXT(" ") + FString(Address.LeftChop(Rest.Len())) + FString(Rest.RightChop(Index + 1));
	}
	return FString(ToWord(Verb)) + TEXT(" ") + FString(Address);
}

size_t FVexelHttpTransfer::OnBody(char* Bytes, size_t Size, size_t Count, void* Transfer)
{
	return static_cast<FVexelHttpTransfer*>(Transfer)->AppendBody(
		TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Bytes), int32(Size * Count)));
}

size_t FVexelHttpTransfer::OnHeader(char* Bytes, size_t Size, size_t Count, void* Transfer)
{
	const FString Line = ToText(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Bytes), int32(Size * Count)));
	return static_cast<FVexelHttpTransfer*>(Transfer)->AppendHeader(Line) ? Size * Count : 0;
}

size_t FVexelHttpTransfer::OnUpload(char* Bytes, size_t Size, size_t Count, void* Transfer)
{
	FVexelHttpTransfer* const This = static_cast<FVexelHttpTransfer*>(Transfer);
	if (!This->Upload)
	{
		return 0;
	}
	const int64 NumRead = This->Upload->Read(reinterpret_cast<uint8*>(Bytes), int64(Size * Count));
	return NumRead < 0 ? CURL_READFUNC_ABORT : size_t(NumRead);
}

/** A redirect and a connection that was closed under the request send the body again. */
int FVexelHttpTransfer::OnSeek(void* Transfer, curl_off_t Offset, int Origin)
{
	FVexelHttpTransfer* const This = static_cast<FVexelHttpTransfer*>(Transfer);
	const bool bMoved = Origin == SEEK_SET && This->Upload && This->Upload->Seek(Offset);
	return bMoved ? CURL_SEEKFUNC_OK : CURL_SEEKFUNC_CANTSEEK;
}

/** Answers how many bytes were taken; fewer than were given ends the transfer. */
size_t FVexelHttpTransfer::AppendBody(TConstArrayView<uint8> Bytes)
{
	if (IsCancelled())
	{
		return 0;
	}
	LastArrivalTime = FPlatformTime::Seconds();
	if (Bytes.Num() > Setup.MaxAnswerBytes - Body.Num())
	{
		bTooLarge = true;
		return 0;
	}
	if (Body.IsEmpty())
	{
		curl_off_t Announced = 0;
		curl_easy_getinfo(Handle, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &Announced);
		Body.Reserve(int32(FMath::Clamp(Announced, curl_off_t(Bytes.Num()), FMath::Max(MaxReservedBytes, curl_off_t(Bytes.Num())))));
	}
	if (Setup.bSecret)
	{
		MakeRoom(Body, Bytes.Num());
	}
	Body.Append(Bytes.GetData(), Bytes.Num());
	long Status = 0;
	curl_easy_getinfo(Handle, CURLINFO_RESPONSE_CODE, &Status);
	if (Setup.Progress && Status >= 200 && Status < 300)
	{
		FVexelErrorContextRestore Restore(Context);
		Setup.Progress(Body);
	}
	return size_t(Bytes.Num());
}

size_t FVexelHttpTransfer::AppendHeader(FStringView Line)
{
	LastArrivalTime = FPlatformTime::Seconds();
	NumHeaderBytes += Line.Len();
	if (NumHeaderBytes > MaxHeaderBytes)
	{
		bTooLarge = true;
		return 0;
	}
	int32 Colon = INDEX_NONE;
	if (Line.StartsWith(TEXT("HTTP/")))
	{
		bHeadersComplete = false;
		// A redirect or an interim answer came before this one.
		ResponseHeaders.Reset();
		Body.Reset();
	}
	else if (Line == TEXT("\r\n") || Line == TEXT("\n"))
	{
		bHeadersComplete = true;
	}
	else if (Line.FindChar(TEXT(':'), Colon))
	{
		ResponseHeaders.Emplace(FString(Line.Left(Colon)), FString(Line.RightChop(Colon + 1)).TrimStartAndEnd());
	}
	return 1;
}

namespace
{
/** A completion on its way to a worker. When it is dropped on the way, because the workers end, it takes place there and then. */
class FCompletion
{
public:
	FCompletion(const TSharedRef<FVexelHttpTransfer>& InTransfer, TVexelExpected<TSharedRef<FVexelHttpResponse>>&& InValue)
		: Transfer(InTransfer)
		, Value(MoveTemp(InValue))
	{
	}
	FCompletion(FCompletion&&) = default;
	~FCompletion() { Run(); }

	void Run()
	{
		if (const TSharedPtr<FVexelHttpTransfer> Completed = MoveTemp(Transfer))
		{
			Completed->Complete(MoveTemp(Value));
		}
	}

private:
	TSharedPtr<FVexelHttpTransfer> Transfer;
	TVexelExpected<TSharedRef<FVexelHttpResponse>> Value;
};
}

void FVexelHttpTransfer::CompleteOnWorker(TVexelExpected<TSharedRef<FVexelHttpResponse>> Value)
{
	FVexelTaskManager::ScheduleFunc(
		EVexelTaskThread::BackgroundThread, [Completion = FCompletion(AsShared(), MoveTemp(Value))]() mutable
		{ Completion.Run(); });
}

void FVexelHttpTransfer::Complete(TVexelExpected<TSharedRef<FVexelHttpResponse>>&& Value)
{
	if (IsCancelled())
	{
		FVexelErrorContextRestore Restore(Context);
		Result.Complete(MakeCancelledError());
		return;
	}
	Result.Complete(MoveTemp(Value));
}

FVexelError FVexelHttpTransfer::MakeCancelledError() const
{
	return VEXEL_ERROR_TITLED(FVexelError_HttpCancelled, "Request cancelled", "%s was cancelled", *Describe());
}

FVexelError FVexelHttpTransfer::MakeStatusError(int32 Status) const
{
	const TArray<uint8>& Content = Response->GetContent();
	const int32 NumRead = Setup.bSecret ? 0 : FMath::Min(Content.Num(), MaxSearchedBytes);
	// A service may repeat what it was sent. A secret that the end of the quote would cut in two is still one here.
	const FString Text = FVexelSecrets::Redact(ToText(TConstArrayView<uint8>(Content.GetData(), NumRead)));
	const FString Quote = Text.Left(MaxQuotedLength).TrimStartAndEnd();
	const FString Message = FString::Printf(
		TEXT("%s was answered with HTTP status %d%s%s"), *Describe(), Status, Quote.IsEmpty() ? TEXT("") : TEXT(": "), *Quote);
	const FString Title = TEXT("Request failed");
	if (Status == 401)
	{
		return FVexelError_HttpUnauthorized(VEXEL_HERE, Title, Message);
	}
	if (Status >= 400 && Status < 500)
	{
		return FVexelError_HttpStatusClientError(VEXEL_HERE, Title, Message);
	}
	return FVexelError_HttpStatus(VEXEL_HERE, Title, Message);
}

FVexelError FVexelHttpTransfer::MakeTransportError(CURLcode Code) const
{
	if (IsCancelled())
	{
		return MakeCancelledError();
	}
	return VEXEL_ERROR_TITLED(FVexelError_Http, "Request failed", "%s: %s", *Describe(), *GetTransportReason(Code));
}

FString FVexelHttpTransfer::GetTransportReason(CURLcode Code) const
{
	if (bTooLarge)
	{
		return TEXT("the answer is too large");
	}
	if (!UnreadablePath.IsEmpty())
	{
		return FString::Printf(TEXT("the file '%s' cannot be read, or changed while it was sent"), *UnreadablePath);
	}
	const double SilentSeconds = FPlatformTime::Seconds() - LastArrivalTime;
	if (Code == CURLE_OPERATION_TIMEDOUT && Setup.StallTimeoutSeconds > 0.0f && SilentSeconds >= double(Setup.StallTimeoutSeconds) - 1.0)
	{
		return FString::Printf(TEXT("nothing came for %d seconds"), FMath::CeilToInt(Setup.StallTimeoutSeconds));
	}
	return FString(ErrorBuffer[0] ? ErrorBuffer : curl_easy_strerror(Code));
}

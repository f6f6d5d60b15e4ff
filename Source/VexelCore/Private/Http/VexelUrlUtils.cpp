#include "VexelUrlUtils.h"

#include "Containers/StringConv.h"
#include "Http/CurlLibrary.h"
#include "Misc/Paths.h"
#include "VexelErrorKinds.h"
#include "VexelHttpPayload.h"

#include <curl/curl.h>
#include <memory>

namespace
{
constexpr int32 MaxExtensionLength = 8;

using FUrl = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

/** Null for a text that is no address of http or https. */
FUrl Parse(const FString& Text)
{
	CurlLibrary::Start();
	FUrl Url(curl_url(), &curl_url_cleanup);
	if (Url && curl_url_set(Url.get(), CURLUPART_URL, TCHAR_TO_UTF8(*Text), CURLU_PATH_AS_IS) != CURLUE_OK)
	{
		Url.reset();
	}
	return Url;
}

FString GetPart(const FUrl& Url, CURLUPart Part)
{
	char* Raw = nullptr;
	// The scheme's own port is left out, so that an address with it and one without are the same.
	if (!Url || curl_url_get(Url.get(), Part, &Raw, CURLU_NO_DEFAULT_PORT) != CURLUE_OK)
	{
		return FString();
	}
	const FString Value = FString(UTF8_TO_TCHAR(Raw));
	curl_free(Raw);
	return Value;
}
}

TVexelExpected<FString> FVexelUrlUtils::GetOrigin(const FString& Url)
{
	const FUrl Parts = Parse(Url);
	const FString Scheme = GetPart(Parts, CURLUPART_SCHEME).ToLower();
	const FString Host = GetPart(Parts, CURLUPART_HOST).ToLower();
	if (Host.IsEmpty() || (Scheme != TEXT("http") && Scheme != TEXT("https")))
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Not an address", "an address such as https://host is needed");
	}
	if (!GetPart(Parts, CURLUPART_USER).IsEmpty() || !GetPart(Parts, CURLUPART_PASSWORD).IsEmpty())
	{
		return VEXEL_ERROR_TITLED(FVexelError_Http, "Not an address", "an address with a user name or a password in it is not taken");
	}
	const FString Port = GetPart(Parts, CURLUPART_PORT);
	return Scheme + TEXT("://") + Host + (Port.IsEmpty() ? FString() : TEXT(":") + Port);
}

bool FVexelUrlUtils::IsLoopback(const FString& Url)
{
	const FString Host = GetPart(Parse(Url), CURLUPART_HOST).ToLower();
	return Host == TEXT("localhost") || Host == TEXT("127.0.0.1") || Host == TEXT("[::1]");
}

FString FVexelUrlUtils::EncodeSegment(const FString& Text)
{
	// Dots alone would be taken for "this" and "the one above", escaped or not.
	if (Text == TEXT(".") || Text == TEXT(".."))
	{
		return TEXT("_");
	}
	return VexelInternal::Http::UrlEncode(Text);
}

FString FVexelUrlUtils::GuessExtensionFromUrl(const FString& Url)
{
	const FString Extension = FPaths::GetExtension(GetPart(Parse(Url), CURLUPART_PATH)).ToLower();
	for (const TCHAR Character : Extension)
	{
		if (Character > 127 || !FChar::IsAlnum(Character))
		{
			return FString();
		}
	}
	return Extension.IsEmpty() || Extension.Len() > MaxExtensionLength ? FString() : TEXT(".") + Extension;
}

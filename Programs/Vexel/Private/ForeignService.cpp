#include "ForeignService.h"

#include "VexelCrypto.h"
#include "VexelSecureStorage.h"
#include "VexelUrlUtils.h"

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <string.h>
#include <unistd.h>

namespace
{
constexpr int32 TokenTimeoutMilliseconds = 60'000;
constexpr size_t MaxTokenBytes = 16 * 1024;
constexpr int32 MaxDescriptorDigits = 6;

/** A descriptor of this process that is open; negative for anything else. */
int32 ParseDescriptor(const FString& Text)
{
	bool bDigits = !Text.IsEmpty() && Text.Len() <= MaxDescriptorDigits;
	for (const TCHAR Character : Text)
	{
		bDigits = bDigits && FChar::IsDigit(Character);
	}
	const int32 Descriptor = bDigits ? FCString::Atoi(*Text) : -1;
	return Descriptor >= 0 && fcntl(Descriptor, F_GETFD) != -1 ? Descriptor : -1;
}

/** Reads to the first line end or the end; false when nothing comes for too long, when it is too long, or for a failure. */
bool ReadFirstLine(int32 Descriptor, TArray<ANSICHAR>& Line)
{
	pollfd Poll{Descriptor, POLLIN, 0};
	Line.Reserve(int32(MaxTokenBytes) + 1);
	while (size_t(Line.Num()) < MaxTokenBytes)
	{
		if (poll(&Poll, 1, TokenTimeoutMilliseconds) <= 0)
		{
			return false;
		}
		ANSICHAR Character = 0;
		const ssize_t NumRead = read(Descriptor, &Character, 1);
		if (NumRead < 0)
		{
			return false;
		}
		if (NumRead == 0 || Character == '\n')
		{
			return true;
		}
		if (Character != '\r')
		{
			Line.Add(Character);
		}
	}
	return false;
}

/** Straight from the bytes, so that no other copy of them is left. */
FString ToTrimmedText(TConstArrayView<ANSICHAR> Utf8)
{
	while (!Utf8.IsEmpty() && FCharAnsi::IsWhitespace(Utf8[0]))
	{
		Utf8 = Utf8.RightChop(1);
	}
	while (!Utf8.IsEmpty() && FCharAnsi::IsWhitespace(Utf8.Last()))
	{
		Utf8 = Utf8.LeftChop(1);
	}
	return FString::ConstructFromPtrSize(reinterpret_cast<const UTF8CHAR*>(Utf8.GetData()), Utf8.Num());
}

TOptional<FString> StoreToken(const FString& TokenDescriptor)
{
	const int32 Descriptor = ParseDescriptor(TokenDescriptor);
	if (Descriptor < 0)
	{
		return FString(TEXT("--token-fd: there is no such open file descriptor"));
	}
	TArray<ANSICHAR> Line;
	const bool bRead = ReadFirstLine(Descriptor, Line);
	close(Descriptor);
	FString Token = ToTrimmedText(Line);
	explicit_bzero(Line.GetData(), size_t(Line.Num()));
	if (!bRead || Token.IsEmpty())
	{
		return FString::Printf(TEXT("--token-fd %s: no token could be read from it"), *TokenDescriptor);
	}
	const TVexelExpected<void> Stored = FVexelSecureStorage::StoreValueString(TEXT("rt"), Token);
	FVexelCrypto::Wipe(Token);
	return Stored.HasError() ? TOptional<FString>(Stored.GetError().ToChainString()) : NullOpt;
}
}

TOptional<FString> ForeignService::CheckAddress(const FString& Url)
{
	const TVexelExpected<FString> Origin = FVexelUrlUtils::GetOrigin(Url);
	if (Origin.HasError())
	{
		return FString::Printf(TEXT("--service '%s': %s"), *Url, *Origin.GetError().GetMessage());
	}
	if (Origin.GetValue().StartsWith(TEXT("http:")) && !FVexelUrlUtils::IsLoopback(Url))
	{
		return FString::Printf(TEXT("--service '%s': a service on another machine must be one of https, or anybody could read the token"), *Url);
	}
	return NullOpt;
}

TOptional<FString> ForeignService::Prepare(const FString& Url, const FString& TokenDescriptor)
{
	const TVexelExpected<FString> Origin = FVexelUrlUtils::GetOrigin(Url);
	if (Origin.HasError())
	{
		return Origin.GetError().ToChainString();
	}
	FVexelSecureStorage::SetScope(Origin.GetValue());
	return TokenDescriptor.IsEmpty() ? NullOpt : StoreToken(TokenDescriptor);
}

#include "VexelSecrets.h"

#include "HAL/CriticalSection.h"
#include "Misc/ScopeLock.h"
#include "VexelCrypto.h"
#include "VexelHttpPayload.h"

namespace
{
constexpr int32 MinSecretLength = 8;
/** Tokens follow each other; the oldest of these has expired long ago. */
constexpr int32 MaxSecrets = 64;
constexpr TCHAR Redacted[] = TEXT("[secret]");
constexpr TCHAR BearerWord[] = TEXT("Bearer ");
constexpr int32 BearerLength = int32(UE_ARRAY_COUNT(BearerWord)) - 1;

struct FSecretList
{
	FCriticalSection Lock;
	TArray<FString> Secrets;
};

/** Never destroyed, since threads may end later than statics. */
FSecretList& GetList()
{
	static FSecretList* const List = new FSecretList;
	return *List;
}

/** The one that was used last stays longest; one that goes is overwritten. */
void Remember(TArray<FString>& Secrets, const FString& Text)
{
	const int32 Known = Secrets.IndexOfByPredicate([&](const FString& Secret)
		{ return Secret.Equals(Text); });
	if (Known != INDEX_NONE)
	{
		FString Secret = MoveTemp(Secrets[Known]);
		Secrets.RemoveAt(Known);
		Secrets.Add(MoveTemp(Secret));
		return;
	}
	if (Secrets.Num() == MaxSecrets)
	{
		FVexelCrypto::Wipe(Secrets[0]);
		Secrets.RemoveAt(0);
	}
	Secrets.Add(Text);
}

/** Cuts out the word behind each "Bearer ". */
FString RedactBearer(const FString& Text)
{
	FString Answer;
	int32 Begin = 0;
	for (int32 At = 0; (At = Text.Find(BearerWord, ESearchCase::IgnoreCase, ESearchDir::FromStart, Begin)) != INDEX_NONE;)
	{
		const int32 TokenBegin = At + BearerLength;
		int32 TokenEnd = TokenBegin;
		while (TokenEnd < Text.Len() && !FChar::IsWhitespace(Text[TokenEnd]) && Text[TokenEnd] != TEXT('"'))
		{
			++TokenEnd;
		}
		Answer += FStringView(Text).Mid(Begin, TokenBegin - Begin);
		Answer += Redacted;
		Begin = TokenEnd;
	}
	return Begin == 0 ? Text : Answer + Text.Mid(Begin);
}
}

void FVexelSecrets::Add(const FString& Secret)
{
	if (Secret.Len() < MinSecretLength)
	{
		return;
	}
	FString InAddress = VexelInternal::Http::UrlEncode(Secret);
	FSecretList& List = GetList();
	FScopeLock Guard(&List.Lock);
	Remember(List.Secrets, Secret);
	if (!InAddress.Equals(Secret))
	{
		Remember(List.Secrets, InAddress);
	}
	FVexelCrypto::Wipe(InAddress);
}

FString FVexelSecrets::Redact(const FString& Text)
{
	FString Answer = RedactBearer(Text);
	FSecretList& List = GetList();
	FScopeLock Guard(&List.Lock);
	for (const FString& Secret : List.Secrets)
	{
		Answer.ReplaceInline(*Secret, Redacted, ESearchCase::CaseSensitive);
	}
	return Answer;
}

#include "VexelSecrets.h"

#include "HAL/CriticalSection.h"
#include "Misc/ScopeLock.h"

namespace
{
constexpr int32 MinSecretLength = 8;
/** Tokens follow each other; the oldest of these has expired long ago. */
constexpr int32 MaxSecrets = 64;
const TCHAR* const Redacted = TEXT("[secret]");
const FString BearerWord = TEXT("Bearer ");

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

/** Cuts out the word behind each "Bearer ". */
FString RedactBearer(const FString& Text)
{
	FString Rest = Text;
	FString Answer;
	int32 At = INDEX_NONE;
	while ((At = Rest.Find(BearerWord)) != INDEX_NONE)
	{
		int32 End = At + BearerWord.Len();
		while (End < Rest.Len() && !FChar::IsWhitespace(Rest[End]) && Rest[End] != TEXT('"'))
		{
			++End;
		}
		Answer += Rest.Left(At + BearerWord.Len()) + Redacted;
		Rest = Rest.Mid(End);
	}
	return Answer + Rest;
}
}

void VexelSecrets::Add(const FString& Secret)
{
	if (Secret.Len() < MinSecretLength)
	{
		return;
	}
	FSecretList& List = GetList();
	FScopeLock Guard(&List.Lock);
	const bool bKnown = List.Secrets.ContainsByPredicate([&](const FString& Known)
		{ return Known.Equals(Secret); });
	if (bKnown)
	{
		return;
	}
	if (List.Secrets.Num() == MaxSecrets)
	{
		List.Secrets.RemoveAt(0);
	}
	List.Secrets.Add(Secret);
}

FString VexelSecrets::Redact(const FString& Text)
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

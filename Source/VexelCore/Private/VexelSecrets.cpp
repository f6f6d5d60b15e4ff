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
constexpr int32 SaltBytes = 32;
constexpr TCHAR Redacted[] = TEXT("[secret]");
constexpr TCHAR BearerWord[] = TEXT("Bearer ");
constexpr int32 BearerLength = int32(UE_ARRAY_COUNT(BearerWord)) - 1;

/** What is kept of a secret: enough to know it again where it stands, too little to tell it. */
struct FKnownSecret
{
	int32 Length = 0;
	/** Of its characters, cheap to move along a text; what has another sum is another text. */
	uint64 Sum = 0;
	TArray<uint8> Digest;
};

/** A sum of the characters below a window that moves along a text. */
class FMovingSum
{
public:
	FMovingSum(uint64 InFactor, FStringView InText, int32 InLength)
		: Factor(InFactor)
		, Text(InText)
		, Length(InLength)
	{
		for (int32 Index = 0; Index < Length; ++Index)
		{
			Sum = Sum * Factor + Text[Index];
			Highest = Index == 0 ? 1 : Highest * Factor;
		}
	}

	uint64 Get() const { return Sum; }
	bool IsAtEnd() const { return Begin + Length == Text.Len(); }
	void Advance()
	{
		Sum = (Sum - Text[Begin] * Highest) * Factor + Text[Begin + Length];
		++Begin;
	}

private:
	const uint64 Factor;
	const FStringView Text;
	const int32 Length;
	uint64 Highest = 0;
	uint64 Sum = 0;
	int32 Begin = 0;
};

struct FStretch
{
	int32 Begin = 0;
	int32 End = 0;
};

/**
 * The secrets that went by, the one that was used last at the end. It knows each by its digest alone, with a salt of this process's
 * own: the list lives as long as the process, and must not be where tokens are found after a logout.
 */
class FSecretList
{
public:
	FSecretList()
	{
		FVexelCrypto::SecureRandomBytes(Salt, SaltBytes);
		TArray<uint8> Random;
		FVexelCrypto::SecureRandomBytes(Random, sizeof(Factor));
		FMemory::Memcpy(&Factor, Random.GetData(), SIZE_T(Random.Num()));
		// An even one would forget the first characters.
		Factor |= 1;
	}

	void Remember(FStringView Text)
	{
		FKnownSecret Secret{Text.Len(), FMovingSum(Factor, Text, Text.Len()).Get(), MakeDigest(Text)};
		FScopeLock Guard(&Lock);
		const int32 Known = Secrets.IndexOfByPredicate([&](const FKnownSecret& Other)
			{ return Other.Digest == Secret.Digest; });
		if (Known != INDEX_NONE || Secrets.Num() == MaxSecrets)
		{
			Secrets.RemoveAt(FMath::Max(Known, 0));
		}
		Secrets.Add(MoveTemp(Secret));
	}

	/** Where the text holds any of them, in no order; stretches may overlap. */
	TArray<FStretch> FindIn(FStringView Text) const
	{
		TArray<FStretch> Found;
		TSet<int32> Lengths;
		FScopeLock Guard(&Lock);
		for (const FKnownSecret& Secret : Secrets)
		{
			Lengths.Add(Secret.Length);
		}
		for (const int32 Length : Lengths)
		{
			if (Length <= Text.Len())
			{
				FindOfLength(Length, Text, Found);
			}
		}
		return Found;
	}

private:
	void FindOfLength(int32 Length, FStringView Text, TArray<FStretch>& Found) const
	{
		TArray<const FKnownSecret*> Candidates;
		for (const FKnownSecret& Secret : Secrets)
		{
			if (Secret.Length == Length)
			{
				Candidates.Add(&Secret);
			}
		}
		FMovingSum Sum(Factor, Text, Length);
		for (int32 Begin = 0;; ++Begin)
		{
			for (const FKnownSecret* const Candidate : Candidates)
			{
				if (Candidate->Sum == Sum.Get() && Candidate->Digest == MakeDigest(Text.Mid(Begin, Length)))
				{
					Found.Add({Begin, Begin + Length});
				}
			}
			if (Sum.IsAtEnd())
			{
				return;
			}
			Sum.Advance();
		}
	}

	TArray<uint8> MakeDigest(FStringView Text) const
	{
		TArray<uint8> Bytes;
		Bytes.Reserve(Salt.Num() + Text.Len() * int32(sizeof(TCHAR)));
		Bytes.Append(Salt);
		Bytes.Append(reinterpret_cast<const uint8*>(Text.GetData()), Text.Len() * int32(sizeof(TCHAR)));
		TArray<uint8> Digest = FVexelCrypto::Sha256(Bytes);
		FVexelCrypto::Wipe(Bytes);
		return Digest;
	}

	TArray<uint8> Salt;
	uint64 Factor = 0;
	mutable FCriticalSection Lock;
	/** Behind Lock. */
	TArray<FKnownSecret> Secrets;
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
	GetList().Remember(Secret);
	if (!InAddress.Equals(Secret))
	{
		GetList().Remember(InAddress);
	}
	FVexelCrypto::Wipe(InAddress);
}

FString FVexelSecrets::Redact(const FString& Text)
{
	const FString WithoutBearer = RedactBearer(Text);
	TArray<FStretch> Secrets = GetList().FindIn(WithoutBearer);
	if (Secrets.IsEmpty())
	{
		return WithoutBearer;
	}
	Secrets.Sort([](const FStretch& A, const FStretch& B)
		{ return A.Begin < B.Begin; });
	FString Answer;
	int32 Shown = 0;
	for (const FStretch& Secret : Secrets)
	{
		// One that overlaps the one before goes with it.
		if (Secret.Begin >= Shown)
		{
			Answer += FStringView(WithoutBearer).Mid(Shown, Secret.Begin - Shown);
			Answer += Redacted;
		}
		Shown = FMath::Max(Shown, Secret.End);
	}
	return Answer + WithoutBearer.Mid(Shown);
}

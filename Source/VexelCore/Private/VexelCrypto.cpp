#include "VexelCrypto.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>

namespace
{
constexpr ANSICHAR Base64UrlAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

/** The six bits that a character stands for; negative for one outside the alphabet. */
int32 ToSixBits(TCHAR Character)
{
	if (Character >= 'A' && Character <= 'Z')
	{
		return Character - 'A';
	}
	if (Character >= 'a' && Character <= 'z')
	{
		return Character - 'a' + 26;
	}
	if (Character >= '0' && Character <= '9')
	{
		return Character - '0' + 52;
	}
	return Character == '-' ? 62 : Character == '_' ? 63
													: INDEX_NONE;
}

/** The text without its padding, which is right only where it fills the last group of four. */
bool RemovePadding(FStringView& Text)
{
	const int32 Length = Text.Len();
	int32 NumPadding = 0;
	while (NumPadding < 2 && NumPadding < Length && Text[Length - 1 - NumPadding] == TEXT('='))
	{
		++NumPadding;
	}
	Text = Text.LeftChop(NumPadding);
	return (NumPadding == 0 || Length % 4 == 0) && Text.Len() % 4 != 1;
}
}

bool FVexelCrypto::SecureRandomBytes(TArray<uint8>& Out, int32 Count)
{
	Out.Reset();
	if (Count < 0)
	{
		return false;
	}
	Out.SetNumUninitialized(Count);
	if (RAND_bytes(Out.GetData(), Count) != 1)
	{
		// Bytes that are not random must not look as if they were.
		Out.Reset();
		return false;
	}
	return true;
}

bool FVexelCrypto::SecureRandomGuid(FGuid& Out)
{
	uint32 Parts[4];
	if (RAND_bytes(reinterpret_cast<unsigned char*>(Parts), sizeof(Parts)) != 1)
	{
		return false;
	}
	// The bits that mark a random identifier of the common form: version 4, variant 1.
	Parts[1] = (Parts[1] & 0xffff0fffu) | 0x00004000u;
	Parts[2] = (Parts[2] & 0x3fffffffu) | 0x80000000u;
	Out = FGuid(Parts[0], Parts[1], Parts[2], Parts[3]);
	return true;
}

FString FVexelCrypto::Base64UrlEncode(TConstArrayView<uint8> Bytes)
{
	FString Text;
	Text.Reserve(int32(int64(Bytes.Num()) * 4 / 3 + 4));
	for (int32 Index = 0; Index < Bytes.Num(); Index += 3)
	{
		const int32 NumHere = FMath::Min(3, Bytes.Num() - Index);
		uint32 Group = 0;
		for (int32 Offset = 0; Offset < 3; ++Offset)
		{
			Group = Group << 8 | (Offset < NumHere ? Bytes[Index + Offset] : 0u);
		}
		for (int32 Digit = 0; Digit <= NumHere; ++Digit)
		{
			Text.AppendChar(TCHAR(Base64UrlAlphabet[Group >> (18 - 6 * Digit) & 63u]));
		}
	}
	return Text;
}

bool FVexelCrypto::Base64UrlDecode(const FString& Text, TArray<uint8>& Out)
{
	Out.Reset();
	FStringView Digits(Text);
	if (!RemovePadding(Digits))
	{
		return false;
	}
	uint32 Pending = 0;
	int32 NumPendingBits = 0;
	for (const TCHAR Character : Digits)
	{
		const int32 Bits = ToSixBits(Character);
		if (Bits < 0)
		{
			Out.Reset();
			return false;
		}
		Pending = Pending << 6 | uint32(Bits);
		NumPendingBits += 6;
		if (NumPendingBits >= 8)
		{
			NumPendingBits -= 8;
			Out.Add(uint8(Pending >> NumPendingBits));
			Pending &= (1u << NumPendingBits) - 1u;
		}
	}
	// Bits that are left over carry nothing; text that has some set is not what an encoder writes.
	if (Pending != 0)
	{
		Out.Reset();
		return false;
	}
	return true;
}

TArray<uint8> FVexelCrypto::Sha256(TConstArrayView<uint8> Bytes)
{
	constexpr int32 DigestBytes = 32;
	TArray<uint8> Digest;
	Digest.SetNumUninitialized(DigestBytes);
	const int Done = EVP_Digest(Bytes.GetData(), size_t(Bytes.Num()), Digest.GetData(), nullptr, EVP_sha256(), nullptr);
	checkf(Done == 1, TEXT("OpenSSL has no SHA-256"));
	return Digest;
}

bool FVexelCrypto::SecretsEqual(const FString& A, const FString& B)
{
	return A.Len() == B.Len() && CRYPTO_memcmp(*A, *B, sizeof(TCHAR) * size_t(A.Len())) == 0;
}

void FVexelCrypto::Wipe(FString& Text)
{
	TArray<TCHAR>& Characters = Text.GetCharArray();
	OPENSSL_cleanse(Characters.GetData(), sizeof(TCHAR) * size_t(Characters.Num()));
	Text.Empty();
}

void FVexelCrypto::Wipe(TArray<uint8>& Bytes)
{
	OPENSSL_cleanse(Bytes.GetData(), size_t(Bytes.Num()));
	Bytes.Empty();
}

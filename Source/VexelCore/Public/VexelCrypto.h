#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"

/** Cryptographic helpers. Any thread. */
class VEXELCORE_API FVexelCrypto
{
public:
	/** Fills with bytes of a cryptographically secure source; false on failure. */
	static bool SecureRandomBytes(TArray<uint8>& Out, int32 Count);
	static bool SecureRandomGuid(FGuid& Out);

	/** Base64url text without padding. */
	static FString Base64UrlEncode(TConstArrayView<uint8> Bytes);
	/** False for text that is not base64url; padding is accepted. */
	static bool Base64UrlDecode(const FString& Text, TArray<uint8>& Out);

	/** The 32 bytes of the SHA-256 digest. */
	static TArray<uint8> Sha256(TConstArrayView<uint8> Bytes);

	/** Compares in a time that depends on the lengths alone. */
	static bool SecretsEqual(const FString& A, const FString& B);
	/** Overwrites a text in place, then empties it, so that the memory that is freed does not tell it. */
	static void Wipe(FString& Text);
	static void Wipe(TArray<uint8>& Bytes);
};

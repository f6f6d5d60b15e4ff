#include "Auth/VexelAuthPkce.h"

#include "VexelErrorKinds.h"

namespace
{
constexpr int32 VerifierBytes = 32;
constexpr int32 StateBytes = 16;

/** Random bytes as base64url text. */
TVexelExpected<FVexelAuthSecret> MakeRandomText(int32 NumBytes, const TCHAR* NoBytes, const TCHAR* NoText)
{
	TArray<uint8> Bytes;
	if (!FVexelCrypto::SecureRandomBytes(Bytes, NumBytes))
	{
		return VEXEL_ERROR(FVexelError_Auth_Pkce, "%s", NoBytes);
	}
	FVexelAuthSecret Text(FVexelCrypto::Base64UrlEncode(Bytes));
	FVexelCrypto::Wipe(Bytes);
	if (Text.IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_Auth_Pkce, "%s", NoText);
	}
	return Text;
}

FString MakeChallenge(const FString& Verifier)
{
	// Characters of base64url, which are their own UTF-8.
	TArray<uint8> Utf8;
	Utf8.Reserve(Verifier.Len());
	for (const TCHAR Character : Verifier)
	{
		Utf8.Add(uint8(Character));
	}
	FString Challenge = FVexelCrypto::Base64UrlEncode(FVexelCrypto::Sha256(Utf8));
	FVexelCrypto::Wipe(Utf8);
	return Challenge;
}
}

TVexelExpected<FVexelAuthPkce> FVexelAuthPkce::Make()
{
	FVexelAuthPkce Pkce;
	VEXEL_TRY(Pkce.CodeVerifier,
		MakeRandomText(VerifierBytes, TEXT("Failed to generate secure random bytes for OAuth code"),
			TEXT("Failed to base64-encode code_verifier")));
	VEXEL_TRY(Pkce.State,
		MakeRandomText(StateBytes, TEXT("Failed to generate secure random bytes for OAuth state"),
			TEXT("Failed to base64-encode OAuth state")));
	Pkce.CodeChallenge = MakeChallenge(Pkce.CodeVerifier.Get());
	return Pkce;
}

#include "Auth/VexelAuthPkce.h"

#include "Containers/StringConv.h"
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
	const FTCHARToUTF8 Verifier(*Pkce.CodeVerifier.Get());
	Pkce.CodeChallenge = FVexelCrypto::Base64UrlEncode(
		FVexelCrypto::Sha256(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Verifier.Get()), Verifier.Length())));
	return Pkce;
}

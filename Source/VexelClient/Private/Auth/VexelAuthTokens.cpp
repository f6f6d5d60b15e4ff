#include "Auth/VexelAuthTokens.h"

#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "VexelJson.h"
#include "VexelSecretFields.h"

namespace
{
constexpr double LongestMarginSeconds = 60.0;
constexpr double MarginShare = 0.1;
/** A service that gives tokens of no life at all must not be asked for one after another without a pause. */
constexpr double ShortestLifeSeconds = 1.0;
constexpr double LongestLifeSeconds = 365.0 * 24.0 * 3600.0;

FVexelAuthSecret ReadToken(const FVexelSecretFields& Fields, const TCHAR* Key)
{
	FString Text;
	Fields.TryGetString(Key, Text);
	FVexelAuthSecret Token(MoveTemp(Text));
	for (const TCHAR Character : Token.Get())
	{
		if (Character <= TEXT(' ') || Character >= 127)
		{
			return FVexelAuthSecret();
		}
	}
	return Token;
}
}

FTokenResponse FTokenResponse::Parse(const FVexelSecretFields& Fields)
{
	FTokenResponse Response;
	double ExpiresIn = 0.0;
	Response.AccessToken = ReadToken(Fields, TEXT("access_token"));
	Response.RefreshToken = ReadToken(Fields, TEXT("refresh_token"));
	if (Fields.TryGetNumber(TEXT("expires_in"), ExpiresIn))
	{
		Response.ExpiresInSeconds = ExpiresIn;
	}
	return Response;
}

FString VexelAuthTokens::ReadUserId(const FString& AccessToken)
{
	TArray<uint8> PayloadBytes;
	TSharedPtr<FJsonObject> Payload;
	FString UserId;
	// The middle one of three parts alone is copied: without the signature behind it, it opens nothing.
	FStringView Rest(AccessToken);
	int32 FirstDot = INDEX_NONE;
	int32 SecondDot = INDEX_NONE;
	int32 ThirdDot = INDEX_NONE;
	const bool bThreeParts = Rest.FindChar(TEXT('.'), FirstDot) && Rest.RightChop(FirstDot + 1).FindChar(TEXT('.'), SecondDot) &&
		!Rest.RightChop(FirstDot + SecondDot + 2).FindChar(TEXT('.'), ThirdDot);
	if (!bThreeParts || !FVexelCrypto::Base64UrlDecode(FString(Rest.Mid(FirstDot + 1, SecondDot)), PayloadBytes))
	{
		return UserId;
	}
	const FUTF8ToTCHAR Text(reinterpret_cast<const ANSICHAR*>(PayloadBytes.GetData()), PayloadBytes.Num());
	if (FVexelJsonConversions::StringToJson(FString::ConstructFromPtrSize(Text.Get(), Text.Length()), Payload))
	{
		Payload->TryGetStringField(TEXT("sub"), UserId);
	}
	return UserId;
}

double VexelAuthTokens::ClampLife(double ExpiresInSeconds)
{
	return FMath::Clamp(ExpiresInSeconds, ShortestLifeSeconds, LongestLifeSeconds);
}

double VexelAuthTokens::GetRefreshDelay(double ExpiresInSeconds)
{
	const double Life = ClampLife(ExpiresInSeconds);
	return Life - FMath::Min(LongestMarginSeconds, Life * MarginShare);
}

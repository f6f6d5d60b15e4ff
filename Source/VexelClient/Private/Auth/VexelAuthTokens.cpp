#include "Auth/VexelAuthTokens.h"

#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "VexelJson.h"

namespace
{
constexpr double LongestMarginSeconds = 60.0;
constexpr double MarginShare = 0.1;
/** A service that gives tokens of no life at all must not be asked for one after another without a pause. */
constexpr double ShortestLifeSeconds = 1.0;
constexpr double LongestLifeSeconds = 365.0 * 24.0 * 3600.0;

FVexelAuthSecret ReadToken(const FJsonObject& Object, const TCHAR* Field)
{
	FString Text;
	Object.TryGetStringField(Field, Text);
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

FTokenResponse FTokenResponse::Parse(const FJsonObject& Object)
{
	FTokenResponse Response;
	double ExpiresIn = 0.0;
	Response.AccessToken = ReadToken(Object, TEXT("access_token"));
	Response.RefreshToken = ReadToken(Object, TEXT("refresh_token"));
	if (Object.TryGetNumberField(TEXT("expires_in"), ExpiresIn))
	{
		Response.ExpiresInSeconds = ExpiresIn;
	}
	return Response;
}

FString VexelAuthTokens::ReadUserId(const FString& AccessToken)
{
	TArray<FString> Parts;
	TArray<uint8> PayloadBytes;
	TSharedPtr<FJsonObject> Payload;
	FString UserId;
	AccessToken.ParseIntoArray(Parts, TEXT("."), false);
	if (Parts.Num() != 3 || !FVexelCrypto::Base64UrlDecode(Parts[1], PayloadBytes))
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

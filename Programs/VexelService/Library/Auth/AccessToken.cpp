#include "Auth/AccessToken.h"

#include "Auth/Crypto.h"
#include "Support/JsonText.h"

namespace VexelService
{

namespace
{

// The only header ever issued. A token with any other one is refused before anything else is looked at, so that no other
// algorithm can be asked for.
constexpr std::string_view Header = R"({"alg":"HS256","typ":"JWT"})";
constexpr std::size_t MaxTokenBytes = 4096;

}

std::string SignAccessToken(const FAccessClaims& Claims, std::string_view Key)
{
	const FOrderedJson Payload = {
		{"sub", Claims.Subject},
		{"aud", Claims.Audience},
		{"sid", Claims.Family},
		{"jti", Claims.Grant},
		{"iat", Claims.IssuedAt},
		{"exp", Claims.ExpiresAt},
	};
	const std::string Signed = Base64UrlEncode(Header) + "." + Base64UrlEncode(JsonLine(Payload));
	return Signed + "." + Base64UrlEncode(HmacSha256(Key, Signed));
}

std::optional<FAccessClaims> ReadAccessToken(std::string_view Token, std::string_view Key)
{
	const std::size_t FirstDot = Token.find('.');
	const std::size_t LastDot = Token.rfind('.');
	if (Token.size() > MaxTokenBytes || FirstDot == std::string_view::npos || FirstDot == LastDot ||
		Token.substr(0, FirstDot) != Base64UrlEncode(Header))
	{
		return std::nullopt;
	}
	const std::optional<std::string> Signature = Base64UrlDecode(Token.substr(LastDot + 1));
	if (!Signature || !SecretsEqual(*Signature, HmacSha256(Key, Token.substr(0, LastDot))))
	{
		return std::nullopt;
	}
	const std::optional<std::string> PayloadText = Base64UrlDecode(Token.substr(FirstDot + 1, LastDot - FirstDot - 1));
	const std::optional<FJson> Payload = PayloadText ? ParseJson(*PayloadText) : std::nullopt;
	if (!Payload)
	{
		return std::nullopt;
	}
	const FJson* const IssuedAt = FindMember(*Payload, "iat");
	const FJson* const ExpiresAt = FindMember(*Payload, "exp");
	if (!IssuedAt || !IssuedAt->is_number_integer() || !ExpiresAt || !ExpiresAt->is_number_integer())
	{
		return std::nullopt;
	}
	return FAccessClaims{
		.Subject = TextMember(*Payload, "sub"),
		.Audience = TextMember(*Payload, "aud"),
		.Family = TextMember(*Payload, "sid"),
		.Grant = TextMember(*Payload, "jti"),
		.IssuedAt = IssuedAt->get<std::int64_t>(),
		.ExpiresAt = ExpiresAt->get<std::int64_t>(),
	};
}

}

#include "Auth/Crypto.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/hmac.h>
#include <openssl/rand.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace VexelService
{

namespace
{

constexpr std::size_t DigestBytes = 32;

const unsigned char* AsBytes(std::string_view Text)
{
	return reinterpret_cast<const unsigned char*>(Text.data());
}

[[noreturn]] void EndWithoutCrypto(const char* Operation)
{
	std::fprintf(stderr, "vexel-service: the cryptographic library failed to %s\n", Operation);
	std::abort();
}

}

std::string RandomBytes(std::size_t Count)
{
	std::string Bytes(Count, '\0');
	if (RAND_bytes(reinterpret_cast<unsigned char*>(Bytes.data()), static_cast<int>(Count)) != 1)
	{
		EndWithoutCrypto("give random bytes");
	}
	return Bytes;
}

std::string Base64UrlEncode(std::string_view Bytes)
{
	std::string Text((Bytes.size() + 2) / 3 * 4 + 1, '\0');
	const int Length = EVP_EncodeBlock(reinterpret_cast<unsigned char*>(Text.data()), AsBytes(Bytes), static_cast<int>(Bytes.size()));
	Text.resize(static_cast<std::size_t>(Length));
	Text.erase(std::find(Text.begin(), Text.end(), '='), Text.end());
	std::replace(Text.begin(), Text.end(), '+', '-');
	std::replace(Text.begin(), Text.end(), '/', '_');
	return Text;
}

std::optional<std::string> Base64UrlDecode(std::string_view Text)
{
	constexpr std::string_view Alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
	if (Text.size() % 4 == 1 || Text.find_first_not_of(Alphabet) != std::string_view::npos)
	{
		return std::nullopt;
	}
	std::string Padded(Text);
	std::replace(Padded.begin(), Padded.end(), '-', '+');
	std::replace(Padded.begin(), Padded.end(), '_', '/');
	const std::size_t Padding = (4 - Padded.size() % 4) % 4;
	Padded.append(Padding, '=');

	std::string Bytes(Padded.size() / 4 * 3, '\0');
	const int Length = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(Bytes.data()), AsBytes(Padded), static_cast<int>(Padded.size()));
	if (Length < 0)
	{
		return std::nullopt;
	}
	Bytes.resize(static_cast<std::size_t>(Length) - Padding);
	return Bytes;
}

std::string Sha256(std::string_view Bytes)
{
	std::string Digest(DigestBytes, '\0');
	unsigned int Length = 0;
	if (EVP_Digest(Bytes.data(), Bytes.size(), reinterpret_cast<unsigned char*>(Digest.data()), &Length, EVP_sha256(), nullptr) != 1)
	{
		EndWithoutCrypto("hash");
	}
	return Digest;
}

std::string HmacSha256(std::string_view Key, std::string_view Bytes)
{
	std::string Digest(DigestBytes, '\0');
	unsigned int Length = 0;
	if (!HMAC(EVP_sha256(), Key.data(), static_cast<int>(Key.size()), AsBytes(Bytes), Bytes.size(),
			reinterpret_cast<unsigned char*>(Digest.data()), &Length))
	{
		EndWithoutCrypto("sign");
	}
	return Digest;
}

bool SecretsEqual(std::string_view A, std::string_view B)
{
	return A.size() == B.size() && CRYPTO_memcmp(A.data(), B.data(), A.size()) == 0;
}

std::string RandomId()
{
	return Base64UrlEncode(RandomBytes(16));
}

}

#include "Server/ImageStore.h"

#include "Auth/Crypto.h"

#include <algorithm>
#include <openssl/evp.h>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::string_view PngSignature("\x89PNG\r\n\x1a\n", 8);

std::optional<std::string> DecodeBase64(std::string_view Text)
{
	if (Text.empty() || Text.size() % 4 != 0)
	{
		return std::nullopt;
	}
	std::string Bytes(Text.size() / 4 * 3, '\0');
	const int Size = EVP_DecodeBlock(reinterpret_cast<unsigned char*>(Bytes.data()), reinterpret_cast<const unsigned char*>(Text.data()),
		static_cast<int>(Text.size()));
	if (Size < 0)
	{
		return std::nullopt;
	}
	// The library counts the bytes that the padding stands for.
	const std::size_t Padding = Text.ends_with("==") ? 2 : Text.ends_with("=") ? 1
																			   : 0;
	Bytes.resize(static_cast<std::size_t>(Size) - Padding);
	return Bytes;
}

}

std::optional<std::string> FImageStore::Add(std::string_view Base64)
{
	std::optional<std::string> Bytes = Base64.size() <= MaxImageBytes / 3 * 4 ? DecodeBase64(Base64) : std::nullopt;
	if (!Bytes || !Bytes->starts_with(PngSignature))
	{
		return std::nullopt;
	}
	const std::lock_guard Lock(Mutex);
	Images.push_back({RandomId(), std::move(*Bytes)});
	if (Images.size() > MaxImages)
	{
		Images.pop_front();
	}
	return Images.back().Id;
}

std::optional<std::string> FImageStore::Find(std::string_view Id) const
{
	const std::lock_guard Lock(Mutex);
	const auto Found = std::find_if(Images.begin(), Images.end(), [Id](const FImage& Image)
		{ return Image.Id == Id; });
	return Found == Images.end() ? std::nullopt : std::optional<std::string>(Found->Bytes);
}

}

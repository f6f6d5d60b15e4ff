#pragma once

#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

namespace VexelService
{

/**
 * The images that answers have shown lately, for the client to fetch. Who knows an image's id may have it: ids cannot be guessed.
 * The oldest go when there are too many. Thread-safe.
 */
class FImageStore
{
public:
	static constexpr std::size_t MaxImages = 32;
	static constexpr std::size_t MaxImageBytes = 5u << 20;

	/** Keeps a PNG that comes in base64 and returns its id; nothing for what is no PNG, or too large. */
	std::optional<std::string> Add(std::string_view Base64);

	/** The image's bytes; nothing for one that is not kept. */
	std::optional<std::string> Find(std::string_view Id) const;

private:
	struct FImage
	{
		std::string Id;
		std::string Bytes;
	};

	mutable std::mutex Mutex;
	std::deque<FImage> Images;
};

}

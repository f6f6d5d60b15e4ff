#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace VexelService
{

/** Count bytes from the system's secure source; ends the program when there is none, since nothing could be kept secret. */
std::string RandomBytes(std::size_t Count);

/** Base64url without padding. */
std::string Base64UrlEncode(std::string_view Bytes);
std::optional<std::string> Base64UrlDecode(std::string_view Text);

/** 32 raw bytes each. */
std::string Sha256(std::string_view Bytes);
std::string HmacSha256(std::string_view Key, std::string_view Bytes);

/** Compares in a time that depends on the lengths only. */
bool SecretsEqual(std::string_view A, std::string_view B);

/** A random identifier, 22 characters of base64url. */
std::string RandomId();

}

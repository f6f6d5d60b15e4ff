#pragma once

#include <nlohmann/json.hpp>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace VexelService
{

using FJson = nlohmann::json;
/** Keeps the keys in the order in which they were added, for JSON that people read. */
using FOrderedJson = nlohmann::ordered_json;

/** The deepest nesting that ParseJson accepts; a Blueprint export stays far below it. */
inline constexpr std::size_t MaxJsonDepth = 128;

/** Parses one JSON document from outside bytes. Nothing for bad JSON, bad UTF-8 or nesting below MaxJsonDepth. */
std::optional<FJson> ParseJson(std::string_view Text);

/** The text of a JSON value on one line; bytes that are not UTF-8 are replaced. */
std::string JsonLine(const FJson& Value);
std::string JsonLine(const FOrderedJson& Value);

/** The member Key when Object is an object that has it, else null. */
const FJson* FindMember(const FJson& Object, const char* Key);

/** The string member Key, or an empty string. */
std::string TextMember(const FJson& Object, const char* Key);

/** The array member Key, or an empty array. */
const FJson& ArrayMember(const FJson& Object, const char* Key);

}

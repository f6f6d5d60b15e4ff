#pragma once

#include "CoreMinimal.h"
#include "HeaderParser/Model.h"

#include <string>
#include <unordered_map>

/** The parser's UTF-8 as the engine's texts. */
namespace ScriptHeaderText
{
inline FString ToText(const std::string& Text)
{
	return FString(FUtf8StringView(reinterpret_cast<const UTF8CHAR*>(Text.data()), static_cast<int32>(Text.size())));
}

/** Remembers names that were made already: the same few hundred words name most parameters and keys. Game thread. */
inline FName ToName(const std::string& Text)
{
	static std::unordered_map<std::string, FName>& Known = *new std::unordered_map<std::string, FName>;
	const auto [Found, bIsNew] = Known.try_emplace(Text);
	if (bIsNew)
	{
		Found->second = FName(*ToText(Text));
	}
	return Found->second;
}

/** Names of types carry a prefix in C++ and none in reflection. */
inline FName WithoutPrefix(const std::string& CppName)
{
	return ToName(CppName.substr(1));
}

inline TMap<FName, FString> ToMap(const HeaderParser::FMetaData& MetaData, const std::string& Prefix = std::string())
{
	TMap<FName, FString> Map;
	Map.Reserve(static_cast<int32>(MetaData.Pairs().size()));
	for (const auto& [Key, Value] : MetaData.Pairs())
	{
		Map.Add(Prefix.empty() ? ToName(Key) : ToName(Prefix + Key), ToText(Value));
	}
	return Map;
}
}

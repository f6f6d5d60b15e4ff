#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

enum class EAssetWord
{
	No,
	/** An open asset has this name, which may be a word of the language. */
	Open,
	/** The word is written as only assets are. */
	Certain,
};

/** A word of a message that means something. */
struct FWord
{
	/** A view into the message. */
	std::string_view Text;
	EAssetWord Asset = EAssetWord::No;
	/** Written as names of source and configuration files are. */
	bool bFile = false;
	bool bPossessive = false;
};

/** A message as its words, without those that change nothing about what is asked. */
struct FMessageWords
{
	std::vector<FWord> Words;
	/** It began with "and" or the like. */
	bool bFollowsOn = false;
	bool bGreets = false;
	/** It has more or longer words than any question. */
	bool bTooLong = false;
};

/** Words that only tests and patterns compare; "a|b|c" are the alternatives. */
bool IsOneOf(std::string_view Word, std::string_view Alternatives);

std::vector<std::string_view> SplitWords(std::string_view Text, std::size_t MaxCount);

/** Quotation marks of typography, which word processors put in the place of the plain ones, as those. */
std::string WithPlainQuotes(std::string_view Message);

/** Message must outlive what is returned. */
FMessageWords ReadMessageWords(std::string_view Message, const std::vector<std::string>& OpenNames);

/** The word that names the asset: the last one that can only be an asset, or else the last that is an open one's name. */
std::optional<std::size_t> FindAssetWord(const std::vector<FWord>& Words);

}

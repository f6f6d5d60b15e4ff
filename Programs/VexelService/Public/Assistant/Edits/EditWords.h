#pragma once

#include <cstddef>
#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** A word of a message, a text in quotes, or a mark between clauses. */
struct FEditWord
{
	/** Without its quotes. */
	std::string Text;
	/** In quotes: whatever it holds, it is one thing and no word of the language. */
	bool bQuoted = false;
	/** One of , ; : . ! ? or a line's end ("\n"), standing behind a word. */
	bool bMark = false;
};

using FEditWords = std::vector<FEditWord>;

/** A message as the families of edits read it. */
struct FEditMessage
{
	FEditWords Words;
	/** The Blueprint that the message names, taken out of Words with what leads to it ("in BP_Door", "BP_Door:"); may be empty. */
	std::string Blueprint;
	/** What the message before was about, which "it" may mean; empty when it was about no one thing. */
	std::string Subject = {};
};

/** Splits a text; nothing when it is longer than any request. */
std::optional<FEditWords> SplitEditWords(std::string_view Text);

/** The words with one blank between two, those in quotes without them. */
std::string JoinWords(const FEditWords& Words);

/** The words from Begin up to End. */
FEditWords PartOf(const FEditWords& Words, std::size_t Begin, std::size_t End);

/** Whether a word is one of "a|b|c", outside quotes and without regard to case. */
bool IsWord(const FEditWord& Word, std::string_view Alternatives);

/** What the slots of a pattern took, by their names. */
using FCaptures = std::map<std::string, FEditWords, std::less<>>;

/**
 * Matches words against a pattern that must cover all of them, such as "set|change {what} to|as {value} [please]": a word or its
 * alternatives, which may stand with an "s" behind, "[a|b]" for words that may be missing, "{name}" for one or more words, as few as possible, "{name:1}" for exactly
 * one. Articles and polite words in the message count only where the pattern or a slot has need of them; a slot is given none at its
 * beginning. Marks match no word of a pattern.
 */
std::optional<FCaptures> MatchWords(std::string_view Pattern, const FEditWords& Words);

/** The text that a slot took; empty when the pattern has no such slot. */
std::string CapturedText(const FCaptures& Captures, std::string_view Slot);

}

#pragma once

#include "CoreMinimal.h"

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/** Texts as the fuzzy scorers compare them: code points in lower case. */
namespace FuzzyText
{
constexpr char32_t NumAscii = 128;

/** The text's code points in lower case, in place of what Out held. */
void Fold(FStringView Text, std::u32string& Out);
std::u32string Fold(FStringView Text);

/** The different words of a folded text, sorted. A word is a run of letters and digits. */
void SplitWords(std::u32string_view Text, std::vector<std::u32string_view>& OutWords);

/** The words with a blank between each two. */
void Join(const std::vector<std::u32string_view>& Words, std::u32string& Out);
}

/** Numbers the different characters of a text from 1, in the order in which they first stand; 0 is every other character. */
class FCharacterClasses
{
public:
	explicit FCharacterClasses(std::u32string_view Text);

	/** One more than the different characters. */
	uint32 GetNum() const { return Num; }

	uint32 Find(char32_t Character) const
	{
		if (Character < FuzzyText::NumAscii)
		{
			return Ascii[Character];
		}
		const auto Found = Others.find(Character);
		return Found == Others.end() ? 0 : Found->second;
	}

private:
	uint32 Num = 1;
	std::array<uint32, FuzzyText::NumAscii> Ascii = {};
	std::unordered_map<char32_t, uint32> Others;
};

#include "Fuzzy/FuzzyText.h"

#include "Misc/Char.h"

#include <algorithm>

namespace
{
/** What is to be known of a character of ASCII, which most texts consist of. */
struct FAsciiRow
{
	char32_t Lower;
	bool bInWord;
};

constexpr std::array<FAsciiRow, FuzzyText::NumAscii> AsciiTable = []
{
	std::array<FAsciiRow, FuzzyText::NumAscii> Table = {};
	for (char32_t Character = 0; Character < FuzzyText::NumAscii; ++Character)
	{
		const bool bUpper = Character >= 'A' && Character <= 'Z';
		const bool bLower = Character >= 'a' && Character <= 'z';
		const bool bDigit = Character >= '0' && Character <= '9';
		Table[Character] = {bUpper ? Character - 'A' + 'a' : Character, bUpper || bLower || bDigit};
	}
	return Table;
}();

bool IsWordCharacter(char32_t Character)
{
	return Character < FuzzyText::NumAscii ? AsciiTable[Character].bInWord : Character > 0xFFFF || FChar::IsAlnum(TCHAR(Character));
}
}

void FuzzyText::Fold(FStringView Text, std::u32string& Out)
{
	const TCHAR* const Units = Text.GetData();
	const size_t NumUnits = size_t(Text.Len());
	Out.resize(NumUnits);
	size_t Num = 0;
	// Most texts are ASCII, which needs no look at what follows.
	for (; Num < NumUnits && Units[Num] < NumAscii; ++Num)
	{
		Out[Num] = AsciiTable[Units[Num]].Lower;
	}
	for (size_t Index = Num; Index < NumUnits; ++Index)
	{
		const TCHAR Unit = Units[Index];
		const TCHAR Next = Index + 1 < NumUnits ? Units[Index + 1] : TCHAR(0);
		if (Unit >= 0xD800 && Unit < 0xDC00 && Next >= 0xDC00 && Next < 0xE000)
		{
			Out[Num++] = 0x10000 + ((char32_t(Unit) - 0xD800) << 10) + (char32_t(Next) - 0xDC00);
			++Index;
		}
		else
		{
			Out[Num++] = FChar::ToLower(Unit);
		}
	}
	Out.resize(Num);
}

std::u32string FuzzyText::Fold(FStringView Text)
{
	std::u32string Folded;
	Fold(Text, Folded);
	return Folded;
}

void FuzzyText::SplitWords(std::u32string_view Text, std::vector<std::u32string_view>& OutWords)
{
	OutWords.clear();
	size_t Begin = 0;
	for (size_t Index = 0; Index <= Text.size(); ++Index)
	{
		if (Index < Text.size() && IsWordCharacter(Text[Index]))
		{
			continue;
		}
		if (Index > Begin)
		{
			OutWords.push_back(Text.substr(Begin, Index - Begin));
		}
		Begin = Index + 1;
	}
	std::sort(OutWords.begin(), OutWords.end());
	OutWords.erase(std::unique(OutWords.begin(), OutWords.end()), OutWords.end());
}

void FuzzyText::Join(const std::vector<std::u32string_view>& Words, std::u32string& Out)
{
	Out.clear();
	for (const std::u32string_view Word : Words)
	{
		Out.append(Out.empty() ? U"" : U" ").append(Word);
	}
}

FCharacterClasses::FCharacterClasses(std::u32string_view Text)
{
	for (const char32_t Character : Text)
	{
		uint32& Class = Character < FuzzyText::NumAscii ? Ascii[Character] : Others[Character];
		Class = Class == 0 ? Num++ : Class;
	}
}

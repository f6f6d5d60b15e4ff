#include "VexelFuzzySearch.h"

#include "Misc/Char.h"

#include <algorithm>
#include <bit>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace
{
constexpr size_t WordBits = 64;
constexpr char32_t NumAscii = 128;

/** The text's code points in lower case. */
std::u32string Fold(FStringView Text)
{
	std::u32string Folded;
	Folded.reserve(size_t(Text.Len()));
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Unit = Text[Index];
		const TCHAR Next = Index + 1 < Text.Len() ? Text[Index + 1] : TCHAR(0);
		if (Unit >= 0xD800 && Unit < 0xDC00 && Next >= 0xDC00 && Next < 0xE000)
		{
			Folded.push_back(0x10000 + ((char32_t(Unit) - 0xD800) << 10) + (char32_t(Next) - 0xDC00));
			++Index;
		}
		else
		{
			Folded.push_back(FChar::ToLower(Unit));
		}
	}
	return Folded;
}

/**
 * A text made ready to be compared with others: for each of its characters, a bit for each place where it stands. With them the
 * longest common subsequence takes one step for each character of the other text and 64 of this one.
 */
class FPattern
{
public:
	explicit FPattern(std::u32string_view Text)
		: Length(Text.size())
		, NumWords((Text.size() + WordBits - 1) / WordBits)
		, Ascii(NumAscii * NumWords)
		, None(NumWords)
	{
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			const char32_t Character = Text[Index];
			std::vector<uint64>& Masks = Character < NumAscii ? Ascii : Others.try_emplace(Character, NumWords).first->second;
			const size_t First = Character < NumAscii ? Character * NumWords : 0;
			Masks[First + Index / WordBits] |= uint64(1) << (Index % WordBits);
		}
	}

	size_t GetLength() const { return Length; }

	bool Contains(char32_t Character) const
	{
		const uint64* const Masks = GetMasks(Character);
		return std::any_of(Masks, Masks + NumWords, [](uint64 Mask)
			{ return Mask != 0; });
	}

	/** Length of the longest common subsequence. */
	size_t CountCommon(std::u32string_view Text, std::vector<uint64>& Scratch) const
	{
		Scratch.assign(NumWords, ~uint64(0));
		for (const char32_t Character : Text)
		{
			const uint64* const Masks = GetMasks(Character);
			uint64 Carry = 0;
			for (size_t Word = 0; Word < NumWords; ++Word)
			{
				const uint64 Row0 = Scratch[Word];
				const uint64 Matches = Row0 & Masks[Word];
				const uint64 Sum = Row0 + Matches;
				const uint64 SumWithCarry = Sum + Carry;
				Carry = uint64(Sum < Row0) | uint64(SumWithCarry < Sum);
				Scratch[Word] = SumWithCarry | (Row0 - Matches);
			}
		}
		size_t Num = 0;
		for (size_t Word = 0; Word < NumWords; ++Word)
		{
			const size_t BitsHere = std::min(WordBits, Length - Word * WordBits);
			const uint64 Used = BitsHere == WordBits ? ~uint64(0) : (uint64(1) << BitsHere) - 1;
			Num += size_t(std::popcount(~Scratch[Word] & Used));
		}
		return Num;
	}

private:
	const uint64* GetMasks(char32_t Character) const
	{
		if (Character < NumAscii)
		{
			return Ascii.data() + Character * NumWords;
		}
		const auto Found = Others.find(Character);
		return Found == Others.end() ? None.data() : Found->second.data();
	}

	size_t Length;
	size_t NumWords;
	std::vector<uint64> Ascii;
	std::vector<uint64> None;
	std::unordered_map<char32_t, std::vector<uint64>> Others;
};

/** Rates the stretches of a text that is no shorter than the pattern. */
class FBestStretch
{
public:
	FBestStretch(const FPattern& InPattern, std::u32string_view InText)
		: Pattern(InPattern)
		, Text(InText)
	{
	}

	double Find()
	{
		const size_t Length = Pattern.GetLength();
		// A stretch that ends, or at the text's end begins, with a character that the pattern has not is no better than a shorter one.
		for (size_t End = 1; End <= Text.size() && Best < 100.0; ++End)
		{
			if (Pattern.Contains(Text[End - 1]))
			{
				Rate(Text.substr(End > Length ? End - Length : 0, std::min(End, Length)));
			}
		}
		for (size_t Begin = Text.size() - Length + 1; Begin < Text.size() && Best < 100.0; ++Begin)
		{
			if (Pattern.Contains(Text[Begin]))
			{
				Rate(Text.substr(Begin));
			}
		}
		return Best;
	}

private:
	void Rate(std::u32string_view Stretch)
	{
		const double Sum = double(Pattern.GetLength() + Stretch.size());
		if (200.0 * double(std::min(Pattern.GetLength(), Stretch.size())) / Sum > Best)
		{
			Best = std::max(Best, 200.0 * double(Pattern.CountCommon(Stretch, Scratch)) / Sum);
		}
	}

	const FPattern& Pattern;
	std::u32string_view Text;
	std::vector<uint64> Scratch;
	double Best = 0.0;
};

/** A query that is compared with many texts. */
class FPartialRatio
{
public:
	explicit FPartialRatio(std::u32string InQuery)
		: Query(std::move(InQuery))
		, QueryPattern(Query)
	{
	}

	double Rate(std::u32string_view Text) const
	{
		if (Query.empty() || Text.empty())
		{
			return 0.0;
		}
		if (Text.size() > Query.size())
		{
			return FBestStretch(QueryPattern, Text).Find();
		}
		const FPattern TextPattern(Text);
		const double Rating = FBestStretch(TextPattern, Query).Find();
		// Of two texts of one length either may be the one that has the stretch.
		return Text.size() < Query.size() ? Rating : std::max(Rating, FBestStretch(QueryPattern, Text).Find());
	}

private:
	std::u32string Query;
	FPattern QueryPattern;
};

bool IsWordCharacter(char32_t Character)
{
	return Character > 0xFFFF || FChar::IsAlnum(TCHAR(Character));
}

/** The different words of a text, sorted. */
std::vector<std::u32string> SplitWords(const std::u32string& Text)
{
	std::vector<std::u32string> Words;
	size_t Begin = 0;
	for (size_t Index = 0; Index <= Text.size(); ++Index)
	{
		if (Index < Text.size() && IsWordCharacter(Text[Index]))
		{
			continue;
		}
		if (Index > Begin)
		{
			Words.push_back(Text.substr(Begin, Index - Begin));
		}
		Begin = Index + 1;
	}
	std::sort(Words.begin(), Words.end());
	Words.erase(std::unique(Words.begin(), Words.end()), Words.end());
	return Words;
}

std::u32string Join(const std::vector<std::u32string>& Words)
{
	std::u32string Joined;
	for (const std::u32string& Word : Words)
	{
		Joined += Joined.empty() ? Word : U" " + Word;
	}
	return Joined;
}
}

FVexelFuzzySearch::FScorer FVexelFuzzySearch::ScorerPartialRatio(const FString& Query)
{
	const TSharedRef<const FPartialRatio> Ratio = MakeShared<const FPartialRatio>(Fold(Query));
	return [Ratio](FStringView Candidate)
	{ return Ratio->Rate(Fold(Candidate)); };
}

FVexelFuzzySearch::FScorer FVexelFuzzySearch::ScorerPartialTokenSet(const FString& Query)
{
	struct FTokenSet
	{
		std::vector<std::u32string> Words;
		FPartialRatio Ratio;
	};
	const std::vector<std::u32string> QueryWords = SplitWords(Fold(Query));
	const TSharedRef<const FTokenSet> Set = MakeShareable(new FTokenSet{QueryWords, FPartialRatio(Join(QueryWords))});
	return [Set](FStringView Candidate)
	{
		const std::vector<std::u32string> Words = SplitWords(Fold(Candidate));
		const bool bShared = std::any_of(Words.begin(), Words.end(), [&](const std::u32string& Word)
			{ return std::binary_search(Set->Words.begin(), Set->Words.end(), Word); });
		return bShared ? 100.0 : Set->Ratio.Rate(Join(Words));
	};
}

#include "VexelFuzzySearch.h"

#include "Misc/Char.h"

#include <algorithm>
#include <array>
#include <bit>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace
{
constexpr size_t WordBits = 64;
constexpr char32_t NumAscii = 128;

/** The text's code points in lower case, in place of what Out held. */
void Fold(FStringView Text, std::u32string& Out)
{
	Out.clear();
	Out.reserve(size_t(Text.Len()));
	for (int32 Index = 0; Index < Text.Len(); ++Index)
	{
		const TCHAR Unit = Text[Index];
		const TCHAR Next = Index + 1 < Text.Len() ? Text[Index + 1] : TCHAR(0);
		if (Unit < NumAscii)
		{
			Out.push_back(Unit >= TEXT('A') && Unit <= TEXT('Z') ? Unit + (TEXT('a') - TEXT('A')) : Unit);
		}
		else if (Unit >= 0xD800 && Unit < 0xDC00 && Next >= 0xDC00 && Next < 0xE000)
		{
			Out.push_back(0x10000 + ((char32_t(Unit) - 0xD800) << 10) + (char32_t(Next) - 0xDC00));
			++Index;
		}
		else
		{
			Out.push_back(FChar::ToLower(Unit));
		}
	}
}

std::u32string Fold(FStringView Text)
{
	std::u32string Folded;
	Fold(Text, Folded);
	return Folded;
}

/**
 * A text made ready to be compared with others. Each of its different characters is a class, numbered from 1, with a bit for each
 * place where it stands; class 0 is every character that it does not have. With the bits the longest common subsequence takes one
 * step for each character of the other text and 64 of this one.
 */
class FPattern
{
public:
	explicit FPattern(std::u32string_view Text)
		: Length(Text.size())
		, NumWords((Text.size() + WordBits - 1) / WordBits)
		, Masks(NumWords)
		, NumOfClass(1)
	{
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			const char32_t Character = Text[Index];
			uint32& Class = Character < NumAscii ? AsciiClasses[Character] : OtherClasses[Character];
			if (Class == 0)
			{
				Class = uint32(NumOfClass.size());
				NumOfClass.push_back(0);
				Masks.resize(Masks.size() + NumWords);
			}
			++NumOfClass[Class];
			Masks[Class * NumWords + Index / WordBits] |= uint64(1) << (Index % WordBits);
		}
	}

	size_t GetLength() const { return Length; }
	/** How often each class stands in the text; 0 for class 0. */
	const std::vector<uint32>& GetNumOfClass() const { return NumOfClass; }

	uint32 GetClass(char32_t Character) const
	{
		if (Character < NumAscii)
		{
			return AsciiClasses[Character];
		}
		const auto Found = OtherClasses.find(Character);
		return Found == OtherClasses.end() ? 0 : Found->second;
	}

	/** Length of the longest common subsequence with a text given by its classes. */
	size_t CountCommon(const uint32* Classes, size_t NumClasses, std::vector<uint64>& Rows) const
	{
		if (NumWords == 1)
		{
			uint64 Row = ~uint64(0);
			for (size_t Index = 0; Index < NumClasses; ++Index)
			{
				const uint64 Matches = Row & Masks[Classes[Index]];
				Row = (Row + Matches) | (Row - Matches);
			}
			return CountZeros(Row, Length);
		}
		Rows.assign(NumWords, ~uint64(0));
		for (size_t Index = 0; Index < NumClasses; ++Index)
		{
			Step(Masks.data() + Classes[Index] * NumWords, Rows);
		}
		size_t Num = 0;
		for (size_t Word = 0; Word < NumWords; ++Word)
		{
			Num += CountZeros(Rows[Word], std::min(WordBits, Length - Word * WordBits));
		}
		return Num;
	}

private:
	static size_t CountZeros(uint64 Row, size_t NumBits)
	{
		const uint64 Used = NumBits == WordBits ? ~uint64(0) : (uint64(1) << NumBits) - 1;
		return size_t(std::popcount(~Row & Used));
	}

	static void Step(const uint64* ClassMasks, std::vector<uint64>& Rows)
	{
		uint64 Carry = 0;
		for (size_t Word = 0; Word < Rows.size(); ++Word)
		{
			const uint64 Row = Rows[Word];
			const uint64 Matches = Row & ClassMasks[Word];
			const uint64 Sum = Row + Matches;
			const uint64 SumWithCarry = Sum + Carry;
			Carry = uint64(Sum < Row) | uint64(SumWithCarry < Sum);
			Rows[Word] = SumWithCarry | (Row - Matches);
		}
	}

	size_t Length;
	size_t NumWords;
	std::array<uint32, NumAscii> AsciiClasses = {};
	std::unordered_map<char32_t, uint32> OtherClasses;
	std::vector<uint64> Masks;
	std::vector<uint32> NumOfClass;
};

/** A stretch of a text, and how many characters of it are known, or at the most, to be in common with the pattern. */
struct FStretch
{
	size_t Begin;
	size_t Length;
	size_t NumCommon;
};

/** What a comparison needs besides its texts, kept by each thread so that most comparisons allocate nothing. */
struct FScratch
{
	std::u32string Folded;
	std::u32string Joined;
	std::vector<std::u32string_view> Words;
	std::vector<uint32> Classes;
	std::vector<uint32> NumInStretch;
	std::vector<FStretch> Stretches;
	std::vector<uint64> Rows;
};

FScratch& GetScratch()
{
	thread_local FScratch Scratch;
	return Scratch;
}

/** Rates the stretches of a text that is no shorter than the pattern. */
class FBestStretch
{
public:
	FBestStretch(const FPattern& InPattern, std::u32string_view Text)
		: Pattern(InPattern)
		, Scratch(GetScratch())
	{
		Scratch.Classes.clear();
		for (const char32_t Character : Text)
		{
			Scratch.Classes.push_back(Pattern.GetClass(Character));
		}
	}

	double Find()
	{
		FindStretches();
		const std::vector<FStretch>& Stretches = Scratch.Stretches;
		const auto Promising = std::max_element(Stretches.begin(), Stretches.end(), [this](const FStretch& A, const FStretch& B)
			{ return IsBetter(B, A); });
		if (Promising == Stretches.end())
		{
			return 0.0;
		}
		// The most promising one first: what it reaches spares most of the others their comparison.
		FStretch Best = Compare(*Promising);
		for (const FStretch& Stretch : Stretches)
		{
			if (IsBetter(Stretch, Best))
			{
				const FStretch Compared = Compare(Stretch);
				Best = IsBetter(Compared, Best) ? Compared : Best;
			}
		}
		return 200.0 * double(Best.NumCommon) / double(Pattern.GetLength() + Best.Length);
	}

private:
	/**
	 * A stretch that ends, or at the text's end begins, with a character that the pattern has not is no better than a shorter one.
	 * The characters that both have in whatever order, which change by two from one stretch to the next, are the most that it can have in common.
	 */
	void FindStretches()
	{
		const size_t Length = Pattern.GetLength();
		const std::vector<uint32>& Classes = Scratch.Classes;
		Scratch.Stretches.clear();
		Scratch.NumInStretch.assign(Pattern.GetNumOfClass().size(), 0);
		size_t NumShared = 0;
		for (size_t End = 1; End <= Classes.size(); ++End)
		{
			NumShared += Enter(Classes[End - 1]);
			NumShared -= End > Length ? Leave(Classes[End - 1 - Length]) : 0;
			if (Classes[End - 1] != 0)
			{
				Scratch.Stretches.push_back(FStretch{End > Length ? End - Length : 0, std::min(End, Length), NumShared});
			}
		}
		for (size_t Begin = Classes.size() - Length + 1; Begin < Classes.size(); ++Begin)
		{
			NumShared -= Leave(Classes[Begin - 1]);
			if (Classes[Begin] != 0)
			{
				Scratch.Stretches.push_back(FStretch{Begin, Classes.size() - Begin, NumShared});
			}
		}
	}

	/** By how many the shared characters grow. */
	size_t Enter(uint32 Class) { return ++Scratch.NumInStretch[Class] <= Pattern.GetNumOfClass()[Class] ? 1 : 0; }
	size_t Leave(uint32 Class) { return Scratch.NumInStretch[Class]-- <= Pattern.GetNumOfClass()[Class] ? 1 : 0; }

	/** Of two ratings, which are fractions. */
	bool IsBetter(const FStretch& Stretch, const FStretch& Other) const
	{
		return Stretch.NumCommon * (Pattern.GetLength() + Other.Length) > Other.NumCommon * (Pattern.GetLength() + Stretch.Length);
	}

	/** The stretch with what it really has in common. */
	FStretch Compare(const FStretch& Stretch)
	{
		const size_t NumCommon = Pattern.CountCommon(Scratch.Classes.data() + Stretch.Begin, Stretch.Length, Scratch.Rows);
		return FStretch{Stretch.Begin, Stretch.Length, NumCommon};
	}

	const FPattern& Pattern;
	FScratch& Scratch;
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
void SplitWords(std::u32string_view Text, std::vector<std::u32string_view>& Words)
{
	Words.clear();
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
}

void Join(const std::vector<std::u32string_view>& Words, std::u32string& Out)
{
	Out.clear();
	for (const std::u32string_view Word : Words)
	{
		Out.append(Out.empty() ? U"" : U" ").append(Word);
	}
}

/** A query's words, and the same joined for the rating. */
class FTokenSet
{
public:
	explicit FTokenSet(const FString& Query)
		: Text(Fold(Query))
		, Ratio(MakeRatio())
	{
	}
	UE_NONCOPYABLE(FTokenSet)

	double Rate(FStringView Candidate) const
	{
		FScratch& Scratch = GetScratch();
		Fold(Candidate, Scratch.Folded);
		SplitWords(Scratch.Folded, Scratch.Words);
		const bool bShared = std::any_of(Scratch.Words.begin(), Scratch.Words.end(), [this](std::u32string_view Word)
			{ return std::binary_search(Words.begin(), Words.end(), Word); });
		if (bShared)
		{
			return 100.0;
		}
		Join(Scratch.Words, Scratch.Joined);
		return Ratio.Rate(Scratch.Joined);
	}

private:
	FPartialRatio MakeRatio()
	{
		std::u32string Joined;
		SplitWords(Text, Words);
		Join(Words, Joined);
		return FPartialRatio(MoveTemp(Joined));
	}

	const std::u32string Text;
	/** Parts of Text. */
	std::vector<std::u32string_view> Words;
	FPartialRatio Ratio;
};
}

FVexelFuzzySearch::FScorer FVexelFuzzySearch::ScorerPartialRatio(const FString& Query)
{
	const TSharedRef<const FPartialRatio> Ratio = MakeShared<const FPartialRatio>(Fold(Query));
	return [Ratio](FStringView Candidate)
	{
		std::u32string& Folded = GetScratch().Folded;
		Fold(Candidate, Folded);
		return Ratio->Rate(Folded);
	};
}

FVexelFuzzySearch::FScorer FVexelFuzzySearch::ScorerPartialTokenSet(const FString& Query)
{
	const TSharedRef<const FTokenSet> Set = MakeShared<const FTokenSet>(Query);
	return [Set](FStringView Candidate)
	{ return Set->Rate(Candidate); };
}

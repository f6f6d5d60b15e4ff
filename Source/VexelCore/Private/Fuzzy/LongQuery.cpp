#include "Fuzzy/FuzzyText.h"
#include "Fuzzy/PartialQuery.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace
{
constexpr size_t WordBits = 64;

/**
 * A text made ready to be compared with others, with a bit for each place where a class of characters stands. With the bits the
 * longest common subsequence takes one step for each character of the other text and 64 of this one.
 */
class FPattern
{
public:
	explicit FPattern(std::u32string_view Text)
		: Length(Text.size())
		, NumWords((Text.size() + WordBits - 1) / WordBits)
		, Classes(Text)
		, Places(Classes.GetNum() * NumWords)
		, NumOfClass(Classes.GetNum())
	{
		for (size_t Index = 0; Index < Text.size(); ++Index)
		{
			const uint32 Class = Classes.Find(Text[Index]);
			++NumOfClass[Class];
			Places[Class * NumWords + Index / WordBits] |= uint64(1) << (Index % WordBits);
		}
	}

	size_t GetLength() const { return Length; }
	const FCharacterClasses& GetClasses() const { return Classes; }
	/** How often each class stands in the text; 0 for class 0. */
	const std::vector<uint32>& GetNumOfClass() const { return NumOfClass; }

	/** Length of the longest common subsequence with a text given by its classes. */
	size_t CountCommon(const uint32* TextClasses, size_t NumClasses, std::vector<uint64>& Rows) const
	{
		Rows.assign(NumWords, ~uint64(0));
		for (size_t Index = 0; Index < NumClasses; ++Index)
		{
			TakeStep(Places.data() + TextClasses[Index] * NumWords, Rows);
		}
		size_t Num = 0;
		for (size_t Word = 0; Word < NumWords; ++Word)
		{
			const size_t NumBits = std::min(WordBits, Length - Word * WordBits);
			const uint64 Used = NumBits == WordBits ? ~uint64(0) : (uint64(1) << NumBits) - 1;
			Num += size_t(std::popcount(~Rows[Word] & Used));
		}
		return Num;
	}

private:
	static void TakeStep(const uint64* ClassPlaces, std::vector<uint64>& Rows)
	{
		uint64 Carry = 0;
		for (size_t Word = 0; Word < Rows.size(); ++Word)
		{
			const uint64 Row = Rows[Word];
			const uint64 Matches = Row & ClassPlaces[Word];
			const uint64 Sum = Row + Matches;
			const uint64 SumWithCarry = Sum + Carry;
			Carry = uint64(Sum < Row) | uint64(SumWithCarry < Sum);
			Rows[Word] = SumWithCarry | (Row - Matches);
		}
	}

	size_t Length;
	size_t NumWords;
	FCharacterClasses Classes;
	std::vector<uint64> Places;
	std::vector<uint32> NumOfClass;
};

/** A stretch of a text, and how many characters of it are at the most in common with the pattern. */
struct FStretch
{
	size_t Begin;
	size_t Length;
	size_t MaxCommon;
};

/** What a comparison needs besides its texts, kept by each thread so that most comparisons allocate nothing. */
struct FScratch
{
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
class FStretchRater
{
public:
	FStretchRater(const FPattern& InPattern, std::u32string_view Text)
		: Pattern(InPattern)
		, Scratch(GetScratch())
	{
		Scratch.Classes.clear();
		for (const char32_t Character : Text)
		{
			Scratch.Classes.push_back(Pattern.GetClasses().Find(Character));
		}
	}

	/** The most promising stretches first: what they reach spares the others their comparison. */
	void Rate(FBestRating& Best)
	{
		FindStretches();
		const size_t PatternLength = Pattern.GetLength();
		std::sort(Scratch.Stretches.begin(), Scratch.Stretches.end(), [PatternLength](const FStretch& A, const FStretch& B)
			{ return A.MaxCommon * (PatternLength + B.Length) > B.MaxCommon * (PatternLength + A.Length); });
		for (const FStretch& Stretch : Scratch.Stretches)
		{
			if (!Best.IsBetter(Stretch.Length, Stretch.MaxCommon))
			{
				return;
			}
			Best.Offer(Stretch.Length, Pattern.CountCommon(Scratch.Classes.data() + Stretch.Begin, Stretch.Length, Scratch.Rows));
		}
	}

private:
	/**
	 * A stretch that ends, or at the text's end begins, with a character that the pattern has not is no better than a shorter one.
	 * The characters that both have in whatever order, which change by two from one stretch to the next, are the most that it can
	 * have in common.
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

	/** By how many the shared characters grow, or shrink. */
	size_t Enter(uint32 Class) { return ++Scratch.NumInStretch[Class] <= Pattern.GetNumOfClass()[Class] ? 1 : 0; }
	size_t Leave(uint32 Class) { return Scratch.NumInStretch[Class]-- <= Pattern.GetNumOfClass()[Class] ? 1 : 0; }

	const FPattern& Pattern;
	FScratch& Scratch;
};

class FLongQuery final : public IPartialQuery
{
public:
	explicit FLongQuery(std::u32string_view InQuery)
		: Query(InQuery)
		, QueryPattern(Query)
	{
	}

	virtual double Rate(std::u32string_view Text) const override
	{
		if (Query.empty() || Text.empty())
		{
			return 0.0;
		}
		FBestRating Best(std::min(Query.size(), Text.size()));
		// Of two texts of one length either may be the one that has the stretch.
		if (Text.size() >= Query.size())
		{
			FStretchRater(QueryPattern, Text).Rate(Best);
		}
		if (Text.size() <= Query.size())
		{
			const FPattern TextPattern(Text);
			FStretchRater(TextPattern, Query).Rate(Best);
		}
		return Best.Get();
	}

private:
	std::u32string Query;
	FPattern QueryPattern;
};
}

std::unique_ptr<const IPartialQuery> MakeLongQuery(std::u32string_view Query)
{
	return std::make_unique<FLongQuery>(Query);
}

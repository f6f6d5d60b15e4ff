#include "CoreMinimal.h"
#include "VexelFuzzySearch.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace
{
double RatePartial(const FString& Query, const FString& Candidate)
{
	return FVexelFuzzySearch::ScorerPartialRatio(Query)(Candidate);
}

double RateTokens(const FString& Query, const FString& Candidate)
{
	return FVexelFuzzySearch::ScorerPartialTokenSet(Query)(Candidate);
}

size_t CountCommonSlowly(const std::u16string& A, const std::u16string& B)
{
	std::vector<std::vector<size_t>> Table(A.size() + 1, std::vector<size_t>(B.size() + 1));
	for (size_t Row = 1; Row <= A.size(); ++Row)
	{
		for (size_t Column = 1; Column <= B.size(); ++Column)
		{
			Table[Row][Column] =
				A[Row - 1] == B[Column - 1] ? Table[Row - 1][Column - 1] + 1 : std::max(Table[Row - 1][Column], Table[Row][Column - 1]);
		}
	}
	return Table[A.size()][B.size()];
}

/** The definition, word for word: the best rating of any stretch as long as the shorter text, or a shorter one at either end. */
double RatePartialSlowly(std::u16string Shorter, std::u16string Longer)
{
	if (Shorter.size() > Longer.size())
	{
		std::swap(Shorter, Longer);
	}
	double Best = 0.0;
	const bool bSameLength = Shorter.size() == Longer.size();
	for (size_t Begin = 0; Begin < Longer.size(); ++Begin)
	{
		for (size_t Length = 1; Length <= std::min(Shorter.size(), Longer.size() - Begin); ++Length)
		{
			if (Length < Shorter.size() && Begin > 0 && Begin + Length < Longer.size())
			{
				continue;
			}
			if (bSameLength)
			{
				const double Swapped = double(CountCommonSlowly(Longer, Shorter.substr(Begin, Length)));
				Best = std::max(Best, 200.0 * Swapped / double(Longer.size() + Length));
			}
			const double Common = double(CountCommonSlowly(Shorter, Longer.substr(Begin, Length)));
			Best = std::max(Best, 200.0 * Common / double(Shorter.size() + Length));
		}
	}
	return Best;
}
}

TEST(FuzzySearch, AStretchOfTheTextIsAWholeMatch)
{
	EXPECT_EQ(RatePartial(TEXT("actor"), TEXT("Get Actor Location")), 100.0);
	EXPECT_EQ(RatePartial(TEXT("Get Actor Location"), TEXT("ACTOR")), 100.0);
	EXPECT_EQ(RatePartial(TEXT("abc"), TEXT("abc")), 100.0);
	EXPECT_EQ(RatePartial(TEXT("abc"), TEXT("xyz")), 0.0);
	EXPECT_EQ(RatePartial(TEXT(""), TEXT("xyz")), 0.0);
	EXPECT_EQ(RatePartial(TEXT("xyz"), TEXT("")), 0.0);
	EXPECT_EQ(RatePartial(TEXT(""), TEXT("")), 0.0);
	EXPECT_NEAR(RatePartial(TEXT("locaton"), TEXT("Get Actor Location")), 200.0 * 6 / 14, 1e-9);
}

TEST(FuzzySearch, BetterSpellingRatesHigher)
{
	const FVexelFuzzySearch::FScorer Score = FVexelFuzzySearch::ScorerPartialRatio(TEXT("prnt strng"));
	EXPECT_GT(Score(TEXT("Print String")), Score(TEXT("Print Text")));
	EXPECT_GT(Score(TEXT("Print Text")), Score(TEXT("Delay")));
}

TEST(FuzzySearch, CharactersBeyondAsciiCountAsOneAndFoldTheirCase)
{
	EXPECT_EQ(RatePartial(TEXT("T\u00DCR"), TEXT("eine t\u00FCr")), 100.0);
	EXPECT_EQ(RatePartial(TEXT("\u0414\u0412\u0415\u0420\u042C"), TEXT("\u0434\u0432\u0435\u0440\u044C")), 100.0);
	EXPECT_EQ(RatePartial(TEXT("\u9580"), TEXT("\u958B\u9580\u3059\u308B")), 100.0);
	// These two share the first half of their surrogate pairs, and nothing as characters.
	EXPECT_EQ(RatePartial(TEXT("\U0001F6AA"), TEXT("\U0001F6AB")), 0.0);
	EXPECT_EQ(RatePartial(TEXT("\U0001F6AA"), TEXT("a \U0001F6AA b")), 100.0);
	const TCHAR Lone[] = {0xD83D, 'a', 0};
	EXPECT_GT(RatePartial(Lone, TEXT("a")), 0.0);
}

TEST(FuzzySearch, RatesAsTheDefinitionDoes)
{
	std::mt19937 Random(11);
	const auto MakeText = [&](size_t MaxLength)
	{
		std::u16string Text(1 + Random() % MaxLength, u'a');
		for (char16_t& Character : Text)
		{
			Character = char16_t(Random() % 5 == 0 ? 0x4E00 + Random() % 3 : 'a' + Random() % 4);
		}
		return Text;
	};
	for (int32 Round = 0; Round < 300; ++Round)
	{
		const std::u16string Query = MakeText(12);
		const std::u16string Candidate = MakeText(20);
		EXPECT_NEAR(RatePartial(Query.c_str(), Candidate.c_str()), RatePartialSlowly(Query, Candidate), 1e-9)
			<< Round << ": " << Query.size() << " " << Candidate.size();
	}
}

TEST(FuzzySearch, LongTextsAreRatedAsTheDefinitionDoes)
{
	// Lengths on both sides of what each kind of machine word holds, the query the longer text and the shorter one.
	std::mt19937 Random(12);
	const auto MakeText = [&](size_t Length)
	{
		std::u16string Text(Length, u'a');
		for (char16_t& Character : Text)
		{
			Character = char16_t('a' + Random() % 3);
		}
		return Text;
	};
	for (const size_t QueryLength : {15, 16, 17, 31, 32, 33, 63, 64, 65, 130})
	{
		for (const int32 Difference : {-12, -1, 0, 1, 13})
		{
			const std::u16string Query = MakeText(QueryLength);
			const std::u16string Candidate = MakeText(size_t(int32(QueryLength) + Difference));
			EXPECT_NEAR(RatePartial(Query.c_str(), Candidate.c_str()), RatePartialSlowly(Query, Candidate), 1e-9)
				<< QueryLength << " " << Difference;
		}
	}
	// Queries with all of their length at once, with a part of it for short texts, and with none of it.
	for (const size_t QueryLength : {40, 65, 130, 513})
	{
		for (const size_t CandidateLength : {5, 16, 17, 40, 64, 66})
		{
			const std::u16string Query = MakeText(QueryLength);
			const std::u16string Candidate = MakeText(CandidateLength);
			EXPECT_NEAR(RatePartial(Query.c_str(), Candidate.c_str()), RatePartialSlowly(Query, Candidate), 1e-9)
				<< QueryLength << " " << CandidateLength;
		}
	}
	// Runs of one character, through whose places carries cross from word to word.
	const std::u16string Runs = u"xy" + std::u16string(70, u'b') + u"z";
	EXPECT_NEAR(RatePartial(Runs.c_str(), std::u16string(68, u'b').c_str()), 100.0, 1e-9);
	EXPECT_NEAR(RatePartial(std::u16string(64, u'b').c_str(), Runs.c_str()), 100.0, 1e-9);
}

TEST(FuzzySearch, WordsMayStandInAnyOrder)
{
	EXPECT_EQ(RateTokens(TEXT("location actor"), TEXT("Get Actor Location")), 100.0);
	EXPECT_EQ(RateTokens(TEXT("Set, Actor!"), TEXT("actor")), 100.0) << "one common word is enough";
	EXPECT_EQ(RateTokens(TEXT("zwei t\u00FCren"), TEXT("T\u00DCREN/drei")), 100.0);
	EXPECT_LT(RateTokens(TEXT("act"), TEXT("Actor")), 100.1);
	EXPECT_EQ(RateTokens(TEXT("act"), TEXT("Actor")), 100.0) << "a part of a word";
	EXPECT_NEAR(RateTokens(TEXT("bb aa"), TEXT("aa_ bbx")), 100.0, 1e-9);
	EXPECT_EQ(RateTokens(TEXT("--"), TEXT("actor")), 0.0);
	EXPECT_EQ(RateTokens(TEXT("actor"), TEXT(" . ")), 0.0);
}

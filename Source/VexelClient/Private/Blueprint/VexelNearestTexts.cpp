#include "Blueprint/VexelNearestTexts.h"

#include "Algo/Sort.h"

namespace
{
constexpr double LeastAlike = 60;
}

FVexelNearestTexts::FVexelNearestTexts(const FString& Wanted)
	: Score(FVexelFuzzySearch::ScorerPartialRatio(Wanted))
	, Length(Wanted.Len())
{
}

void FVexelNearestTexts::Offer(const FString& Candidate, const FString& Telling)
{
	if (Length == 0 || Telling.IsEmpty())
	{
		return;
	}
	// A short text stands in many long ones: what one has more than the other counts against both.
	const double Rating = Score(Telling) * 2 * FMath::Min(Length, Telling.Len()) / (Length + Telling.Len());
	if (Rating >= LeastAlike)
	{
		Rated.Add({Rating, Candidate});
	}
}

TArray<FString> FVexelNearestTexts::Get(int32 MaxCount)
{
	Algo::Sort(Rated, [](const FRated& A, const FRated& B)
		{ return A.Rating != B.Rating ? A.Rating > B.Rating : A.Text.Compare(B.Text) < 0; });
	TArray<FString> Nearest;
	for (int32 Index = 0; Index < FMath::Min(MaxCount, Rated.Num()); ++Index)
	{
		Nearest.Add(Rated[Index].Text);
	}
	return Nearest;
}

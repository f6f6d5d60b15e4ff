#include "Lum/LumNearestNames.h"

#include "Algo/Sort.h"

namespace
{
/** Of 100. */
constexpr double LeastAlike = 65;
/** What is that much less alike than the best is no help beside it. */
constexpr double MostBehind = 15;
constexpr int32 MaxNames = 5;
}

FLumNearestNames::FLumNearestNames(const FString& InWanted)
	: Wanted(InWanted)
{
	// Nothing is like a text that is longer than any name.
	if (Wanted.Len() < NAME_SIZE)
	{
		Score = FVexelFuzzySearch::ScorerPartialRatio(Wanted);
	}
}

void FLumNearestNames::Offer(FStringView Name, double Weight, TFunctionRef<FString()> Show)
{
	// A name within another, longer one is the less like it, the longer that is.
	const double Share = 2.0 * FMath::Min(Wanted.Len(), Name.Len()) / FMath::Max(1, Wanted.Len() + Name.Len());
	if (!Score || 100 * Share * Weight < LeastAlike)
	{
		return;
	}
	const double Rating = Score(Name) * Share * Weight;
	if (Rating >= LeastAlike)
	{
		Near.Add({Rating, Show()});
	}
}

FString FLumNearestNames::Describe() const
{
	TArray<FRated> Sorted = Near;
	Algo::Sort(Sorted, [](const FRated& A, const FRated& B)
		{ return A.Rating != B.Rating ? A.Rating > B.Rating : A.Shown.Compare(B.Shown) < 0; });
	TArray<FString> Names;
	for (const FRated& Rated : Sorted)
	{
		if (Names.Num() < MaxNames && Rated.Rating >= Sorted[0].Rating - MostBehind)
		{
			Names.AddUnique(Rated.Shown);
		}
	}
	return Names.IsEmpty() ? FString() : TEXT(". Nearest: ") + FString::Join(Names, TEXT(", "));
}

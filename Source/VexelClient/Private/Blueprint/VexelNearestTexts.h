#pragma once

#include "CoreMinimal.h"
#include "VexelFuzzySearch.h"

/** Those of many texts that look most like one: what somebody may have meant by a name that names nothing. */
class FVexelNearestTexts
{
public:
	explicit FVexelNearestTexts(const FString& Wanted);

	/** Telling is the part of the candidate that is compared. */
	void Offer(const FString& Candidate, const FString& Telling);
	void Offer(const FString& Candidate) { Offer(Candidate, Candidate); }
	/** The nearest first; those that look like nothing of it are left out. */
	TArray<FString> Get(int32 MaxCount);

private:
	struct FRated
	{
		double Rating;
		FString Text;
	};

	FVexelFuzzySearch::FScorer Score;
	int32 Length;
	TArray<FRated> Rated;
};

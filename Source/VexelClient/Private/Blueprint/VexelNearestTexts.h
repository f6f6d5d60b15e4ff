#pragma once

#include "CoreMinimal.h"
#include "VexelFuzzySearch.h"

/** Those of many texts that look most like one: what somebody may have meant by a name that names nothing. */
class FVexelNearestTexts
{
public:
	explicit FVexelNearestTexts(const FString& Wanted);

	void Offer(const FString& Candidate);
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

#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "VexelFuzzySearch.h"

/** Finds the names that are most like one that there is not, for the end of an error: ". Nearest: 'OpenAngle', 'OpenCount'". */
class FLumNearestNames
{
public:
	explicit FLumNearestNames(const FString& InWanted);

	/** Rates the name, times the weight. Show makes what is told of it, and is called where the name is near alone. */
	void Offer(FStringView Name, double Weight, TFunctionRef<FString()> Show);
	/** The best, nearest first; empty where nothing is near. */
	FString Describe() const;

private:
	struct FRated
	{
		double Rating;
		FString Shown;
	};

	FString Wanted;
	FVexelFuzzySearch::FScorer Score;
	TArray<FRated> Near;
};

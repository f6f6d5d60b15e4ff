#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

/**
 * Rates texts by how well they match a query, from 0 for nothing in common to 100. Case does not matter; characters are compared
 * as code points. A scorer may be kept, copied and called from any thread.
 */
class VEXELCORE_API FVexelFuzzySearch
{
public:
	using FScorer = TFunction<double(FStringView Candidate)>;

	/**
	 * How well the shorter text matches the best stretch of the longer one: 100 when it stands in it. A stretch is as long as the
	 * shorter text, or less at an end of the longer one; the rating of two texts is twice their longest common subsequence over
	 * the sum of their lengths. An empty text matches nothing.
	 */
	static FScorer ScorerPartialRatio(const FString& Query);

	/**
	 * The same for words in any order: 100 when a word is in both, else the rating of the words of each, sorted. A word is a run
	 * of letters and digits.
	 */
	static FScorer ScorerPartialTokenSet(const FString& Query);
};

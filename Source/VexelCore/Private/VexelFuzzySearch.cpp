#include "VexelFuzzySearch.h"

#include "Fuzzy/FuzzyText.h"
#include "Fuzzy/PartialQuery.h"

#include <algorithm>

namespace
{
/** A candidate made ready to be compared, kept by each thread so that most comparisons allocate nothing. */
struct FCandidate
{
	std::u32string Folded;
	std::vector<std::u32string_view> Words;
	std::u32string Joined;
};

FCandidate& GetCandidate()
{
	thread_local FCandidate Candidate;
	return Candidate;
}

/** A query's words, and the same joined for the rating. */
class FTokenSet
{
public:
	explicit FTokenSet(const FString& Query)
		: Text(FuzzyText::Fold(Query))
	{
		std::u32string Joined;
		FuzzyText::SplitWords(Text, Words);
		FuzzyText::Join(Words, Joined);
		JoinedQuery = MakePartialQuery(Joined);
	}
	UE_NONCOPYABLE(FTokenSet)

	double Rate(FStringView Candidate) const
	{
		FCandidate& Ready = GetCandidate();
		FuzzyText::Fold(Candidate, Ready.Folded);
		FuzzyText::SplitWords(Ready.Folded, Ready.Words);
		const bool bShared = std::any_of(Ready.Words.begin(), Ready.Words.end(), [this](std::u32string_view Word)
			{ return std::binary_search(Words.begin(), Words.end(), Word); });
		if (bShared)
		{
			return 100.0;
		}
		FuzzyText::Join(Ready.Words, Ready.Joined);
		return JoinedQuery->Rate(Ready.Joined);
	}

private:
	const std::u32string Text;
	/** Parts of Text. */
	std::vector<std::u32string_view> Words;
	std::unique_ptr<const IPartialQuery> JoinedQuery;
};
}

FVexelFuzzySearch::FScorer FVexelFuzzySearch::ScorerPartialRatio(const FString& Query)
{
	return [Ready = std::shared_ptr<const IPartialQuery>(MakePartialQuery(FuzzyText::Fold(Query)))](FStringView Candidate)
	{
		std::u32string& Folded = GetCandidate().Folded;
		FuzzyText::Fold(Candidate, Folded);
		return Ready->Rate(Folded);
	};
}

FVexelFuzzySearch::FScorer FVexelFuzzySearch::ScorerPartialTokenSet(const FString& Query)
{
	return [Set = MakeShared<const FTokenSet>(Query)](FStringView Candidate)
	{ return Set->Rate(Candidate); };
}

#include "Fuzzy/PartialQuery.h"

namespace
{
/** A lane query knows, for each place and each character, what follows: of a longer one that would be too much. */
constexpr size_t MaxQueryLength = 512;

class FPartialQuery final : public IPartialQuery
{
public:
	explicit FPartialQuery(std::u32string_view Query)
		: LaneQuery(MakeLaneQuery(Query))
		, LongQuery(MakeLongQuery(Query))
	{
	}

	virtual double Rate(std::u32string_view Text) const override
	{
		return Text.size() <= MaxLaneLength ? LaneQuery->Rate(Text) : LongQuery->Rate(Text);
	}

private:
	std::unique_ptr<const IPartialQuery> LaneQuery;
	std::unique_ptr<const IPartialQuery> LongQuery;
};
}

std::unique_ptr<const IPartialQuery> MakePartialQuery(std::u32string_view Query)
{
	if (Query.size() <= MaxLaneLength)
	{
		return MakeLaneQuery(Query);
	}
	return Query.size() <= MaxQueryLength ? std::make_unique<FPartialQuery>(Query) : MakeLongQuery(Query);
}

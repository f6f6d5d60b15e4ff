#pragma once

#include "CoreMinimal.h"

#include <memory>
#include <string_view>

/**
 * A query that is compared with the stretches of many texts. The query is the shorter of the two or the longer one, as it comes; the
 * rating of two texts is the same either way. Immutable; any thread.
 */
class IPartialQuery
{
public:
	virtual ~IPartialQuery() = default;

	/** From 0 to 100; 0 where one of the two is empty. Texts are folded. */
	virtual double Rate(std::u32string_view Text) const = 0;
};

/** The longest of two texts' shorter one that a lane query takes: a bit of a machine word for each character. */
constexpr size_t MaxLaneLength = 64;

/** A query that rates several stretches at once, each in a lane of a machine register. It or the text has at most MaxLaneLength characters. */
std::unique_ptr<const IPartialQuery> MakeLaneQuery(std::u32string_view Query);

/** A query of any length, which rates one stretch after the other and passes over those that cannot be the best. */
std::unique_ptr<const IPartialQuery> MakeLongQuery(std::u32string_view Query);

/** The better of the two for each text. */
std::unique_ptr<const IPartialQuery> MakePartialQuery(std::u32string_view Query);

/** The rating of a stretch: twice what it has in common with the shorter text, over the sum of their lengths. Kept as a fraction. */
class FBestRating
{
public:
	explicit FBestRating(size_t InShorterLength)
		: ShorterLength(InShorterLength)
	{
	}

	/** Whether a stretch of that length with so much in common would be the best. */
	bool IsBetter(size_t Length, size_t NumCommon) const
	{
		return NumCommon * (ShorterLength + BestLength) > BestNumCommon * (ShorterLength + Length);
	}

	void Offer(size_t Length, size_t NumCommon)
	{
		if (IsBetter(Length, NumCommon))
		{
			BestLength = Length;
			BestNumCommon = NumCommon;
		}
	}

	double Get() const { return 200.0 * double(BestNumCommon) / double(ShorterLength + BestLength); }

private:
	size_t ShorterLength;
	size_t BestLength = 0;
	size_t BestNumCommon = 0;
};

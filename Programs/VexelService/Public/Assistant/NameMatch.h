#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** A name without what people leave out when they say it: case, blanks, underscores. "Open Door" and "open_door" are "opendoor". */
std::string CompactName(std::string_view Name);

/** Whether two names are the same to whoever says them. */
bool SameName(std::string_view A, std::string_view B);

/** How many single characters must change to make one text of the other; two neighbours that change places count once. */
std::size_t EditDistance(std::string_view A, std::string_view B);

/** Which of several names was meant. */
struct FNameMatch
{
	std::size_t Index = 0;
	/** Whether it was said as it is, and not merely alike. */
	bool bExact = false;
};

/**
 * The name that is said, or the one nearest to it: with few typing mistakes, in the plural, or without the tag that names of assets
 * begin with ("door" for BP_Door). Nothing when none is near enough, or two are equally near.
 */
std::optional<FNameMatch> FindName(std::string_view Said, const std::vector<std::string>& Names);

}

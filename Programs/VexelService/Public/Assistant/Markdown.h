#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

std::string Bold(const std::string& Text);

/** Text as code within a line. */
std::string Code(const std::string& Text);

/** Text as a code block, whatever it holds. */
std::string CodeBlock(std::string_view Text, std::string_view Language);

/** A list with an item for each text, and one for the number of those beyond the most that are shown; empty for none. */
std::string BulletList(const std::vector<std::string>& Items, std::size_t Most = 20);

}

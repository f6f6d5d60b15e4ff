#pragma once

#include <string>
#include <string_view>

namespace VexelService
{

std::string Bold(const std::string& Text);

/** Text as code within a line. */
std::string Code(const std::string& Text);

/** Text as a code block, whatever it holds. */
std::string CodeBlock(std::string_view Text, std::string_view Language);

}

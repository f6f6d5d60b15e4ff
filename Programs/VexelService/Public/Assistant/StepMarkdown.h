#pragma once

#include "Assistant/GraphWalker.h"

#include <string>
#include <vector>

namespace VexelService
{

/** Writes steps as a nested Markdown list, a step a line. Repeated steps and equal branches are folded into one. */
std::string StepsToMarkdown(const std::vector<FStep>& Steps);

}

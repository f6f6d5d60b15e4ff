#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** The names of what a Blueprint has: its functions, macros, custom events and variables. */
std::vector<std::string> MemberNames(const FBlueprintModel& Model);

/** The packages that refer to an asset, by what the editor tells of it. */
std::vector<std::string> FindReferencers(const FJson& Info);

/** Everything in a Blueprint that has to do with an asset or class of that name, each in a sentence's words: where and how. */
std::vector<std::string> FindMentions(const FBlueprintModel& Model, std::string_view Name);

/** Every step that reads, sets or calls what has that name, in a sentence's words. */
std::vector<std::string> FindMemberUses(const FBlueprintModel& Model, std::string_view Name);

}

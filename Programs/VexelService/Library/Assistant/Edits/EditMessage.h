#pragma once

#include "Assistant/Edits/EditWords.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** Splits a message and takes the Blueprint that it is about out of its words; nothing when it is longer than any request. */
std::optional<FEditMessage> ReadEditMessage(std::string_view Message, const std::vector<std::string>& OpenNames);

}

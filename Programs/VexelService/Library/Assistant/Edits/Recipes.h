#pragma once

#include "Assistant/Edits/EditWords.h"

#include <optional>

namespace VexelService
{

/** Behaviors that people call by what they are ("a door that opens on overlap"), told as what happens when; nothing for other words. */
std::optional<FEditWords> ExpandRecipe(const FEditWords& Words);

}

#pragma once

#include "Assistant/Edits/EditWords.h"

#include <optional>
#include <string_view>

namespace VexelService
{

/**
 * The words of a request about what happens when, with turns of speech in the place of which a plain one means the same: "half a second"
 * is "0.5 second", "2s later" is "after 2 second", "should be" is "is", "as soon as" is "when".
 */
FEditWords ToPlainPhrases(const FEditWords& Words);

/** What is left of words that the pattern leads, with the subject before it that the pattern may name; nothing where it does not lead. */
std::optional<FEditWords> WithoutLead(std::string_view Pattern, const FEditWords& Words);

/** The words without what a request may begin with: "can you", "I want it to", "make sure that". */
FEditWords WithoutLead(const FEditWords& Words);

}

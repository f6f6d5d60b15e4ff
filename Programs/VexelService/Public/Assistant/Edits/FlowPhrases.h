#pragma once

#include "Assistant/Edits/EditWords.h"

namespace VexelService
{

/**
 * The words of a request about what happens when, with turns of speech in the place of which a plain one means the same: "half a second"
 * is "0.5 second", "2s later" is "after 2 second", "should be" is "is", "as soon as" is "when".
 */
FEditWords ToPlainPhrases(const FEditWords& Words);

}

#pragma once

#include "Assistant/Edits/EditRequest.h"

namespace VexelService
{

/** "Compile BP_Door", "why does it not compile?". */
std::optional<FEditRequest> ReadCompileRequest(const FEditMessage& Message);

}

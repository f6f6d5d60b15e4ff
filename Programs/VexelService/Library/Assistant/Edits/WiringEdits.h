#pragma once

#include "Assistant/Edits/EditRequest.h"

namespace VexelService
{

/** "Connect Branch to Print String", "disconnect ...", "remove the node Delay": nodes that stand in a graph. */
std::optional<FEditRequest> ReadWiringRequest(const FEditMessage& Message);

}

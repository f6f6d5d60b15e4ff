#pragma once

#include "Assistant/Edits/EditRequest.h"

namespace VexelService
{

/** "On overlap open the door, then close it after 2 seconds": what happens on events and in new functions, in words that are all known. */
std::optional<FEditRequest> ReadFlowRequest(const FEditMessage& Message);

/** The same where a step may be a name of the Blueprint's own, or where no event is named and one is asked for. */
std::optional<FEditRequest> ReadPartialFlowRequest(const FEditMessage& Message);

}

#pragma once

#include "Assistant/Edits/EditRequest.h"

namespace VexelService
{

/** "Connect Branch to Print String", "disconnect ...", "remove the node Delay": nodes that stand in a graph. */
std::optional<FEditRequest> ReadWiringRequest(const FEditMessage& Message);

/** "Remove the Flip Flop": a node that nobody called one. Members are asked about before. */
std::optional<FEditRequest> ReadRemoveNode(const FEditMessage& Message);

/** Removes the node that the words mean, and tells; false, with nothing said, where the Blueprint has none. */
bool RemoveNodeCalled(FEditSession& Session, const std::string& Said);

}

#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>

namespace VexelService
{

/** A node as the editor titles it, as far as its id tells: "PrintString_0" is "Print String". */
std::string NodeTitle(const FBlueprintNode& Node);

/** Whether a node type is, or is below, the given one: "flow.if", "macro", "call.op". */
bool IsNodeType(const FBlueprintNode& Node, std::string_view Prefix);

/** A pin as a reader knows it. */
std::string PinTitle(const FBlueprintPin& Pin);

}

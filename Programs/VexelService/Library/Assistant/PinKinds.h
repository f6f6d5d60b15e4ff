#pragma once

#include "Assistant/BlueprintModel.h"

#include <string_view>

namespace VexelService
{

bool IsDataInput(const FBlueprintPin& Pin);
bool IsSelfPin(const FBlueprintPin& Pin);

/** Whether the editor fills the input in by itself, so that a reader never sees it. */
bool IsHiddenInput(const FBlueprintPin& Pin);

/** Whether an input's literal says something; what every input of its type has from the start does not. */
bool IsTellingLiteral(const FBlueprintPin& Pin);

/** The two ends of the type of a "call." node. */
struct FCallName
{
	std::string_view Owner;
	std::string_view Function;
};

/** "call.Owner.Function" taken apart; the owner may be empty and may have dots of its own. */
FCallName SplitCall(std::string_view NodeType);

}

#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** A property's name as the editor may have it, with its type where that is known. */
struct FPropertyName
{
	std::string Name;
	/** Empty where the editor alone knows it. */
	std::string Type = {};
};

/** What a user's words may name of a class's properties, the likeliest first: "max walk speed" is MaxWalkSpeed. */
std::vector<FPropertyName> GuessPropertyNames(std::string_view Said);

/**
 * What a user's words may name of a Blueprint's components: "capsule" is CapsuleComponent, and "the mesh" is the one of such a class
 * that its graphs speak of. The likeliest first.
 */
std::vector<std::string> GuessComponentNames(const FBlueprintModel& Model, std::string_view Said);

}

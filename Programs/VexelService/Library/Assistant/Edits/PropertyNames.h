#pragma once

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
	/** One number is meant for each of its members: "scale 2" is (2, 2, 2). */
	bool bUniform = false;
};

/** What a user's words may name of a class's properties, the likeliest first: "max walk speed" is MaxWalkSpeed. */
std::vector<FPropertyName> GuessPropertyNames(std::string_view Said);

/** What a component may be called that words name, where nothing tells which there are: "capsule" is Capsule or CapsuleComponent. */
std::vector<std::string> GuessComponentNames(std::string_view Said);

}

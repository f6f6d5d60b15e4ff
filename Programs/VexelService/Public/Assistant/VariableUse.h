#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

enum class EUseKind
{
	Read,
	Set,
	Call,
};

/** One node that reads or sets a variable, or calls a function. */
struct FVariableUse
{
	const FBlueprintGraph* Graph = nullptr;
	EUseKind Kind = EUseKind::Read;
	/** What that step does, in words. */
	std::string Step;
};

/**
 * Every step of the Blueprint that reads or sets the variable of that name, or calls the function of that name, graph by graph; a
 * step that reads it twice counts once, and the result of a pure call is read.
 */
std::vector<FVariableUse> FindVariableUses(const FBlueprintModel& Model, std::string_view Name);

}

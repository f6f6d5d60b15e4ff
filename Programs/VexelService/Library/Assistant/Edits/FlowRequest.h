#pragma once

#include "Assistant/Edits/EditWords.h"
#include "Assistant/Edits/FlowVocabulary.h"

#include <optional>
#include <string>
#include <vector>

namespace VexelService
{

struct FFlowStep;
using FFlowSteps = std::vector<FFlowStep>;

/** A step as it was said. */
struct FFlowStep
{
	/** Null for words that no wording has: they may name a function of the Blueprint. */
	const FAction* Action = nullptr;
	FCaptures Captures = {};
	FEditWords Words = {};
	/** The steps within it: of an "if" those for true and for false, of a loop its body. */
	std::vector<FFlowSteps> Bodies = {};
};

/** Steps and the event that they follow. */
struct FFlowChain
{
	/** Null where the message names no event. */
	const FEvent* Event = nullptr;
	FCaptures Captures = {};
	FEditWords EventWords = {};
	FFlowSteps Steps = {};
};

/** A new function to make for a chain: "add a function Open that ...". */
constexpr std::string_view NewFunctionSlot = "new function";

struct FFlowRequest
{
	std::vector<FFlowChain> Chains;
};

/** How a condition compares; Left alone is something that is true or false. */
struct FComparison
{
	FEditWords Left = {};
	FEditWords Right = {};
	/** The operator's node type; empty where Left stands alone. */
	std::string_view Operator = {};
	/** The value that the words imply: "is zero". */
	std::string_view ImpliedRight = {};
	bool bNegated = false;
};

FComparison ReadComparison(const FEditWords& Words);

/** The event of words such as "the player overlaps it", without "when"; null members where none fits. */
FFlowChain ReadEvent(const FEditWords& Words);

/** Reads what happens when; nothing where no event and no step is told. */
std::optional<FFlowRequest> ReadFlow(const FEditWords& Words);

/** What a step and those in it are when they are said back to the user. */
std::string DescribeSteps(const FFlowSteps& Steps);

/** Whether each chain has its event, and every step is known. */
bool IsWhole(const FFlowRequest& Request);

/** Steps whose words nobody knows, with those in other steps. */
std::vector<std::string> UnknownSteps(const FFlowSteps& Steps);

}

#pragma once

#include "Assistant/Edits/ProjectEditor.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VexelService
{

/** A node of a plan, by its place in it. */
using FPlanIndex = std::size_t;

struct FPlanNode
{
	/** The graph's id. */
	std::string Graph;
	/** The node-type id. */
	std::string Type;
	std::vector<std::pair<std::string, std::string>> PinValues = {};
	/** The node's id where it stands in the graph already. */
	std::string Existing = {};
	/** The name to give to a custom event. */
	std::string EventName = {};
	/** Calls something that the plan makes, so that it can be made only behind it. */
	bool bAfterOthers = false;
};

struct FPlanLink
{
	FPlanIndex From = 0;
	std::string FromPin;
	FPlanIndex To = 0;
	std::string ToPin;
};

struct FPlanVariable
{
	FVariableToAdd Variable;
	/** The default value; empty for that of the type. */
	std::string Default = {};
};

struct FPlanProperty
{
	std::string Path;
	std::string Value;
	/** What is said when it is done. */
	std::string Done;
	/** What is said when the editor refuses, and the rest stands all the same. */
	std::string Refused;
};

/** What to make and to change in a Blueprint, before any of it is done. */
struct FEditPlan
{
	std::vector<std::string> NewFunctions;
	std::vector<FPlanVariable> Variables;
	std::vector<FPlanNode> Nodes;
	/** In the order in which they are made; those that execution follows are among them. */
	std::vector<FPlanLink> Links;
	std::vector<FPlanProperty> Properties;
	/** Wires that making the others breaks, which are made again when the edit is taken back; with the graph of each. */
	std::vector<std::pair<std::string, FLinkToEdit>> Replaced;
	/** What the user should know of how the words were taken. */
	std::vector<std::string> Notes;

	FPlanIndex AddNode(FPlanNode Node);
	void AddLink(FPlanIndex From, std::string_view FromPin, FPlanIndex To, std::string_view ToPin);
	/** A note once. */
	void AddNote(std::string Note);
};

}

#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** A place where a Blueprint's execution starts: one execution output of an event, a function or a macro. */
struct FBlueprintEntry
{
	const FBlueprintGraph* Graph = nullptr;
	const FBlueprintNode* Node = nullptr;
	const FBlueprintPin* Output = nullptr;
	/** "when play begins", "the custom event Open"; for functions and macros the graph's name. */
	std::string Title;
	/** Words by which people ask for it. */
	std::string Keywords;

	bool IsConnected() const { return Output && !Output->Links.empty(); }
};

/** The events of all event graphs, in their order. */
std::vector<FBlueprintEntry> FindEvents(const FBlueprintModel& Model);

/** Where a function or macro graph starts; Node is null when it has no entry node. */
FBlueprintEntry FindGraphEntry(const FBlueprintGraph& Graph);

/** The graph in which Blueprints prepare themselves in the editor; it is a function that nobody calls by name. */
constexpr std::string_view ConstructionScript = "UserConstructionScript";

/** Where each function and macro starts, the construction script left out. */
std::vector<FBlueprintEntry> FindFunctions(const FBlueprintModel& Model);

/** The entries that a description like "a player overlaps it" fits best; empty when it fits none. */
std::vector<FBlueprintEntry> MatchEntries(const std::vector<FBlueprintEntry>& Entries, std::string_view Description);

/** Nodes with execution inputs of which none is connected: they never run. */
std::vector<const FBlueprintNode*> FindUnreachedNodes(const FBlueprintGraph& Graph);

/** Nodes that only compute a value, which no wire takes anywhere. */
std::vector<const FBlueprintNode*> FindUnreadNodes(const FBlueprintGraph& Graph);

}

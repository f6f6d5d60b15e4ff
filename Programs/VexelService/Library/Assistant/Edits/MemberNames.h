#pragma once

#include "Assistant/BlueprintModel.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

enum class ECallableKind
{
	Function,
	CustomEvent,
	Dispatcher,
};

/** Something of a Blueprint that a step can call. */
struct FCallable
{
	ECallableKind Kind = ECallableKind::Function;
	std::string Name;
	/** The graph of a function; that in which an event stands. */
	std::string Graph;
	/** The event's node. */
	std::string Node = {};
};

std::vector<FCallable> ListCallables(const FBlueprintModel& Model);

/** The callable that is said; when bExact, no other than that of this very name. */
std::optional<FCallable> FindCallable(const FBlueprintModel& Model, std::string_view Said, bool bExact);

/** The only function or event whose name begins with a verb: OpenDoor for "open". */
std::optional<FCallable> FindCallableByVerb(const FBlueprintModel& Model, std::string_view Verb);

/** The member variable that is said; the "b" of Booleans may be missing, and a letter in four wrong. Null when there is none. */
const FBlueprintVariable* FindMemberVariable(const FBlueprintModel& Model, std::string_view Said);

/** Whether words name the Blueprint's own actor: "it", "the door" in BP_Door. */
bool MeansSelf(const FBlueprintModel& Model, std::string_view Said);

/** A name for something new, from words: "open the door" is OpenDoor; empty where the words have no letters. */
std::string ToMemberName(std::string_view Words);

/** The name, with a number where the Blueprint has something of that name. */
std::string UniqueMemberName(const FBlueprintModel& Model, const std::string& Name);

/** The node of a type that stands in an event graph, and its graph; null members when none does. */
struct FFoundNode
{
	const FBlueprintGraph* Graph = nullptr;
	const FBlueprintNode* Node = nullptr;
};
FFoundNode FindNodeOfType(const FBlueprintModel& Model, std::string_view Type);

/** The graph where new events go; null in a Blueprint without event graphs. */
const FBlueprintGraph* FindEventGraph(const FBlueprintModel& Model);

}

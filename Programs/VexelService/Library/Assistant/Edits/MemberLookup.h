#pragma once

#include "MemberSentence.h"

#include "Assistant/Edits/EditRequest.h"
#include "Assistant/Edits/TypeWords.h"
#include "Assistant/Edits/ValueWords.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** What a name means among what a Blueprint has, or the nearest when nothing has it. */
template <typename T>
struct TMemberMatch
{
	const T* Found = nullptr;
	/** A name like it, where there is none of that name; may be empty. */
	std::string Nearest = {};
};

/** The variable of a scope that a user's words mean, with the "b" of Booleans or without. */
TMemberMatch<FBlueprintVariable> FindVariable(
	const std::vector<FBlueprintVariable>& Variables, std::string_view Said, std::string_view Scope);

/** The variable of exactly that name, but for case, that a target has in a scope; null when there is none. */
const FBlueprintVariable* FindVariableAt(
	const FBlueprintModel& Model, const FEditTarget& Target, std::string_view Scope, std::string_view Name);

/** The function, with its graph; the construction script is none. */
TMemberMatch<FBlueprintGraph> FindFunction(const FBlueprintModel& Model, std::string_view Said);

struct FEventNode
{
	const FBlueprintGraph* Graph = nullptr;
	const FBlueprintNode* Node = nullptr;
};

/** The custom event of a name; an empty node when there is none. */
FEventNode FindCustomEvent(const FBlueprintModel& Model, std::string_view Said);

/** A member of a Blueprint where it stands, as long as its model is not brought up to date. */
struct FMemberPlace
{
	/** What has the variable, or the function or the event itself. */
	FEditTarget Target = {};
	/** A variable, an input or an output; null for a function and an event. */
	const FBlueprintVariable* Variable = nullptr;
	/** The name of what was found; empty where nothing was. */
	std::string Name = {};
	/** The function or event of an input or an output, by its name. */
	std::string Owner = {};
	/** "variable", "local variable", "input", "output", "function", "event". */
	std::string Noun = {};
	/** Where nothing was found: what to tell the user. */
	std::string Problem = {};

	bool IsFunction() const { return Noun == "function"; }
	bool IsEvent() const { return Noun == "event"; }
};

/** What a user's words mean among the variables, functions and events of a Blueprint. */
FMemberPlace FindMemberPlace(const FBlueprintModel& Model, const FSaidMember& Said);

/** "I find no variable ... The nearest is ..." */
std::string TellMissing(const FBlueprintModel& Model, const std::string& Noun, const std::string& Said, const std::string& Nearest);

/**
 * The property-type ids that a said type may have, the likeliest first. Names are looked for among the project's assets; one that is
 * none of them may be a class, a struct or an enumeration of the engine, which only the editor can tell.
 */
std::vector<std::string> ResolveType(FEditSession& Session, const FSaidType& Type);

/** The value for a type: references by the assets that the words name, lists by their elements. */
FWireValue ResolveValue(FEditSession& Session, const FEditWords& Said, const std::string& TypeId, EValueForm Form = EValueForm::Property);

}

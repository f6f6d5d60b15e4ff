#pragma once

#include "EditClauses.h"

#include "Assistant/Edits/EditRequest.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/**
 * A message about a Blueprint's members without its politeness and the Blueprint, wherever that stands: "give BP_Door a boolean" and
 * "BP_Door needs a boolean" are "add a boolean". Nothing for a message that tells when something is to happen.
 */
std::optional<FEditMessage> ReadMemberMessage(const FEditMessage& Message);

/** What sort of member a user's word says. */
enum class EMemberNoun
{
	/** None was said. */
	Any,
	Variable,
	LocalVariable,
	Function,
	Event,
	Input,
	Output,
};

/** Which element of a list, counted from 0. */
struct FSaidElement
{
	std::optional<int> Index;
	/** "The last element". */
	bool bLast = false;

	bool IsSaid() const { return Index.has_value() || bLast; }
};

/** Something of a Blueprint as a user names it: "the second element of Waypoints", "the intensity of the PointLight". */
struct FSaidMember
{
	EMemberNoun Noun = EMemberNoun::Any;
	/** The innermost first: "intensity", "PointLight". At least one. */
	std::vector<std::string> Names;
	/** The function or event that it belongs to; may be empty. */
	std::string Owner = {};
	FSaidElement Element = {};
};

std::optional<FSaidMember> ReadSaidMember(FEditWordSpan Words);

/** A request in whatever way it was said: what it is about, and the rest of it. */
struct FSplitRequest
{
	FSaidMember Member;
	FEditWords Rest;
};

/** Whether the words for a member mean what was spoken of before: "it", "this variable". */
bool IsReferenceBack(const FSaidMember& Member);

/** Reads a message by a pattern with the slots {member} and {rest}. */
std::optional<FSplitRequest> SplitRequest(std::string_view Pattern, const FEditWords& Words);

/** Puts what the conversation was about in the place of "it". False where "it" was said and nothing is known that it means. */
bool ResolveSubject(FSaidMember& Member, const FEditMessage& Message);

/** What "it" may mean in the next message: the member's name, where that alone says which it is. */
std::string SubjectOf(const FSaidMember& Member);

}

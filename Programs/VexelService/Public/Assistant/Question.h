#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

enum class EQuestionKind
{
	Unknown,
	Overview,
	WhenEvent,
	Variables,
	Functions,
	Macros,
	Events,
	Graphs,
	VariableUse,
	Function,
};

/** A message as far as it is understood. */
struct FQuestion
{
	EQuestionKind Kind = EQuestionKind::Unknown;
	/** The Blueprint as the user wrote it: a path, a name, a word like "it", or nothing. */
	std::string Blueprint;
	/** The variable, the function or the event that the question is about. */
	std::string Subject;
};

/**
 * Understands the questions that Docs/Assistant.md lists; anything else is Unknown. OpenNames are the names of the assets that are
 * open in the editor, which count as Blueprints wherever they stand in the message.
 */
FQuestion ReadQuestion(std::string_view Message, const std::vector<std::string>& OpenNames = {});

/** "it", "this", "here" and the like: a Blueprint that the conversation names. An empty reference is one too. */
bool IsBackReference(std::string_view Blueprint);

}

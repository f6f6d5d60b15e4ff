#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

enum class EQuestionKind
{
	Unknown,
	/** What the assistant can do. */
	Help,
	Greeting,
	Thanks,
	/** About one Blueprint. */
	Overview,
	WhenEvent,
	Variables,
	Functions,
	Macros,
	Events,
	Graphs,
	Components,
	VariableUse,
	Function,
	/** About the project. */
	Project,
	/** Which assets there are, of the kind that the subject says. */
	Assets,
	/** What each Blueprint is for. */
	AllOverviews,
	/** Where the subject is used, in the whole project. */
	ProjectUse,
	AssetInfo,
	Dependencies,
	/** What a file says; the subject is its name. */
	Source,
	/** What a C++ name declares. */
	Declaration,
	/** A picture of a graph, or of what the subject says: the viewport, the editor. */
	Picture,
	/** The question before, about something else: the Blueprint or the subject. */
	Again,
};

/** A message as far as it is understood. */
struct FQuestion
{
	EQuestionKind Kind = EQuestionKind::Unknown;
	/** The Blueprint as the user wrote it: a path, a name, a word like "it", or nothing. */
	std::string Blueprint = {};
	/** The variable, the function or the event that the question is about, or as the kind says. */
	std::string Subject = {};
	/** Others that the question names beside Blueprint: "what do BP_Door and BP_Enemy do?". */
	std::vector<std::string> MoreBlueprints = {};
};

/**
 * Understands the questions that Docs/Assistant.md lists; anything else is Unknown. OpenNames are the names of the assets that are
 * open in the editor, which count as Blueprints wherever they stand in the message.
 */
FQuestion ReadQuestion(std::string_view Message, const std::vector<std::string>& OpenNames = {});

/** "it", "this", "here" and the like: something that the conversation names. An empty reference is one too. */
bool IsBackReference(std::string_view Reference);

}

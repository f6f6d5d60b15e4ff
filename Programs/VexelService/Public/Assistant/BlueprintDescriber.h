#pragma once

#include "Assistant/BlueprintModel.h"

#include <string>
#include <string_view>

namespace VexelService
{

/** Answers questions about one Blueprint in Markdown, from its model alone. */
class FBlueprintDescriber
{
public:
	/** Model must outlive the describer. */
	explicit FBlueprintDescriber(const FBlueprintModel& InModel);

	/** What the Blueprint is and what it has, in a sentence or two. */
	std::string Summary() const;

	/** What the Blueprint is, what happens on each event, and what its functions and macros do. */
	std::string Overview() const;

	/** Whether an event or a function fits words like "a player overlaps it". */
	bool HasEvent(std::string_view Description) const;

	/** What happens on the events that fit words like "a player overlaps it". */
	std::string WhenEvent(std::string_view Description) const;

	/** What happens from one event or from the entry of one function, by its graph and its node; empty where nothing does. */
	std::string Entry(std::string_view GraphId, std::string_view NodeId) const;

	std::string Variables() const;
	std::string Functions() const;
	std::string Macros() const;
	std::string Events() const;
	std::string Graphs() const;
	/** Those that the Blueprint has by itself or by its native parent class, with what it changes of each. */
	std::string Components() const;

	/** Where one member variable or local variable is read and set. */
	std::string VariableUse(std::string_view Variable) const;

	/** What one function, macro or custom event does. */
	std::string Function(std::string_view Name) const;

private:
	std::string GraphSection(const FBlueprintGraph& Graph) const;
	std::string ListOfGraphs(EGraphKind Kind, const char* Noun) const;
	const FBlueprintGraph* FindGraph(std::string_view Name) const;

	const FBlueprintModel& Model;
};

}

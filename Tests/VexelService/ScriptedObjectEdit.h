#pragma once

#include "Support/JsonText.h"

#include <string>
#include <vector>

namespace VexelService
{

/** A Blueprint that is edited as the editor's tools edit one: its export, and what was asked of it. */
class FScriptedObjectEdit
{
public:
	/** Blueprint is an export; it changes with each edit. */
	explicit FScriptedObjectEdit(FJson InBlueprint);

	/** Answers "object_edit". */
	FJson Edit(const FJson& Arguments);
	/** Answer "graph_add" and "graph_remove"; null when the editor refuses. */
	FJson AddGraph(const FJson& Arguments);
	FJson RemoveGraph(const FJson& Arguments);

	const FJson& GetBlueprint() const { return Blueprint; }

	/** A variable of the Blueprint or of one of its graphs or nodes by name; null when there is none. */
	const FJson* FindVariable(const std::string& Name, const std::string& Graph = {});

	/** Every operation, as "operation scope name value" on one line, with its target where that is not the Blueprint. */
	const std::vector<std::string>& GetOperations() const { return Operations; }

private:
	/** The variables of a target; null when there is no such target. */
	FJson* FindVariables(const FJson& Target);
	/** The operation's failure, or nothing. */
	std::string Execute(const FJson& Target, const FJson& Operation);
	std::string Update(const FJson& Target, const FJson& Operation);
	std::string UpdateElements(FJson& Variable, const FJson& Operation);
	std::string EditVariable(FJson& Variables, const FJson& Operation);

	FJson Blueprint;
	std::vector<std::string> Operations;
};

}

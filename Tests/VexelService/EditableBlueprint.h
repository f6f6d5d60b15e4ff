#pragma once

#include "ScriptedEditor.h"
#include "Support/JsonText.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace VexelService
{

/**
 * A Blueprint that the tools of a scripted editor change as the real ones do: nodes get pins by their type, one wire leads from an
 * execution output, the answers hold the whole Blueprint. What it knows of node types is little, and written apart from the assistant.
 */
class FEditableBlueprint
{
public:
	/** Editor must not outlive this. */
	FEditableBlueprint(FScriptedEditor& Editor, FJson InBlueprint);

	/** The error for an item of a call, in the editor's words; nothing where it succeeds. Called with the tool's name. */
	std::function<std::optional<std::string>(const std::string& Tool, const FJson& Item)> Refuse;

	/** Components by name, with their classes; a node that reads one can be made. */
	std::map<std::string, std::string> Components;

	/** What the compiler says, errors all. */
	std::vector<std::string> CompilerErrors;

	const FJson& GetJson() const { return Blueprint; }
	/** Each node of a graph by its type, with what its inputs have: "flow.if(Condition=true)". */
	std::vector<std::string> ListNodes(const std::string& Graph) const;
	/** Each wire, without the numbers of its nodes: "Delay.then > PrintString.execute". */
	std::vector<std::string> ListLinks(const std::string& Graph) const;

private:
	using FItems = std::vector<std::string>;

	FJson Answer(FJson Errors) const;
	FJson* FindGraph(const std::string& Id);
	FJson Spawn(const FJson& Arguments);
	FJson EditLinks(const FJson& Arguments);
	FJson Remove(const FJson& Arguments);
	FJson EditObjects(const FJson& Arguments);
	FJson AddGraph(const FJson& Arguments);
	FJson RemoveGraph(const FJson& Arguments);
	std::optional<std::vector<FJson>> PinsOf(const std::string& Type) const;
	std::optional<std::string> SpawnOne(FJson& Graph, const FJson& Item);
	std::optional<std::string> LinkOne(FJson& Graph, const FJson& Item);
	std::optional<std::string> EditOne(const FJson& Target, const FJson& Operation);

	FJson Blueprint;
	int Count = 0;
};

}

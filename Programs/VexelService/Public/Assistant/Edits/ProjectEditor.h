#pragma once

#include "Assistant/BlueprintModel.h"
#include "Assistant/ProjectReader.h"
#include "Support/JsonText.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VexelService
{

/** What became of a call that edits. Items of a call that was carried out may have failed all the same. */
struct FEditOutcome
{
	/** Whether the editor carried the call out. */
	bool bDone = false;
	/** In the editor's words: why the call failed, or one text for each item that did. */
	std::vector<std::string> Errors = {};
	/** What it did beside that: wires that it has cost. */
	std::vector<std::string> Warnings = {};

	bool IsComplete() const { return bDone && Errors.empty(); }
};

struct FNodeToSpawn
{
	/** The node-type id: "call.KismetSystemLibrary.PrintString". */
	std::string Type;
	/** Values of inputs, by the pin's name; numbers and Booleans as text. */
	std::vector<std::pair<std::string, std::string>> PinValues = {};
};

struct FSpawnOutcome : FEditOutcome
{
	/** The ids of the nodes in the order in which they were asked for; empty for each that was not made. */
	std::vector<std::string> Nodes = {};
};

/** A wire to make or to break, by the ids of its nodes and pins. */
struct FLinkToEdit
{
	std::string FromNode;
	std::string FromPin;
	std::string ToNode;
	std::string ToPin;
	bool bRemove = false;
};

/** What properties and variables belong to: the Blueprint itself, or one of its graphs, or a node of it. */
struct FEditTarget
{
	/** A graph's id; empty for the Blueprint. */
	std::string Graph = {};
	/** A node's id; empty for the graph. */
	std::string Node = {};
};

struct FVariableToAdd
{
	std::string Name;
	/** The property-type id: "real", "array|object.Actor". */
	std::string Type;
	/** "member", "local", "in" or "out". */
	std::string Scope = "member";
	/** May be empty. */
	std::string Category = {};
	/** "instance_editable", "private" and the like, where they are to change. */
	std::map<std::string, bool> Flags = {};
};

struct FCompilerMessage
{
	/** "error", "warning", "performance_warning" or "info". */
	std::string Severity;
	std::string Text;

	bool IsError() const { return Severity == "error"; }
	bool IsWarning() const { return Severity == "warning"; }
};

struct FCompileOutcome : FEditOutcome
{
	bool bSuccess = false;
	std::vector<FCompilerMessage> Messages = {};
};

/**
 * Edits one Blueprint through the editor's tools during one turn. Each call brings the reader's model of the Blueprint up to date:
 * the model itself stays where it is, its graphs and nodes do not. When a tool fails or nobody listens any more, the outcome says
 * so, and the reader knows whether the turn is over.
 */
class FProjectEditor
{
public:
	/** Reader must outlive the editor. */
	FProjectEditor(FProjectReader& InReader, std::string InPath);

	/** The Blueprint as the last answer has it; read when it was not before. Null when it cannot be read. */
	const FBlueprintModel* Model() { return Reader.ReadBlueprint(Path); }
	/** The same, and one without anything where it cannot be read. */
	const FBlueprintModel& Blueprint();
	const FBlueprintGraph* FindGraph(const std::string& GraphId);

	const std::string& GetPath() const { return Path; }
	FProjectReader& GetReader() { return Reader; }

	FSpawnOutcome SpawnNodes(const std::string& Graph, const std::vector<FNodeToSpawn>& Nodes);
	/** Makes and breaks wires in order, and lays out the nodes that they touch. */
	FEditOutcome EditLinks(const std::string& Graph, const std::vector<FLinkToEdit>& Links);
	FEditOutcome RemoveNodes(const std::string& Graph, const std::vector<std::string>& Nodes);

	FEditOutcome AddFunction(const std::string& Name);
	FEditOutcome RemoveFunction(const std::string& Name);

	FEditOutcome AddVariable(const FVariableToAdd& Variable, const FEditTarget& Target = {});
	FEditOutcome RemoveVariable(const std::string& Name, const std::string& Scope, const FEditTarget& Target = {});
	/** Gives a variable another name, type or category: Changed is its whole new description. */
	FEditOutcome EditVariable(const std::string& Name, const FVariableToAdd& Changed, const FEditTarget& Target = {});
	/** The default value of a variable, or the value of a pin with the scope that its direction has. */
	FEditOutcome SetVariableDefault(
		const std::string& Name, const FJson& Value, const std::string& Scope = "member", const FEditTarget& Target = {});
	/** The value of a property, by its path from the target. */
	FEditOutcome SetProperty(const std::string& PropertyPath, const FJson& Value, const FEditTarget& Target = {});

	/** Operations of "object_edit" on one target, for what the functions above do not cover. */
	FEditOutcome EditObjects(const FEditTarget& Target, const FJson& Operations);

	FCompileOutcome Compile();

private:
	FEditOutcome Edit(std::string_view Tool, FJson Arguments);

	FProjectReader& Reader;
	const std::string Path;
};

/** The node-type ids that an error of SpawnNodes names as the nearest to one that there is not. */
std::vector<std::string> ReadNearestTypes(const std::string& Error);

}

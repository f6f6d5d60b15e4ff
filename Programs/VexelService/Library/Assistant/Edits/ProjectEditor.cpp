#include "Assistant/Edits/ProjectEditor.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <set>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxErrors = 200;
constexpr std::size_t MaxErrorBytes = 2000;
constexpr std::size_t MaxMessages = 500;

std::set<std::string> NodeIds(const FBlueprintGraph* Graph)
{
	std::set<std::string> Ids;
	if (Graph)
	{
		for (const FBlueprintNode& Node : Graph->Nodes)
		{
			Ids.insert(Node.Id);
		}
	}
	return Ids;
}

// An item's error names its type, and errors come in the order of their items.
std::vector<bool> FindFailedItems(const std::vector<FNodeToSpawn>& Nodes, const std::vector<std::string>& Errors)
{
	std::vector<bool> Failed(Nodes.size(), false);
	std::size_t ErrorAt = 0;
	for (std::size_t Index = 0; Index < Nodes.size() && ErrorAt < Errors.size(); ++Index)
	{
		Failed[Index] = Errors[ErrorAt].find("type '" + Nodes[Index].Type + "'") != std::string::npos;
		ErrorAt += Failed[Index] ? 1 : 0;
	}
	return Failed;
}

// The event of a type that stood in the graph before. Of some events a graph can have one alone; custom ones and keys may be many.
const FBlueprintNode* FindEvent(const FBlueprintGraph& Graph, const std::string& Type, const std::set<std::string>& Before)
{
	if (!StartsWith(Type, "event.") || Type == "event.custom")
	{
		return nullptr;
	}
	const auto Found = std::find_if(Graph.Nodes.begin(), Graph.Nodes.end(), [&](const FBlueprintNode& Node)
		{ return EqualIgnoringCase(Node.Type, Type) && Before.contains(Node.Id); });
	return Found == Graph.Nodes.end() ? nullptr : &*Found;
}

std::vector<std::string> ReadTexts(const FJson& Reply, const char* Key)
{
	std::vector<std::string> Texts;
	for (const FJson& Text : ArrayMember(Reply, Key))
	{
		if (Text.is_string() && Texts.size() < MaxErrors)
		{
			Texts.push_back(Shortened(Text.get<std::string>(), MaxErrorBytes));
		}
	}
	return Texts;
}

FJson ToJson(const FVariableToAdd& Variable)
{
	FJson Description = {{"scope_id", Variable.Scope}, {"prop_id", Variable.Name}, {"type_id", Variable.Type}};
	if (!Variable.Category.empty())
	{
		Description["category"] = Variable.Category;
	}
	for (const auto& [Flag, bValue] : Variable.Flags)
	{
		Description[Flag] = bValue;
	}
	return Description;
}

FJson OneOperation(FJson Operation)
{
	return FJson::array({std::move(Operation)});
}

}

std::vector<std::string> ReadNearestTypes(const std::string& Error)
{
	std::vector<std::string> Types;
	std::size_t At = Error.find("Nearest:");
	while (At != std::string::npos)
	{
		const std::size_t Open = Error.find('\'', At);
		const std::size_t Close = Open == std::string::npos ? Open : Error.find('\'', Open + 1);
		if (Close == std::string::npos)
		{
			break;
		}
		Types.push_back(Error.substr(Open + 1, Close - Open - 1));
		At = Close + 1;
	}
	return Types;
}

FProjectEditor::FProjectEditor(FProjectReader& InReader, std::string InPath)
	: Reader(InReader)
	, Path(std::move(InPath))
{
}

const FBlueprintModel& FProjectEditor::Blueprint()
{
	static const FBlueprintModel Nothing;
	const FBlueprintModel* const Known = Model();
	return Known ? *Known : Nothing;
}

const FBlueprintGraph* FProjectEditor::FindGraph(const std::string& GraphId)
{
	return Blueprint().FindGraph(GraphId);
}

FEditOutcome FProjectEditor::Edit(std::string_view Tool, FJson Arguments)
{
	Arguments["blueprint"] = Path;
	const std::optional<FJson> Reply = Reader.Call(Tool, Arguments);
	if (!Reply)
	{
		return {.bDone = false, .Errors = {Reader.GetLastError()}};
	}
	FEditOutcome Outcome{.bDone = true};
	Outcome.Errors = ReadTexts(*Reply, "errors");
	Outcome.Warnings = ReadTexts(*Reply, "warnings");
	const FJson* const Export = FindMember(*Reply, "blueprint");
	if (!Export || !Reader.Keep(Path, *Export))
	{
		// What the Blueprint is like now is not known, so it is read again when it is asked for.
		Reader.Forget(Path);
	}
	return Outcome;
}

FSpawnOutcome FProjectEditor::SpawnNodes(const std::string& Graph, const std::vector<FNodeToSpawn>& Nodes)
{
	FJson Items = FJson::array();
	for (const FNodeToSpawn& Node : Nodes)
	{
		FJson Values = FJson::object();
		for (const auto& [Pin, Value] : Node.PinValues)
		{
			Values[Pin] = Value;
		}
		Items.push_back({{"node_type", Node.Type}, {"pin_values", Values}});
	}
	const std::set<std::string> Before = NodeIds(FindGraph(Graph));
	FSpawnOutcome Outcome{Edit("node_spawn", {{"graph", Graph}, {"nodes", Items}})};
	Outcome.Nodes.resize(Nodes.size());
	const FBlueprintGraph* const After = Outcome.bDone ? FindGraph(Graph) : nullptr;
	if (!After)
	{
		return Outcome;
	}
	const std::vector<bool> Failed = FindFailedItems(Nodes, Outcome.Errors);
	std::vector<const FBlueprintNode*> Made;
	for (const FBlueprintNode& Node : After->Nodes)
	{
		if (!Before.contains(Node.Id))
		{
			Made.push_back(&Node);
		}
	}
	auto Next = Made.begin();
	for (std::size_t Index = 0; Index < Nodes.size(); ++Index)
	{
		if (Failed[Index])
		{
			continue;
		}
		// An event that the graph has already is not made again: the editor takes the one that stands there.
		const FBlueprintNode* const Existing = FindEvent(*After, Nodes[Index].Type, Before);
		Outcome.Nodes[Index] = Existing ? Existing->Id : Next != Made.end() ? (*Next++)->Id
																			: std::string();
	}
	return Outcome;
}

FEditOutcome FProjectEditor::EditLinks(const std::string& Graph, const std::vector<FLinkToEdit>& Links)
{
	FJson Items = FJson::array();
	for (const FLinkToEdit& Link : Links)
	{
		FJson Item = {{"from_node", Link.FromNode}, {"from_pin", Link.FromPin}, {"to_node", Link.ToNode}, {"to_pin", Link.ToPin}};
		if (Link.bRemove)
		{
			Item["remove"] = true;
		}
		Items.push_back(std::move(Item));
	}
	return Edit("node_link", {{"graph", Graph}, {"links", Items}});
}

FEditOutcome FProjectEditor::RemoveNodes(const std::string& Graph, const std::vector<std::string>& Nodes)
{
	return Edit("node_remove", {{"graph", Graph}, {"nodes", Nodes}});
}

FEditOutcome FProjectEditor::AddFunction(const std::string& Name)
{
	return Edit("graph_add", {{"graph", Name}});
}

FEditOutcome FProjectEditor::RemoveFunction(const std::string& Name)
{
	return Edit("graph_remove", {{"graph", Name}});
}

FEditOutcome FProjectEditor::AddVariable(const FVariableToAdd& Variable, const FEditTarget& Target)
{
	return EditObjects(Target,
		OneOperation({{"operation", "add_variable"}, {"scope", Variable.Scope}, {"name", Variable.Name}, {"value", ToJson(Variable)}}));
}

FEditOutcome FProjectEditor::RemoveVariable(const std::string& Name, const std::string& Scope, const FEditTarget& Target)
{
	return EditObjects(Target, OneOperation({{"operation", "remove_variable"}, {"scope", Scope}, {"name", Name}}));
}

FEditOutcome FProjectEditor::EditVariable(const std::string& Name, const FVariableToAdd& Changed, const FEditTarget& Target)
{
	return EditObjects(Target, OneOperation({{"operation", "edit_variable"}, {"scope", Changed.Scope}, {"name", Name}, {"value", ToJson(Changed)}}));
}

FEditOutcome FProjectEditor::SetVariableDefault(
	const std::string& Name, const FJson& Value, const std::string& Scope, const FEditTarget& Target)
{
	return EditObjects(Target, OneOperation({{"operation", "update"}, {"scope", Scope}, {"prop_path", Name}, {"value", Value}}));
}

FEditOutcome FProjectEditor::SetProperty(const std::string& PropertyPath, const FJson& Value, const FEditTarget& Target)
{
	return EditObjects(Target, OneOperation({{"operation", "update"}, {"prop_path", PropertyPath}, {"value", Value}}));
}

FEditOutcome FProjectEditor::EditObjects(const FEditTarget& Target, const FJson& Operations)
{
	const char* const OfGraph = Target.Node.empty() ? "graph" : "node";
	FJson Place = {{"target_type", Target.Graph.empty() ? "blueprint" : OfGraph}};
	if (!Target.Graph.empty())
	{
		Place["graph"] = Target.Graph;
	}
	if (!Target.Node.empty())
	{
		Place["node"] = Target.Node;
	}
	const FJson Request = {{"target", std::move(Place)}, {"operations", Operations}};
	return Edit("object_edit", {{"requests", FJson::array({Request})}});
}

FCompileOutcome FProjectEditor::Compile()
{
	const std::optional<FJson> Reply = Reader.Call("compile", {{"blueprint", Path}});
	if (!Reply)
	{
		return {{.bDone = false, .Errors = {Reader.GetLastError()}}};
	}
	FCompileOutcome Outcome{{.bDone = true}};
	const FJson* const Success = FindMember(*Reply, "success");
	Outcome.bSuccess = Success && Success->is_boolean() && Success->get<bool>();
	for (const FJson& Message : ArrayMember(*Reply, "compiler_messages"))
	{
		if (Outcome.Messages.size() < MaxMessages)
		{
			Outcome.Messages.push_back({TextMember(Message, "severity"), Shortened(TextMember(Message, "message"), MaxErrorBytes)});
		}
	}
	return Outcome;
}

}

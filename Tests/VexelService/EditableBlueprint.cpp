#include "EditableBlueprint.h"

#include "BlueprintJson.h"

#include <algorithm>

namespace VexelService
{

namespace
{

FJson* FindIn(FJson& List, const std::string& Id)
{
	const auto Found = std::find_if(List.begin(), List.end(), [&Id](const FJson& Item)
		{ return Item["id"] == Id; });
	return Found == List.end() ? nullptr : &*Found;
}

FJson* FindPin(FJson& Node, const std::string& Id, const char* Direction)
{
	const auto Found = std::find_if(
		Node["pins"].begin(), Node["pins"].end(), [&](const FJson& Pin)
		{ return Pin["id"] == Id && Pin["dir"] == Direction; });
	return Found == Node["pins"].end() ? nullptr : &*Found;
}

std::string LastPart(const std::string& Type) { return Type.substr(Type.rfind('.') + 1); }

void Unlink(FJson& Graph, const std::string& Node, const std::string& Pin)
{
	for (FJson& Other : Graph["nodes"])
	{
		for (FJson& OtherPin : Other["pins"])
		{
			FJson Kept = FJson::array();
			for (const FJson& Wire : OtherPin.value("connections", FJson::array()))
			{
				if (Wire["node"] != Node || (!Pin.empty() && Wire["pin"] != Pin))
				{
					Kept.push_back(Wire);
				}
			}
			OtherPin["connections"] = Kept;
		}
	}
}

}

FEditableBlueprint::FEditableBlueprint(FScriptedEditor& Editor, FJson InBlueprint)
	: Blueprint(std::move(InBlueprint))
{
	Editor.SetTool("read_blueprint", [this](const FJson&)
		{ return Blueprint; });
	Editor.SetTool("node_spawn", [this](const FJson& Arguments)
		{ return Spawn(Arguments); });
	Editor.SetTool("node_link", [this](const FJson& Arguments)
		{ return EditLinks(Arguments); });
	Editor.SetTool("node_remove", [this](const FJson& Arguments)
		{ return Remove(Arguments); });
	Editor.SetTool("object_edit", [this](const FJson& Arguments)
		{ return EditObjects(Arguments); });
	Editor.SetTool("graph_add", [this](const FJson& Arguments)
		{ return AddGraph(Arguments); });
	Editor.SetTool("graph_remove", [this](const FJson& Arguments)
		{ return RemoveGraph(Arguments); });
	Editor.SetTool("compile",
		[this](const FJson&) -> FJson
		{
			FJson Messages = FJson::array();
			for (const std::string& Error : CompilerErrors)
			{
				Messages.push_back({{"severity", "error"}, {"message", Error}});
			}
			return {{"success", CompilerErrors.empty()}, {"compiler_messages", Messages}};
		});
}

FJson FEditableBlueprint::Answer(FJson Errors) const { return {{"blueprint", Blueprint}, {"errors", std::move(Errors)}}; }

FJson* FEditableBlueprint::FindGraph(const std::string& Id) { return FindIn(Blueprint["graphs"], Id); }

std::optional<std::vector<FJson>> FEditableBlueprint::PinsOf(const std::string& Type) const
{
	const std::string Last = LastPart(Type);
	const auto IsOf = [&Type](const char* Prefix)
	{ return Type.starts_with(Prefix); };
	if (IsOf("var.get.") || IsOf("var.set."))
	{
		std::string ValueType = Components.contains(Last) ? "object." + Components.at(Last) : std::string();
		for (const FJson& Variable : Blueprint["variables"])
		{
			ValueType = Variable["id"] == Last ? Variable["type"].get<std::string>() : ValueType;
		}
		if (ValueType.empty())
		{
			return std::nullopt;
		}
		return IsOf("var.get.") ? std::vector<FJson>{DataOut(Last, ValueType)}
								: std::vector<FJson>{ExecIn(), ExecOut(), DataIn(Last, ValueType)};
	}
	if (IsOf("event.Actor.ReceiveAnyDamage"))
	{
		return std::vector<FJson>{DataOut("OutputDelegate", "delegate"), ExecOut(), DataOut("Damage", "real")};
	}
	if (IsOf("event."))
	{
		return std::vector<FJson>{DataOut("OutputDelegate", "delegate"), ExecOut(), DataOut("OtherActor", "object.Actor")};
	}
	if (IsOf("input.key."))
	{
		return std::vector<FJson>{ExecOut("Pressed"), ExecOut("Released")};
	}
	if (IsOf("call.op."))
	{
		return std::vector<FJson>{DataIn("A", "wildcard"), DataIn("B", "wildcard"), DataOut("ReturnValue", "wildcard")};
	}
	if (Type == "flow.if")
	{
		return std::vector<FJson>{ExecIn(), DataIn("Condition", "bool", "true"), ExecOut(), ExecOut("else")};
	}
	if (Type == "flow.sequence")
	{
		return std::vector<FJson>{ExecIn(), ExecOut("then_0"), ExecOut("then_1")};
	}
	if (Type == "macro.ForLoop")
	{
		return std::vector<FJson>{ExecIn(), DataIn("FirstIndex", "int"), DataIn("LastIndex", "int"), ExecOut("LoopBody"),
			DataOut("Index", "int"), ExecOut("Completed")};
	}
	if (Type == "macro.FlipFlop")
	{
		return std::vector<FJson>{ExecIn("None"), ExecOut("A"), ExecOut("B"), DataOut("IsA", "bool")};
	}
	if (Type == "macro.DoOnce")
	{
		return std::vector<FJson>{ExecIn(), ExecIn("Reset"), ExecOut("Completed")};
	}
	if (IsOf("cast."))
	{
		return std::vector<FJson>{ExecIn(), ExecOut(), ExecOut("CastFailed"), DataIn("Object", "object"), DataOut("As " + Last, "object." + Last)};
	}
	if (Type == "var.self")
	{
		return std::vector<FJson>{DataOut("self", "object.Actor")};
	}
	if (IsOf("call.KismetMathLibrary.") || IsOf("call.KismetStringLibrary."))
	{
		return std::vector<FJson>{DataIn("A", "wildcard"), DataIn("B", "wildcard"), DataIn("Location", "struct.Vector"),
			DataOut("ReturnValue", "wildcard")};
	}
	if (Type == "call.GameplayStatics.GetPlayerPawn" || Type == "call.Actor.GetTransform")
	{
		return std::vector<FJson>{DataOut("ReturnValue", "object.Pawn")};
	}
	return IsOf("call.")
		? std::optional<std::vector<FJson>>({ExecIn(), ExecOut(), DataIn("self", "object.Actor", "self"), DataIn("Delegate", "delegate"),
			  DataIn("SpawnTransform", "struct.Transform"), DataIn("RelativeTransform", "struct.Transform"), DataIn("InString", "string"),
			  DataIn("Duration", "real"), DataIn("Object", "object"), DataIn("DamagedActor", "object.Actor"), DataIn("NewLocation", "struct.Vector"),
			  DataIn("LevelName", "name"),
			  DataOut("ReturnValue", "object.Actor")})
		: std::nullopt;
}

std::optional<std::string> FEditableBlueprint::SpawnOne(FJson& Graph, const FJson& Item)
{
	const std::string Type = Item["node_type"];
	const std::optional<std::vector<FJson>> Pins = PinsOf(Type);
	if (!Pins)
	{
		return "Node type is not valid. Nearest: 'var.get.Tags', 'array.get'";
	}
	FJson Node = MakeNode(LastPart(Type) + "_" + std::to_string(100 + Count++), Type, *Pins);
	for (const auto& [Pin, Value] : Item["pin_values"].items())
	{
		if (FJson* const Found = FindPin(Node, Pin, "input"))
		{
			(*Found)["value"] = Value;
			continue;
		}
		Node["pins"].push_back(DataIn(Pin, "string", Value));
	}
	Graph["nodes"].push_back(Node);
	return std::nullopt;
}

FJson FEditableBlueprint::Spawn(const FJson& Arguments)
{
	FJson Errors = FJson::array();
	for (const FJson& Item : Arguments["nodes"])
	{
		std::optional<std::string> Error = Refuse ? Refuse("node_spawn", Item) : std::nullopt;
		Error = Error ? Error : SpawnOne(*FindGraph(Arguments["graph"]), Item);
		if (Error)
		{
			Errors.push_back("Failed to spawn node of type '" + Item["node_type"].get<std::string>() + "': " + *Error);
		}
	}
	return Answer(Errors);
}

std::optional<std::string> FEditableBlueprint::LinkOne(FJson& Graph, const FJson& Item)
{
	FJson* const From = FindIn(Graph["nodes"], Item["from_node"]);
	FJson* const To = FindIn(Graph["nodes"], Item["to_node"]);
	FJson* const Output = From ? FindPin(*From, Item["from_pin"], "output") : nullptr;
	FJson* const Input = To ? FindPin(*To, Item["to_pin"], "input") : nullptr;
	if (!Output || !Input)
	{
		return "Pin not found";
	}
	if (Item.value("remove", false))
	{
		Unlink(Graph, Item["to_node"], Item["to_pin"]);
		return std::nullopt;
	}
	if ((*Output)["type"] == "exec")
	{
		Unlink(Graph, Item["from_node"], Item["from_pin"]);
		(*Output)["connections"] = FJson::array();
	}
	(*Output)["connections"].push_back({{"node", Item["to_node"]}, {"pin", Item["to_pin"]}, {"guid", ""}});
	(*Input)["connections"].push_back({{"node", Item["from_node"]}, {"pin", Item["from_pin"]}, {"guid", ""}});
	return std::nullopt;
}

FJson FEditableBlueprint::EditLinks(const FJson& Arguments)
{
	FJson Errors = FJson::array();
	for (const FJson& Item : Arguments["links"])
	{
		std::optional<std::string> Error = Refuse ? Refuse("node_link", Item) : std::nullopt;
		Error = Error ? Error : LinkOne(*FindGraph(Arguments["graph"]), Item);
		if (Error)
		{
			Errors.push_back("Failed to connect nodes: " + *Error);
		}
	}
	return Answer(Errors);
}

FJson FEditableBlueprint::Remove(const FJson& Arguments)
{
	FJson& Graph = *FindGraph(Arguments["graph"]);
	for (const FJson& Id : Arguments["nodes"])
	{
		Unlink(Graph, Id, "");
		std::erase_if(Graph["nodes"].get_ref<FJson::array_t&>(), [&Id](const FJson& Node)
			{ return Node["id"] == Id; });
	}
	return Answer(FJson::array());
}

std::optional<std::string> FEditableBlueprint::EditOne(const FJson& Target, const FJson& Operation)
{
	const std::string Kind = Operation["operation"];
	if (Kind == "add_variable")
	{
		Blueprint["variables"].push_back(MakeVariable(Operation["name"], Operation["value"]["type_id"], ""));
	}
	else if (Kind == "remove_variable")
	{
		std::erase_if(
			Blueprint["variables"].get_ref<FJson::array_t&>(), [&](const FJson& Variable)
			{ return Variable["id"] == Operation["name"]; });
	}
	else if (Target["target_type"] == "node")
	{
		FJson& Node = *FindIn((*FindGraph(Target["graph"]))["nodes"], Target["node"]);
		Node["properties"] = FJson::array({{{"id", "name"}, {"value", Operation["value"]}}});
	}
	else if (FJson* const Variable = FindIn(Blueprint["variables"], Operation["prop_path"]))
	{
		(*Variable)["value"] = Operation["value"];
	}
	return std::nullopt;
}

FJson FEditableBlueprint::EditObjects(const FJson& Arguments)
{
	FJson Errors = FJson::array();
	for (const FJson& Request : Arguments["requests"])
	{
		for (const FJson& Operation : Request["operations"])
		{
			std::optional<std::string> Error = Refuse ? Refuse("object_edit", Operation) : std::nullopt;
			Error = Error ? Error : EditOne(Request["target"], Operation);
			if (Error)
			{
				Errors.push_back("Failed to execute operation: " + *Error);
			}
		}
	}
	return Answer(Errors);
}

FJson FEditableBlueprint::AddGraph(const FJson& Arguments)
{
	const std::string Name = Arguments["graph"];
	Blueprint["graphs"].push_back(MakeGraph(Name, "function", {MakeNode(Name + "_0", "graph.entry", {ExecOut()})}));
	return Answer(FJson::array());
}

FJson FEditableBlueprint::RemoveGraph(const FJson& Arguments)
{
	std::erase_if(Blueprint["graphs"].get_ref<FJson::array_t&>(), [&](const FJson& Graph)
		{ return Graph["id"] == Arguments["graph"]; });
	return Answer(FJson::array());
}

std::vector<std::string> FEditableBlueprint::ListNodes(const std::string& Graph) const
{
	FItems Nodes;
	for (const FJson& Node : (*FindIn(const_cast<FJson&>(Blueprint)["graphs"], Graph))["nodes"])
	{
		std::string Values;
		for (const FJson& Pin : Node["pins"])
		{
			const std::string Value = Pin.value("value", "");
			Values += Value.empty() || Value == "self" ? "" : (Values.empty() ? "" : ",") + Pin["id"].get<std::string>() + "=" + Value;
		}
		Nodes.push_back(Node["node_type"].get<std::string>() + "(" + Values + ")");
	}
	return Nodes;
}

std::vector<std::string> FEditableBlueprint::ListLinks(const std::string& Graph) const
{
	FItems Links;
	for (const FJson& Node : (*FindIn(const_cast<FJson&>(Blueprint)["graphs"], Graph))["nodes"])
	{
		for (const FJson& Pin : Node["pins"])
		{
			for (const FJson& Wire : Pin["dir"] == "output" ? Pin.value("connections", FJson::array()) : FJson::array())
			{
				const auto Bare = [](const std::string& Id)
				{ return Id.substr(0, Id.rfind('_')); };
				Links.push_back(Bare(Node["id"]) + "." + Pin["id"].get<std::string>() + " > " + Bare(Wire["node"]) + "." +
					Wire["pin"].get<std::string>());
			}
		}
	}
	return Links;
}

}

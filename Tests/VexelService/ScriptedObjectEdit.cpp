#include "ScriptedObjectEdit.h"

#include "Assistant/Words.h"

#include <algorithm>
#include <cstddef>

namespace VexelService
{

namespace
{

constexpr const char* DefaultObject = "$ClassDefaultObject";
constexpr const char* KnownTypes[] = {"bool", "byte", "int", "int64", "real", "name", "string", "text", "struct.Vector", "struct.Rotator",
	"struct.LinearColor", "object.Actor", "object.BP_Enemy", "object.BP_Door", "class.Actor", "class.BP_Enemy", "enum.EDoorState",
	"struct.Stats", "mcdelegate"};

bool IsKnownType(const std::string& Type)
{
	const std::string Inner = Type.find('|') == std::string::npos ? Type : Type.substr(Type.find('|') + 1);
	const std::size_t Comma = std::min(Inner.find(','), Inner.size());
	const auto IsKnown = [](const std::string& Part)
	{ return Part.empty() || std::find(std::begin(KnownTypes), std::end(KnownTypes), Part) != std::end(KnownTypes); };
	return IsKnown(Inner.substr(0, Comma)) && IsKnown(Inner.substr(std::min(Comma + 1, Inner.size())));
}

bool IsInteger(const std::string& Text)
{
	return !Text.empty() && Text.find_first_not_of("-0123456789") == std::string::npos;
}

FJson* FindById(FJson& Items, const std::string& Id)
{
	const auto Found = std::find_if(Items.begin(), Items.end(), [&Id](const FJson& Item)
		{ return EqualIgnoringCase(Item["id"].get<std::string>(), Id); });
	return Found == Items.end() ? nullptr : &*Found;
}

FJson* FindInScope(FJson& Variables, const std::string& Scope, const std::string& Name)
{
	FJson* const Found = FindById(Variables, Name);
	return Found && (*Found)["scope"] == Scope ? Found : nullptr;
}

std::string TargetName(const FJson& Target)
{
	const std::string Type = Target.value("target_type", "");
	const std::string Graph = Target.value("graph", "");
	return Type == "blueprint" ? "Blueprint" : Type == "graph" ? "Graph (" + Graph + ")"
															   : "Node (" + Target.value("node", "") + ") in Graph (" + Graph + ")";
}

FJson& PropertiesOf(FJson& Variable)
{
	if (!Variable["value"].is_object())
	{
		Variable["value"] = {{"type", Variable["type"]}, {"properties", FJson::array()}};
	}
	return Variable["value"]["properties"];
}

FJson MakeElement(const FJson& Value)
{
	FJson Element = {{"id", ""}, {"type", ""}, {"value", Value}, {"category", ""}};
	if (Value.is_object())
	{
		Element["value"] = {{"type", "entry"},
			{"properties", {{{"id", "key"}, {"value", Value["key"]}}, {{"id", "value"}, {"value", Value["value"]}}}}};
	}
	return Element;
}

void Renumber(FJson& Elements)
{
	for (std::size_t Index = 0; Index < Elements.size(); ++Index)
	{
		Elements[Index]["id"] = std::to_string(Index);
	}
}

}

FScriptedObjectEdit::FScriptedObjectEdit(FJson InBlueprint)
	: Blueprint(std::move(InBlueprint))
{
}

FJson FScriptedObjectEdit::Edit(const FJson& Arguments)
{
	FJson Errors = FJson::array();
	for (const FJson& Request : Arguments["requests"])
	{
		for (const FJson& Operation : Request["operations"])
		{
			const std::string Place = TargetName(Request["target"]);
			const std::string Name = Operation.value("name", Operation.value("prop_path", ""));
			const std::string Index = Operation.contains("index") ? " [" + Operation["index"].dump() + "]" : "";
			const std::string Value = Operation.contains("value") ? " " + Operation["value"].dump() : "";
			Operations.push_back((Place == "Blueprint" ? "" : Place + ": ") + Operation["operation"].get<std::string>() + " " + Operation.value("scope", "") + " " +
				Name + Index + Value);
			const std::string Failure = Execute(Request["target"], Operation);
			if (!Failure.empty())
			{
				Errors.push_back("Failed to execute operation on target '" + Place + "': " + Failure);
			}
		}
	}
	FJson Reply = {{"blueprint", Blueprint}};
	if (!Errors.empty())
	{
		Reply["errors"] = Errors;
	}
	return Reply;
}

FJson FScriptedObjectEdit::AddGraph(const FJson& Arguments)
{
	const std::string Name = Arguments["graph"];
	if (FindById(Blueprint["graphs"], Name))
	{
		return {};
	}
	Blueprint["graphs"].push_back({{"graph_type", "function"}, {"id", Name}, {"name", Name}, {"nodes", FJson::array()},
		{"variables", FJson::array()}});
	Operations.push_back("graph_add " + Name);
	return {{"blueprint", Blueprint}};
}

FJson FScriptedObjectEdit::RemoveGraph(const FJson& Arguments)
{
	FJson& Graphs = Blueprint["graphs"];
	FJson* const Graph = FindById(Graphs, Arguments["graph"]);
	if (!Graph)
	{
		return {};
	}
	Operations.push_back("graph_remove " + Arguments["graph"].get<std::string>());
	Graphs.erase(Graphs.begin() + (Graph - &Graphs[0]));
	return {{"blueprint", Blueprint}};
}

const FJson* FScriptedObjectEdit::FindVariable(const std::string& Name, const std::string& Graph)
{
	FJson* const Owner = Graph.empty() ? &Blueprint : FindById(Blueprint["graphs"], Graph);
	return Owner && Owner->contains("variables") ? FindById((*Owner)["variables"], Name) : nullptr;
}

FJson* FScriptedObjectEdit::FindVariables(const FJson& Target)
{
	FJson* Owner = &Blueprint;
	if (Target["target_type"] != "blueprint")
	{
		Owner = FindById(Blueprint["graphs"], Target["graph"]);
	}
	if (Owner && Target["target_type"] == "node")
	{
		Owner = FindById((*Owner)["nodes"], Target["node"]);
		return Owner ? &(*Owner)["editable_pins"] : nullptr;
	}
	return Owner ? &(*Owner)["variables"] : nullptr;
}

std::string FScriptedObjectEdit::Execute(const FJson& Target, const FJson& Operation)
{
	FJson* const Variables = FindVariables(Target);
	if (!Variables)
	{
		return "no such target";
	}
	const std::string Kind = Operation["operation"];
	const std::string Scope = Operation.value("scope", "");
	const std::string Name = Operation.value("name", Operation.value("prop_path", ""));
	FJson* const Variable = FindInScope(*Variables, Scope, Name);
	if (Kind == "add_variable")
	{
		const FJson& Value = Operation["value"];
		if (Variable)
		{
			return "Variable '" + Name + "' in scope '" + Scope + "' already exists";
		}
		if (!IsKnownType(Value["type_id"]))
		{
			return "Write Error: Failed to add variable '" + Name + "' of type '" + Value["type_id"].get<std::string>() + "'";
		}
		Variables->push_back({{"id", Name}, {"type", Value["type_id"]}, {"value", ""}, {"category", Value.value("category", "Default")},
			{"scope", Scope}});
		return {};
	}
	if (Kind == "update" && Scope.empty())
	{
		return Update(Target, Operation);
	}
	if (!Variable)
	{
		return "Variable '" + Name + "' with scope '" + Scope + "' not found";
	}
	if (Kind == "remove_variable")
	{
		Variables->erase(Variables->begin() + (Variable - &(*Variables)[0]));
		return {};
	}
	return Kind == "edit_variable" ? EditVariable(*Variable, Operation) : UpdateElements(*Variable, Operation);
}

std::string FScriptedObjectEdit::EditVariable(FJson& Variable, const FJson& Operation)
{
	const FJson& Value = Operation["value"];
	if (Value.contains("type_id") && !IsKnownType(Value["type_id"]))
	{
		return "Failed to edit variable: unknown type";
	}
	if (Value["prop_id"].get<std::string>().find(' ') != std::string::npos)
	{
		return "Failed to edit variable: the name is not valid";
	}
	Variable["id"] = Value["prop_id"];
	Variable["type"] = Value["type_id"];
	Variable["category"] = Value.value("category", Variable.value("category", ""));
	for (const char* const Flag : {"instance_editable", "private", "replicated"})
	{
		if (Value.contains(Flag))
		{
			Variable[Flag] = Value[Flag];
		}
	}
	return {};
}

std::string FScriptedObjectEdit::UpdateElements(FJson& Variable, const FJson& Operation)
{
	const std::string Kind = Operation["operation"];
	const FJson Value = Operation.value("value", FJson());
	const bool bContainer = Variable["type"].get<std::string>().find('|') != std::string::npos;
	if (!bContainer)
	{
		const std::string Type = Variable["type"];
		if (Type == "int" && !IsInteger(Value.get<std::string>()))
		{
			return "Failed to import text to property '" + Variable["id"].get<std::string>() + "': not a number";
		}
		if (Type == "enum.EDoorState" && Value != "Open" && Value != "Closed")
		{
			return "Failed to import text to property '" + Variable["id"].get<std::string>() + "': no such entry";
		}
		Variable["value"] = Value;
		return {};
	}
	FJson& Elements = PropertiesOf(Variable);
	const std::size_t Index = Operation.value("index", std::size_t(0));
	if (Kind == "insert")
	{
		Elements.insert(Elements.begin() + static_cast<std::ptrdiff_t>(Index), MakeElement(Value));
	}
	else if (Kind == "remove")
	{
		Elements.erase(Elements.begin() + static_cast<std::ptrdiff_t>(Index));
	}
	else
	{
		for (const auto& [Key, Item] : Value.items())
		{
			const std::size_t At = static_cast<std::size_t>(std::stoul(Key));
			while (Elements.size() <= At)
			{
				Elements.push_back(MakeElement(""));
			}
			Elements[At] = MakeElement(Item);
		}
	}
	Renumber(Elements);
	return {};
}

std::string FScriptedObjectEdit::Update(const FJson& Target, const FJson& Operation)
{
	const std::string Path = Operation["prop_path"];
	if (Path == "name")
	{
		FJson& Graph = *FindById(Blueprint["graphs"], Target["graph"]);
		if (Target["target_type"] == "node")
		{
			(*FindById(Graph["nodes"], Target["node"]))["properties"] = {{{"id", "name"}, {"value", Operation["value"]}}};
			return {};
		}
		Graph["id"] = Operation["value"];
		Graph["name"] = Operation["value"];
		return {};
	}
	static const struct
	{
		const char* Path;
		const char* Type;
	} Known[] = {{".InitialLifeSpan", "real"}, {".bHidden", "bool"}, {".Mesh.bVisible", "bool"}, {".Body.bVisible", "bool"},
		{".Body.LightColor", "struct.Color"}, {".Body.RelativeRotation.Yaw", "real"}, {".CharacterMovement.MaxWalkSpeed", "real"},
		{".Mesh.RelativeLocation", "struct.Vector"}, {".Mesh.RelativeScale3D", "struct.Vector"}};
	if (StartsWith(Path, std::string(DefaultObject) + ".PointLight."))
	{
		return "Property 'PointLight' does not contain a valid compound";
	}
	for (const auto& Property : Known)
	{
		if (Path != std::string(DefaultObject) + Property.Path)
		{
			continue;
		}
		const std::string Value = Operation["value"];
		if (std::string(Property.Type) == "real" && Value.find_first_not_of("-.0123456789") != std::string::npos)
		{
			return "Failed to import text to property '" + Path + "': no number";
		}
		if (std::string(Property.Type) == "struct.Vector" && !StartsWith(Value, "(X="))
		{
			return "Failed to import text to property '" + Path + "': no vector";
		}
		return {};
	}
	return "Property '" + std::string(LastSegment(Path, '.')) + "' not found in compound";
}

}

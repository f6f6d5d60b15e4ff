#include "Assistant/BlueprintModel.h"

#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxGraphs = 1000;
constexpr std::size_t MaxNodesInGraph = 5000;
constexpr std::size_t MaxPinsOfNode = 500;
constexpr std::size_t MaxLinksOfPin = 500;
constexpr std::size_t MaxVariables = 2000;
constexpr std::size_t MaxValueBytes = 2000;
constexpr int MaxValueDepth = 6;
constexpr std::size_t MaxPartsOfValue = 500;
constexpr const char* DefaultObjectId = "$ClassDefaultObject";
constexpr const char* VariableFlags[] = {
	"instance_editable", "read_only", "private", "expose_on_spawn", "save_game", "transient", "replicated"};

// The editor shows "Array Element" where the pin may be called "ArrayElement".
bool SamePinId(std::string_view A, std::string_view B)
{
	const auto Compact = [](std::string_view Text)
	{
		std::string Letters = LowerCase(Text);
		std::erase(Letters, ' ');
		return Letters;
	};
	return EqualIgnoringCase(A, B) || Compact(A) == Compact(B);
}

const FBlueprintPin* FindPinWhere(const std::vector<FBlueprintPin>& Pins, std::string_view PinId, std::optional<bool> Input)
{
	const auto Found = std::find_if(Pins.begin(), Pins.end(), [&](const FBlueprintPin& Pin)
		{ return (!Input || Pin.bInput == *Input) && SamePinId(Pin.Id, PinId); });
	return Found == Pins.end() ? nullptr : &*Found;
}

std::string IdMember(const FJson& Object)
{
	for (const char* const Key : {"id", "prop_id", "name"})
	{
		std::string Id = TextMember(Object, Key);
		if (!Id.empty())
		{
			return Id;
		}
	}
	return {};
}

std::string ValueAsText(const FJson* Value, int Depth = 0);

// A struct or a container travels as an object with its parts under "properties".
std::string CompoundAsText(const FJson& Compound, int Depth)
{
	std::string Text;
	for (const FJson& Part : ArrayMember(Compound, "properties"))
	{
		if (Text.size() > MaxValueBytes)
		{
			break;
		}
		const std::string PartId = IdMember(Part);
		const std::string PartText = ValueAsText(FindMember(Part, "value"), Depth + 1);
		const bool bIndexed = PartId.empty() || std::all_of(PartId.begin(), PartId.end(), [](char Character)
													{ return Character >= '0' && Character <= '9'; });
		Text += (Text.empty() ? "" : ", ") + (bIndexed ? PartText : PartId + " = " + PartText);
	}
	return "(" + Text + ")";
}

std::string ValueAsText(const FJson* Value, int Depth)
{
	if (!Value || Value->is_null() || Depth > MaxValueDepth)
	{
		return {};
	}
	if (Value->is_string())
	{
		return Value->get_ref<const std::string&>().substr(0, MaxValueBytes);
	}
	if (Value->is_object())
	{
		return CompoundAsText(*Value, Depth);
	}
	return Value->is_primitive() ? JsonLine(*Value) : std::string();
}

std::vector<FBlueprintProperty> ReadParts(const FJson* Value, int Depth);

FBlueprintProperty ReadProperty(const FJson& Object, int Depth)
{
	const FJson* const Value = FindMember(Object, "value");
	return {IdMember(Object), TextMember(Object, "type"), ValueAsText(Value), ReadParts(Value, Depth + 1)};
}

std::vector<FBlueprintProperty> ReadParts(const FJson* Value, int Depth)
{
	std::vector<FBlueprintProperty> Parts;
	for (const FJson& Part : Value&& Depth <= MaxValueDepth ? ArrayMember(*Value, "properties") : FJson::array())
	{
		if (Parts.size() < MaxPartsOfValue)
		{
			Parts.push_back(ReadProperty(Part, Depth));
		}
	}
	return Parts;
}

FBlueprintPin ReadPin(const FJson& Object)
{
	FBlueprintPin Pin;
	Pin.Id = IdMember(Object);
	Pin.Name = TextMember(Object, "name");
	Pin.Type = TextMember(Object, "type");
	Pin.Value = ValueAsText(FindMember(Object, "value"));
	Pin.bInput = TextMember(Object, "dir") == "input";
	for (const FJson& Link : ArrayMember(Object, "connections"))
	{
		if (Pin.Links.size() == MaxLinksOfPin)
		{
			break;
		}
		Pin.Links.push_back({TextMember(Link, "node"), TextMember(Link, "pin")});
	}
	return Pin;
}

std::vector<std::string> ReadFlags(const FJson& Variable)
{
	std::vector<std::string> Flags;
	for (const char* const Flag : VariableFlags)
	{
		const FJson* const Value = FindMember(Variable, Flag);
		if (Value && Value->is_boolean() && Value->get<bool>())
		{
			Flags.emplace_back(Flag);
		}
	}
	return Flags;
}

void ReadVariables(const FJson& Object, const char* Key, std::vector<FBlueprintVariable>& Variables, bool& bComplete)
{
	for (const FJson& Item : ArrayMember(Object, Key))
	{
		if (Variables.size() == MaxVariables)
		{
			bComplete = false;
			break;
		}
		std::string Scope = TextMember(Item, "scope");
		if (Scope.empty())
		{
			Scope = TextMember(Item, "scope_id");
		}
		FBlueprintProperty Property = ReadProperty(Item, 0);
		Variables.push_back({std::move(Property.Id), std::move(Property.Type), std::move(Property.Value), TextMember(Item, "category"),
			std::move(Scope), std::move(Property.Parts), ReadFlags(Item)});
	}
}

FBlueprintNode ReadNode(const FJson& Object, bool& bComplete)
{
	FBlueprintNode Node;
	Node.Id = TextMember(Object, "id");
	Node.Type = TextMember(Object, "node_type");
	for (const FJson& Property : ArrayMember(Object, "properties"))
	{
		if (EqualIgnoringCase(IdMember(Property), "name"))
		{
			Node.Name = ValueAsText(FindMember(Property, "value"));
		}
	}
	for (const FJson& Pin : ArrayMember(Object, "pins"))
	{
		if (Node.Pins.size() == MaxPinsOfNode)
		{
			bComplete = false;
			break;
		}
		Node.Pins.push_back(ReadPin(Pin));
	}
	ReadVariables(Object, "editable_pins", Node.EditablePins, bComplete);
	return Node;
}

// The kind is told by its word, whichever prefix or spelling it comes with ("GT_Ubergraph", "event_graph", "function").
EGraphKind ReadGraphKind(const std::string& Word)
{
	const std::string Lower = LowerCase(Word);
	const auto Has = [&Lower](const char* Part)
	{ return Lower.find(Part) != std::string::npos; };
	if (Has("uber") || Has("event"))
	{
		return EGraphKind::Event;
	}
	if (Has("function"))
	{
		return EGraphKind::Function;
	}
	return Has("macro") ? EGraphKind::Macro : EGraphKind::Other;
}

FBlueprintGraph ReadGraph(const FJson& Object, bool& bComplete)
{
	FBlueprintGraph Graph;
	Graph.Id = TextMember(Object, "id");
	Graph.Name = TextMember(Object, "name");
	Graph.Kind = ReadGraphKind(TextMember(Object, "graph_type"));
	for (const FJson& Node : ArrayMember(Object, "nodes"))
	{
		if (Graph.Nodes.size() == MaxNodesInGraph)
		{
			bComplete = false;
			break;
		}
		Graph.Nodes.push_back(ReadNode(Node, bComplete));
	}
	ReadVariables(Object, "variables", Graph.Variables, bComplete);
	Graph.IndexNodes();
	return Graph;
}

std::vector<std::string> ReadParentChain(const FJson& Export)
{
	std::vector<std::string> Chain;
	const FJson* const Member = FindMember(Export, "parent_chain");
	if (Member && Member->is_string())
	{
		Chain.push_back(ShortName(Member->get<std::string>()));
	}
	for (const FJson& Parent : ArrayMember(Export, "parent_chain"))
	{
		const std::string Name = Parent.is_string() ? Parent.get<std::string>() : IdMember(Parent);
		if (!Name.empty() && Chain.size() < 64)
		{
			Chain.push_back(ShortName(Name));
		}
	}
	return Chain;
}

}

const FBlueprintProperty* FBlueprintProperty::FindPart(std::string_view PartId) const
{
	const auto Found = std::find_if(Parts.begin(), Parts.end(), [PartId](const FBlueprintProperty& Part)
		{ return EqualIgnoringCase(Part.Id, PartId); });
	return Found == Parts.end() ? nullptr : &*Found;
}

const FBlueprintPin* FBlueprintNode::FindPin(std::string_view PinId) const
{
	return FindPinWhere(Pins, PinId, std::nullopt);
}

const FBlueprintPin* FBlueprintNode::FindInput(std::string_view PinId) const
{
	return FindPinWhere(Pins, PinId, true);
}

const FBlueprintPin* FBlueprintNode::FindOutput(std::string_view PinId) const
{
	return FindPinWhere(Pins, PinId, false);
}

bool FBlueprintNode::HasExecPin(bool bInput) const
{
	return std::any_of(Pins.begin(), Pins.end(), [bInput](const FBlueprintPin& Pin)
		{ return Pin.IsExec() && Pin.bInput == bInput; });
}

const FBlueprintNode* FBlueprintGraph::FindNode(const std::string& NodeId) const
{
	const auto Found = NodeIndices.find(LowerCase(NodeId));
	return Found == NodeIndices.end() ? nullptr : &Nodes[Found->second];
}

void FBlueprintGraph::IndexNodes()
{
	for (std::size_t Index = 0; Index < Nodes.size(); ++Index)
	{
		NodeIndices.emplace(LowerCase(Nodes[Index].Id), Index);
	}
}

const FBlueprintGraph* FBlueprintModel::FindGraph(std::string_view GraphId) const
{
	const auto Found = std::find_if(Graphs.begin(), Graphs.end(), [GraphId](const FBlueprintGraph& Graph)
		{ return EqualIgnoringCase(Graph.Id, GraphId); });
	return Found == Graphs.end() ? nullptr : &*Found;
}

std::optional<FBlueprintModel> ReadBlueprintModel(const FJson& Export)
{
	if (!FindMember(Export, "id") && !FindMember(Export, "graphs") && !FindMember(Export, "variables"))
	{
		return std::nullopt;
	}
	FBlueprintModel Model;
	Model.Id = TextMember(Export, "id");
	Model.Name = ShortName(Model.Id);
	Model.ParentChain = ReadParentChain(Export);
	Model.Kind = TextMember(Export, "bp_type");
	// A chain that starts with the Blueprint's own class names no parent there.
	if (!Model.ParentChain.empty() && EqualIgnoringCase(Model.ParentChain.front(), Model.Name))
	{
		Model.ParentChain.erase(Model.ParentChain.begin());
	}
	for (const FJson& Graph : ArrayMember(Export, "graphs"))
	{
		if (Model.Graphs.size() == MaxGraphs)
		{
			Model.bComplete = false;
			break;
		}
		Model.Graphs.push_back(ReadGraph(Graph, Model.bComplete));
	}
	ReadVariables(Export, "variables", Model.Variables, Model.bComplete);
	for (const FJson& Property : ArrayMember(Export, "properties"))
	{
		if (IdMember(Property) == DefaultObjectId)
		{
			Model.Defaults = ReadProperty(Property, 0);
		}
	}
	return Model;
}

}

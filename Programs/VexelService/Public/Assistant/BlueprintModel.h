#pragma once

#include "Support/JsonText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VexelService
{

/** The far end of a wire, by the ids of its node and pin. */
struct FPinLink
{
	std::string Node;
	std::string Pin;
};

struct FBlueprintPin
{
	std::string Id;
	/** What the editor shows; may be empty. */
	std::string Name;
	/** The property-type id. */
	std::string Type;
	/** The value that holds while nothing is connected, as text. */
	std::string Value;
	bool bInput = false;
	std::vector<FPinLink> Links;

	bool IsExec() const { return Type == "exec"; }
};

/** A value with its parts: the fields of a struct or an object, the elements of a container. */
struct FBlueprintProperty
{
	/** Its name, or the index of an element. */
	std::string Id;
	std::string Type;
	/** All of it as text. */
	std::string Value;
	std::vector<FBlueprintProperty> Parts;

	/** Null when no part has the id, compared as the editor's names are. */
	const FBlueprintProperty* FindPart(std::string_view PartId) const;
};

struct FBlueprintVariable
{
	std::string Id;
	std::string Type;
	std::string Value;
	std::string Category;
	/** "member", "in", "out" or "local". */
	std::string Scope;
	std::vector<FBlueprintProperty> Parts = {};
	/** The keys of what else holds of it: "instance_editable", "private". */
	std::vector<std::string> Flags = {};
};

struct FBlueprintNode
{
	std::string Id;
	/** The node-type id; empty when the export names none. */
	std::string Type;
	/** The "name" property that custom events have. */
	std::string Name;
	std::vector<FBlueprintPin> Pins;
	/** The pins that the user has defined, as variables of the scope "in" or "out". */
	std::vector<FBlueprintVariable> EditablePins = {};

	/** Ids compare without regard to case, as the editor's names do. */
	const FBlueprintPin* FindPin(std::string_view PinId) const;
	const FBlueprintPin* FindInput(std::string_view PinId) const;
	const FBlueprintPin* FindOutput(std::string_view PinId) const;
	bool HasExecPin(bool bInput) const;
};

enum class EGraphKind
{
	Event,
	Function,
	Macro,
	Other,
};

class FBlueprintGraph
{
public:
	std::string Id;
	std::string Name;
	EGraphKind Kind = EGraphKind::Other;
	std::vector<FBlueprintNode> Nodes;
	std::vector<FBlueprintVariable> Variables;

	const FBlueprintNode* FindNode(const std::string& NodeId) const;

	/** What the graph is called in an answer. */
	const std::string& Title() const { return Name.empty() ? Id : Name; }

	/** Builds what FindNode looks into; called once the nodes stand. */
	void IndexNodes();

private:
	std::unordered_map<std::string, std::size_t> NodeIndices;
};

/** A Blueprint as "read_blueprint" exports it. Whatever the JSON lacks is empty here; nothing in it can make reading fail. */
struct FBlueprintModel
{
	/** The object path. */
	std::string Id;
	/** The asset's name. */
	std::string Name;
	/** The nearest parent class first. */
	std::vector<std::string> ParentChain;
	std::string Kind;
	std::vector<FBlueprintGraph> Graphs;
	std::vector<FBlueprintVariable> Variables;
	/** The class's default object, as far as it differs from the parent class's; it has no parts when it is not exported. */
	FBlueprintProperty Defaults;
	/** False when the export was larger than the limits and the rest was left out. */
	bool bComplete = true;

	const FBlueprintGraph* FindGraph(std::string_view GraphId) const;
};

/** Nothing when the JSON is no Blueprint export at all (it has none of "id", "graphs" and "variables"). */
std::optional<FBlueprintModel> ReadBlueprintModel(const FJson& Export);

}

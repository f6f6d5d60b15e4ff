#include "Assistant/UsageSearch.h"

#include "Assistant/BlueprintEntries.h"
#include "Assistant/GraphWalker.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/VariableUse.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <map>

namespace VexelService
{

namespace
{

constexpr const char* UseVerbs[] = {"reads it", "sets it", "calls it"};

// "cast.BP_Door" and "call.BP_Door_C.Open" name the class in a segment of their own.
bool TypeNames(std::string_view TypeId, std::string_view Name)
{
	while (!TypeId.empty())
	{
		const std::size_t Separator = std::min(TypeId.find_first_of(".|,"), TypeId.size());
		if (SameName(ClassName(TypeId.substr(0, Separator)), Name))
		{
			return true;
		}
		TypeId.remove_prefix(std::min(Separator + 1, TypeId.size()));
	}
	return false;
}

bool ValueNames(std::string_view Value, std::string_view Name)
{
	const bool bReference = Value.find('/') != std::string_view::npos;
	return bReference && SameName(ClassName(ShortName(Value)), Name);
}

bool NodeNames(const FBlueprintNode& Node, std::string_view Name)
{
	const bool bValue = std::any_of(Node.Pins.begin(), Node.Pins.end(), [Name](const FBlueprintPin& Pin)
		{ return Pin.bInput && Pin.Links.empty() && ValueNames(Pin.Value, Name); });
	return bValue || TypeNames(Node.Type, Name);
}

// Each text once, with how often it was there.
std::vector<std::string> Folded(const std::vector<std::string>& Texts)
{
	std::vector<std::string> Different;
	std::map<std::string, std::size_t> Counts;
	for (const std::string& Text : Texts)
	{
		if (++Counts[Text] == 1)
		{
			Different.push_back(Text);
		}
	}
	for (std::string& Text : Different)
	{
		const std::size_t Count = Counts[Text];
		Text += Count > 1 ? " (" + std::to_string(Count) + " times)" : "";
	}
	return Different;
}

std::string InGraph(const FBlueprintGraph& Graph, const std::string& What)
{
	return "in " + Graph.Title() + ", " + What;
}

}

std::vector<std::string> MemberNames(const FBlueprintModel& Model)
{
	std::vector<std::string> Names;
	for (const FBlueprintEntry& Function : FindFunctions(Model))
	{
		Names.push_back(Function.Graph->Title());
	}
	for (const FBlueprintEntry& Event : FindEvents(Model))
	{
		if (IsNodeType(*Event.Node, "event.custom"))
		{
			Names.push_back(Event.Node->Name.empty() ? NodeTitle(*Event.Node) : Event.Node->Name);
		}
	}
	for (const FBlueprintVariable& Variable : Model.Variables)
	{
		Names.push_back(Variable.Id);
	}
	return Names;
}

std::vector<std::string> FindReferencers(const FJson& Info)
{
	std::vector<std::string> Packages;
	const FJson* const Member = FindMember(Info, "referencers");
	for (const char* const Strength : {"hard", "soft"})
	{
		for (const FJson& Item : Member ? ArrayMember(*Member, Strength) : FJson::array())
		{
			if (Item.is_string() && std::find(Packages.begin(), Packages.end(), Item.get<std::string>()) == Packages.end())
			{
				Packages.push_back(Item.get<std::string>());
			}
		}
	}
	return Packages;
}

std::vector<std::string> FindMentions(const FBlueprintModel& Model, std::string_view Name)
{
	std::vector<std::string> Mentions;
	if (!Model.ParentChain.empty() && SameName(ClassName(Model.ParentChain.front()), Name))
	{
		Mentions.push_back("it is its parent class");
	}
	for (const FBlueprintVariable& Variable : Model.Variables)
	{
		if (TypeNames(Variable.Type, Name) || ValueNames(Variable.Value, Name))
		{
			Mentions.push_back("the variable " + Variable.Id + " (" + TypeInWords(Variable.Type) + ")");
		}
	}
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		FGraphWalker Walker(Model, Graph);
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (!NodeNames(Node, Name))
			{
				continue;
			}
			const bool bRuns = Node.HasExecPin(true) || Node.HasExecPin(false);
			Mentions.push_back(InGraph(Graph, bRuns ? "the step \"" + Walker.Tell(Node) + "\"" : "the node \"" + NodeTitle(Node) + "\""));
		}
	}
	return Folded(Mentions);
}

std::vector<std::string> FindMemberUses(const FBlueprintModel& Model, std::string_view Name)
{
	std::vector<std::string> Uses;
	for (const FVariableUse& Use : FindVariableUses(Model, Name))
	{
		Uses.push_back(InGraph(*Use.Graph, "the step \"" + Use.Step + "\" " + UseVerbs[static_cast<std::size_t>(Use.Kind)]));
	}
	return Folded(Uses);
}

}

#include "Components.h"

#include "FlowVocabulary.h"
#include "Assistant/AssetFinder.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::string_view Suffix = "component";

/** "Mesh" of "MeshComponent"; the name itself where nothing would be left. */
std::string WithoutSuffix(const std::string& CompactedName)
{
	const bool bHasSuffix = CompactedName.size() > Suffix.size() &&
		std::string_view(CompactedName).substr(CompactedName.size() - Suffix.size()) == Suffix;
	return bHasSuffix ? CompactedName.substr(0, CompactedName.size() - Suffix.size()) : CompactedName;
}

template <typename FPredicate>
std::vector<FComponent> Filter(const std::vector<FComponent>& Components, FPredicate Takes)
{
	std::vector<FComponent> Taken;
	std::copy_if(Components.begin(), Components.end(), std::back_inserter(Taken), Takes);
	return Taken;
}

}

FComponents::FComponents(const FBlueprintModel& Model)
{
	for (const FBlueprintProperty& Property : Model.Defaults.Parts)
	{
		Add(Property.Id, Property.Type);
	}
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			const FBlueprintPin* const Output = IsNodeType(Node, "var.get") ? Node.FindOutput(LastSegment(Node.Type, '.')) : nullptr;
			if (Output)
			{
				Add(Output->Id, Output->Type);
			}
		}
	}
	bAllKnown = !Model.Defaults.Id.empty();
}

void FComponents::Add(std::string_view Name, std::string_view Type)
{
	const bool bComponent = StartsWith(Type, "object.") && Type.find("Component") != std::string_view::npos;
	const bool bKnown = std::any_of(Components.begin(), Components.end(), [Name](const FComponent& Component)
		{ return EqualIgnoringCase(Component.Name, Name); });
	if (bComponent && !bKnown)
	{
		Components.push_back({std::string(Name), std::string(LastSegment(Type, '.'))});
	}
}

std::vector<FComponent> FComponents::Find(std::string_view Said) const
{
	const std::string Words = WithoutSuffix(CompactName(Said));
	if (Words.empty())
	{
		return {};
	}
	const auto IsCalled = [&Words](const FComponent& Component)
	{ return WithoutSuffix(CompactName(Component.Name)) == Words; };
	const auto BearsWords = [&Words](const FComponent& Component)
	{ return CompactName(Component.Name).find(Words) != std::string::npos; };
	const auto IsOfClass = [&Words](const FComponent& Component)
	{ return WithoutSuffix(CompactName(Component.Class)).find(Words) != std::string::npos; };
	const FComponentWord* const Word = FindComponentWord(Said);
	const auto IsOfWord = [Word](const FComponent& Component)
	{ return Word && Component.Class == Word->Class; };

	std::vector<FComponent> Found = Filter(Components, IsCalled);
	for (const bool bByClass : {true, false})
	{
		Found = !Found.empty() ? Found : bByClass ? Filter(Components, IsOfClass)
												  : Filter(Components, BearsWords);
	}
	Found = Found.empty() ? Filter(Components, IsOfWord) : Found;
	// Of several lights, that which is called so too.
	const std::vector<FComponent> Called = Filter(Found, BearsWords);
	return Found.size() > 1 && Called.size() == 1 ? Called : Found;
}

std::string FComponents::DescribeChoice(const FBlueprintModel& Model, std::string_view Said, const std::vector<FComponent>& Found)
{
	std::vector<std::string> Names;
	Names.reserve(Found.size());
	for (const FComponent& Component : Found)
	{
		Names.push_back(Bold(Component.Name));
	}
	return Bold(Model.Name) + " has " + CountOf(Found.size(), "component") + " that fit " + Quoted(std::string(Said)) + ": " +
		JoinWithAnd(Names) + ". Name the one that you mean.";
}

}

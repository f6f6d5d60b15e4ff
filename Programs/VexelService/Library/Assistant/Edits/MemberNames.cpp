#include "Assistant/Edits/MemberNames.h"

#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::string_view SelfWords =
	"it|itself|self|this|actor|me|myself|this actor|own actor|owner|everything|them|him|her|character|pawn";
constexpr std::string_view SmallWords = "the|a|an|its|my|of|to|at|and|it|this|with|by";
constexpr std::size_t MaxNameBytes = 40;

bool IsLetter(char Character) { return (Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z'); }

bool IsNameCharacter(char Character) { return IsLetter(Character) || (Character >= '0' && Character <= '9'); }

std::string WithoutBoolean(const std::string& Name)
{
	const bool bPrefixed = Name.size() > 1 && Name[0] == 'b' && Name[1] >= 'A' && Name[1] <= 'Z';
	return bPrefixed ? Name.substr(1) : Name;
}

}

std::vector<FCallable> ListCallables(const FBlueprintModel& Model)
{
	std::vector<FCallable> Callables;
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		if (Graph.Kind == EGraphKind::Function && !SameName(Graph.Id, "UserConstructionScript"))
		{
			Callables.push_back({ECallableKind::Function, Graph.Id, Graph.Id});
		}
		if (Graph.Kind == EGraphKind::Other)
		{
			Callables.push_back({ECallableKind::Dispatcher, Graph.Id, Graph.Id});
		}
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			if (Node.Type == "event.custom")
			{
				std::string Name = Node.Name;
				if (Name.empty())
				{
					Name = NodeTitle(Node);
					std::erase(Name, ' ');
				}
				Callables.push_back({ECallableKind::CustomEvent, Name, Graph.Id, Node.Id});
			}
		}
	}
	return Callables;
}

std::optional<FCallable> FindCallable(const FBlueprintModel& Model, std::string_view Said, bool bExact)
{
	const std::vector<FCallable> Callables = ListCallables(Model);
	std::vector<std::string> Names;
	Names.reserve(Callables.size());
	for (const FCallable& Callable : Callables)
	{
		Names.push_back(Callable.Name);
	}
	const std::optional<FNameMatch> Match = FindName(Said, Names);
	const bool bGood = Match && (!bExact || Match->bExact);
	return bGood ? std::optional<FCallable>(Callables[Match->Index]) : std::nullopt;
}

std::optional<FCallable> FindCallableByVerb(const FBlueprintModel& Model, std::string_view Verb)
{
	std::optional<FCallable> Found;
	for (const FCallable& Callable : ListCallables(Model))
	{
		const std::string Words = SpacedName(Callable.Name);
		if (!EqualIgnoringCase(Words.substr(0, Words.find(' ')), Verb))
		{
			continue;
		}
		if (Found)
		{
			return std::nullopt;
		}
		Found = Callable;
	}
	return Found;
}

const FBlueprintVariable* FindMemberVariable(const FBlueprintModel& Model, std::string_view Said)
{
	std::vector<std::string> Names;
	for (const FBlueprintVariable& Variable : Model.Variables)
	{
		Names.push_back(SameName(Said, Variable.Id) ? Variable.Id : WithoutBoolean(Variable.Id));
	}
	const std::optional<FNameMatch> Match = FindName(Said, Names);
	return Match ? &Model.Variables[Match->Index] : nullptr;
}

bool MeansSelf(const FBlueprintModel& Model, std::string_view Said)
{
	const std::string Bare = IsPrefixedAssetName(Model.Name) ? Model.Name.substr(Model.Name.find('_') + 1) : Model.Name;
	return Said.empty() || IsOneOf(Said, SelfWords) || SameName(Said, Model.Name) || SameName(Said, Bare);
}

std::string ToMemberName(std::string_view Words)
{
	std::string Name;
	for (const std::string_view Word : SplitWords(Words, MaxNameBytes))
	{
		if (IsOneOf(Word, SmallWords) || Name.size() > MaxNameBytes)
		{
			continue;
		}
		std::string Clean;
		for (const char Character : IsPrefixedAssetName(Word) ? Word.substr(Word.find('_') + 1) : Word)
		{
			Clean += IsNameCharacter(Character) ? std::string(1, Character) : std::string();
		}
		Name += UpperFirst(std::move(Clean));
	}
	return !Name.empty() && IsLetter(Name.front()) ? Name : std::string();
}

std::string UniqueMemberName(const FBlueprintModel& Model, const std::string& Name)
{
	const auto IsTaken = [&Model](const std::string& Candidate)
	{
		const bool bVariable = std::any_of(Model.Variables.begin(), Model.Variables.end(),
			[&](const FBlueprintVariable& Variable)
			{ return EqualIgnoringCase(Variable.Id, Candidate); });
		return bVariable || FindCallable(Model, Candidate, true).has_value();
	};
	std::string Candidate = Name;
	for (int Number = 2; IsTaken(Candidate); ++Number)
	{
		Candidate = Name + std::to_string(Number);
	}
	return Candidate;
}

FFoundNode FindNodeOfType(const FBlueprintModel& Model, std::string_view Type)
{
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		const auto Found = std::find_if(
			Graph.Nodes.begin(), Graph.Nodes.end(), [Type](const FBlueprintNode& Node)
			{ return EqualIgnoringCase(Node.Type, Type); });
		if (Graph.Kind == EGraphKind::Event && Found != Graph.Nodes.end())
		{
			return {&Graph, &*Found};
		}
	}
	return {};
}

const FBlueprintGraph* FindEventGraph(const FBlueprintModel& Model)
{
	const auto Found = std::find_if(
		Model.Graphs.begin(), Model.Graphs.end(), [](const FBlueprintGraph& Graph)
		{ return Graph.Kind == EGraphKind::Event; });
	return Found == Model.Graphs.end() ? nullptr : &*Found;
}

}

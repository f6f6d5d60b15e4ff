#include "Assistant/Edits/ValuePlanner.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/Edits/Components.h"
#include "Assistant/Edits/MemberNames.h"
#include "Assistant/NameMatch.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

constexpr std::string_view Getter = "var.get.";
/** Names that are tried for one component. */
constexpr std::size_t MaxProbes = 5;

struct FClassWord
{
	std::string_view Words;
	const char* Path;
};

constexpr FClassWord ClassWords[] = {
	{"point light|pointlight|light", "/Script/Engine.PointLight"},
	{"spot light|spotlight", "/Script/Engine.SpotLight"},
	{"static mesh actor|mesh", "/Script/Engine.StaticMeshActor"},
	{"character", "/Script/Engine.Character"},
	{"pawn", "/Script/Engine.Pawn"},
	{"actor", "/Script/Engine.Actor"},
};

/** "Enemies" as "Enemy"; what ends otherwise as it is. */
std::string Singular(const std::string& Plural)
{
	const bool bOfY = Plural.size() > 4 && EqualIgnoringCase(std::string_view(Plural).substr(Plural.size() - 3), "ies");
	const bool bPlural = Plural.size() > 3 && EqualIgnoringCase(std::string_view(Plural).substr(Plural.size() - 1), "s");
	return bOfY ? Plural.substr(0, Plural.size() - 3) + "y" : bPlural ? Plural.substr(0, Plural.size() - 1)
																	  : Plural;
}

/** The editor names what is spelt like it: a member of the Blueprint whose name has the word in it may be what was meant. */
void AddNearestMembers(const std::vector<std::string>& Errors, const std::string& Said, std::vector<std::string>& Names)
{
	for (const std::string& Error : Errors)
	{
		for (const std::string& Nearest : ReadNearestTypes(Error))
		{
			const std::string Name = StartsWith(Nearest, Getter) ? Nearest.substr(Getter.size()) : std::string();
			const bool bOwn = !Name.empty() && Name.find('.') == std::string::npos;
			const bool bFits = bOwn && CompactName(Name).find(CompactName(Said)) != std::string::npos;
			if (bFits && std::find(Names.begin(), Names.end(), Name) == Names.end())
			{
				Names.push_back(Name);
			}
		}
	}
}

}

FPlanValue FValuePlanner::ReadObject(const std::string& Words, const FValueScope& Scope)
{
	// "The lamp's visibility" is about the lamp.
	const bool bPossessive = Words.size() > 2 && EqualIgnoringCase(std::string_view(Words).substr(Words.size() - 2), "'s");
	const std::string Said = bPossessive ? Words.substr(0, Words.size() - 2) : Words;
	if (FPlanValue Output = ReadNamed(Said, EValueKind::Text, Scope); !Output.IsEmpty())
	{
		return Output;
	}
	if (MeansSelf(Model(), Said))
	{
		return {};
	}
	if (FPlanValue Phrase = ReadPhrase(SplitEditWords(Said).value_or(FEditWords()), Scope); IsObjectType(Phrase.Type))
	{
		return Phrase;
	}
	return ReadComponent(Said, Scope);
}

FPlanValue FValuePlanner::ReadComponent(const std::string& Said, const FValueScope& Scope)
{
	const std::string Key = Scope.Graph + " " + CompactName(Said);
	const auto Known = Components.find(Key);
	if (Known != Components.end())
	{
		return Known->second;
	}
	if (const std::vector<FComponent> Fitting = FComponents(Model()).Find(Said); Fitting.size() > 1)
	{
		AddProblem(FComponents::DescribeChoice(Model(), Shortened(Said, 100), Fitting));
		return Components[Key] = {};
	}
	FPlanValue Found = ProbeComponent(Said, Scope);
	Found = Found.IsEmpty() ? WantComponent(Said, Scope) : Found;
	if (Found.IsEmpty())
	{
		AddProblem("**" + Model().Name + "** has no component and no variable called " + Quoted(Shortened(Said, 100)) + ".");
	}
	return Components[Key] = Found;
}

/** A light is a light wherever it hangs, so one can be made; what a mesh or a box would be like, nobody has said. */
FPlanValue FValuePlanner::WantComponent(const std::string& Said, const FValueScope& Scope)
{
	const FComponentWord* const Word = FindComponentWord(Said);
	if (!Word || !Word->bCanBeMade)
	{
		return {};
	}
	const auto Known =
		std::find_if(Missing.begin(), Missing.end(), [Word](const FMissingComponent& Other)
			{ return Other.Class == Word->Class; });
	if (Known != Missing.end())
	{
		return ReadVariable(Known->Variable, Scope);
	}
	const std::optional<FBlueprintVariable> Variable = WantVariable(Said, "object." + std::string(Word->Class), {});
	if (!Variable)
	{
		return {};
	}
	Missing.push_back({Said, std::string(Word->Class), *Variable});
	return ReadVariable(*Variable, Scope);
}

FPlanValue FValuePlanner::ProbeComponent(const std::string& Said, const FValueScope& Scope)
{
	const FComponents Known(Model());
	std::vector<std::string> Names;
	for (const FComponent& Component : Known.Find(Said))
	{
		Names.push_back(Component.Name);
	}
	if (Names.empty() && !Known.AreAllKnown())
	{
		Names.push_back(ToMemberName(Said));
		if (const FComponentWord* const Word = FindComponentWord(Said))
		{
			Names.emplace_back(Word->Class.substr(0, Word->Class.size() - std::string_view("Component").size()));
		}
	}
	std::erase(Names, std::string());
	for (std::size_t At = 0; At < std::min(Names.size(), MaxProbes); ++At)
	{
		const FSpawnOutcome Outcome = Editor.SpawnNodes(Scope.Graph, {{std::string(Getter) + Names[At]}});
		const FBlueprintGraph* const Graph = Editor.FindGraph(Scope.Graph);
		const std::string Id = Outcome.Nodes.empty() ? std::string() : Outcome.Nodes.front();
		const FBlueprintNode* const Node = Graph && !Id.empty() ? Graph->FindNode(Id) : nullptr;
		const auto Output = Node ? std::find_if(Node->Pins.begin(), Node->Pins.end(),
									   [](const FBlueprintPin& Pin)
									   { return !Pin.bInput && IsObjectType(Pin.Type); })
								 : std::vector<FBlueprintPin>::const_iterator();
		if (Node && Output != Node->Pins.end())
		{
			const FPlanIndex Index = Plan.AddNode({.Graph = Scope.Graph, .Type = Node->Type, .Existing = Id});
			return {.Literal = {}, .Pin = FPlanPin{Index, Output->Id, Output->Type}, .Type = Output->Type};
		}
		if (Node)
		{
			Editor.RemoveNodes(Scope.Graph, {Id});
		}
		AddNearestMembers(Outcome.Errors, Said, Names);
		if (Editor.GetReader().IsOver())
		{
			break;
		}
	}
	return {};
}

std::string FValuePlanner::FindClass(const std::string& Said)
{
	if (StartsWith(Said, "/"))
	{
		const std::string Package = PackageOf(Said);
		return StartsWith(Said, "/Script/") ? Said : Package + "." + ShortName(Package) + "_C";
	}
	for (const std::string& Wanted : {ClassName(Said), Singular(ClassName(Said))})
	{
		const std::optional<FAssetList> List = Editor.GetReader().SearchAssets({.Words = Wanted, .Class = "Blueprint"});
		std::vector<std::string> Names;
		for (const FAssetRow& Row : List ? List->Rows : std::vector<FAssetRow>())
		{
			Names.push_back(Row.Name);
		}
		if (const std::optional<FNameMatch> Match = FindName(Wanted, Names))
		{
			const FAssetRow& Row = List->Rows[Match->Index];
			if (!SameName(Said, Row.Name))
			{
				Plan.AddNote("I take " + Quoted(Shortened(Said, 100)) + " to mean **" + Row.Name + "**.");
			}
			return Row.Path + "_C";
		}
	}
	const auto Engine =
		std::find_if(std::begin(ClassWords), std::end(ClassWords), [&Said](const FClassWord& Row)
			{ return IsOneOf(Said, Row.Words); });
	if (Engine != std::end(ClassWords))
	{
		return Engine->Path;
	}
	AddProblem("I find no class of actors called " + Quoted(Shortened(Said, 100)) + ".");
	return {};
}

std::string FValuePlanner::FindAsset(const std::string& Said)
{
	if (StartsWith(Said, "/"))
	{
		const std::string Package = PackageOf(Said);
		return Package + "." + ShortName(Package);
	}
	const std::optional<FAssetList> List = Editor.GetReader().SearchAssets({.Words = Said, .Class = "SoundBase"});
	std::vector<std::string> Names;
	for (const FAssetRow& Row : List ? List->Rows : std::vector<FAssetRow>())
	{
		Names.push_back(Row.Name);
	}
	const std::optional<FNameMatch> Match = FindName(Said, Names);
	if (!Match)
	{
		AddProblem("The project has no sound called " + Quoted(Shortened(Said, 100)) + ".");
		return {};
	}
	return List->Rows[Match->Index].Path;
}

}

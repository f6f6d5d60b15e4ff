#include "PropertyNames.h"

#include "Assistant/NameMatch.h"
#include "Assistant/NodeTitles.h"
#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxNameWords = 8;

/** What people call a property that the engine has under another name. */
struct FPropertyWords
{
	std::string_view Words;
	const char* Name;
	const char* Type;
};

constexpr FPropertyWords PropertyWords[] = {
	{"visible|visibility", "bVisible", "bool"},
	{"hidden|hidden in game", "bHidden", "bool"},
	{"location|position|relative location", "RelativeLocation", "struct.Vector"},
	{"rotation|relative rotation", "RelativeRotation", "struct.Rotator"},
	{"scale|relative scale", "RelativeScale3D", "struct.Vector"},
	{"color|colour|light color|light colour", "LightColor", "struct.Color"},
	{"life span|lifespan|life time|lifetime", "InitialLifeSpan", "real"},
	{"attenuation", "AttenuationRadius", "real"},
	{"walk speed|maximum walk speed|max speed", "MaxWalkSpeed", "real"},
	{"jump velocity|jump height", "JumpZVelocity", "real"},
	{"gravity", "GravityScale", "real"},
};

struct FComponentWords
{
	std::string_view Words;
	const char* Name;
};

constexpr FComponentWords ComponentWords[] = {
	{"capsule|capsule component", "CapsuleComponent"},
	{"movement|movement component|character movement|character movement component", "CharacterMovement"},
	{"root|root component|scene root", "RootComponent"},
};

struct FNamedComponent
{
	std::string Name;
	std::string Class;
};

// The components that the Blueprint adds, and those of its parents of which graphs speak.
std::vector<FNamedComponent> FindComponents(const FBlueprintModel& Model)
{
	std::vector<FNamedComponent> Components;
	const auto AddIfComponent = [&Components](const std::string& Name, std::string_view Type)
	{
		if (StartsWith(Type, "object.") && Type.find("Component") != std::string_view::npos)
		{
			Components.push_back({Name, std::string(LastSegment(Type, '.'))});
		}
	};
	for (const FBlueprintProperty& Property : Model.Defaults.Parts)
	{
		AddIfComponent(Property.Id, Property.Type);
	}
	for (const FBlueprintGraph& Graph : Model.Graphs)
	{
		for (const FBlueprintNode& Node : Graph.Nodes)
		{
			const FBlueprintPin* const Output = IsNodeType(Node, "var.get") ? Node.FindOutput(LastSegment(Node.Type, '.')) : nullptr;
			if (Output)
			{
				AddIfComponent(Output->Id, Output->Type);
			}
		}
	}
	return Components;
}

std::string PascalCase(std::string_view Said)
{
	std::string Name;
	for (const std::string_view Word : SplitWords(Said, MaxNameWords))
	{
		Name += UpperFirst(std::string(Word));
	}
	return Name;
}

template <typename TRow, std::size_t Num>
const TRow* FindRow(const TRow (&Rows)[Num], std::string_view Said)
{
	const auto Found = std::find_if(std::begin(Rows), std::end(Rows), [Said](const TRow& Row)
		{ return IsOneOf(Said, Row.Words); });
	return Found == std::end(Rows) ? nullptr : Found;
}

}

std::vector<FPropertyName> GuessPropertyNames(std::string_view Said)
{
	std::vector<FPropertyName> Names;
	if (const FPropertyWords* const Known = FindRow(PropertyWords, Said))
	{
		Names.push_back({Known->Name, Known->Type});
	}
	const bool bBoolean = Said.size() > 1 && Said[0] == 'b' && Said[1] >= 'A' && Said[1] <= 'Z';
	if (bBoolean)
	{
		Names.push_back({std::string(Said), "bool"});
		return Names;
	}
	const std::string Name = PascalCase(Said);
	if (Names.empty() || Names.front().Name != Name)
	{
		Names.push_back({Name});
	}
	Names.push_back({"b" + Name, "bool"});
	return Names;
}

std::vector<std::string> GuessComponentNames(const FBlueprintModel& Model, std::string_view Said)
{
	std::vector<std::string> Names;
	const auto Add = [&Names](const std::string& Name)
	{
		if (std::find(Names.begin(), Names.end(), Name) == Names.end())
		{
			Names.push_back(Name);
		}
	};
	const std::vector<FNamedComponent> Known = FindComponents(Model);
	for (const FNamedComponent& Component : Known)
	{
		if (SameName(Component.Name, Said))
		{
			Add(Component.Name);
		}
	}
	if (const FComponentWords* const Row = FindRow(ComponentWords, Said))
	{
		Add(Row->Name);
	}
	constexpr std::string_view Suffix = "Component";
	const std::string Name = PascalCase(Said);
	const bool bSuffix = Name.size() > Suffix.size() && std::string_view(Name).substr(Name.size() - Suffix.size()) == Suffix;
	Add(Name);
	Add(bSuffix ? Name.substr(0, Name.size() - Suffix.size()) : Name + std::string(Suffix));
	// "The mesh" is the one that there is; of two neither.
	std::set<std::string> OfClass;
	for (const FNamedComponent& Component : Known)
	{
		if (CompactName(Component.Class).find(CompactName(Said)) != std::string::npos)
		{
			OfClass.insert(Component.Name);
		}
	}
	if (OfClass.size() == 1)
	{
		Add(*OfClass.begin());
	}
	return Names;
}

}

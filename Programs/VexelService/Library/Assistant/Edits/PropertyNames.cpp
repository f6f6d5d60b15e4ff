#include "PropertyNames.h"

#include "Assistant/QuestionWords.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <iterator>

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
	bool bUniform = false;
};

constexpr FPropertyWords PropertyWords[] = {
	{"visible|visibility", "bVisible", "bool"},
	{"hidden|hidden in game", "bHidden", "bool"},
	{"location|position|relative location", "RelativeLocation", "struct.Vector"},
	{"rotation|relative rotation", "RelativeRotation", "struct.Rotator"},
	{"scale|relative scale|size", "RelativeScale3D", "struct.Vector", true},
	{"color|colour|light color|light colour", "LightColor", "struct.Color"},
	{"life span|lifespan|life time|lifetime", "InitialLifeSpan", "real"},
	{"attenuation", "AttenuationRadius", "real"},
	{"walk speed|maximum walk speed|max speed", "MaxWalkSpeed", "real"},
	{"jump velocity|jump height", "JumpZVelocity", "real"},
	{"gravity", "GravityScale", "real"},
};

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
		Names.push_back({Known->Name, Known->Type, Known->bUniform});
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

std::vector<std::string> GuessComponentNames(std::string_view Said)
{
	if (IsOneOf(Said, "root|root component|scene root"))
	{
		return {"RootComponent"};
	}
	constexpr std::string_view Suffix = "Component";
	const std::string Name = PascalCase(Said);
	const bool bSuffix = Name.size() > Suffix.size() && std::string_view(Name).substr(Name.size() - Suffix.size()) == Suffix;
	return {Name, bSuffix ? Name.substr(0, Name.size() - Suffix.size()) : Name + std::string(Suffix)};
}

}

#include "Assistant/AssetFinder.h"

#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <vector>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxNamed = 12;
constexpr std::size_t MaxSaid = 100;

}

bool IsBlueprintLike(const FAssetRow& Row)
{
	return !Row.ParentClass.empty() || LowerCase(Row.Class).find("blueprint") != std::string::npos || Row.Class == "World";
}

std::string PackageOf(const std::string& ObjectPath)
{
	return ObjectPath.substr(0, ObjectPath.find('.'));
}

std::string Quoted(const std::string& Text)
{
	return "\"" + Shortened(Text, MaxSaid) + "\"";
}

FAssetFinder::FAssetFinder(const FChatRequest& InRequest, IAssistantChannel& InChannel, FProjectReader& InReader)
	: Request(InRequest)
	, Channel(InChannel)
	, Reader(InReader)
{
}

void FAssetFinder::SayFailure(const std::string& What)
{
	if (!Reader.IsOver())
	{
		Channel.Say("I could not " + What + ". The editor says: " + Reader.GetLastError() + "\n");
	}
}

std::optional<std::string> FAssetFinder::FindOpen(const std::string& Name) const
{
	const auto Open = std::find_if(Request.OpenAssets.begin(), Request.OpenAssets.end(), [&](const std::string& Asset)
		{ return EqualIgnoringCase(ShortName(Asset), ClassName(Name)); });
	return Open == Request.OpenAssets.end() ? std::nullopt : std::optional<std::string>(*Open);
}

std::optional<FAssetRow> FAssetFinder::Find(const std::string& Name)
{
	if (StartsWith(Name, "/"))
	{
		return FAssetRow{.Path = Name, .Name = ShortName(Name), .Class = {}, .ParentClass = {}};
	}
	if (const std::optional<std::string> Open = FindOpen(Name))
	{
		return FAssetRow{.Path = *Open, .Name = ShortName(*Open), .Class = {}, .ParentClass = {}};
	}
	const std::string Said = ClassName(Name);
	std::optional<FAssetList> List = Reader.SearchAssets({.Words = Said, .Class = {}});
	if (!List)
	{
		// Where the editor cannot search, the name may still be right.
		return Reader.IsOver() ? std::nullopt : std::optional<FAssetRow>({.Path = "/Game/" + Said, .Name = Said, .Class = {}, .ParentClass = {}});
	}
	// Blueprints are what people ask about when another asset has the same name.
	std::stable_partition(List->Rows.begin(), List->Rows.end(), IsBlueprintLike);
	std::vector<std::string> Names;
	for (const FAssetRow& Row : List->Rows)
	{
		Names.push_back(Row.Name);
	}
	const std::optional<FNameMatch> Match = FindName(Said, Names);
	const std::size_t LastBlank = Said.rfind(' ');
	if (!Match)
	{
		// "The time of day widget" says with its last word what it is.
		return LastBlank == std::string::npos ? std::nullopt : Find(Said.substr(0, LastBlank));
	}
	const FAssetRow& Found = List->Rows[Match->Index];
	if (!Match->bExact)
	{
		Channel.Say("I take " + Quoted(Said) + " to mean " + Bold(Found.Name) + ".\n\n");
	}
	return Found;
}

void FAssetFinder::SayMissing(const std::string& Name)
{
	if (Reader.IsOver())
	{
		return;
	}
	std::string Text = "I find no asset called " + Quoted(Name) + ", nor one with a name like it.";
	const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxNamed});
	std::vector<std::string> Names;
	for (const FAssetRow& Row : List ? List->Rows : std::vector<FAssetRow>())
	{
		Names.push_back(Bold(Row.Name));
	}
	if (List && List->Total > Names.size())
	{
		Names.push_back(CountOf(List->Total - Names.size(), "other"));
	}
	Text += Names.empty() ? "" : " The project's Blueprints are " + JoinWithAnd(Names) + ".";
	Channel.Say(Text + "\n");
}

}

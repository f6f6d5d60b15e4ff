#include "Assistant/UsageAnswer.h"

#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/UsageSearch.h"
#include "Assistant/Words.h"

#include <algorithm>

namespace VexelService
{

namespace
{

/** A project may have thousands of Blueprints; nobody waits for an answer that reads them all. */
constexpr std::size_t MaxReadBlueprints = 40;
constexpr std::size_t MaxUsesOfBlueprint = 20;

std::string TellUses(const std::string& Heading, const std::vector<std::string>& Uses)
{
	std::string Text = "- " + Heading + (Uses.empty() ? " refers to it\n" : ":\n");
	for (std::size_t Index = 0; Index < std::min(Uses.size(), MaxUsesOfBlueprint); ++Index)
	{
		Text += "  - " + UpperFirst(Uses[Index]) + "\n";
	}
	return Uses.size() > MaxUsesOfBlueprint ? Text + "  - and " + CountOf(Uses.size() - MaxUsesOfBlueprint, "other") + "\n" : Text;
}

/** The Blueprints that have or use a name, each with its uses; empty when none does. */
std::string ListUses(const std::vector<const FBlueprintModel*>& Models, const std::string& Name)
{
	std::string Text;
	std::size_t NumUses = 0;
	std::size_t NumBlueprints = 0;
	for (const FBlueprintModel* const Model : Models)
	{
		const std::vector<std::string> Names = MemberNames(*Model);
		const bool bOwn = std::any_of(Names.begin(), Names.end(), [&Name](const std::string& Own)
			{ return SameName(Own, Name); });
		std::vector<std::string> Uses = FindMemberUses(*Model, Name);
		if (Uses.empty())
		{
			const std::vector<std::string> Mentions = FindMentions(*Model, Name);
			Uses.insert(Uses.end(), Mentions.begin(), Mentions.end());
		}
		if (!bOwn && Uses.empty())
		{
			continue;
		}
		NumUses += Uses.size();
		++NumBlueprints;
		const std::string Heading = Bold(Model->Name) + (bOwn ? ", which has it" : "");
		Text += bOwn && Uses.empty() ? "- " + Heading + ", uses it nowhere\n" : TellUses(Heading, Uses);
	}
	return Text.empty() ? Text
						: Bold(Name) + " is used in " + CountOf(NumUses, "place") + " of " + CountOf(NumBlueprints, "Blueprint") + ":\n\n" + Text;
}

}

FUsageAnswer::FUsageAnswer(IAssistantChannel& InChannel, FProjectReader& InReader, FAssetFinder& InAssets)
	: Channel(InChannel)
	, Reader(InReader)
	, Assets(InAssets)
{
}

void FUsageAnswer::TellUsesOfAsset(const std::string& Said)
{
	const std::optional<FAssetRow> Asset = Assets.Find(Said);
	if (!Asset)
	{
		Assets.SayMissing(Said);
		return;
	}
	const std::optional<FJson> Info = Reader.ReadAssetInfo(PackageOf(Asset->Path));
	if (!Info)
	{
		Assets.SayFailure("read " + Asset->Name);
		return;
	}
	const std::vector<std::string> Referencers = FindReferencers(*Info);
	if (Referencers.empty())
	{
		Channel.Say("Nothing in the project refers to " + Bold(Asset->Name) + ".\n");
		return;
	}
	const std::optional<std::vector<FAssetRow>> Blueprints = Reader.FindBlueprints(Referencers, MaxReadBlueprints);
	if (!Blueprints)
	{
		Assets.SayFailure("search the project");
		return;
	}
	std::string Text = Bold(Asset->Name) + " is used by " + CountOf(Referencers.size(), "asset") + ":\n\n";
	std::vector<std::string> Others;
	for (const std::string& Package : Referencers)
	{
		const bool bBlueprint = std::any_of(Blueprints->begin(), Blueprints->end(), [&Package](const FAssetRow& Row)
			{ return PackageOf(Row.Path) == Package; });
		if (!bBlueprint)
		{
			Others.push_back(Package);
		}
	}
	for (const FAssetRow& Row : *Blueprints)
	{
		const FBlueprintModel* const Model = Reader.ReadBlueprint(Row.Path);
		if (Reader.IsOver())
		{
			return;
		}
		Text += TellUses(Bold(Row.Name), Model ? FindMentions(*Model, Asset->Name) : std::vector<std::string>());
	}
	for (const std::string& Package : Others)
	{
		Text += "- " + Bold(ShortName(Package)) + " (`" + Package + "`) refers to it\n";
	}
	Channel.Say(Text);
}

void FUsageAnswer::TellUsesOfMember(const std::string& Said)
{
	const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxReadBlueprints});
	if (!List)
	{
		Assets.SayFailure("search the project");
		return;
	}
	std::vector<const FBlueprintModel*> Models;
	std::vector<std::string> Members;
	for (const FAssetRow& Row : List->Rows)
	{
		const FBlueprintModel* const Model = Reader.ReadBlueprint(Row.Path);
		if (Reader.IsOver())
		{
			return;
		}
		if (Model)
		{
			Models.push_back(Model);
			const std::vector<std::string> Names = MemberNames(*Model);
			Members.insert(Members.end(), Names.begin(), Names.end());
		}
	}
	std::sort(Members.begin(), Members.end());
	Members.erase(std::unique(Members.begin(), Members.end()), Members.end());
	std::string Text = ListUses(Models, Said);
	if (const std::optional<FNameMatch> Match = Text.empty() ? FindName(Said, Members) : std::nullopt)
	{
		Text = "I take " + Quoted(Said) + " to mean " + Bold(Members[Match->Index]) + ".\n\n" + ListUses(Models, Members[Match->Index]);
	}
	if (Text.empty() && Assets.Find(Said))
	{
		TellUsesOfAsset(Said);
		return;
	}
	if (Text.empty())
	{
		Text = "I find nothing called " + Quoted(Said) + " in " + CountOf(Models.size(), "Blueprint") +
			": no variable, function, event or step.\n";
	}
	const std::size_t Unread = List->Total - std::min(List->Total, List->Rows.size());
	Channel.Say(Unread > 0 ? Text + "\nI read " + CountOf(Models.size(), "Blueprint") + " and left out " + CountOf(Unread, "other") +
				"; name one to ask about it.\n"
						   : Text);
}

}

#include "Assistant/Assistant.h"

#include "Assistant/BlueprintDescriber.h"
#include "Assistant/BlueprintModel.h"
#include "Assistant/Conversation.h"
#include "Assistant/NameMatch.h"
#include "Assistant/ProjectAnswers.h"
#include "Assistant/ProjectReader.h"
#include "Assistant/Question.h"
#include "Assistant/UsageSearch.h"
#include "Assistant/Words.h"
#include "QuestionPatterns.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace VexelService
{

namespace
{

/** A project may have thousands of Blueprints; nobody waits for an answer that reads them all. */
constexpr std::size_t MaxReadBlueprints = 40;
constexpr std::size_t MaxListedBlueprints = 200;
constexpr std::size_t MaxUsesOfBlueprint = 20;
constexpr std::size_t MaxOverviews = 12;
constexpr std::size_t MaxSaid = 100;

constexpr const char* WhatIUnderstand =
	"I work offline and understand a fixed set of questions about the project:\n"
	"\n"
	"- What does BP_Door do? Explain BP_Door. Describe /Game/Doors/BP_Door.\n"
	"- What happens when the player overlaps it in BP_Door?\n"
	"- Which variables does BP_Door have? The same for functions, macros, events and graphs.\n"
	"- What does the function Open of BP_Door do?\n"
	"- Where is Health used? Where is OpenDoor called in BP_Player? What uses BP_Door?\n"
	"- What does the project contain? Which Blueprints are there? What do they do?\n"
	"- What does DefaultEngine.ini say? Show the source of ADoor.\n"
	"- How big is BP_Door? What does BP_Door depend on?\n"
	"- Show me the graph OpenDoor of BP_Door. Take a picture of the viewport.\n"
	"\n"
	"Name a Blueprint by its name or its path. \"It\" and \"that\" mean what we spoke of last, and \"And BP_Enemy?\" asks the same again.\n";

std::string Bold(const std::string& Text)
{
	return "**" + Text + "**";
}

std::string Quoted(const std::string& Text)
{
	return "\"" + Shortened(Text, MaxSaid) + "\"";
}

bool IsBlueprintLike(const FAssetRow& Row)
{
	return !Row.ParentClass.empty() || LowerCase(Row.Class).find("blueprint") != std::string::npos || Row.Class == "World";
}

std::string PackageOf(const std::string& ObjectPath)
{
	return ObjectPath.substr(0, ObjectPath.find('.'));
}

/** One turn: reads what it needs, and says what it found. */
class FAnswer
{
public:
	FAnswer(const FChatRequest& InRequest, IAssistantChannel& InChannel)
		: Request(InRequest)
		, Channel(InChannel)
		, Reader(InChannel)
		, Topic(ReadTopic(InRequest))
	{
	}

	void Run()
	{
		const FQuestion Question = ResolveReferences(ReadQuestion(Request.Messages.back().Text, OpenAssetNames(Request)), Topic);
		switch (Question.Kind)
		{
			case EQuestionKind::Unknown:
			case EQuestionKind::Again:
				Channel.Say(std::string("I did not understand that. ") + WhatIUnderstand);
				break;
			case EQuestionKind::Help:
				Channel.Say(WhatIUnderstand);
				break;
			case EQuestionKind::Greeting:
				Channel.Say("Hello. Ask me about a Blueprint or about the project; \"help\" shows what I understand.\n");
				break;
			case EQuestionKind::Thanks:
				Channel.Say("You are welcome.\n");
				break;
			case EQuestionKind::Project:
				TellReply(Reader.ReadProject(), DescribeProject, "read the project");
				break;
			case EQuestionKind::Assets:
				TellAssets(Question.Subject);
				break;
			case EQuestionKind::AllOverviews:
				TellAllOverviews();
				break;
			case EQuestionKind::ProjectUse:
				TellProjectUse(Question);
				break;
			case EQuestionKind::AssetInfo:
			case EQuestionKind::Dependencies:
				TellAsset(Question);
				break;
			case EQuestionKind::Source:
				TellFile(Question.Subject);
				break;
			case EQuestionKind::Declaration:
				TellReply(Reader.ReadSource({{"symbol", Question.Subject}}), DescribeDeclarations, "read the sources");
				break;
			case EQuestionKind::Picture:
				ShowPicture(Question);
				break;
			case EQuestionKind::VariableUse:
				TellUse(Question);
				break;
			default:
				TellBlueprint(Question);
				break;
		}
	}

private:
	/** Tells why a tool did not do its work; nothing when the turn is over anyway. */
	void SayFailure(const std::string& What)
	{
		if (!Reader.IsOver())
		{
			Channel.Say("I could not " + What + ". The editor says: " + Reader.GetLastError() + "\n");
		}
	}

	void TellReply(const std::optional<FJson>& Reply, std::string (*Describe)(const FJson&), const std::string& What)
	{
		if (Reply)
		{
			Channel.Say(Describe(*Reply));
			return;
		}
		SayFailure(What);
	}

	std::optional<std::string> FindOpenAsset(const std::string& Name) const
	{
		const auto Open = std::find_if(Request.OpenAssets.begin(), Request.OpenAssets.end(), [&](const std::string& Asset)
			{ return EqualIgnoringCase(ShortName(Asset), ClassName(Name)); });
		return Open == Request.OpenAssets.end() ? std::nullopt : std::optional<std::string>(*Open);
	}

	/** The asset that a name means. Says so when it takes another for it. Nothing when there is none. */
	std::optional<FAssetRow> FindAsset(const std::string& Name)
	{
		if (StartsWith(Name, "/"))
		{
			return FAssetRow{.Path = Name, .Name = ShortName(Name), .Class = {}, .ParentClass = {}};
		}
		if (const std::optional<std::string> Open = FindOpenAsset(Name))
		{
			return FAssetRow{.Path = *Open, .Name = ShortName(*Open), .Class = {}, .ParentClass = {}};
		}
		const std::string Said = ClassName(Name);
		std::optional<FAssetList> List = Reader.SearchAssets({.Words = Said, .Class = {}});
		if (!List)
		{
			return std::nullopt;
		}
		// Blueprints are what people ask about when another asset has the same name.
		std::stable_partition(List->Rows.begin(), List->Rows.end(), IsBlueprintLike);
		std::vector<std::string> Names;
		for (const FAssetRow& Row : List->Rows)
		{
			Names.push_back(Row.Name);
		}
		const std::optional<FNameMatch> Match = FindName(Said, Names);
		if (!Match)
		{
			return std::nullopt;
		}
		const FAssetRow& Found = List->Rows[Match->Index];
		if (!Match->bExact)
		{
			Channel.Say("I take " + Quoted(Said) + " to mean " + Bold(Found.Name) + ".\n\n");
		}
		return Found;
	}

	/** The Blueprint that a question is about, by the words for it or by the conversation; nothing when it has told why. */
	const FBlueprintModel* ReadNamedBlueprint(const std::string& Name)
	{
		std::string Meant = IsBackReference(Name) ? Topic.Blueprint : Name;
		if (Meant.empty() && Request.OpenAssets.size() == 1)
		{
			Meant = Request.OpenAssets.front();
		}
		if (Meant.empty())
		{
			Channel.Say("Which Blueprint do you mean? Name it, or open just that one in the editor.\n");
			return nullptr;
		}
		const std::optional<FAssetRow> Asset = FindAsset(Meant);
		if (!Asset)
		{
			SayNoAsset(Meant);
			return nullptr;
		}
		if (!Asset->Class.empty() && !IsBlueprintLike(*Asset))
		{
			TellReply(Reader.ReadAssetInfo(Asset->Path), DescribeAsset, "read " + Asset->Name);
			return nullptr;
		}
		return ReadBlueprint(Asset->Path);
	}

	const FBlueprintModel* ReadBlueprint(const std::string& Path)
	{
		Channel.Say("Let me read " + ShortName(Path) + ".\n\n");
		const FBlueprintModel* const Model = Reader.ReadBlueprint(Path);
		if (!Model)
		{
			SayFailure("read `" + Path + "`");
		}
		return Model;
	}

	void SayNoAsset(const std::string& Name)
	{
		if (Reader.IsOver())
		{
			return;
		}
		if (!Reader.GetLastError().empty())
		{
			SayFailure("search the project");
			return;
		}
		std::string Text = "I find no asset called " + Quoted(Name) + ", nor one with a name like it.";
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxOverviews});
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

	/** The member's name as the Blueprint has it, when it has one like what was said, and says what it took it for. */
	std::string CorrectMember(const FBlueprintModel& Model, const std::string& Said)
	{
		const std::vector<std::string> Names = MemberNames(Model);
		const std::optional<FNameMatch> Match = FindName(Said, Names);
		if (!Match)
		{
			return Said;
		}
		if (!Match->bExact)
		{
			Channel.Say("I take " + Quoted(Said) + " to mean " + Bold(Names[Match->Index]) + ".\n\n");
		}
		return Names[Match->Index];
	}

	void TellBlueprint(const FQuestion& Question)
	{
		// "What does OpenDoor do?" may be about a function of the Blueprint that the conversation is about.
		const bool bMayBeMember = Question.Kind == EQuestionKind::Overview && !Topic.Blueprint.empty() && !StartsWith(Question.Blueprint, "/") &&
			!IsPrefixedAssetName(Question.Blueprint) && !IsBackReference(Question.Blueprint) && !FindOpenAsset(Question.Blueprint);
		if (bMayBeMember && TellMemberOfTopic(Question.Blueprint))
		{
			return;
		}
		const FBlueprintModel* const Model = ReadNamedBlueprint(Question.Blueprint);
		if (!Model)
		{
			return;
		}
		Channel.Say(Describe(Question, *Model));
		for (const std::string& Other : Question.MoreBlueprints)
		{
			Channel.Say("\n");
			if (const FBlueprintModel* const OtherModel = ReadNamedBlueprint(Other))
			{
				Channel.Say(Describe(Question, *OtherModel));
			}
		}
	}

	bool TellMemberOfTopic(const std::string& Name)
	{
		const std::optional<FAssetRow> Asset = FindAsset(Topic.Blueprint);
		const FBlueprintModel* const Model = Asset ? Reader.ReadBlueprint(Asset->Path) : nullptr;
		if (!Model || !FindName(Name, MemberNames(*Model)))
		{
			return false;
		}
		Channel.Say(FBlueprintDescriber(*Model).Function(CorrectMember(*Model, Name)));
		return true;
	}

	std::string Describe(const FQuestion& Question, const FBlueprintModel& Model)
	{
		const FBlueprintDescriber Describer(Model);
		switch (Question.Kind)
		{
			case EQuestionKind::WhenEvent:
				return Describer.WhenEvent(Question.Subject);
			case EQuestionKind::Variables:
				return Describer.Variables();
			case EQuestionKind::Functions:
				return Describer.Functions();
			case EQuestionKind::Macros:
				return Describer.Macros();
			case EQuestionKind::Events:
				return Describer.Events();
			case EQuestionKind::Graphs:
				return Describer.Graphs();
			case EQuestionKind::VariableUse:
				return Describer.VariableUse(CorrectMember(Model, Question.Subject));
			case EQuestionKind::Function:
				return Describer.Function(CorrectMember(Model, Question.Subject));
			default:
				return Describer.Overview();
		}
	}

	void TellAssets(const std::string& Kind)
	{
		const char* const Class = FindAssetClass(Kind);
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = Class ? Class : "", .Limit = MaxListedBlueprints});
		if (!List)
		{
			SayFailure("search the project");
			return;
		}
		Channel.Say(DescribeAssets(*List, Kind));
	}

	void TellAllOverviews()
	{
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxOverviews});
		if (!List)
		{
			SayFailure("search the project");
			return;
		}
		std::string Text;
		for (const FAssetRow& Row : List->Rows)
		{
			const FBlueprintModel* const Model = Reader.ReadBlueprint(Row.Path);
			if (Reader.IsOver())
			{
				return;
			}
			Text += "- " + (Model ? FBlueprintDescriber(*Model).Summary() : Bold(Row.Name) + " cannot be read: " + Reader.GetLastError() + "\n");
		}
		Text = Text.empty() ? "The project has no Blueprints that the editor finds.\n" : Text;
		const std::size_t Rest = List->Total - std::min(List->Total, List->Rows.size());
		Channel.Say(Rest > 0 ? Text + "- and " + CountOf(Rest, "other Blueprint") + ", which I did not read\n" : Text);
	}

	void TellAsset(const FQuestion& Question)
	{
		const std::string Meant = IsBackReference(Question.Blueprint) ? Topic.Blueprint : Question.Blueprint;
		const std::optional<FAssetRow> Asset = Meant.empty() ? std::nullopt : FindAsset(Meant);
		if (!Asset)
		{
			Meant.empty() ? static_cast<void>(Channel.Say("Which asset do you mean? Name it, or its path.\n")) : SayNoAsset(Meant);
			return;
		}
		const auto Describe = Question.Kind == EQuestionKind::AssetInfo ? DescribeAsset : DescribeDependencies;
		TellReply(Reader.ReadAssetInfo(PackageOf(Asset->Path)), Describe, "read " + Asset->Name);
	}

	void TellFile(const std::string& Said)
	{
		std::string File = Said;
		if (Said.find('/') == std::string::npos)
		{
			const std::optional<FJson> Project = Reader.ReadProject();
			const std::optional<std::string> Found = Project ? FindFile(*Project, Said) : std::nullopt;
			if (!Found)
			{
				Project ? static_cast<void>(Channel.Say("The project has no file called " + Quoted(Said) + " among its sources and settings.\n"))
						: SayFailure("read the project");
				return;
			}
			File = *Found;
		}
		TellReply(Reader.ReadSource({{"file", File}}), DescribeFile, "read `" + Shortened(File, MaxSaid) + "`");
	}

	/** The path of the project's file of that name, or of one nearly so. */
	static std::optional<std::string> FindFile(const FJson& Project, const std::string& Said)
	{
		std::vector<std::string> Paths = {TextMember(Project, "file")};
		for (const char* const Key : {"config_files", "source_files"})
		{
			for (const FJson& Item : ArrayMember(Project, Key))
			{
				Paths.push_back(Item.is_string() ? Item.get<std::string>() : std::string());
			}
		}
		std::vector<std::string> Names;
		for (const std::string& Path : Paths)
		{
			Names.emplace_back(LastSegment(Path, '/'));
		}
		const std::optional<FNameMatch> Match = FindName(Said, Names);
		return Match ? std::optional<std::string>(Paths[Match->Index]) : std::nullopt;
	}

	void ShowPicture(const FQuestion& Question)
	{
		static constexpr std::string_view LevelWords[] = {"viewport", "level", "scene", "world", "game"};
		const bool bLevel = std::any_of(std::begin(LevelWords), std::end(LevelWords), [&](std::string_view Word)
			{ return SameName(Question.Subject, Word); });
		const std::string Text = LowerCase(Request.Messages.back().Text);
		const bool bAsksForLevel = bLevel || (Question.Subject.empty() && Text.find("viewport") != std::string::npos) ||
			(Question.Subject.empty() && Question.Blueprint.empty() && Text.find("graph") == std::string::npos && Text.find("editor") == std::string::npos);
		FJson Arguments = {{"mode", bAsksForLevel ? "viewport" : "editor"}};
		if (!bAsksForLevel)
		{
			const std::string Meant = IsBackReference(Question.Blueprint) ? Topic.Blueprint : Question.Blueprint;
			const std::optional<FAssetRow> Asset = Meant.empty() ? std::nullopt : FindAsset(Meant);
			if (!Meant.empty() && !Asset)
			{
				SayNoAsset(Meant);
				return;
			}
			if (Asset)
			{
				Arguments["blueprint"] = Asset->Path;
				AddGraph(Question.Subject, Asset->Path, Arguments);
			}
		}
		const std::optional<FJson> Reply = Reader.TakeScreenshot(Arguments);
		if (!Reply)
		{
			SayFailure("take a picture");
			return;
		}
		const std::string Title = TextMember(*Reply, "title");
		Channel.Say("This is " + (Title.empty() ? std::string("what the editor shows") : Bold(Title)) + ":\n\n");
		if (!Channel.ShowImage(TextMember(*Reply, "image")))
		{
			Channel.Say("The editor's picture cannot be shown here.\n");
		}
	}

	/** The graph that the words for it mean, by the names that the Blueprint's graphs really have. */
	void AddGraph(const std::string& Said, const std::string& Path, FJson& Arguments)
	{
		const bool bAny = Said.empty() || IsBackReference(Said) || SameName(Said, "graph") || SameName(Said, "event");
		const FBlueprintModel* const Model = bAny ? nullptr : Reader.ReadBlueprint(Path);
		std::vector<std::string> Names;
		for (const FBlueprintGraph& Graph : Model ? Model->Graphs : std::vector<FBlueprintGraph>())
		{
			Names.push_back(Graph.Title());
		}
		if (const std::optional<FNameMatch> Match = FindName(Said, Names))
		{
			Arguments["graph"] = Model->Graphs[Match->Index].Id;
		}
	}

	/** Where something is used in the Blueprint that is named, or else that the conversation is about, or else wherever it is used. */
	void TellUse(const FQuestion& Question)
	{
		const bool bTopic = !Topic.Blueprint.empty() || Request.OpenAssets.size() == 1;
		if (!Question.Blueprint.empty() || !bTopic)
		{
			Question.Blueprint.empty() ? TellProjectUse(Question) : TellBlueprint(Question);
			return;
		}
		const FBlueprintModel* const Model = ReadNamedBlueprint({});
		if (!Model)
		{
			return;
		}
		if (!FindName(Question.Subject, MemberNames(*Model)) && FindMemberUses(*Model, Question.Subject).empty())
		{
			TellProjectUse(Question);
			return;
		}
		Channel.Say(Describe(Question, *Model) + "\nAsk where else it is used to search the whole project.\n");
	}

	/** Where something is used in the whole project: an asset by those that refer to it, a name by the Blueprints that can know it. */
	void TellProjectUse(const FQuestion& Question)
	{
		const std::string& Said = Question.Subject;
		if (Said.empty())
		{
			Channel.Say("What do you mean? Name the variable, the function or the asset.\n");
			return;
		}
		const bool bAsset = StartsWith(Said, "/") || IsPrefixedAssetName(Said) || FindOpenAsset(Said).has_value();
		bAsset ? TellUsesOfAsset(Said) : TellUsesOfMember(Said);
	}

	void TellUsesOfAsset(const std::string& Said)
	{
		const std::optional<FAssetRow> Asset = FindAsset(Said);
		if (!Asset)
		{
			SayNoAsset(Said);
			return;
		}
		const std::optional<FJson> Info = Reader.ReadAssetInfo(PackageOf(Asset->Path));
		if (!Info)
		{
			SayFailure("read " + Asset->Name);
			return;
		}
		const std::vector<std::string> Referencers = FindReferencers(*Info);
		if (Referencers.empty())
		{
			Channel.Say("Nothing in the project refers to " + Bold(Asset->Name) + ".\n");
			return;
		}
		const std::optional<std::vector<FAssetRow>> Blueprints = FindBlueprints(Referencers);
		if (!Blueprints)
		{
			SayFailure("search the project");
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

	static std::vector<std::string> FindReferencers(const FJson& Info)
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

	/** Those of some packages that are Blueprints, as many as are read for one answer. */
	std::optional<std::vector<FAssetRow>> FindBlueprints(const std::vector<std::string>& Packages)
	{
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxListedBlueprints});
		if (!List)
		{
			return std::nullopt;
		}
		const std::set<std::string> Wanted(Packages.begin(), Packages.end());
		std::vector<FAssetRow> Found;
		for (const FAssetRow& Row : List->Rows)
		{
			if (Wanted.count(PackageOf(Row.Path)) > 0 && Found.size() < MaxReadBlueprints)
			{
				Found.push_back(Row);
			}
		}
		return Found;
	}

	static std::string TellUses(const std::string& Heading, const std::vector<std::string>& Uses)
	{
		std::string Text = "- " + Heading + (Uses.empty() ? " refers to it\n" : ":\n");
		for (std::size_t Index = 0; Index < std::min(Uses.size(), MaxUsesOfBlueprint); ++Index)
		{
			Text += "  - " + UpperFirst(Uses[Index]) + "\n";
		}
		return Uses.size() > MaxUsesOfBlueprint ? Text + "  - and " + CountOf(Uses.size() - MaxUsesOfBlueprint, "other") + "\n" : Text;
	}

	void TellUsesOfMember(const std::string& Said)
	{
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxReadBlueprints});
		if (!List)
		{
			SayFailure("search the project");
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

	/** The Blueprints that have or use a name, each with its uses; empty when none does. */
	static std::string ListUses(const std::vector<const FBlueprintModel*>& Models, const std::string& Name)
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

	const FChatRequest& Request;
	IAssistantChannel& Channel;
	FProjectReader Reader;
	const FTopic Topic;
};

}

void AnswerTurn(const FChatRequest& Request, IAssistantChannel& Channel)
{
	FAnswer(Request, Channel).Run();
}

}

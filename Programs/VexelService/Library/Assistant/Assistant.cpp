#include "Assistant/Assistant.h"

#include "Assistant/AssetFinder.h"
#include "Assistant/BlueprintDescriber.h"
#include "Assistant/BlueprintModel.h"
#include "Assistant/Conversation.h"
#include "Assistant/Edits/EditRequest.h"
#include "Assistant/Markdown.h"
#include "Assistant/NameMatch.h"
#include "Assistant/ProjectAnswers.h"
#include "Assistant/ProjectReader.h"
#include "Assistant/Question.h"
#include "Assistant/UsageAnswer.h"
#include "Assistant/UsageSearch.h"
#include "Assistant/Words.h"
#include "QuestionPatterns.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace VexelService
{

namespace
{

constexpr std::size_t MaxListedAssets = 200;
constexpr std::size_t MaxOverviews = 12;
constexpr std::size_t MaxSaid = 100;

constexpr const char* Questions =
	"I work offline and understand a fixed set of questions about the project, and requests to change Blueprints:\n"
	"\n"
	"- What does BP_Door do? Explain BP_Door. Describe /Game/Doors/BP_Door.\n"
	"- What happens when the player overlaps it in BP_Door?\n"
	"- Which variables does BP_Door have? The same for functions, macros, events and graphs.\n"
	"- What does the function Open of BP_Door do?\n"
	"- Where is Health used? Where is OpenDoor called in BP_Player? What uses BP_Door?\n"
	"- What does the project contain? Which Blueprints are there? What do they do?\n"
	"- What does DefaultEngine.ini say? Show the source of ADoor.\n"
	"- How big is BP_Door? What does BP_Door depend on?\n"
	"- Show me the graph OpenDoor of BP_Door. Take a picture of the viewport.\n";

constexpr const char* Names =
	"\n"
	"Name a Blueprint by its name or its path. \"It\" and \"that\" mean what we spoke of last, and \"And BP_Enemy?\" asks the same again.\n";

/** The questions and the requests of every family, by examples. */
std::string WhatIUnderstand()
{
	std::string Text = Questions;
	for (const FEditFamily& Family : GetEditFamilies())
	{
		Text += std::string("- ") + Family.Help + "\n";
	}
	return Text + Names;
}

/** One turn: reads what it needs, and says what it found. */
class FAnswer
{
public:
	FAnswer(const FChatRequest& InRequest, IAssistantChannel& InChannel)
		: Request(InRequest)
		, Channel(InChannel)
		, Reader(InChannel)
		, Assets(InRequest, InChannel, Reader)
		, Topic(ReadTopic(InRequest))
	{
	}

	void Run()
	{
		if (const std::optional<FEditRequest> Edit = ReadEditRequest(Request.Messages.back().Text, OpenAssetNames(Request), Topic.LastSubject))
		{
			RunEdit(*Edit);
			return;
		}
		const FQuestion Question = ResolveReferences(ReadQuestion(Request.Messages.back().Text, OpenAssetNames(Request)), Topic);
		switch (Question.Kind)
		{
			case EQuestionKind::Unknown:
			case EQuestionKind::Again:
				Channel.Say("I did not understand that. " + WhatIUnderstand());
				break;
			case EQuestionKind::Help:
				Channel.Say(WhatIUnderstand());
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
	void RunEdit(const FEditRequest& Edit)
	{
		if (!Edit.Edit)
		{
			Channel.Say(Edit.Question);
			return;
		}
		if (ReadNamedBlueprint(Edit.Blueprint))
		{
			FEditSession Session(Channel, Reader, ReadPath);
			Edit.Edit->Run(Session);
		}
	}

	void TellReply(const std::optional<FJson>& Reply, std::string (*Describe)(const FJson&), const std::string& What)
	{
		if (Reply)
		{
			Channel.Say(Describe(*Reply));
			return;
		}
		Assets.SayFailure(What);
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
		const std::optional<FAssetRow> Asset = Assets.Find(Meant);
		if (!Asset)
		{
			Assets.SayMissing(Meant);
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
		ReadPath = Path;
		Channel.Say("Let me read " + ShortName(Path) + ".\n\n");
		const FBlueprintModel* const Model = Reader.ReadBlueprint(Path);
		if (!Model)
		{
			Assets.SayFailure("read `" + Path + "`");
		}
		return Model;
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
			!IsPrefixedAssetName(Question.Blueprint) && !IsBackReference(Question.Blueprint) && !Assets.FindOpen(Question.Blueprint);
		if (bMayBeMember && TellMemberOfTopic(Question.Blueprint))
		{
			return;
		}
		if (Question.Kind == EQuestionKind::WhenEvent && Question.Blueprint.empty() && TellEventOfSubject(Question))
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

	/**
	 * "What happens when the enemy takes damage?" names a Blueprint in its own words. What the conversation is about goes first, when
	 * it has such an event.
	 */
	bool TellEventOfSubject(const FQuestion& Question)
	{
		const std::optional<FAssetRow> TopicAsset = Topic.Blueprint.empty() ? std::nullopt : Assets.Find(Topic.Blueprint);
		const FBlueprintModel* const TopicModel = TopicAsset ? Reader.ReadBlueprint(TopicAsset->Path) : nullptr;
		const bool bTopicHasIt = TopicModel && FBlueprintDescriber(*TopicModel).HasEvent(Question.Subject);
		const bool bOneIsOpen = !TopicModel && Request.OpenAssets.size() == 1;
		if (bTopicHasIt || bOneIsOpen)
		{
			return false;
		}
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxListedAssets});
		for (const FAssetRow& Row : List ? List->Rows : std::vector<FAssetRow>())
		{
			if (!NamesBlueprint(Question.Subject, Row.Name))
			{
				continue;
			}
			const FBlueprintModel* const Model = ReadBlueprint(Row.Path);
			if (Model)
			{
				Channel.Say(FBlueprintDescriber(*Model).WhenEvent(Question.Subject));
			}
			return true;
		}
		return false;
	}

	/** Whether a word of a text is a Blueprint's name without its tag. */
	static bool NamesBlueprint(std::string_view Text, const std::string& Name)
	{
		const std::string Bare = CompactName(IsPrefixedAssetName(Name) ? Name.substr(Name.find('_') + 1) : Name);
		for (std::size_t Begin = 0; Begin < Text.size();)
		{
			const std::size_t End = std::min(Text.find(' ', Begin), Text.size());
			if (CompactName(Text.substr(Begin, End - Begin)) == Bare)
			{
				return true;
			}
			Begin = End + 1;
		}
		return false;
	}

	bool TellMemberOfTopic(const std::string& Name)
	{
		const std::optional<FAssetRow> Asset = Assets.Find(Topic.Blueprint);
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
			case EQuestionKind::Components:
				return Describer.Components();
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
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = Class ? Class : "", .Limit = MaxListedAssets});
		if (!List)
		{
			Assets.SayFailure("search the project");
			return;
		}
		Channel.Say(DescribeAssets(*List, Kind));
	}

	void TellAllOverviews()
	{
		const std::optional<FAssetList> List = Reader.SearchAssets({.Words = {}, .Class = "Blueprint", .Limit = MaxOverviews});
		if (!List)
		{
			Assets.SayFailure("search the project");
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
		const std::optional<FAssetRow> Asset = Meant.empty() ? std::nullopt : Assets.Find(Meant);
		if (!Asset)
		{
			Meant.empty() ? static_cast<void>(Channel.Say("Which asset do you mean? Name it, or its path.\n")) : Assets.SayMissing(Meant);
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
						: Assets.SayFailure("read the project");
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

	/** Whether a picture is wanted of the level, and not of a graph or of the editor's window. */
	bool AsksForLevel(const FQuestion& Question) const
	{
		static constexpr std::string_view LevelWords[] = {"viewport", "level", "scene", "world", "game"};
		if (!Question.Subject.empty())
		{
			return std::any_of(std::begin(LevelWords), std::end(LevelWords), [&](std::string_view Word)
				{ return SameName(Question.Subject, Word); });
		}
		const std::string Text = LowerCase(Request.Messages.back().Text);
		const auto Says = [&Text](std::string_view Word)
		{ return Text.find(Word) != std::string::npos; };
		return Says("viewport") || (Question.Blueprint.empty() && !Says("graph") && !Says("editor"));
	}

	void ShowPicture(const FQuestion& Question)
	{
		const bool bAsksForLevel = AsksForLevel(Question);
		FJson Arguments = {{"mode", bAsksForLevel ? "viewport" : "editor"}};
		if (!bAsksForLevel)
		{
			const std::string Meant = IsBackReference(Question.Blueprint) ? Topic.Blueprint : Question.Blueprint;
			const std::optional<FAssetRow> Asset = Meant.empty() ? std::nullopt : Assets.Find(Meant);
			if (!Meant.empty() && !Asset)
			{
				Assets.SayMissing(Meant);
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
			Assets.SayFailure("take a picture");
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
		if (!Model)
		{
			return;
		}
		std::vector<std::string> Names;
		for (const FBlueprintGraph& Graph : Model->Graphs)
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
		const bool bAsset = StartsWith(Said, "/") || IsPrefixedAssetName(Said) || Assets.FindOpen(Said).has_value();
		FUsageAnswer Uses(Channel, Reader, Assets);
		bAsset ? Uses.TellUsesOfAsset(Said) : Uses.TellUsesOfMember(Said);
	}

	const FChatRequest& Request;
	IAssistantChannel& Channel;
	FProjectReader Reader;
	FAssetFinder Assets;
	const FTopic Topic;
	/** The Blueprint that was read last. */
	std::string ReadPath;
};

}

void AnswerTurn(const FChatRequest& Request, IAssistantChannel& Channel)
{
	FAnswer(Request, Channel).Run();
}

}

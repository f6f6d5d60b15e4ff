#include "Assistant/Assistant.h"

#include "Assistant/BlueprintDescriber.h"
#include "Assistant/BlueprintModel.h"
#include "Assistant/Question.h"
#include "Assistant/Words.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace VexelService
{

namespace
{

constexpr const char* ReadBlueprintTool = "read_blueprint";
constexpr std::size_t MaxShownErrorBytes = 1000;

constexpr const char* WhatIUnderstand =
	"I work offline and understand a fixed set of questions about Blueprints:\n"
	"\n"
	"- What does BP_Door do? Explain BP_Door. Describe /Game/Doors/BP_Door.\n"
	"- What happens when the player overlaps it in BP_Door?\n"
	"- Which variables does BP_Door have? The same for functions, macros, events and graphs.\n"
	"- Where is Health used in BP_Door?\n"
	"- What does the function Open of BP_Door do?\n"
	"\n"
	"Name a Blueprint by its name or its path; \"it\" means the one that you named last.\n";

std::vector<std::string> OpenAssetNames(const FChatRequest& Request)
{
	std::vector<std::string> Names;
	for (const std::string& Asset : Request.OpenAssets)
	{
		Names.push_back(ShortName(Asset));
	}
	return Names;
}

// The Blueprint that the conversation spoke of last, by the words of the user's own earlier questions.
std::string LastNamedBlueprint(const FChatRequest& Request)
{
	const std::vector<std::string> OpenNames = OpenAssetNames(Request);
	for (std::size_t Index = Request.Messages.size() - 1; Index-- > 0;)
	{
		const FChatMessage& Message = Request.Messages[Index];
		if (Message.Role != "user")
		{
			continue;
		}
		const FQuestion Earlier = ReadQuestion(Message.Text, OpenNames);
		if (Earlier.Kind != EQuestionKind::Unknown && !IsBackReference(Earlier.Blueprint))
		{
			return Earlier.Blueprint;
		}
	}
	return {};
}

// The object path to read; empty when the conversation does not tell which Blueprint is meant.
std::string FindBlueprintPath(const FChatRequest& Request, std::string Name)
{
	if (IsBackReference(Name))
	{
		Name = LastNamedBlueprint(Request);
		if (Name.empty())
		{
			return Request.OpenAssets.size() == 1 ? Request.OpenAssets.front() : std::string();
		}
	}
	if (StartsWith(Name, "/"))
	{
		return Name;
	}
	const auto Open = std::find_if(Request.OpenAssets.begin(), Request.OpenAssets.end(), [&](const std::string& Asset)
		{ return EqualIgnoringCase(ShortName(Asset), ClassName(Name)); });
	return Open == Request.OpenAssets.end() ? "/Game/" + ClassName(Name) : *Open;
}

std::string Answer(const FQuestion& Question, const FBlueprintModel& Model)
{
	const FBlueprintDescriber Describer(Model);
	switch (Question.Kind)
	{
		case EQuestionKind::Overview:
			return Describer.Overview();
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
			return Describer.VariableUse(Question.Subject);
		case EQuestionKind::Function:
			return Describer.Function(Question.Subject);
		case EQuestionKind::Unknown:
			break;
	}
	return WhatIUnderstand;
}

}

void AnswerTurn(const FChatRequest& Request, IAssistantChannel& Channel)
{
	const FQuestion Question = ReadQuestion(Request.Messages.back().Text, OpenAssetNames(Request));
	if (Question.Kind == EQuestionKind::Unknown)
	{
		Channel.Say(std::string("I did not understand that. ") + WhatIUnderstand);
		return;
	}
	const std::string Path = FindBlueprintPath(Request, Question.Blueprint);
	if (Path.empty())
	{
		Channel.Say("Which Blueprint do you mean? Name it, or open just that one in the editor.\n");
		return;
	}
	Channel.Say("Let me read " + ShortName(Path) + ".\n\n");
	const FToolOutcome Outcome = Channel.CallTool(ReadBlueprintTool, {{"blueprint", Path}});
	if (Outcome.Status == EToolStatus::Failed)
	{
		Channel.Say("I could not read `" + Path + "`. The editor says: " + Shortened(Outcome.ErrorMessage, MaxShownErrorBytes) + "\n");
		return;
	}
	if (Outcome.Status != EToolStatus::Replied)
	{
		return;
	}
	std::optional<FBlueprintModel> Model = ReadBlueprintModel(Outcome.Reply);
	if (!Model)
	{
		Channel.Say("The editor answered, but not with a Blueprint that I can read.\n");
		return;
	}
	if (Model->Name.empty())
	{
		Model->Name = ShortName(Path);
	}
	Channel.Say(Answer(Question, *Model));
}

}

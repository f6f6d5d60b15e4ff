#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <iterator>
#include <sstream>

namespace
{
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/** More than the edits of any of the sentences here. */
constexpr int MaxUndos = 60;

/** A behavior that one sentence builds, and what the graph's picture then shows, in this order. */
struct FBehavior
{
	const char* Name;
	const char* Blueprint;
	const char* Sentence;
	std::vector<std::string> Steps;
	/** What else the sentence sets, as "vexel get" reads it from the saved file: address and value. */
	std::vector<std::pair<std::string, std::string>> Values = {};
	/** Nodes of the event graph that are removed beforehand. */
	std::vector<std::string> Without = {};
};

/** The nodes with which BP_Door handles overlaps. */
std::vector<std::string> OverlapsOfDoor()
{
	return {"EventActorBeginOverlap_0", "CastToBP_Player_0", "Branch_2", "PrintString_1", "GetLocked_1", "OpenDoor_1",
		"EventActorEndOverlap_0", "Delay_0", "CloseDoor_1", "GetAutoCloseDelay_0"};
}

void PrintTo(const FBehavior& Behavior, std::ostream* Stream) { *Stream << Behavior.Name; }

/** What a chat says to lines of input: the texts of its answers, and the results of its commands. */
struct FChatRecord
{
	std::vector<std::string> Answers;
	std::vector<std::string> Pictures;
	/** What the editor refused of the calls. */
	std::vector<std::string> Refusals;
	std::string All;
};

/** What a call's event says of it that went wrong; warnings, and what the compiler says, are no refusals. */
void AddRefusals(const nlohmann::json& Event, std::vector<std::string>& Refusals)
{
	if (Event.contains("error") && !Event["error"].is_null())
	{
		Refusals.push_back(Event["error"].dump());
	}
	for (const nlohmann::json& Problem : Event.value("problems", nlohmann::json::array()))
	{
		const std::string Text = Problem;
		if (Text.rfind("warning: ", 0) != 0 && Text.rfind("error: ", 0) != 0)
		{
			Refusals.push_back(Text);
		}
	}
}

FChatRecord RunChat(const std::filesystem::path& Project, const std::string& Input)
{
	const FProgramResult Result =
		RunVexel({"chat", "--json", "--project", Project}, FProgramSurroundings{.Input = Input, .TimeoutSeconds = 120});
	FChatRecord Record;
	Record.All = Result.Output + Result.Errors;
	std::istringstream Lines(Result.Output);
	for (std::string Line; std::getline(Lines, Line);)
	{
		const nlohmann::json Event = nlohmann::json::parse(Line, nullptr, false);
		const std::string Kind = Event.is_object() ? Event.value("event", "") : std::string();
		if (Kind == "turn_started")
		{
			Record.Answers.emplace_back();
		}
		else if (Kind == "text" && !Record.Answers.empty())
		{
			Record.Answers.back() += Event.value("text", "");
		}
		else if (Kind == "tool_finished")
		{
			AddRefusals(Event, Record.Refusals);
		}
		else if (Kind == "command" && Event.value("command", "") == "/blueprint")
		{
			Record.Pictures.push_back(Event["result"]["text"]);
		}
	}
	return Record;
}

std::string ReadBytes(const std::filesystem::path& Path)
{
	std::ifstream File(Path, std::ios::binary);
	return std::string(std::istreambuf_iterator<char>(File), {});
}

class Edit : public testing::TestWithParam<FBehavior>
{
protected:
	FProgramResult Run(std::vector<std::string> Words) const
	{
		Words.insert(Words.end(), {"--project", Project.GetPath()});
		return RunVexel(Words);
	}

	void RemoveNodes(const std::string& Blueprint, const std::vector<std::string>& Nodes) const
	{
		const nlohmann::json Input = {{"blueprint", "/Game/" + Blueprint}, {"graph", "EventGraph"}, {"nodes", Nodes}};
		const FProgramResult Result = Run({"tool", "node_remove", "--save", "--input", Input.dump()});
		ASSERT_EQ(Result.Status, 0) << Result.Errors;
		EXPECT_THAT(Result.Output, Not(HasSubstr("Failed"))) << Result.Output;
	}

	const FSampleProjectCopy Project;
};
}

TEST_P(Edit, OneSentenceBuildsItCompiledAndUndoTakesAllOfItBack)
{
	const std::string Blueprint = GetParam().Blueprint;
	if (!GetParam().Without.empty())
	{
		RemoveNodes(Blueprint, GetParam().Without);
	}
	const std::string State = "/blueprint " + Blueprint + "\nWhich variables does " + Blueprint + " have?\n";
	std::string Input = State + GetParam().Sentence + "\n/blueprint " + Blueprint + "\n/save\n";
	for (int Count = 0; Count < MaxUndos; ++Count)
	{
		Input += "/undo\n";
	}
	Input += State;
	const FChatRecord Record = RunChat(Project.GetPath(), Input);
	ASSERT_EQ(Record.Answers.size(), 3u) << Record.All;
	ASSERT_EQ(Record.Pictures.size(), 3u) << Record.All;
	EXPECT_THAT(Record.Answers[1], HasSubstr("**" + Blueprint + "** compiles without errors."));
	EXPECT_THAT(Record.Refusals, testing::IsEmpty());
	std::size_t At = 0;
	for (const std::string& Step : GetParam().Steps)
	{
		const std::size_t Found = Record.Pictures[1].find(Step, At);
		ASSERT_NE(Found, std::string::npos) << Step << "\n in\n"
											<< Record.Pictures[1];
		At = Found + Step.size();
	}
	EXPECT_NE(Record.Pictures[1], Record.Pictures[0]);
	EXPECT_EQ(Record.Pictures[2], Record.Pictures[0]);
	EXPECT_EQ(Record.Answers[2], Record.Answers[0]);
	for (const auto& [Address, Value] : GetParam().Values)
	{
		EXPECT_EQ(Run({"get", Address}).Output, Value + "\n") << Address;
	}
}

INSTANTIATE_TEST_SUITE_P(Behaviors, Edit,
	testing::Values(FBehavior{"Door", "BP_Door", "In BP_Door, make the door open on overlap and close after 2 seconds",
						{"● Event ActorBeginOverlap", "Open Door", "Delay  Duration: 2", "Close Door"}, {}, OverlapsOfDoor()},
		FBehavior{"DoorOnHit", "BP_Door", "In BP_Door, when something hits it open the door, then close it after 3 seconds",
			{"● Event Hit", "Open Door", "Delay  Duration: 3", "Close Door"}},
		FBehavior{"Health", "BP_Door", "In BP_Door, add health that drops on damage and destroys at zero",
			{"● Event AnyDamage", "Set Health  Health: Health - Damage", "Branch  Condition: Health <= 0", "Destroy Actor"},
			{{"BP_Door:$ClassDefaultObject.Health", "100.000000"}}},
		FBehavior{"HealthOnHit", "BP_Enemy", "In BP_Enemy, when it is hit, subtract 10 from Health, then destroy it if Health is 0 or less",
			{"● Event Hit", "Set Health  Health: Health - 10", "Branch  Condition: Health <= 0", "Destroy Actor"}},
		FBehavior{"Spawner", "BP_Door", "In BP_Door, every 5 seconds spawn BP_Enemy",
			{"● SpawnEnemy", "Spawn Actor", "● Event BeginPlay", "Set Timer by Event", "Event: SpawnEnemy", "Looping: true"}},
		FBehavior{"Restart", "BP_Door", "In BP_Door, when it is hit restart the level",
			{"● Event Hit", "Execute Console Command  Command: \"RestartLevel\""}},
		FBehavior{"Light", "BP_Door", "When L is pressed toggle the light in BP_Door",
			{"Add Point Light Component", "Set Light", "● L", "Toggle Visibility  Target: Light"},
			{{"BP_Door:$ClassDefaultObject.AutoReceiveInput", "Player0"}}}),
	[](const testing::TestParamInfo<FBehavior>& Info)
	{ return std::string(Info.param.Name); });

TEST(EditSaving, AnEditIsKeptWhereTheUserSaysSo)
{
	const FSampleProjectCopy Project;
	const auto Picture = [&Project]
	{
		return RunVexel({"graph", "show", "--project", Project.GetPath(), "--blueprint", "BP_Door"}).Output;
	};
	const std::string Before = Picture();
	const std::string Sentence = "In BP_Door, when something hits it open the door";
	ASSERT_EQ(RunVexel({"chat", "--project", Project.GetPath(), "--message", Sentence}).Status, 0);
	EXPECT_EQ(Picture(), Before);
	ASSERT_EQ(RunVexel({"chat", "--project", Project.GetPath(), "--save", "--message", Sentence}).Status, 0);
	EXPECT_THAT(Picture(), HasSubstr("● Event Hit"));
	const FChatRecord Record = RunChat(Project.GetPath(), "/save\nIn BP_Door, when it is destroyed print \"Gone\"\n/save\n");
	EXPECT_THAT(Record.All, AllOf(HasSubstr("there is nothing to save"), HasSubstr("saved: "), HasSubstr("BP_Door")));
	EXPECT_THAT(Picture(), HasSubstr("● Event Destroyed"));
}

TEST(EditSaving, NothingIsSavedThatWasNotEdited)
{
	const FSampleProjectCopy Project;
	const std::filesystem::path Level = std::filesystem::path(Project.GetPath()) / "Content" / "L_Lighthouse.umap";
	const std::string Before = ReadBytes(Level);
	ASSERT_FALSE(Before.empty());
	// The level has a door placed in it, which is made again by compiling and takes the new default.
	const FChatRecord Record = RunChat(
		Project.GetPath(), "In BP_Door, when something hits it open the door\n/save\nWhen L is pressed toggle the light in BP_Door\n/save\n");
	EXPECT_THAT(Record.All, AllOf(HasSubstr("saved: BP_Door"), Not(HasSubstr("L_Lighthouse"))));
	const std::string Sentence = "In BP_Enemy, when it is destroyed print \"Gone\"";
	ASSERT_EQ(RunVexel({"chat", "--project", Project.GetPath(), "--save", "--message", Sentence}).Status, 0);
	EXPECT_EQ(ReadBytes(Level), Before);
}

TEST(EditRefusals, WhatCannotBeDoneLeavesTheBlueprintAsItWas)
{
	const FSampleProjectCopy Project;
	const FChatRecord Record = RunChat(Project.GetPath(),
		"/blueprint BP_Door\nIn BP_Door, when F is pressed toggle the chandelier\nIn BP_Door, on BeginPlay spawn BP_Submarine\n/blueprint "
		"BP_Door\n");
	ASSERT_EQ(Record.Answers.size(), 2u) << Record.All;
	EXPECT_THAT(Record.Answers[0], HasSubstr("no component and no variable called \"chandelier\""));
	EXPECT_THAT(Record.Answers[1], HasSubstr("no class of actors called \"BP_Submarine\""));
	EXPECT_THAT(Record.Refusals, testing::IsEmpty()) << "what is not there is seen without trying";
	ASSERT_EQ(Record.Pictures.size(), 2u);
	EXPECT_EQ(Record.Pictures[0], Record.Pictures[1]);
}

#include "ScriptedEditor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace VexelService
{

namespace
{

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Assistant : public testing::Test
{
protected:
	FScriptedEditor Editor;
};

TEST_F(Assistant, ANameIsFoundInAnyFolder)
{
	EXPECT_THAT(Editor.Ask("What does BP_Door do?"), HasSubstr("**BP_Door** is a Blueprint with the parent class Actor."));
	EXPECT_THAT(Editor.GetCalls(), ElementsAre("search_assets BP_Door", "read_blueprint /Game/Doors/BP_Door.BP_Door"));
	EXPECT_THAT(Editor.Ask("What does /Game/BP_Player do?"), HasSubstr("**BP_Player** is"));
	EXPECT_THAT(Editor.GetCalls(), ElementsAre("read_blueprint /Game/BP_Player"));
}

TEST_F(Assistant, MistypedAndPlainNamesMeanTheNearestAndAreNamed)
{
	for (const char* const Question : {"What does BP_Dor do?", "what do BP_Doors do", "What does the door do?", "waht does bp_doro do?"})
	{
		EXPECT_THAT(Editor.Ask(Question), AllOf(HasSubstr("to mean **BP_Door**"), HasSubstr("**BP_Door** is a Blueprint"))) << Question;
	}
	EXPECT_THAT(Editor.Ask("What does the door actor do?"), HasSubstr("**BP_Door** is a Blueprint"));
	const std::string Answer = Editor.Ask("What does BP_Submarine do?");
	EXPECT_THAT(Answer, HasSubstr("I find no asset called \"BP_Submarine\""));
	EXPECT_THAT(Answer, HasSubstr("**BP_Player**, **BP_Door** and **BP_Enemy**"));
	EXPECT_THAT(Editor.Ask("What does the function Opne of BP_Door do?"), AllOf(HasSubstr("to mean **Open**"), HasSubstr("Sets bOpen to true")));
}

TEST_F(Assistant, LaterQuestionsReferToEarlierOnes)
{
	Editor.Ask("What does BP_Door do?");
	EXPECT_THAT(Editor.Ask("and what does its Open function do?"), AllOf(HasSubstr("In **BP_Door**"), HasSubstr("Sets bOpen to true")));
	EXPECT_THAT(Editor.Ask("Where is that used?"), HasSubstr("**Open** is a function of **BP_Door**, but no step of it calls it."));
	EXPECT_THAT(Editor.Ask("Where else is it used?"), HasSubstr("**BP_Player**"));
	EXPECT_THAT(Editor.Ask("Which variables does BP_Enemy have?"), HasSubstr("**BP_Enemy** has 1 variable"));
	EXPECT_THAT(Editor.Ask("And BP_Door?"), HasSubstr("**BP_Door** has 1 variable"));
	EXPECT_THAT(Editor.Ask("and its functions?"), HasSubstr("**BP_Door** has 1 function"));
	EXPECT_THAT(Editor.Ask("What does open do?"), HasSubstr("Sets bOpen to true"));
}

TEST_F(Assistant, ANameSaidOnceStandsForTheBlueprintThatWasRead)
{
	Editor.Ask("What does the enemy do?");
	EXPECT_THAT(Editor.Ask("Which variables does it have?"), HasSubstr("**BP_Enemy** has 1 variable"));
	EXPECT_THAT(Editor.GetCalls(), ElementsAre("read_blueprint /Game/Enemies/BP_Enemy.BP_Enemy"));
}

TEST_F(Assistant, AnEventMayNameItsBlueprintInPlainWords)
{
	EXPECT_THAT(Editor.Ask("What happens when play begins for the enemy?"), AllOf(HasSubstr("In **BP_Enemy**"), HasSubstr("destroys itself")));
	Editor.Ask("What does BP_Player do?");
	EXPECT_THAT(Editor.Ask("What happens when play begins?"), HasSubstr("In **BP_Player**"));
	EXPECT_THAT(Editor.Ask("What happens when the door is told to open?"), HasSubstr("In **BP_Door**"));
	EXPECT_THAT(Editor.Ask("What happens when the moon rises?"), HasSubstr("no event of **BP_Door**"));
}

TEST_F(Assistant, UsesOfAMemberAreFoundInAllBlueprints)
{
	const std::string Answer = Editor.Ask("Where is Open called?");
	EXPECT_THAT(Answer, StartsWith("**Open** is used in 1 place of 2 Blueprints:\n\n"));
	EXPECT_THAT(Answer, HasSubstr("- **BP_Door**, which has it, uses it nowhere\n"));
	EXPECT_THAT(Answer, HasSubstr("- **BP_Player**:\n  - In EventGraph, the step \"calls Open\" calls it\n"));
	EXPECT_THAT(Editor.Ask("Where is Helath used?"), AllOf(HasSubstr("\"Helath\" to mean **Health**"), HasSubstr("**BP_Enemy**, which has it")));
	EXPECT_THAT(Editor.Ask("Which Blueprints use Gravity?"), HasSubstr("nothing called \"Gravity\" in 3 Blueprints"));
}

TEST_F(Assistant, UsesOfAnAssetAreFoundThroughItsReferencers)
{
	const std::string Answer = Editor.Ask("What uses BP_Door?");
	EXPECT_THAT(Answer, HasSubstr("**BP_Door** is used by 2 assets:"));
	EXPECT_THAT(Answer, HasSubstr("  - The variable Door (BP_Door reference)\n"));
	EXPECT_THAT(Answer, HasSubstr("  - In EventGraph, the step \"calls Open\"\n"));
	EXPECT_THAT(Answer, HasSubstr("- **L_Harbor** (`/Game/L_Harbor`) refers to it\n"));
	EXPECT_THAT(Editor.GetCalls(), Not(Contains(HasSubstr("BP_Enemy")))) << "what cannot refer to it is not read";
}

TEST_F(Assistant, UsesAreFoundInAProjectWhoseBlueprintsAreMoreThanOneListHolds)
{
	Editor.SetTool("search_assets", [](const FJson& Arguments) -> FJson
		{
			const FJson Door = {{"path", "/Game/Doors/BP_Door.BP_Door"}, {"name", "BP_Door"}, {"class", "Blueprint"}};
			const FJson Player = {{"path", "/Game/BP_Player.BP_Player"}, {"name", "BP_Player"}, {"class", "Blueprint"}};
			const bool bByName = Arguments.value("query", "") == "BP_Player";
			return {{"total", bByName ? 1 : 5000}, {"offset", 0}, {"assets", FJson::array({bByName ? Player : Door})}}; });
	EXPECT_THAT(Editor.Ask("What uses /Game/Doors/BP_Door?"), AllOf(HasSubstr("  - In EventGraph, the step \"calls Open\"\n"), HasSubstr("- **L_Harbor** (`/Game/L_Harbor`) refers to it\n")));
}

TEST_F(Assistant, TheProjectIsToldWithWhatItHas)
{
	EXPECT_THAT(Editor.Ask("What does this project contain?"),
		AllOf(StartsWith("**Harbor** is a project open in engine 5.7. A quiet place."), HasSubstr("4 assets: 3 of class Blueprint and 1 of class World"),
			HasSubstr("`Config/DefaultEngine.ini`")));
	EXPECT_THAT(Editor.Ask("Which Blueprints are there?"),
		AllOf(StartsWith("The project has 3 Blueprints:"), HasSubstr("- **BP_Door** (Blueprint, an Actor): `/Game/Doors/BP_Door`")));
	EXPECT_THAT(Editor.Ask("list all levels"), AllOf(HasSubstr("**L_Harbor** (World)"), Not(HasSubstr("BP_Door"))));
	EXPECT_THAT(Editor.Ask("What do all the Blueprints do?"),
		AllOf(HasSubstr("- **BP_Door** is a Blueprint"), HasSubstr("- **BP_Enemy** is a Blueprint"), HasSubstr("- **BP_Player** is a Blueprint")));
}

TEST_F(Assistant, FilesAndDeclarationsAreShownAsTheyAre)
{
	const std::string Answer = Editor.Ask("What does DefaultEngine.ini say?");
	EXPECT_THAT(Answer, HasSubstr("`Config/DefaultEngine.ini` has 2 lines:\n\n````ini\n[Section]\nKey=```Value\n````\n"));
	EXPECT_THAT(Editor.Ask("show me Door.h"), HasSubstr("`Source/Harbor/Door.h`"));
	EXPECT_THAT(Editor.Ask("Read Nothing.ini"), HasSubstr("no file called \"Nothing.ini\""));
	EXPECT_THAT(Editor.Ask("Show the source of ADoor"),
		AllOf(HasSubstr("The class `ADoor`, `Source/Harbor/Door.h`, lines 3 to 5:"), HasSubstr("```cpp\nclass ADoor\n")));
}

TEST_F(Assistant, AnAssetIsToldWithItsPlaceAndItsRelations)
{
	EXPECT_THAT(Editor.Ask("How big is BP_Door?"),
		AllOf(StartsWith("**BP_Door** is a Blueprint with the parent class Actor."), HasSubstr("- Size: 23.5 kB\n"),
			HasSubstr("- It is referred to by: **BP_Player** and **L_Harbor**\n")));
	EXPECT_THAT(Editor.Ask("What does it depend on?"), AllOf(HasSubstr("`/Game/M_Wood`"), HasSubstr("Modules of the engine and of the project: **Engine**")));
}

TEST_F(Assistant, PicturesAreTakenOfWhatIsMeant)
{
	EXPECT_THAT(Editor.Ask("Show me the graph Open of BP_Door"), HasSubstr("This is **BP_Door - Open**"));
	EXPECT_EQ(Editor.GetCalls().back(), "get_scene_screenshot /Game/Doors/BP_Door.BP_Door Open editor");
	Editor.Ask("Take a picture of the viewport");
	EXPECT_THAT(Editor.GetCalls(), ElementsAre("get_scene_screenshot viewport"));
	Editor.Ask("What does BP_Player do?");
	Editor.Ask("show me its graph");
	EXPECT_EQ(Editor.GetCalls().back(), "get_scene_screenshot /Game/BP_Player.BP_Player editor");
	EXPECT_EQ(Editor.GetImages().size(), 3u);
}

TEST_F(Assistant, SeveralBlueprintsAreToldOneAfterTheOther)
{
	const std::string Answer = Editor.Ask("What do BP_Door and BP_Enemy do?");
	EXPECT_THAT(Answer, AllOf(HasSubstr("**BP_Door** is a Blueprint"), HasSubstr("**BP_Enemy** is a Blueprint")));
}

TEST_F(Assistant, AToolThatFailsIsToldInItsOwnWords)
{
	Editor.SetTool("get_project", [](const FJson&)
		{ return FJson(); });
	EXPECT_EQ(Editor.Ask("What is in the project?"), "I could not read the project. The editor says: no such thing\n");
	Editor.SetTool("search_assets", [](const FJson&)
		{ return FJson(); });
	EXPECT_THAT(Editor.Ask("Where is Health used?"), HasSubstr("I could not search the project. The editor says: no such thing"));
	EXPECT_THAT(Editor.Ask("What does BP_Door do?"), HasSubstr("The editor says: no such thing"));
}

TEST_F(Assistant, RepliesOfAnotherShapeAreSurvived)
{
	for (const FJson& Strange : {FJson::object(), FJson::array(), FJson("text"), FJson({{"assets", {1, {{"name", 3}}}}, {"total", "many"}}),
			 FJson({{"content", 5}, {"maps", {{"a", 1}}}, {"referencers", {1}}, {"declarations", {2}}, {"text", 7}, {"image", {}}})})
	{
		for (const char* const Tool : {"search_assets", "get_asset_info", "get_project", "get_source", "get_scene_screenshot", "read_blueprint"})
		{
			Editor.SetTool(Tool, [Strange](const FJson&)
				{ return Strange; });
		}
		for (const char* const Question : {"What does BP_Door do?", "What is in the project?", "Which levels are there?", "Where is Health used?",
				 "What uses /Game/BP_Door?", "How big is /Game/BP_Door?", "Show Config/DefaultEngine.ini", "Show the source of ADoor", "Take a screenshot"})
		{
			EXPECT_FALSE(Editor.Ask(Question).empty()) << Question << " with " << Strange;
		}
	}
}

TEST_F(Assistant, WhatItCannotDoItSaysWithoutATool)
{
	for (const char* const Message : {"Paint the sky green", "Add a light to BP_Door", "why?", "BP_Door is broken"})
	{
		EXPECT_THAT(Editor.Ask(Message), StartsWith("I did not understand that.")) << Message;
		EXPECT_THAT(Editor.GetCalls(), IsEmpty());
	}
	EXPECT_THAT(Editor.Ask("What can you do?"), AllOf(StartsWith("I work offline"), HasSubstr("Where is Health used?")));
	EXPECT_THAT(Editor.Ask("Hello!"), StartsWith("Hello."));
	EXPECT_THAT(Editor.Ask("thanks"), StartsWith("You are welcome."));
}

}

}

#include "History.h"
#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
using testing::HasSubstr;
using testing::Not;

/** A Blueprint node text, as the editor copies it: BeginPlay prints a greeting. */
std::string MakeGreetingText(const std::string& Greeting)
{
	return "Begin Object Class=/Script/BlueprintGraph.K2Node_Event Name=\"K2Node_Event_0\"\n"
		   "   EventReference=(MemberParent=/Script/CoreUObject.Class'\"/Script/Engine.Actor\"',MemberName=\"ReceiveBeginPlay\")\n"
		   "   bOverrideFunction=True\n"
		   "   NodeGuid=11111111222222223333333344444444\n"
		   "   CustomProperties Pin (PinId=A0000000000000000000000000000001,PinName=\"then\",Direction=\"EGPD_Output\",PinType.PinCategory=\"exec\","
		   "LinkedTo=(K2Node_CallFunction_0 A0000000000000000000000000000002,),)\n"
		   "End Object\n"
		   "Begin Object Class=/Script/BlueprintGraph.K2Node_CallFunction Name=\"K2Node_CallFunction_0\"\n"
		   "   FunctionReference=(MemberParent=/Script/CoreUObject.Class'\"/Script/Engine.KismetSystemLibrary\"',MemberName=\"PrintString\")\n"
		   "   NodePosX=300\n"
		   "   NodeGuid=11111111222222223333333355555555\n"
		   "   CustomProperties Pin (PinId=A0000000000000000000000000000002,PinName=\"execute\",PinType.PinCategory=\"exec\","
		   "LinkedTo=(K2Node_Event_0 A0000000000000000000000000000001,),)\n"
		   "   CustomProperties Pin (PinId=A0000000000000000000000000000003,PinName=\"then\",Direction=\"EGPD_Output\",PinType.PinCategory=\"exec\",)\n"
		   "   CustomProperties Pin (PinId=A0000000000000000000000000000004,PinName=\"InString\",PinType.PinCategory=\"string\",DefaultValue=\"" +
		Greeting + "\",)\nEnd Object\n";
}
}

TEST(Chat, AnswersWhatABlueprintReallyDoes)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result = RunVexel({"chat", "--project", Project.GetPath(), "--message", "What does BP_Door do?"});
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_EQ(Result.Errors, "");
	EXPECT_THAT(Result.Output, HasSubstr("[Loading blueprint]\n[Blueprint loaded]\n"));
	EXPECT_THAT(Result.Output, HasSubstr("BP_Door"));
	EXPECT_THAT(Result.Output, Not(HasSubstr("\x1b")));

	const std::vector<nlohmann::json> History = ReadHistory(Project.GetPath());
	ASSERT_EQ(History.size(), 1u);
	EXPECT_EQ(History[0]["ChatMode"], "vexel_agent");
	ASSERT_EQ(History[0]["Messages"].size(), 2u);
	EXPECT_EQ(History[0]["Messages"][0]["role"], "user");
	EXPECT_EQ(History[0]["Messages"][0]["message_blocks"][0]["content"], "What does BP_Door do?");
	EXPECT_EQ(History[0]["Messages"][1]["role"], "assistant");
	EXPECT_FALSE(History[0]["Mapping"]["node_agent_names"].empty());
}

TEST(Chat, SetsAndListsComponentsOfTheNativeParent)
{
	const FSampleProjectCopy Project;
	const FProgramResult Set = RunVexel({"chat", "--save", "--project", Project.GetPath(), "--message",
		"In BP_Player set the mesh's relative location to 0, 0, -90"});
	EXPECT_EQ(Set.Status, 0) << Set.Errors;
	EXPECT_THAT(Set.Output, HasSubstr("I set the default of **Mesh.RelativeLocation** to (X = 0, Y = 0, Z = -90)."));
	const FProgramResult Listed = RunVexel({"chat", "--project", Project.GetPath(), "--message", "What components does BP_Player have?"});
	EXPECT_EQ(Listed.Status, 0) << Listed.Errors;
	EXPECT_THAT(Listed.Output,
		HasSubstr("**BP_Player** has 3 components:\n\n"
				  "- **Mesh**: SkeletalMeshComponent, with RelativeLocation = (X = 0, Y = 0, Z = -90)\n"
				  "- **CharacterMovement**: CharacterMovementComponent\n- **CapsuleComponent**: CapsuleComponent\n"));
}

TEST(Chat, GoesOnWithAStoredConversation)
{
	const FSampleProjectCopy Project;
	ASSERT_EQ(RunVexel({"chat", "--project", Project.GetPath(), "--message", "What does BP_Door do?"}).Status, 0);
	ASSERT_EQ(RunVexel({"chat", "--project", Project.GetPath(), "--continue", "--message", "Which variables does BP_Enemy have?"}).Status, 0);
	const std::vector<nlohmann::json> History = ReadHistory(Project.GetPath());
	ASSERT_EQ(History.size(), 1u);
	EXPECT_EQ(History[0]["Messages"].size(), 4u);
}

TEST(Chat, DescribesABlueprintThatWasPastedAndFollowsItsChange)
{
	const FSampleProjectCopy Project;
	for (const std::string Greeting : {"Good morning", "Good night"})
	{
		std::filesystem::remove(Project.GetPath() / "Content/BP_New.uasset");
		const FProgramResult Import = RunVexel(
			{"graph", "import", "--project", Project.GetPath(), "--blueprint", "/Game/BP_New", "--graph", "EventGraph", "--save", "-"},
			MakeGreetingText(Greeting));
		ASSERT_EQ(Import.Status, 0) << Import.Errors;
		const FProgramResult Chat = RunVexel({"chat", "--project", Project.GetPath(), "--message", "What does /Game/BP_New do?"});
		EXPECT_EQ(Chat.Status, 0) << Chat.Errors;
		EXPECT_THAT(Chat.Output, HasSubstr(Greeting));
	}
}

TEST(Chat, TakesSeveralQuestionsFromAPipe)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result =
		RunVexel({"chat", "--project", Project.GetPath()}, "What does BP_Door do?\n\nWhich variables does BP_Enemy have?\n");
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_THAT(Result.Output, HasSubstr("BP_Door"));
	EXPECT_THAT(Result.Output, HasSubstr("Health"));
}

TEST(Chat, TellsWhichBlueprintIsMissing)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result = RunVexel({"chat", "--project", Project.GetPath(), "--message", "What does /Game/BP_Nowhere do?"});
	EXPECT_EQ(Result.Status, 0);
	EXPECT_THAT(Result.Output, HasSubstr("BP_Nowhere"));
	EXPECT_THAT(Result.Output, HasSubstr("[failed: Invalid input: Blueprint not found: `/Game/BP_Nowhere`]"));
}

TEST(Chat, GivesOneJsonDocument)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result = RunVexel({"chat", "--project", Project.GetPath(), "--json", "--message", "What does BP_Door do?"});
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	const nlohmann::json Document = nlohmann::json::parse(Result.Output, nullptr, false);
	ASSERT_TRUE(Document.is_object()) << Result.Output;
	EXPECT_EQ(Document["state"], "succeeded");
	EXPECT_THAT(Document["answer"].get<std::string>(), HasSubstr("BP_Door"));
}

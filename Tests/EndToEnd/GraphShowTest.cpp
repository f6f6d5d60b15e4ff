#include "ClearLine.h"
#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
using testing::HasSubstr;
using testing::Not;
}

TEST(GraphShow, DrawsTheFlowWithItsBranchesAndValues)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result = RunVexel({"graph", "show", "--project", Project.GetPath(), "--blueprint", "BP_Door"});
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_THAT(Result.Output, testing::StartsWith("BP_Door · EventGraph"));
	EXPECT_THAT(Result.Output, HasSubstr("● Event BeginPlay\n└ Print String  In String: \"A door waits in the dark\""));
	EXPECT_THAT(Result.Output, HasSubstr("Branch  Condition: Locked\n"));
	EXPECT_THAT(Result.Output, HasSubstr("├▸ true\n│  └ Print String  In String: \"The door is locked\""));
	EXPECT_THAT(Result.Output, HasSubstr("└▸ false\n   └ Open Door"));
	EXPECT_THAT(Result.Output, Not(HasSubstr("\x1b")));
}

TEST(GraphShow, GivesADocumentToOtherPrograms)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result =
		RunVexel({"graph", "show", "--json", "--project", Project.GetPath(), "--blueprint", "/Game/BP_Door", "--graph", "OpenDoor"});
	const nlohmann::json Document = nlohmann::json::parse(Result.Output, nullptr, false);
	ASSERT_TRUE(Document.is_object()) << Result.Output;
	EXPECT_EQ(Document["graph"], "OpenDoor");
	EXPECT_THAT(Document["text"].get<std::string>(), HasSubstr("Set Is Open  Is Open: true"));
	ExpectOneClearLine(RunVexel({"graph", "show", "--project", Project.GetPath(), "--blueprint", "BP_Cellar"}), 1, "there is no Blueprint 'BP_Cellar'");
}

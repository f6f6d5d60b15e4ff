#include "ClearLine.h"
#include "Program.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace
{
using testing::HasSubstr;

const std::string Changed =
	"~ BP_Door · OpenDoor  function  -1 node  -2 wires\n"
	"  ● Open Door\n"
	"  │ Branch  Condition: Is Open  ▸ false\n"
	"- │ Set Is Open  Is Open: true\n"
	"- └ ↪ Set Actor Rotation\n";

/** The sample project with BP_Door edited and saved, and the file as it was. */
class Diff : public testing::Test
{
protected:
	Diff()
		: Old(Project.GetPath() / "Saved/Old door.uasset")
		, New(Project.GetPath() / "Content/BP_Door.uasset")
	{
		std::filesystem::create_directories(Old.parent_path());
		std::filesystem::copy_file(New, Old);
	}

	void Edit() const
	{
		const FProgramResult Result = RunVexel({"tool", "node_remove", "--project", Project.GetPath(), "--save", "--input",
			R"({"blueprint":"/Game/BP_Door.BP_Door","graph":"OpenDoor","nodes":["SetIsOpen_0"]})"});
		ASSERT_EQ(Result.Status, 0) << Result.Errors;
	}

	FProgramResult Compare(std::vector<std::string> Words) const
	{
		Words.insert(Words.begin(), {"diff", "--project", Project.GetPath()});
		return RunVexel(Words);
	}

	FSampleProjectCopy Project;
	const std::filesystem::path Old;
	const std::filesystem::path New;
};
}

TEST_F(Diff, ComparesFilesAndBlueprintsOfTheProject)
{
	EXPECT_EQ(Compare({Old, "BP_Door"}).Output, "") << "the same";
	EXPECT_EQ(Compare({Old, New}).Output, "");
	Edit();
	const FProgramResult Result = Compare({Old, "BP_Door"});
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_EQ(Result.Output, Changed);
	EXPECT_EQ(Compare({Old, New}).Output, Changed);
	EXPECT_THAT(Compare({"/Game/BP_Door", Old}).Output, HasSubstr("+ │ Set Is Open  Is Open: true"));
}

TEST_F(Diff, GivesADocumentToOtherPrograms)
{
	Edit();
	const nlohmann::json Document = nlohmann::json::parse(Compare({Old, New, "--json"}).Output, nullptr, false);
	ASSERT_TRUE(Document.is_object());
	EXPECT_EQ(Document["before"], Old.string());
	EXPECT_EQ(Document["change"], "changed");
	ASSERT_EQ(Document["graphs"].size(), 1u);
	EXPECT_EQ(Document["graphs"][0]["name"], "OpenDoor");
	EXPECT_EQ(Document["graphs"][0]["nodes"][0]["change"], "removed");
	EXPECT_EQ(Document["graphs"][0]["wires"].size(), 2u);
}

TEST_F(Diff, AnswersGitAsGitAsks)
{
	Edit();
	const std::string Path = "Content/BP_Door.uasset";
	EXPECT_EQ(Compare({Path, Old, "0123", "100644", New, "4567", "100644"}).Output, "vexel diff " + Path + "\n" + Changed);
	const FProgramResult Added = Compare({Path, "/dev/null", ".", ".", New, "4567", "100644"});
	EXPECT_THAT(Added.Output, HasSubstr("\n+ BP_Door\n"));
	EXPECT_THAT(Added.Output, HasSubstr("+ variable OpenAngle"));
	const std::filesystem::path Text = Project.GetPath() / "Lighthouse.uproject";
	const FProgramResult NoBlueprint = Compare({"Content/T.uasset", Text, "0", "100644", New, "1", "100644"});
	EXPECT_EQ(NoBlueprint.Status, 0) << "git would stop";
	EXPECT_EQ(NoBlueprint.Output, "vexel diff Content/T.uasset\nThe files differ, and are no Blueprints that can be compared\n");
}

TEST_F(Diff, SaysWhatItCannotCompare)
{
	ExpectOneClearLine(Compare({Project.GetPath() / "Lighthouse.uproject", New}), 1, "holds no Blueprint that can be loaded");
	ExpectOneClearLine(Compare({"BP_Cellar", New}), 1, "there is no Blueprint 'BP_Cellar'");
	ExpectOneClearLine(Compare({New}), 2, "which two?");
}

#include "ClearLine.h"
#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <iterator>

namespace
{
using testing::AllOf;
using testing::HasSubstr;

constexpr const char* Intensity = ":$ClassDefaultObject.Light.Intensity";

/** The sample project with BP_Lamp, whose Light has an intensity of 800, BP_StreetLamp below it and BP_OldStreetLamp below that. */
class InheritedComponent : public testing::Test
{
protected:
	void SetUp() override
	{
		const FProgramResult Made = RunProgram({VEXEL_LAMP_PROJECT_PROGRAM, Project.GetPath()});
		ASSERT_EQ(Made.Status, 0) << Made.Errors;
	}

	FProgramResult Try(std::vector<std::string> Words) const
	{
		Words.insert(Words.end(), {"--project", Project.GetPath()});
		return RunVexel(Words);
	}
	std::string Run(const std::vector<std::string>& Words) const
	{
		const FProgramResult Result = Try(Words);
		EXPECT_EQ(Result.Status, 0) << Result.Errors;
		return Result.Output.substr(0, Result.Output.find_last_not_of('\n') + 1);
	}
	std::string Get(const std::string& Blueprint) const { return Run({"get", Blueprint + Intensity}); }
	std::string ReadFile(const std::string& Blueprint) const
	{
		std::ifstream File(Project.GetPath() / "Content" / (Blueprint + ".uasset"), std::ios::binary);
		return std::string(std::istreambuf_iterator<char>(File), {});
	}

	FSampleProjectCopy Project;
};
}

TEST_F(InheritedComponent, IsSetForTheChildAndThoseBelowItAlone)
{
	const std::string LampFile = ReadFile("BP_Lamp");
	EXPECT_EQ(Get("BP_OldStreetLamp"), "800.000000");
	EXPECT_EQ(Run({"set", std::string("BP_StreetLamp") + Intensity, "500", "--save"}), "500.000000");
	EXPECT_EQ(Get("BP_Lamp"), "800.000000");
	EXPECT_EQ(Get("BP_StreetLamp"), "500.000000");
	EXPECT_EQ(Get("BP_OldStreetLamp"), "500.000000");
	EXPECT_EQ(ReadFile("BP_Lamp"), LampFile);

	// What the child has not changed is the parent's of now.
	Run({"set", "BP_Lamp:$ClassDefaultObject.Light.AttenuationRadius", "250", "--save"});
	EXPECT_EQ(Run({"set", std::string("BP_Lamp") + Intensity, "900", "--save"}), "900.000000");
	EXPECT_EQ(Get("BP_StreetLamp"), "500.000000");
	EXPECT_EQ(Run({"get", "BP_OldStreetLamp:$ClassDefaultObject.Light.AttenuationRadius"}), "250.000000");

	const std::string StreetLampFile = ReadFile("BP_StreetLamp");
	ExpectOneClearLine(Try({"set", std::string("BP_StreetLamp") + Intensity, "bright", "--save"}), 1, "Failed to import text");
	EXPECT_EQ(ReadFile("BP_StreetLamp"), StreetLampFile);

	// With the parent's value it follows the parent again.
	Run({"set", std::string("BP_StreetLamp") + Intensity, "900", "--save"});
	Run({"set", std::string("BP_Lamp") + Intensity, "700", "--save"});
	EXPECT_EQ(Get("BP_OldStreetLamp"), "700.000000");
}

TEST_F(InheritedComponent, IsSetByASentenceThatUndoTakesBack)
{
	const std::string Lines = "Set the Light's Intensity in BP_StreetLamp to 500\n/undo all\n";
	const FProgramResult Undone = RunVexel({"chat", "--save", "--project", Project.GetPath()}, Lines);
	EXPECT_THAT(Undone.Output, HasSubstr("I set the default of **Light.Intensity** from 800 to 500.")) << Undone.Errors;
	EXPECT_EQ(Get("BP_StreetLamp"), "800.000000");

	const std::string Output = Run({"chat", "--save", "--message", "Set the Light's Intensity in BP_StreetLamp to 500"});
	EXPECT_THAT(Output, AllOf(HasSubstr("BP_StreetLamp"), HasSubstr("Light"), HasSubstr("500")));
	EXPECT_EQ(Get("BP_StreetLamp"), "500.000000");
	EXPECT_EQ(Get("BP_Lamp"), "800.000000");
	const std::string Answer = Run({"tool", "read_blueprint", "--input", R"({"blueprint": "/Game/BP_OldStreetLamp"})"});
	EXPECT_THAT(nlohmann::json::parse(Answer, nullptr, false).dump(), HasSubstr(R"("value":"500.000000")"));
}

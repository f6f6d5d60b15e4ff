#include "ClearLine.h"
#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <map>
#include <set>

namespace
{
using testing::HasSubstr;

class Value : public testing::Test
{
protected:
	std::vector<std::string> With(const std::vector<std::string>& Words) const
	{
		std::vector<std::string> All = Words;
		All.insert(All.end(), {"--project", Project.GetPath()});
		return All;
	}

	/** What a successful command prints, without the end of its line. */
	std::string Run(const std::vector<std::string>& Words) const
	{
		const FProgramResult Result = RunVexel(With(Words));
		EXPECT_EQ(0, Result.Status) << Result.Errors;
		return Result.Output.substr(0, Result.Output.find_last_not_of('\n') + 1);
	}
	FProgramResult Try(const std::vector<std::string>& Words) const { return RunVexel(With(Words)); }

	FSampleProjectCopy Project;
};

TEST_F(Value, OfADefaultIsReadSetAndSaved)
{
	const std::string Before = Run({"get", "BP_Door:$ClassDefaultObject.OpenAngle"});
	EXPECT_EQ(Before, Run({"get", "/Game/BP_Door.BP_Door:$ClassDefaultObject.OpenAngle"}));
	EXPECT_EQ(Before, Run({"get", "/Game/BP_Door:$ClassDefaultObject.OpenAngle"}));
	EXPECT_EQ("12.500000", Run({"set", "BP_Door:$ClassDefaultObject.OpenAngle", "12.5"}));
	EXPECT_EQ(Before, Run({"get", "BP_Door:$ClassDefaultObject.OpenAngle"}));
	EXPECT_EQ("12.500000", Run({"set", "BP_Door:$ClassDefaultObject.OpenAngle", "12.5", "--save"}));
	EXPECT_EQ("12.500000", Run({"get", "BP_Door:$ClassDefaultObject.OpenAngle"}));
	EXPECT_EQ("12.500000", Run({"get", "BP_Door:member@OpenAngle"}));
}

TEST_F(Value, OfAPinIsReadSetAndSaved)
{
	const nlohmann::json Graph = nlohmann::json::parse(Run({"get", "BP_Door:EventGraph/"}), nullptr, false);
	ASSERT_TRUE(Graph.is_object());
	const nlohmann::json Whole =
		nlohmann::json::parse(Run({"tool", "read_blueprint", "--input", R"({"blueprint": "/Game/BP_Door.BP_Door"})"}), nullptr, false);
	EXPECT_THAT(Whole["graphs"], testing::Contains(Graph)) << "a node has one id, whatever is read";
	std::string Node;
	for (const nlohmann::json& Candidate : Graph["nodes"])
	{
		Node = Candidate["node_type"].get<std::string>().find("PrintString") != std::string::npos ? Candidate["id"].get<std::string>() : Node;
	}
	ASSERT_FALSE(Node.empty());
	const std::string Address = "BP_Door:EventGraph/" + Node + ".InString";
	EXPECT_EQ("It opens, \"slowly\"", Run({"set", Address, "It opens, \"slowly\"", "--save"}));
	EXPECT_EQ("It opens, \"slowly\"", Run({"get", Address}));
	EXPECT_EQ("quoted", Run({"set", Address, "\"quoted\""}));
	EXPECT_THAT(Run({"get", "BP_Door:EventGraph/" + Node}), HasSubstr("\"id\": \"" + Node + "\""));
	EXPECT_EQ("OpenDoor", Run({"get", "BP_Door:OpenDoor/.name"}));
}

TEST_F(Value, OfAComponentOfTheNativeParentIsSavedInTheBlueprint)
{
	const std::string Location = "BP_Player:$ClassDefaultObject.Mesh.RelativeLocation";
	EXPECT_EQ("0.000000", Run({"get", Location + ".Z"}));
	EXPECT_EQ("88.000000", Run({"get", "BP_Player:$ClassDefaultObject.CapsuleComponent.CapsuleHalfHeight"}));
	EXPECT_EQ("-88.000000", Run({"set", Location + ".Z", "-88", "--save"}));
	EXPECT_EQ("-88.000000", Run({"get", Location + ".Z"}));
	const nlohmann::json Package = nlohmann::json::parse(
		RunVexel({"inspect", (Project.GetPath() / "Content" / "BP_Player.uasset").string(), "--json"}).Output, nullptr, false);
	ASSERT_TRUE(Package.is_object());
	std::map<std::string, std::set<std::string>> Saved;
	for (const nlohmann::json& Export : Package["exports"])
	{
		const std::string Path = Export["path"];
		const size_t Name = Path.find("Default__BP_Player_C:");
		for (const nlohmann::json& Property : Name == std::string::npos ? nlohmann::json::array() : Export["properties"])
		{
			Saved[Path.substr(Path.find(':') + 1)].insert(Property["name"]);
		}
	}
	const std::map<std::string, std::set<std::string>> Expected = {
		{"Arrow", {"AttachParent"}}, {"CharacterMesh0", {"AttachParent", "RelativeLocation"}}};
	EXPECT_EQ(Expected, Saved) << "what is the native class's own is not the Blueprint's to save";
}

TEST_F(Value, IsADocumentForOtherPrograms)
{
	const nlohmann::json Document =
		nlohmann::json::parse(Run({"get", "BP_Door:$ClassDefaultObject.OpenAngle", "--json"}), nullptr, false);
	ASSERT_TRUE(Document.is_object());
	EXPECT_EQ("/Game/BP_Door.BP_Door", Document["blueprint"]);
	EXPECT_EQ("$ClassDefaultObject.OpenAngle", Document["address"]);
	EXPECT_EQ("OpenAngle", Document["property"]["id"]);
	EXPECT_EQ("real", Document["property"]["type"]);
	const nlohmann::json Set = nlohmann::json::parse(
		Run({"set", "BP_Door:$ClassDefaultObject", R"({"OpenAngle": 33, "bHidden": true})", "--json"}), nullptr, false);
	EXPECT_THAT(Set["property"].dump(), HasSubstr(R"("value":"33.000000")"));
}

TEST_F(Value, RefusalIsOneClearLine)
{
	ExpectOneClearLine(Try({"get"}), 2, "which value?");
	ExpectOneClearLine(Try({"set", "BP_Door:$ClassDefaultObject.OpenAngle"}), 2, "which value, and what?");
	ExpectOneClearLine(Try({"set", "BP_Door:$ClassDefaultObject", "{broken"}), 2, "not a JSON object");
	ExpectOneClearLine(Try({"get", "BP_Cellar:$ClassDefaultObject"}), 1, "there is no Blueprint 'BP_Cellar'");
	ExpectOneClearLine(Try({"get", "BP_Door:$ClassDefaultObject.Nope"}), 1, "Property 'Nope' not found in compound");
	ExpectOneClearLine(Try({"get", "BP_Door:NoGraph/X.Y"}), 1, "has no graph 'NoGraph'");
	ExpectOneClearLine(Try({"get", "BP_Door:EventGraph/X.Y"}), 1, "has no node 'X'");
	ExpectOneClearLine(Try({"get", "BP_Door:member@Nope"}), 1, "Variable 'Nope' with scope 'member' not found");
	ExpectOneClearLine(Try({"set", "BP_Door:$ClassDefaultObject.OpenAngle", "wide"}), 1, "Failed to import text to property 'OpenAngle'");
	ExpectOneClearLine(Try({"set", "BP_Door:EventGraph/", "x"}), 1, "names no value");
	ExpectOneClearLine(Try({"set", "BP_Door", "x"}), 1, "names no value");
}
}

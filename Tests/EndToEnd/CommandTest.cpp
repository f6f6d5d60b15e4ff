#include "ClearLine.h"
#include "Program.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>

namespace
{
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

void WriteFile(const std::filesystem::path& Path, const std::string& Text)
{
	std::ofstream(Path, std::ios::binary) << Text;
}
}

TEST(Command, WrongUsageIsStatusTwo)
{
	ExpectOneClearLine(RunVexel({"chatter"}), 2, "unknown command 'chatter'");
	ExpectOneClearLine(RunVexel({"chat", "--colour"}), 2, "unknown option '--colour'");
	ExpectOneClearLine(RunVexel({"chat", "--message"}), 2, "'--message' needs a value");
	ExpectOneClearLine(RunVexel({"chat", "extra"}), 2, "unexpected argument 'extra'");
	ExpectOneClearLine(RunVexel({"tool"}), 2, "which tool?");
	ExpectOneClearLine(RunVexel({"chat", "--message", ""}), 2, "the message is empty");
	ExpectOneClearLine(RunVexel({"chat", "--message", " \t\n"}), 2, "the message is empty");
	ExpectOneClearLine(RunVexel({"chat", "--message", "x", "--service", "not an address"}), 2, "an address such as https://host is needed");
	ExpectOneClearLine(RunVexel({"chat", "--message", "x", "--service", "ftp://host"}), 2, "an address such as https://host is needed");
	ExpectOneClearLine(RunVexel({"chat", "--message", "x", "--service", "https://me:pw@host"}), 2, "a user name or a password");
	ExpectOneClearLine(RunVexel({"chat", "--message", "x", "--service", "http://example.org"}), 2, "must be one of https");
	ExpectOneClearLine(RunVexel({"chat", "--message", "x", "--token-fd", "3"}), 2, "--token-fd goes with --service");
	ExpectOneClearLine(RunVexel({"graph", "paint", "--blueprint", "/Game/BP_Door"}), 2, "'export' or 'import'");
}

TEST(Command, BadNamesGiveOneClearLine)
{
	const FSampleProjectCopy Project;
	const std::string Dir = Project.GetPath();
	ExpectOneClearLine(RunVexel({"chat", "--project", Dir + "/Nowhere", "--message", "x"}), 1, "Nowhere");
	ExpectOneClearLine(RunVexel({"chat", "--project", Dir, "--service", "http://127.0.0.1:1", "--message", "x"}), 1,
		"not logged in at http://127.0.0.1:1");
	ExpectOneClearLine(RunVexel({"inspect", Dir + "/Lighthouse.uproject"}), 1, "this is not a package");
	ExpectOneClearLine(RunVexel({"inspect", Dir + "/none.uasset"}), 1, "none.uasset");
	ExpectOneClearLine(
		RunVexel({"graph", "export", "--project", Dir, "--blueprint", "/Game/BP_Nowhere"}), 1, "no Blueprint '/Game/BP_Nowhere'");
	ExpectOneClearLine(RunVexel({"graph", "export", "--project", Dir, "--blueprint", "door"}), 1, "there is no Blueprint 'door'");
	ExpectOneClearLine(
		RunVexel({"graph", "export", "--project", Dir, "--blueprint", "/Game/BP_Door", "--graph", "Cellar"}), 1, "no graph 'Cellar'");
	ExpectOneClearLine(RunVexel({"graph", "import", "--project", Dir, "--blueprint", "/Game/BP_New", Dir + "/none.t3d"}), 1, "none.t3d");
	ExpectOneClearLine(RunVexel({"tool", "read_minds", "--project", Dir}), 1, "Tool 'read_minds' not found");
	ExpectOneClearLine(RunVexel({"tool", "read_blueprint", "--project", Dir}), 1, "Missing `blueprint`");
	ExpectOneClearLine(RunVexel({"tool", "read_blueprint", "--project", Dir, "--input", "{\"blueprint\":"}), 1, "not a JSON object");
	ExpectOneClearLine(RunVexel({"tool", "read_blueprint", "--project", Dir, "--input", Dir + "/none.json"}), 1, "none.json");
	ExpectOneClearLine(RunVexel({"graph", "import", "--project", Dir, "--blueprint", "/Game/BP_Door", "--graph", "Cellar", "-"}), 1,
		"no graph 'Cellar'");
	ExpectOneClearLine(RunVexel({"tool", "knowledge_search", "--project", Dir}), 1, "This tool produces no response");
}

TEST(Command, ABrokenProjectFileGivesOneClearLine)
{
	const FSampleProjectCopy Project;
	const std::filesystem::path File = Project.GetPath() / "Lighthouse.uproject";
	const std::vector<std::string> Words = {"graph", "export", "--project", File, "--blueprint", "/Game/BP_Door"};
	ASSERT_EQ(RunVexel(Words).Status, 0);
	WriteFile(File, "{\n\t\"FileVersion\": 3,\n");
	ExpectOneClearLine(RunVexel(Words), 1, "Lighthouse.uproject' is not a project file");
	WriteFile(File, R"({"FileVersion": 99})");
	ExpectOneClearLine(RunVexel(Words), 1, "its 'FileVersion' is 99");
	WriteFile(File, "\x1b[31m\r\xff");
	const FProgramResult Result = RunVexel(Words);
	ExpectOneClearLine(Result, 1, "Lighthouse.uproject' is not a project file");
	EXPECT_THAT(Result.Errors, Not(HasSubstr("\x1b")));
}

TEST(Command, ReadBlueprintGivesTheExport)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result =
		RunVexel({"tool", "read_blueprint", "--project", Project.GetPath(), "--input", R"({"blueprint":"/Game/BP_Enemy"})"});
	ASSERT_EQ(Result.Status, 0) << Result.Errors;
	const nlohmann::json Export = nlohmann::json::parse(Result.Output, nullptr, false);
	ASSERT_TRUE(Export.is_object());
	EXPECT_THAT(Export["id"].get<std::string>(), StartsWith("/Game/BP_Enemy"));
	EXPECT_EQ(Export["bp_type"], "normal");
	EXPECT_FALSE(Export["graphs"].empty());
	EXPECT_FALSE(Export["variables"].empty());
}

TEST(Command, AGraphIsRewiredCompiledAndSavedByOneToolAfterTheOther)
{
	const FSampleProjectCopy Project;
	const auto Call = [&Project](const char* Tool, const char* Input)
	{
		const FProgramResult Result = RunVexel({"tool", Tool, "--project", Project.GetPath(), "--save", "--input", Input});
		EXPECT_EQ(Result.Status, 0) << Result.Errors;
		return nlohmann::json::parse(Result.Output, nullptr, false);
	};
	const nlohmann::json Spawned = Call("node_spawn",
		R"({"blueprint":"/Game/BP_Door","graph":"EventGraph","nodes":[{"node_type":"event.custom"},
			{"node_type":"call.KismetSystemLibrary.PrintString","pin_values":{"InString":"rewired"}}]})");
	EXPECT_TRUE(Spawned["errors"].empty()) << Spawned["errors"];
	// Each call is a process of its own: the ids are those that reading gives, so the new nodes are the last of their titles.
	const nlohmann::json Linked = Call("node_link",
		R"({"blueprint":"/Game/BP_Door","graph":"EventGraph","links":[
			{"from_node":"CustomEvent_0","from_pin":"then","to_node":"PrintString_2","to_pin":"execute"}]})");
	EXPECT_TRUE(Linked["errors"].empty()) << Linked["errors"];
	const nlohmann::json Compiled = Call("compile", R"({"blueprint":"/Game/BP_Door"})");
	EXPECT_TRUE(Compiled["success"]) << Compiled;
	const FProgramResult Text =
		RunVexel({"graph", "export", "--project", Project.GetPath(), "--blueprint", "/Game/BP_Door", "--graph", "EventGraph"});
	EXPECT_THAT(Text.Output, HasSubstr("DefaultValue=\"rewired\""));
}

TEST(Command, AToolThatDoesOnlyAPartSaysSoAndSavesIt)
{
	const FSampleProjectCopy Project;
	const auto Edit = [&Project](const std::string& Operations)
	{
		return RunVexel({"tool", "object_edit", "--project", Project.GetPath(), "--save", "--input",
			R"({"blueprint":"/Game/BP_Door","requests":[{"target":{"target_type":"blueprint"},"operations":[)" + Operations + "]}]}"});
	};
	const std::string Wrong = R"({"operation":"remove_variable","scope":"member","name":"NoSuchVariable"})";
	const FProgramResult InPart = Edit(R"({"operation":"add_variable","scope":"member","name":"Kept","value":{"type_id":"int"}},)" + Wrong);
	EXPECT_EQ(InPart.Status, 3);
	EXPECT_EQ(nlohmann::json::parse(InPart.Output, nullptr, false)["errors"].size(), 1u) << InPart.Output;
	EXPECT_EQ(RunVexel({"get", "BP_Door:member@Kept", "--project", Project.GetPath()}).Output, "0\n") << "what was done is saved";

	const std::filesystem::path Calls = std::filesystem::path(Project.GetPath()) / "calls.jsonl";
	const std::string InPartLine =
		R"({"tool":"object_edit","input":{"blueprint":"/Game/BP_Door","requests":[{"target":{"target_type":"blueprint"},"operations":[)" + Wrong +
		"]}]}}\n";
	for (const auto& [Line, Status] : {std::pair(InPartLine, 3), std::pair(InPartLine + "{\"undo\": 1}\n" + InPartLine, 1)})
	{
		WriteFile(Calls, Line);
		EXPECT_EQ(RunVexel({"tool", "--calls", Calls.string(), "--project", Project.GetPath()}).Status, Status) << Line;
	}
}

TEST(Command, ManyToolsAreCalledInOneSessionAndTheirEditsUndone)
{
	const FSampleProjectCopy Project;
	const std::filesystem::path Calls = std::filesystem::path(Project.GetPath()) / "calls.jsonl";
	const std::string Read = R"({"tool": "read_blueprint", "input": {"blueprint": "/Game/BP_Door"}})"
							 "\n";
	WriteFile(Calls, Read + R"({"tool": "node_spawn", "input": {"blueprint": "/Game/BP_Door", "graph": "EventGraph", "nodes": [)"
							R"({"node_type": "flow.sequence"}, {"node_type": "call.KismetSystemLibrary.PrintString"}]}})"
							"\n\n"
							R"({"tool": "node_link", "input": {"blueprint": "/Game/BP_Door", "graph": "EventGraph", "links": [)"
							R"({"from_node": "Sequence_0", "from_pin": "then_0", "to_node": "PrintString_2", "to_pin": "execute"}]}})"
							"\n"
							R"({"tool": "compile", "input": {"blueprint": "/Game/BP_Door"}})"
							"\n"
							R"({"tool": "node_remove", "input": {"blueprint": "/Game/BP_Door", "graph": "NoSuchGraph", "nodes": ["a"]}})"
							"\n"
							R"({"undo": 9})"
							"\n"
							"no JSON\n" +
			Read);
	const FProgramResult Result = RunVexel({"tool", "--calls", Calls.string(), "--project", Project.GetPath()});
	EXPECT_EQ(Result.Status, 1) << "some of the lines fail";
	std::vector<nlohmann::json> Answers;
	std::istringstream Lines(Result.Output);
	for (std::string Line; std::getline(Lines, Line);)
	{
		Answers.push_back(nlohmann::json::parse(Line, nullptr, false));
	}
	ASSERT_EQ(Answers.size(), 8u) << Result.Output << Result.Errors;
	EXPECT_EQ(Answers[1]["answer"]["errors"], nlohmann::json::array());
	EXPECT_EQ(Answers[2]["answer"]["errors"], nlohmann::json::array()) << "the ids of the call before";
	EXPECT_EQ(Answers[3]["answer"]["success"], true);
	EXPECT_THAT(Answers[4]["error"].get<std::string>(), HasSubstr("NoSuchGraph"));
	EXPECT_EQ(Answers[5]["answer"].size(), 4u) << "two spawns, a link and a layout";
	EXPECT_EQ(Answers[5]["error"], "there is nothing to undo");
	EXPECT_THAT(Answers[6]["error"].get<std::string>(), HasSubstr("not a JSON object"));
	EXPECT_EQ(Answers[7], Answers[0]) << "as it was before";
	ExpectOneClearLine(RunVexel({"tool", "compile", "--calls", "-"}), 2, "--calls names its tools itself");
}

TEST(Command, InspectShowsThePackagesTables)
{
	const FSampleProjectCopy Project;
	const FProgramResult Result = RunVexel({"inspect", (Project.GetPath() / "Content/BP_Door.uasset").string()});
	ASSERT_EQ(Result.Status, 0) << Result.Errors;
	const nlohmann::json Document = nlohmann::json::parse(Result.Output, nullptr, false);
	ASSERT_TRUE(Document.is_object());
	EXPECT_EQ(Document["file_version_ue4"], 522);
	EXPECT_EQ(Document["exports"][0]["path"], "/Game/BP_Door.BP_Door");
	EXPECT_EQ(Document["exports"][0]["class"], "/Script/Engine.Blueprint");
}

TEST(Command, ToolsListsTheWholeTable)
{
	const FProgramResult Result = RunVexel({"tools", "--json"});
	ASSERT_EQ(Result.Status, 0) << Result.Errors;
	const nlohmann::json Document = nlohmann::json::parse(Result.Output, nullptr, false);
	ASSERT_EQ(Document["tools"].size(), 22u);
	int NumService = 0;
	for (const nlohmann::json& Tool : Document["tools"])
	{
		NumService += Tool["runs_in"] == "service";
	}
	EXPECT_EQ(NumService, 6);
}

TEST(Command, AGraphGoesOutAndInAgain)
{
	const FSampleProjectCopy Project;
	const std::string Dir = Project.GetPath();
	const FProgramResult First = RunVexel({"graph", "export", "--project", Dir, "--blueprint", "/Game/BP_Door"});
	ASSERT_EQ(First.Status, 0) << First.Errors;
	ASSERT_THAT(First.Output, StartsWith("Begin Object Class=/Script/BlueprintGraph."));
	const FProgramResult Import =
		RunVexel({"graph", "import", "--json", "--project", Dir, "--blueprint", "/Game/BP_Copy", "--graph", "EventGraph", "--save", "-"},
			First.Output);
	ASSERT_EQ(Import.Status, 0) << Import.Errors;
	const nlohmann::json Report = nlohmann::json::parse(Import.Output, nullptr, false);
	EXPECT_TRUE(Report["skipped"].empty()) << Import.Output;
	EXPECT_TRUE(std::filesystem::exists(Project.GetPath() / "Content/BP_Copy.uasset"));
	const FProgramResult Second = RunVexel({"graph", "export", "--project", Dir, "--blueprint", "/Game/BP_Copy"});
	EXPECT_EQ(Second.Status, 0) << Second.Errors;
	const auto CountObjects = [](const std::string& Text)
	{
		size_t Num = 0;
		for (size_t At = Text.find("\nEnd Object"); At != std::string::npos; At = Text.find("\nEnd Object", At + 1))
		{
			++Num;
		}
		return Num;
	};
	EXPECT_GE(CountObjects(Second.Output), CountObjects(First.Output));
}

TEST(Command, AFullDiskLosesNothing)
{
	const FSampleProjectCopy Project;
	const std::string Dir = Project.GetPath();
	const std::string Before = RunVexel({"graph", "export", "--project", Dir, "--blueprint", "/Game/BP_Door"}).Output;
	// A file size limit of one block stands in for the full disk: writing past it fails as writing to a full disk does.
	const FProgramResult Import = RunVexelWithSmallFiles(
		{"graph", "import", "--project", Dir, "--blueprint", "/Game/BP_Door", "--save", "-"}, FProgramSurroundings{.Input = Before});
	EXPECT_EQ(Import.Status, 1);
	EXPECT_THAT(Import.Errors, HasSubstr("cannot be saved"));
	EXPECT_EQ(RunVexel({"graph", "export", "--project", Dir, "--blueprint", "/Game/BP_Door"}).Output, Before);
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Project.GetPath() / "Content"))
	{
		EXPECT_THAT(Entry.path().filename().string(), Not(HasSubstr("tmp")));
	}
}

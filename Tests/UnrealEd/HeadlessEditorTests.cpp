#include "Containers/StringConv.h"
#include "HeadlessEditor.h"
#include "Logging/LogMacros.h"
#include "Misc/CommandLine.h"
#include "ProjectDescriptor.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>

namespace
{
/** Starts an editor on a folder with these files, in a process of its own, and says on standard error what came of it. */
[[noreturn]] void StartAndExit(
	const std::vector<std::string>& Files, const std::string& Project, const std::string& EngineDir, const std::string& Content = "{}")
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-start-test-XXXXXX").string();
	const std::filesystem::path Directory = mkdtemp(Pattern.data());
	for (const std::string& File : Files)
	{
		std::ofstream(Directory / File) << Content;
	}
	FHeadlessEditorOptions Options;
	Options.EngineDir = FString(UTF8_TO_TCHAR(EngineDir.c_str()));
	Options.Project = FString(UTF8_TO_TCHAR((Directory / Project).c_str()));
	const FString Failure = FHeadlessEditor::Start(Options);
	std::error_code Ignored;
	std::filesystem::remove_all(Directory, Ignored);
	std::cerr << "[" << TCHAR_TO_UTF8(*Failure) << "] " << (FHeadlessEditor::IsRunning() ? "running" : "not running") << std::endl;
	std::_Exit(0);
}

std::string ReadFile(const std::filesystem::path& Path)
{
	std::ostringstream Text;
	Text << std::ifstream(Path).rdbuf();
	return Text.str();
}

/** A project whose settings ask for more of the editor's log, and which has logs of earlier runs. */
class FLogProject
{
public:
	FLogProject()
	{
		// The process that runs the editor comes this way again, and takes the project that is there.
		GTEST_FLAG_SET(death_test_style, "threadsafe");
		if (const char* const Existing = getenv(EnvironmentName))
		{
			Directory = Existing;
			return;
		}
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-log-test-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		setenv(EnvironmentName, Directory.c_str(), 1);
		std::filesystem::create_directories(Directory / "Config");
		std::filesystem::create_directories(Logs());
		std::ofstream(Directory / "Game.uproject") << R"({"FileVersion": 3})";
		std::ofstream(Directory / "Config/DefaultEngine.ini") << "[Core.Log]\nLogHeadlessEditor=Verbose\n[LogFiles]\nMaxLogFilesOnDisk=3\n";
		std::ofstream(Logs() / "Game.log") << "of the last run\n";
		std::ofstream(Logs() / "Other.log") << "of somebody else\n";
		for (int Index = 0; Index < 5; ++Index)
		{
			const std::filesystem::path Backup = Logs() / ("Game-backup-" + std::to_string(Index) + ".log");
			std::ofstream(Backup) << "of an older run\n";
			std::filesystem::last_write_time(Backup, std::filesystem::file_time_type::clock::now() - std::chrono::hours(1 + Index));
		}
	}
	~FLogProject()
	{
		unsetenv(EnvironmentName);
		std::error_code Ignored;
		std::filesystem::remove_all(Directory, Ignored);
	}

	std::filesystem::path Logs() const { return Directory / "Saved/Logs"; }

	/** Runs an editor from start to end in a process of its own, which says on standard error whether it did. */
	[[noreturn]] void RunAndExit(const TCHAR* CommandLine) const
	{
		FCommandLine::Set(CommandLine);
		FHeadlessEditorOptions Options;
		Options.EngineDir = FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR "/Engine"));
		Options.Project = FString(UTF8_TO_TCHAR(Directory.c_str()));
		const FString Failure = FHeadlessEditor::Start(Options);
		FHeadlessEditor::Stop();
		UE_LOG(LogTemp, Error, TEXT("after the end"));
		std::cerr << "ended [" << TCHAR_TO_UTF8(*Failure) << "]" << std::endl;
		std::_Exit(0);
	}

	static constexpr const char* EnvironmentName = "VEXEL_LOG_TEST_PROJECT";
	std::filesystem::path Directory;
};

TEST(HeadlessEditorLog, LiesInTheProjectAndObeysItsSettings)
{
	const FLogProject Project;
	EXPECT_EXIT(Project.RunAndExit(TEXT("")), testing::ExitedWithCode(0), "ended \\[\\]");
	const std::string Log = ReadFile(Project.Logs() / "Game.log");
	EXPECT_NE(Log.find("LogInit: Display: Log of the project Game"), std::string::npos) << Log;
	EXPECT_NE(Log.find("LogHeadlessEditor: Verbose: "), std::string::npos) << Log;
	EXPECT_EQ(Log.find("of the last run"), std::string::npos);
	EXPECT_EQ(Log.find("after the end"), std::string::npos);
}

TEST(HeadlessEditorLog, ObeysTheCommandLineAboveTheSettings)
{
	const FLogProject Project;
	EXPECT_EXIT(Project.RunAndExit(TEXT("-LogCmds=\"LogHeadlessEditor Warning\"")), testing::ExitedWithCode(0), "ended \\[\\]");
	const std::string Log = ReadFile(Project.Logs() / "Game.log");
	EXPECT_FALSE(Log.empty());
	EXPECT_EQ(Log.find("LogHeadlessEditor"), std::string::npos) << Log;
}

TEST(HeadlessEditorLog, KeepsTheNewestLogsOfEarlierRuns)
{
	const FLogProject Project;
	EXPECT_EXIT(Project.RunAndExit(TEXT("")), testing::ExitedWithCode(0), "ended \\[\\]");
	std::set<std::string> Older;
	int NumLast = 0;
	for (const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(Project.Logs()))
	{
		NumLast += ReadFile(Entry.path()) == "of the last run\n";
		if (ReadFile(Entry.path()) == "of an older run\n")
		{
			Older.insert(Entry.path().filename().string());
		}
	}
	EXPECT_EQ(NumLast, 1);
	EXPECT_EQ(Older, (std::set<std::string>{"Game-backup-0.log", "Game-backup-1.log"}));
	EXPECT_TRUE(std::filesystem::exists(Project.Logs() / "Other.log"));
}

TEST(HeadlessEditorStart, SaysInOneLineWhyItDidNotStart)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	const std::string Engine = VEXEL_SOURCE_DIR "/Engine";
	EXPECT_EXIT(StartAndExit({}, "", Engine), testing::ExitedWithCode(0), "\\[The folder '.*' has no .uproject file\\] not running");
	EXPECT_EXIT(StartAndExit({"A.uproject", "B.uproject"}, "", Engine), testing::ExitedWithCode(0),
		"\\[The folder '.*' has more than one .uproject file; name one of them\\] not running");
	EXPECT_EXIT(StartAndExit({}, "Missing", Engine), testing::ExitedWithCode(0), "\\[There is no project '.*Missing'\\] not running");
	EXPECT_EXIT(StartAndExit({}, "Missing.uproject", Engine), testing::ExitedWithCode(0),
		"\\[There is no project '.*Missing.uproject'\\] not running");
	EXPECT_EXIT(
		StartAndExit({"A.txt"}, "A.txt", Engine), testing::ExitedWithCode(0), "\\[.*its name does not end in .uproject\\] not running");
	EXPECT_EXIT(StartAndExit({"A.uproject"}, "", "/no/such/engine"), testing::ExitedWithCode(0),
		"\\[There is no engine folder '/no/such/engine'\\] not running");
}

TEST(HeadlessEditorStart, SaysWhatIsWrongWithABrokenProjectFile)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	const std::string Engine = VEXEL_SOURCE_DIR "/Engine";
	const std::pair<std::string, std::string> Cases[] = {
		{"", "is not a project file: "},
		{"{\"FileVersion\": 3,", "is not a project file: "},
		{"[1, 2]", "is not a project file: "},
		{"{}", "it has no valid 'FileVersion'"},
		{R"({"FileVersion": "three"})", "it has no valid 'FileVersion'"},
		{R"({"FileVersion": 0})", "it has no valid 'FileVersion'"},
		{R"({"FileVersion": 4})", "its 'FileVersion' is 4, and only versions up to 3 are known"},
		{R"({"FileVersion": 3, "Modules": {}})", "'Modules' is not an array"},
		{R"({"FileVersion": 3, "Modules": [{"Name": "A"}, 5]})", "entry 1 of 'Modules': it is not an object"},
		{R"({"FileVersion": 3, "Modules": [{"Type": "Runtime"}]})", "entry 0 of 'Modules': it has no 'Name'"},
		{R"({"FileVersion": 3, "Modules": [{"Name": "A", "Type": "Sometimes"}]})", "module 'A' has the unknown type 'Sometimes'"},
		{R"({"FileVersion": 3, "Modules": [{"Name": "A", "LoadingPhase": "Late"}]})", "module 'A' has the unknown loading phase 'Late'"},
		{R"({"FileVersion": 3, "Plugins": [{"Name": "P"}]})", "plug-in 'P' has no 'Enabled'"},
	};
	for (const auto& [Content, Reason] : Cases)
	{
		EXPECT_EXIT(StartAndExit({"A.uproject"}, "", Engine, Content), testing::ExitedWithCode(0),
			"\\['.*A.uproject' .*" + Reason + ".*\\] not running");
	}
}

TEST(ProjectDescriptor, HoldsWhatTheFileSays)
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-project-test-XXXXXX").string();
	const std::filesystem::path Directory = mkdtemp(Pattern.data());
	std::ofstream(Directory / "Game.uproject") << "\xEF\xBB\xBF"
												  R"({"FileVersion": 3, "EngineAssociation": "5.7", "Description": "T\u00fcr",
		"Modules": [{"Name": "Game", "Type": "runtime", "LoadingPhase": "PreDefault", "AdditionalDependencies": ["Engine"]}, {"Name": "GameEditor", "Type": "Editor"}],
		"Plugins": [{"Name": "Vexel", "Enabled": true}, {"Name": "Other", "Enabled": false, "Optional": true}], "Unknown": {"kept": "out"}})";
	FProjectDescriptor Project;
	FText Reason;
	ASSERT_TRUE(Project.Load(FString(UTF8_TO_TCHAR((Directory / "Game.uproject").c_str())), Reason)) << TCHAR_TO_UTF8(*Reason.ToString());
	EXPECT_EQ(Project.EngineAssociation, FString(TEXT("5.7")));
	EXPECT_EQ(Project.Description, FString(TEXT("T\u00FCr")));
	ASSERT_EQ(Project.Modules.Num(), 2);
	EXPECT_EQ(Project.Modules[0].Name, FName(TEXT("Game")));
	EXPECT_EQ(Project.Modules[0].Type, EHostType::Runtime);
	EXPECT_EQ(Project.Modules[0].LoadingPhase, ELoadingPhase::PreDefault);
	EXPECT_EQ(Project.Modules[0].AdditionalDependencies, TArray<FString>{TEXT("Engine")});
	EXPECT_EQ(Project.Modules[1].Type, EHostType::Editor);
	EXPECT_EQ(Project.Modules[1].LoadingPhase, ELoadingPhase::Default);
	ASSERT_EQ(Project.Plugins.Num(), 2);
	EXPECT_TRUE(Project.Plugins[0].bEnabled);
	EXPECT_TRUE(Project.Plugins[1].bOptional);
	std::filesystem::remove_all(Directory);
}
}

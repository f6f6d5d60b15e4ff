#include "Containers/StringConv.h"
#include "HeadlessEditor.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace
{
/** Starts an editor on a folder with these files, in a process of its own, and says on standard error what came of it. */
[[noreturn]] void StartAndExit(const std::vector<std::string>& Files, const std::string& Project, const std::string& EngineDir)
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-start-test-XXXXXX").string();
	const std::filesystem::path Directory = mkdtemp(Pattern.data());
	for (const std::string& File : Files)
	{
		std::ofstream(Directory / File) << "{}";
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

TEST(HeadlessEditorStart, SaysInOneLineWhyItDidNotStart)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	const std::string Engine = VEXEL_SOURCE_DIR "/Engine";
	EXPECT_EXIT(StartAndExit({}, "", Engine), testing::ExitedWithCode(0), "\\[The folder '.*' has no .uproject file\\] not running");
	EXPECT_EXIT(StartAndExit({"A.uproject", "B.uproject"}, "", Engine), testing::ExitedWithCode(0), "\\[The folder '.*' has more than one .uproject file; name one of them\\] not running");
	EXPECT_EXIT(StartAndExit({}, "Missing", Engine), testing::ExitedWithCode(0), "\\[There is no project '.*Missing'\\] not running");
	EXPECT_EXIT(StartAndExit({}, "Missing.uproject", Engine), testing::ExitedWithCode(0), "\\[There is no project '.*Missing.uproject'\\] not running");
	EXPECT_EXIT(StartAndExit({"A.txt"}, "A.txt", Engine), testing::ExitedWithCode(0), "\\[.*its name does not end in .uproject\\] not running");
	EXPECT_EXIT(StartAndExit({"A.uproject"}, "", "/no/such/engine"), testing::ExitedWithCode(0), "\\[There is no engine folder '/no/such/engine'\\] not running");
}
}

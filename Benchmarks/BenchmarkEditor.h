#pragma once

#include "BenchmarkMain.h"
#include "HeadlessEditor.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

/** The editor of this process on an empty project of its own. */
class FBenchmarkEditor
{
public:
	static FBenchmarkEditor& Get()
	{
		static FBenchmarkEditor* const Editor = Start();
		return *Editor;
	}

	bool IsRunning() const { return Failure.IsEmpty(); }

private:
	/** It stops at the end of main: after that, what it is made of goes in an order that nobody knows. */
	static FBenchmarkEditor* Start()
	{
		static FBenchmarkEditor* Editor = nullptr;
		Editor = new FBenchmarkEditor;
		RunAtEndOfMain([]
			{ delete Editor; });
		return Editor;
	}

	FBenchmarkEditor()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-bench-XXXXXX").string();
		Directory = mkdtemp(Pattern.data());
		std::ofstream(Directory / "Bench.uproject") << "{\n\t\"FileVersion\": 3\n}\n";
		FHeadlessEditorOptions Options;
		Options.EngineDir = FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR "/Engine"));
		Options.Project = FString(UTF8_TO_TCHAR(Directory.c_str()));
		Failure = FHeadlessEditor::Start(Options);
	}

	~FBenchmarkEditor()
	{
		FHeadlessEditor::Stop();
		std::error_code Ignored;
		std::filesystem::remove_all(Directory, Ignored);
	}

	std::filesystem::path Directory;
	FString Failure;
};

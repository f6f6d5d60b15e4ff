#pragma once

#include "Dom/JsonObject.h"
#include "EditorFixture.h"
#include "VexelExpected.h"

#include <filesystem>
#include <string>
#include <vector>

/** A test that calls tools as the chat does, JSON in and out, on a copy of the sample project. */
class FToolTest : public FEditorTest
{
protected:
	virtual void SetUp() override;
	virtual void TearDown() override;

	/** Calls a tool with arguments as JSON text, and waits for it. */
	static TVexelExpected<TSharedRef<FJsonObject>> Call(const char* Tool, const std::string& Input);
	/** The answer, or a test failure and an empty object. */
	static TSharedRef<FJsonObject> Answer(const char* Tool, const std::string& Input);
	/** "Invalid input: Missing `asset`", or "no error". */
	static std::string Error(const char* Tool, const std::string& Input);

	static std::string GetText(const TSharedRef<FJsonObject>& Object, const char* Key);
	static int32 GetNumber(const TSharedRef<FJsonObject>& Object, const char* Key);
	/** A text of each object of an array, or the texts of an array of them when Key is null. */
	static std::vector<std::string> GetTexts(const TSharedRef<FJsonObject>& Object, const char* Array, const char* Key = nullptr);

	/** Writes a file below the project's folder; it is gone after the test. */
	void Write(const std::string& Path, const std::string& Bytes);
	/** Has the registry look at the project's content again. */
	static void Rescan();

	static std::filesystem::path GetProjectFolder();
	static std::filesystem::path GetSampleFolder() { return VEXEL_SOURCE_DIR "/Samples/Lighthouse"; }

private:
	static void OpenProject(const char* FileName);
};

TSharedRef<FJsonObject> ParseJson(const std::string& Text);

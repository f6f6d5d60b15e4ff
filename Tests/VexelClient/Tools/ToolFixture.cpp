#include "Tools/ToolFixture.h"

#include "AssetRegistry/IAssetRegistry.h"
#include "Containers/StringConv.h"
#include "Interfaces/IPluginManager.h"
#include "Interfaces/IProjectManager.h"
#include "Misc/App.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/Paths.h"
#include "Tools/VexelToolManager.h"
#include "UObject/GarbageCollection.h"
#include "VexelJson.h"

#include <fstream>

namespace fs = std::filesystem;

namespace
{
const bool bModuleWanted = (FEditorTest::WantModule(TEXT("VexelClient")), true);
const char* const ProjectFolders[] = {"Config", "Content", "Plugins", "Shaders", "Source"};
}

TSharedRef<FJsonObject> ParseJson(const std::string& Text)
{
	TSharedPtr<FJsonObject> Object;
	FString Reason;
	EXPECT_TRUE(FVexelJsonConversions::StringToJson(UTF8_TO_TCHAR(Text.c_str()), Object, &Reason)) << Text << TCHAR_TO_UTF8(*Reason);
	return Object ? Object.ToSharedRef() : MakeShared<FJsonObject>();
}

void FToolTest::SetUp()
{
	FEditorTest::SetUp();
	ASSERT_TRUE(bModuleWanted);
	for (const fs::directory_entry& Entry : fs::directory_iterator(GetSampleFolder()))
	{
		// Programs that use the sample itself may be writing what they save.
		if (Entry.path().filename() != "Saved")
		{
			fs::copy(Entry.path(), GetProjectFolder() / Entry.path().filename(),
				fs::copy_options::recursive | fs::copy_options::overwrite_existing);
		}
	}
	OpenProject("Lighthouse.uproject");
}

void FToolTest::TearDown()
{
	CollectGarbage(RF_NoFlags);
	for (const char* const Folder : ProjectFolders)
	{
		fs::remove_all(GetProjectFolder() / Folder);
	}
	fs::create_directory(GetProjectFolder() / "Content");
	OpenProject("Test.uproject");
}

void FToolTest::OpenProject(const char* FileName)
{
	const FString File = GetProjectDir() / UTF8_TO_TCHAR(FileName);
	ASSERT_TRUE(IProjectManager::Get().LoadProjectFile(File));
	FPaths::SetProjectFilePath(File);
	FApp::SetProjectName(*FPaths::GetBaseFilename(File));
	FConfigCacheIni::LoadGlobalIniFile(GEngineIni, TEXT("Engine"), nullptr, true);
	IPluginManager::Get().RefreshPluginsList();
	Rescan();
}

void FToolTest::Rescan()
{
	IAssetRegistry::GetChecked().SearchAllAssets(true);
}

fs::path FToolTest::GetProjectFolder()
{
	return TCHAR_TO_UTF8(*GetProjectDir());
}

void FToolTest::Write(const std::string& Path, const std::string& Bytes)
{
	const fs::path File = GetProjectFolder() / Path;
	fs::create_directories(File.parent_path());
	std::ofstream(File, std::ios::binary) << Bytes;
	ASSERT_TRUE(fs::exists(File));
}

TVexelExpected<TSharedRef<FJsonObject>> FToolTest::Call(const char* Tool, const std::string& Input)
{
	VEXEL_TRY(const TSharedRef<FVexelTool> Found, FVexelToolManager::Get().FindTool(FName(UTF8_TO_TCHAR(Tool))));
	const TVexelTaskResult<TSharedRef<FJsonObject>> Result = Found->Call(FVexelToolContext(), FVexelToolInput(ParseJson(Input)));
	EXPECT_TRUE(PumpUntil([&Result]
		{ return Result.IsComplete(); }));
	return Result.Value();
}

TSharedRef<FJsonObject> FToolTest::Answer(const char* Tool, const std::string& Input)
{
	const TVexelExpected<TSharedRef<FJsonObject>> Result = Call(Tool, Input);
	if (Result.HasError())
	{
		ADD_FAILURE() << Tool << ": " << TCHAR_TO_UTF8(*Result.GetError().ToShortString());
		return MakeShared<FJsonObject>();
	}
	return Result.GetValue();
}

std::string FToolTest::Error(const char* Tool, const std::string& Input)
{
	const TVexelExpected<TSharedRef<FJsonObject>> Result = Call(Tool, Input);
	return Result.HasError() ? std::string(TCHAR_TO_UTF8(*Result.GetError().ToShortString())) : "no error";
}

std::string FToolTest::GetText(const TSharedRef<FJsonObject>& Object, const char* Key)
{
	FString Text;
	return Object->TryGetStringField(UTF8_TO_TCHAR(Key), Text) ? std::string(TCHAR_TO_UTF8(*Text)) : "(none)";
}

int32 FToolTest::GetNumber(const TSharedRef<FJsonObject>& Object, const char* Key)
{
	int32 Number = 0;
	return Object->TryGetNumberField(UTF8_TO_TCHAR(Key), Number) ? Number : INDEX_NONE;
}

std::vector<std::string> FToolTest::GetTexts(const TSharedRef<FJsonObject>& Object, const char* Array, const char* Key)
{
	std::vector<std::string> Texts;
	const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
	EXPECT_TRUE(Object->TryGetArrayField(UTF8_TO_TCHAR(Array), Values)) << Array;
	for (const TSharedPtr<FJsonValue>& Value : Values ? *Values : TArray<TSharedPtr<FJsonValue>>())
	{
		Texts.push_back(Key ? GetText(Value->AsObject().ToSharedRef(), Key) : std::string(TCHAR_TO_UTF8(*Value->AsString())));
	}
	return Texts;
}

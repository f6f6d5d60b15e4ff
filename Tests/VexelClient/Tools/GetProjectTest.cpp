#include "Tools/ToolFixture.h"

#include "Interfaces/IPluginManager.h"
#include "Interfaces/IProjectManager.h"
#include "PluginDescriptor.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class GetProject : public FToolTest
{
protected:
	/** Puts another descriptor in the place of the project's. */
	void Describe(const std::string& Descriptor)
	{
		Write("Lighthouse.uproject", Descriptor);
		ASSERT_TRUE(IProjectManager::Get().LoadProjectFile(GetProjectDir() / TEXT("Lighthouse.uproject")));
		IPluginManager::Get().RefreshPluginsList();
	}
};
}

TEST_F(GetProject, TellsModulesPlatformsAndPlugins)
{
	Write("Plugins/Weather/Rain/Rain.uplugin",
		R"({"FileVersion":3,"VersionName":"1.2","Description":"It rains.","Modules":[{"Name":"Rain","Type":"Editor","LoadingPhase":"PreDefault"}]})");
	Write("Plugins/Weather/Rain/Inner/Inner.uplugin", R"({"FileVersion":3})");
	Write("Plugins/Off/Off.uplugin", R"({"FileVersion":3,"EnabledByDefault":false})");
	Write("Plugins/Broken/Broken.uplugin", R"({"FileVersion":99})");
	Describe(R"({"FileVersion":3,"EngineAssociation":"{GUID}","TargetPlatforms":["Linux","Windows"],
		"Modules":[{"Name":"Game","Type":"Runtime","LoadingPhase":"Default"}],
		"Plugins":[{"Name":"Rain","Enabled":false},{"Name":"Niagara","Enabled":true}]})");
	const TSharedRef<FJsonObject> Project = Answer("get_project", "{}");
	EXPECT_EQ(GetText(Project, "engine_association"), "{GUID}");
	EXPECT_THAT(GetTexts(Project, "target_platforms"), ElementsAre("Linux", "Windows"));
	EXPECT_THAT(GetTexts(Project, "modules", "name"), ElementsAre("Game"));
	ASSERT_THAT(GetTexts(Project, "plugins", "name"), ElementsAre("Off", "Rain", "Niagara")) << "a plug-in holds no others";
	const TArray<TSharedPtr<FJsonValue>>& Plugins = Project->GetArrayField(TEXT("plugins"));
	EXPECT_FALSE(Plugins[0]->AsObject()->GetBoolField(TEXT("enabled"))) << "by its own descriptor";
	EXPECT_FALSE(Plugins[1]->AsObject()->GetBoolField(TEXT("enabled"))) << "the project says so";
	EXPECT_TRUE(Plugins[1]->AsObject()->GetBoolField(TEXT("in_project")));
	EXPECT_EQ(GetText(Plugins[1]->AsObject().ToSharedRef(), "version_name"), "1.2");
	EXPECT_THAT(GetTexts(Plugins[1]->AsObject().ToSharedRef(), "modules", "loading_phase"), ElementsAre("PreDefault"));
	EXPECT_TRUE(Plugins[2]->AsObject()->GetBoolField(TEXT("enabled")));
	EXPECT_FALSE(Plugins[2]->AsObject()->GetBoolField(TEXT("in_project")));
	EXPECT_TRUE(Log.Contains("only versions up to 3 are known"));
}

TEST_F(GetProject, ListsFilesAndCutsTheList)
{
	for (int32 Index = 0; Index < 510; ++Index)
	{
		Write("Source/Game/File" + std::to_string(1000 + Index) + ".h", "\n");
	}
	Write("Source/Game/.hidden.h", "\n");
	Write("Plugins/Sea/Sea.uplugin", R"({"FileVersion":3})");
	Write("Plugins/Sea/Config/DefaultSea.ini", "\n");
	IPluginManager::Get().RefreshPluginsList();
	const TSharedRef<FJsonObject> Project = Answer("get_project", "{}");
	const std::vector<std::string> Sources = GetTexts(Project, "source_files");
	ASSERT_EQ(Sources.size(), 500u);
	EXPECT_EQ(Sources[0], "Source/Game/File1000.h");
	EXPECT_EQ(GetNumber(Project, "source_files_total"), 510);
	EXPECT_THAT(GetTexts(Project, "config_files"), ElementsAre("Config/DefaultEngine.ini", "Plugins/Sea/Config/DefaultSea.ini"));
}

TEST_F(GetProject, AProjectOfNothingHasEmptyLists)
{
	std::filesystem::remove_all(GetProjectFolder() / "Content");
	std::filesystem::remove_all(GetProjectFolder() / "Config");
	Rescan();
	const TSharedRef<FJsonObject> Project = Answer("get_project", "{}");
	EXPECT_THAT(GetTexts(Project, "maps"), IsEmpty());
	EXPECT_THAT(GetTexts(Project, "config_files"), IsEmpty());
	EXPECT_THAT(GetTexts(Project, "source_files"), IsEmpty());
	EXPECT_EQ(GetNumber(Project->GetObjectField(TEXT("content")).ToSharedRef(), "total"), 0);
}

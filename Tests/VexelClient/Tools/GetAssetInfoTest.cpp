#include "Tools/ToolFixture.h"

#include "EditorAssetLibrary.h"
#include "UObject/Package.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

namespace
{
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
namespace fs = std::filesystem;

const fs::path Samples = fs::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages";

class GetAssetInfo : public FToolTest
{
protected:
	TSharedRef<FJsonObject> Info(const std::string& Path) { return Answer("get_asset_info", "{\"asset\":\"" + Path + "\"}"); }
	std::string Refuse(const std::string& Path) { return Error("get_asset_info", "{\"asset\":\"" + Path + "\"}"); }

	static TSharedRef<FJsonObject> GetObject(const TSharedRef<FJsonObject>& Object, const TCHAR* Key)
	{
		const TSharedPtr<FJsonObject>* Found = nullptr;
		return Object->TryGetObjectField(Key, Found) ? Found->ToSharedRef() : MakeShared<FJsonObject>();
	}

	static std::string ReadFile(const fs::path& File)
	{
		std::ifstream Stream(File, std::ios::binary);
		return (std::stringstream() << Stream.rdbuf()).str();
	}
};
}

TEST_F(GetAssetInfo, TakesThePathsThatPeopleWrite)
{
	for (const char* const Path : {"/Game/BP_Door", "/Game/BP_Door.BP_Door", "Blueprint'/Game/BP_Door.BP_Door'",
			 "/Script/Engine.Blueprint'/Game/BP_Door.BP_Door'", "/game/bp_door"})
	{
		EXPECT_EQ(GetText(Info(Path), "path"), "/Game/BP_Door.BP_Door") << Path;
	}
}

TEST_F(GetAssetInfo, TellsWhatMemoryHasThatTheFileHasNot)
{
	EXPECT_FALSE(Info("/Game/BP_Door")->GetBoolField(TEXT("loaded")));
	UObject* const Door = UEditorAssetLibrary::LoadAsset(TEXT("/Game/BP_Door"));
	ASSERT_NE(Door, nullptr);
	EXPECT_TRUE(Info("/Game/BP_Door")->GetBoolField(TEXT("loaded")));
	EXPECT_FALSE(Info("/Game/BP_Door")->GetBoolField(TEXT("unsaved")));
	Door->GetPackage()->SetDirtyFlag(true);
	EXPECT_TRUE(Info("/Game/BP_Door")->GetBoolField(TEXT("unsaved")));
	Door->GetPackage()->SetDirtyFlag(false);
	UObject* const Copy = UEditorAssetLibrary::DuplicateAsset(TEXT("/Game/BP_Door"), TEXT("/Game/BP_Copy"));
	ASSERT_NE(Copy, nullptr);
	const TSharedRef<FJsonObject> Unsaved = Info("/Game/BP_Copy");
	EXPECT_TRUE(Unsaved->GetBoolField(TEXT("unsaved")));
	EXPECT_FALSE(Unsaved->HasField(TEXT("file")));
	UEditorAssetLibrary::DeleteAsset(TEXT("/Game/BP_Copy"));
}

TEST_F(GetAssetInfo, RelationsGoBothWays)
{
	const TSharedRef<FJsonObject> Player = Info("/Game/BP_Player");
	const TSharedRef<FJsonObject> Level = Info("/Game/L_Lighthouse");
	EXPECT_EQ(GetText(Level, "file"), "Content/L_Lighthouse.umap");
	EXPECT_EQ(GetText(Level, "class"), "World");
	EXPECT_FALSE(Level->HasField(TEXT("parent_class")));
	EXPECT_THAT(GetTexts(GetObject(Player, TEXT("dependencies")), "hard"), Contains("/Game/BP_Door"));
	EXPECT_THAT(GetTexts(GetObject(Info("/Game/BP_Door"), TEXT("referencers")), "hard"), Contains("/Game/BP_Player"));
	EXPECT_THAT(GetTexts(GetObject(Level, TEXT("dependencies")), "hard"), Contains("/Game/BP_Enemy"));
}

TEST_F(GetAssetInfo, PackagesOfTheRealEditorHaveTagsAndThumbnails)
{
	const fs::path Package = Samples / "AirSim";
	if (!fs::exists(Package))
	{
		GTEST_SKIP() << "the folder of sample packages is missing";
	}
	fs::copy(Package, GetProjectFolder() / "Content/AirSim", fs::copy_options::recursive);
	Rescan();
	int32 NumThumbnails = 0;
	for (const std::string& Path : GetTexts(Answer("search_assets", R"({"path":"/Game/AirSim","limit":200})"), "assets", "path"))
	{
		const TSharedRef<FJsonObject> Asset = Info(Path);
		EXPECT_GT(GetNumber(Asset, "size"), 0) << Path;
		EXPECT_FALSE(GetObject(Asset, TEXT("tags"))->HasField(TEXT("FiBData"))) << "the editor's index of the Blueprint is no text";
		const TSharedPtr<FJsonObject>* Thumbnail = nullptr;
		if (Asset->TryGetObjectField(TEXT("thumbnail"), Thumbnail))
		{
			++NumThumbnails;
			EXPECT_THAT(GetNumber(Thumbnail->ToSharedRef(), "width"), testing::AnyOf(64, 256)) << Path << ": the picture of a texture has its form";
			EXPECT_EQ(GetNumber(Thumbnail->ToSharedRef(), "height"), 256) << Path;
			EXPECT_THAT(GetText(Thumbnail->ToSharedRef(), "format"), testing::AnyOf("png", "jpeg")) << Path;
		}
	}
	EXPECT_GT(NumThumbnails, 0);
}

TEST_F(GetAssetInfo, ADamagedPackageIsToldFromOneThatIsNotThere)
{
	Write("Content/BP_Short.uasset", ReadFile(GetSampleFolder() / "Content/BP_Door.uasset").substr(0, 200));
	Write("Content/BP_Noise.uasset", std::string(5000, '\x7F'));
	Write("Content/BP_Empty.uasset", "");
	Rescan();
	for (const char* const Path : {"/Game/BP_Short", "/Game/BP_Noise", "/Game/BP_Empty"})
	{
		EXPECT_EQ(Refuse(Path),
			std::string("Tool call failed: The file of the package '") + Path + "' has no asset that can be read; it may be damaged");
	}
	EXPECT_EQ(Refuse("/Game/BP_Nowhere"), "Invalid input: There is no asset '/Game/BP_Nowhere'; `search_assets` finds assets by their names");
	EXPECT_EQ(Refuse("/Game/BP_Door.BP_Other"),
		"Invalid input: There is no asset '/Game/BP_Door.BP_Other'; `search_assets` finds assets by their names");
}

TEST_F(GetAssetInfo, RefusesPathsThatAreNone)
{
	for (const std::string& Path : {std::string("BP_Door"), std::string("/Game/../../etc/passwd"), std::string("/"), std::string("//"),
			 std::string("/Game/"), std::string("/etc/passwd"), std::string("Content/BP_Door.uasset"), std::string("/Game/BP Door"),
			 std::string("/Game/BP_Door.BP_Door.BP_Door"), std::string("/Nowhere/BP_Door"), "/Game/" + std::string(5000, 'x')})
	{
		EXPECT_THAT(Refuse(Path), HasSubstr("Invalid input: ")) << Path;
	}
	EXPECT_EQ(Error("get_asset_info", "{}"), "Invalid input: Missing `asset`");
	EXPECT_EQ(Error("get_asset_info", R"({"asset":{}})"), "Invalid input: `asset` must be a string that is not empty, not an object");
}

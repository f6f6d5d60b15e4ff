#include "Tools/ToolFixture.h"

#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SearchAssets : public FToolTest
{
protected:
	std::vector<std::string> Find(const std::string& Input) { return GetTexts(Answer("search_assets", Input), "assets", "name"); }

	static UBlueprint* Create(const TCHAR* PackageName)
	{
		const FString Name = FString(PackageName);
		int32 Slash = INDEX_NONE;
		Name.FindLastChar(TEXT('/'), Slash);
		return FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(*Name), FName(*Name.Mid(Slash + 1)), BPTYPE_Normal);
	}
};
}

TEST_F(SearchAssets, EveryConditionMustHold)
{
	EXPECT_THAT(Find("{}"), ElementsAre("BP_Door", "BP_Enemy", "BP_Player", "L_Lighthouse"));
	EXPECT_THAT(Find(R"({"class":"World"})"), ElementsAre("L_Lighthouse"));
	EXPECT_THAT(Find(R"({"class":"/Script/Engine.Blueprint"})"), ElementsAre("BP_Door", "BP_Enemy", "BP_Player"));
	EXPECT_THAT(Find(R"({"class":"BlueprintCore"})"), ElementsAre("BP_Door", "BP_Enemy", "BP_Player")) << "a class above theirs";
	EXPECT_THAT(Find(R"({"query":"l","class":"Blueprint"})"), ElementsAre("BP_Player"));
	EXPECT_THAT(Find(R"({"path":"/Game/","query":"door"})"), ElementsAre("BP_Door"));
	EXPECT_THAT(Find(R"({"tags":{"BlueprintType":"bptype_normal"}})"), ElementsAre("BP_Door", "BP_Enemy", "BP_Player"));
	EXPECT_THAT(Find(R"({"tags":{"ParentClass":"/Script/CoreUObject.Class'/Script/Engine.Actor'","BlueprintDescription":null},"query":"door"})"),
		ElementsAre("BP_Door"));
	EXPECT_THAT(Find(R"({"tags":{"BlueprintType":null,"NoSuchTag":null}})"), IsEmpty()) << "all tags, not any";
	EXPECT_THAT(Find(R"({"query":"lighthouse","class":"Blueprint"})"), IsEmpty());
}

TEST_F(SearchAssets, TheEnginesOwnContentIsFoundInItsFolderAlone)
{
	EXPECT_THAT(Find(R"({"query":"macros"})"), IsEmpty());
	EXPECT_THAT(Find(R"({"query":"macros","path":"/Engine"})"), UnorderedElementsAre("ActorMacros", "StandardMacros"));
	EXPECT_THAT(Find(R"({"path":"/Engine/EditorBlueprintResources"})"), ElementsAre("ActorMacros", "StandardMacros"));
}

TEST_F(SearchAssets, PagesTouchAndEnd)
{
	const TSharedRef<FJsonObject> First = Answer("search_assets", R"({"limit":3})");
	EXPECT_EQ(GetNumber(First, "total"), 4);
	EXPECT_EQ(GetNumber(First, "next_offset"), 3);
	const TSharedRef<FJsonObject> Second = Answer("search_assets", R"({"limit":3,"offset":3})");
	EXPECT_THAT(GetTexts(Second, "assets", "name"), ElementsAre("L_Lighthouse"));
	EXPECT_EQ(GetNumber(Second, "next_offset"), INDEX_NONE);
	const TSharedRef<FJsonObject> Behind = Answer("search_assets", R"({"query":"bp","offset":7})");
	EXPECT_EQ(GetNumber(Behind, "total"), 3);
	EXPECT_THAT(GetTexts(Behind, "assets", "name"), IsEmpty());
	EXPECT_EQ(GetNumber(Behind, "next_offset"), INDEX_NONE);
}

TEST_F(SearchAssets, SeesAssetsComeMoveAndGo)
{
	EXPECT_THAT(Find(R"({"query":"elevator"})"), IsEmpty());
	ASSERT_NE(Create(TEXT("/Game/Lifts/BP_Elevator")), nullptr);
	ASSERT_TRUE(UEditorAssetLibrary::SaveAsset(TEXT("/Game/Lifts/BP_Elevator"), false));
	Rescan();
	EXPECT_THAT(Find(R"({"query":"elevator"})"), ElementsAre("BP_Elevator"));
	EXPECT_THAT(Find(R"({"query":"elevator","path":"/Game/Lifts"})"), ElementsAre("BP_Elevator"));
	ASSERT_TRUE(UEditorAssetLibrary::RenameAsset(TEXT("/Game/Lifts/BP_Elevator"), TEXT("/Game/Lifts/BP_Hoist")));
	EXPECT_THAT(Find(R"({"query":"hoist","class":"Blueprint"})"), ElementsAre("BP_Hoist"));
	EXPECT_THAT(Find(R"({"query":"elevator","class":"Blueprint"})"), IsEmpty());
	ASSERT_TRUE(UEditorAssetLibrary::DeleteAsset(TEXT("/Game/Lifts/BP_Hoist")));
	EXPECT_THAT(Find(R"({"query":"hoist","class":"Blueprint"})"), IsEmpty());
}

TEST_F(SearchAssets, TenThousandResultsComeByPages)
{
	const std::filesystem::path Model = GetProjectFolder() / "Content/BP_Door.uasset";
	std::filesystem::create_directories(GetProjectFolder() / "Content/Many");
	for (int32 Index = 0; Index < 10'000; ++Index)
	{
		// A link is as good as a copy, and quicker.
		std::filesystem::create_hard_link(Model, GetProjectFolder() / ("Content/Many/BP_Door" + std::to_string(Index) + ".uasset"));
	}
	Rescan();
	const TSharedRef<FJsonObject> Page = Answer("search_assets", R"({"query":"door","limit":200,"offset":9900})");
	EXPECT_EQ(GetNumber(Page, "total"), 10'001);
	EXPECT_EQ(GetTexts(Page, "assets", "name").size(), 101u);
	EXPECT_EQ(GetNumber(Answer("search_assets", R"({"path":"/Game/Many","class":"Blueprint"})"), "total"), 10'000);
}

TEST_F(SearchAssets, RefusesArgumentsThatDoNotFit)
{
	EXPECT_EQ(Error("search_assets", R"({"query":""})"), "Invalid input: `query` must be a string of at most 200 characters that is not empty, not an empty string");
	EXPECT_THAT(Error("search_assets", "{\"query\":\"" + std::string(201, 'a') + "\"}"), HasSubstr("not one of 201"));
	EXPECT_EQ(Error("search_assets", R"({"class":"Gate"})"),
		"Invalid input: There is no class 'Gate'; assets here are of the classes Blueprint, World");
	EXPECT_EQ(Error("search_assets", R"({"class":"/No.."})").substr(0, 14), "Invalid input:");
	EXPECT_EQ(Error("search_assets", R"({"path":"/Game/Nowhere"})"),
		"Invalid input: There is no folder '/Game/Nowhere' with assets; a folder is like '/Game/Doors'");
	EXPECT_EQ(Error("search_assets", R"({"path":"/"})").substr(0, 14), "Invalid input:");
	EXPECT_EQ(Error("search_assets", R"({"path":"../../etc"})").substr(0, 14), "Invalid input:");
	EXPECT_THAT(Error("search_assets", "{\"path\":\"/" + std::string(5000, 'x') + "\"}"), HasSubstr("Invalid input: "));
	EXPECT_EQ(Error("search_assets", R"({"tags":["a"]})"), "Invalid input: `tags` must be an object, not an array");
	EXPECT_EQ(Error("search_assets", R"({"tags":{"a":[]}})"), "Invalid input: `tags.a` must be a string, or null for any value");
	EXPECT_EQ(Error("search_assets", R"({"limit":0})"), "Invalid input: `limit` must be an integer from 1 to 200, not 0");
	EXPECT_EQ(Error("search_assets", R"({"offset":-1})"), "Invalid input: `offset` must be an integer of at least 0, not -1");
}

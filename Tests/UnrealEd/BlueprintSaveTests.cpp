#include "EditorAssetLibrary.h"
#include "EditorFixture.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

namespace
{
class FBlueprintSaveTest : public FEditorTest
{
protected:
	static UBlueprint* MakeBlueprint(const TCHAR* Name)
	{
		UPackage* const Package = CreatePackage(*(FString(TEXT("/Game/Save/")) + Name));
		return FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), Package, FName(Name), BPTYPE_Normal);
	}

	static std::filesystem::path GetFolder() { return std::filesystem::path(TCHAR_TO_UTF8(*GetProjectDir())) / "Content" / "Save"; }

	static std::string ReadFile(const std::filesystem::path& Path)
	{
		std::ifstream Stream(Path, std::ios::binary);
		return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
	}

	static size_t CountFiles()
	{
		size_t Num = 0;
		for ([[maybe_unused]] const std::filesystem::directory_entry& Entry : std::filesystem::directory_iterator(GetFolder()))
		{
			++Num;
		}
		return Num;
	}
};

TEST_F(FBlueprintSaveTest, SavingTwiceGivesTheSameBytes)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Twice"));
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
	const std::string First = ReadFile(GetFolder() / "BP_Twice.uasset");
	ASSERT_FALSE(First.empty());
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
	EXPECT_TRUE(ReadFile(GetFolder() / "BP_Twice.uasset") == First);
}

TEST_F(FBlueprintSaveTest, ASaveThatRunsOutOfSpaceKeepsTheOldFileAndLeavesNoOther)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Full"));
	ASSERT_TRUE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false));
	const std::string Before = ReadFile(GetFolder() / "BP_Full.uasset");
	const size_t NumBefore = CountFiles();
	ASSERT_GT(Before.size(), 512u);
	const auto SaveWithoutSpace = [Blueprint]
	{
		signal(SIGXFSZ, SIG_IGN);
		const rlimit Limit{512, 512};
		const bool bSaved = setrlimit(RLIMIT_FSIZE, &Limit) != 0 || UEditorAssetLibrary::SaveLoadedAsset(Blueprint, false);
		std::_Exit(bSaved ? 1 : 0);
	};
	EXPECT_EXIT(SaveWithoutSpace(), testing::ExitedWithCode(0), "");
	EXPECT_TRUE(ReadFile(GetFolder() / "BP_Full.uasset") == Before);
	EXPECT_EQ(CountFiles(), NumBefore);
}

TEST_F(FBlueprintSaveTest, AnAssetWithoutAPlaceOnDiskIsNotSavedAndStaysDirty)
{
	UPackage* const Package = CreatePackage(TEXT("/NoSuchMount/BP_Nowhere"));
	UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), Package, TEXT("BP_Nowhere"), BPTYPE_Normal);
	EXPECT_FALSE(UEditorAssetLibrary::SaveLoadedAsset(Blueprint));
	EXPECT_TRUE(Log.Contains("SaveLoadedAsset failed: '/NoSuchMount/BP_Nowhere' has no place on disk.")) << Log.ToText();
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_FALSE(UEditorAssetLibrary::SaveLoadedAsset(nullptr));
}

TEST_F(FBlueprintSaveTest, EverySpellingOfAPathFindsTheAsset)
{
	UBlueprint* const Blueprint = MakeBlueprint(TEXT("BP_Spelt"));
	for (const TCHAR* const Path : {TEXT("/Game/Save/BP_Spelt"), TEXT("/Game/Save/BP_Spelt.BP_Spelt"), TEXT(" /Game/Save/BP_Spelt "),
			 TEXT("Blueprint'/Game/Save/BP_Spelt.BP_Spelt'"), TEXT("/Script/Engine.Blueprint'/Game/Save/BP_Spelt.BP_Spelt'")})
	{
		EXPECT_EQ(UEditorAssetLibrary::LoadAsset(Path), Blueprint) << TCHAR_TO_UTF8(Path);
	}
	for (const TCHAR* const Path :
		{TEXT(""), TEXT("BP_Spelt"), TEXT("/Game/Save/"), TEXT("/Game/Save/BP_Spelt.Other"), TEXT("/Game/../BP_Spelt"), TEXT("'")})
	{
		EXPECT_EQ(UEditorAssetLibrary::LoadAsset(Path), nullptr) << TCHAR_TO_UTF8(Path);
	}
}
}

#include "AssetRegistryFixture.h"

#include <functional>

namespace
{
TEST_F(FAssetRegistryTest, ASavedAssetIsKnownAtOnceThoughItIsNotInMemory)
{
	SaveAsset("BP_New");
	EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/BP_New.BP_New"}));
	const FAssetData Asset = Registry().GetAssetByObjectPath(FSoftObjectPath(TEXT("/RegistryTest/BP_New.BP_New")));
	ASSERT_TRUE(Asset.IsValid());
	EXPECT_FALSE(Asset.IsAssetLoaded());
	EXPECT_EQ(Asset.AssetClassPath.ToString(), TEXT("/Script/Engine.Blueprint"));
	EXPECT_EQ(Asset.GetExportTextName(), TEXT("/Script/Engine.Blueprint'/RegistryTest/BP_New.BP_New'"));
	EXPECT_NE(Cast<UBlueprint>(Asset.GetAsset()), nullptr);
	EXPECT_TRUE(Asset.IsAssetLoaded());
	Asset.GetAsset()->ClearFlags(RF_Standalone);
}

TEST_F(FAssetRegistryTest, AFileThatIsPutIntoTheFolderIsSeenByTheNextScanAlone)
{
	SaveAsset("BP_Away");
	const std::filesystem::path Aside = Directory / "Aside.bin";
	std::filesystem::rename(FileOf("BP_Away"), Aside);
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest")});
	EXPECT_EQ(ListAssets(), FPathList());
	std::filesystem::rename(Aside, FileOf("BP_Away"));
	EXPECT_EQ(ListAssets(), FPathList());
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest")});
	EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/BP_Away.BP_Away"}));
}

TEST_F(FAssetRegistryTest, ARemovedFileIsForgottenByEachKindOfScan)
{
	const std::function<void()> Scans[] = {
		[]
		{ Registry().SearchAllAssets(true); },
		[]
		{ Registry().ScanPathsSynchronous({TEXT("/RegistryTest")}, true); },
		[]
		{ Registry().ScanPathsSynchronous({TEXT("/RegistryTest/")}); },
		[]
		{ Registry().ScanPathsSynchronous({TEXT("/RegistryTest/BP_Gone")}); },
	};
	for (const std::function<void()>& Scan : Scans)
	{
		SaveAsset("BP_Gone");
		SaveAsset("BP_Gone2");
		std::filesystem::remove(FileOf("BP_Gone"));
		Scan();
		EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/BP_Gone2.BP_Gone2"}));
		EXPECT_FALSE(Registry().GetAssetByObjectPath(FSoftObjectPath(TEXT("/RegistryTest/BP_Gone.BP_Gone"))).IsValid());
	}
}

TEST_F(FAssetRegistryTest, AFileThatBecameAnotherPackageIsReadAnew)
{
	SaveAsset("First");
	SaveAsset("Second");
	// The asset inside keeps its name, whatever the file is called.
	std::filesystem::copy_file(FileOf("Second"), FileOf("First"), std::filesystem::copy_options::overwrite_existing);
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest/First")});
	EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/First.Second", "/RegistryTest/Second.Second"}));
}

TEST_F(FAssetRegistryTest, ABrokenFileCostsOneLogLineAndNoOtherAsset)
{
	SaveAsset("BP_Good");
	SaveAsset("BP_Model");
	std::ifstream Model(FileOf("BP_Model"), std::ios::binary);
	const std::string Bytes((std::istreambuf_iterator<char>(Model)), std::istreambuf_iterator<char>());
	std::filesystem::remove(FileOf("BP_Model"));
	const std::string Cases[] = {
		"",
		"no package at all",
		Bytes.substr(0, 4),
		Bytes.substr(0, 60),
		Bytes.substr(0, 8) + std::string(400, '\xff'),
		std::string(Bytes.size(), '\0'),
	};
	for (const std::string& Case : Cases)
	{
		SCOPED_TRACE(Case.size());
		std::ofstream(FileOf("BP_Broken"), std::ios::binary | std::ios::trunc) << Case;
		Log.Clear();
		Registry().ScanPathsSynchronous({TEXT("/RegistryTest")});
		EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/BP_Good.BP_Good"}));
		EXPECT_EQ(Log.Count("BP_Broken"), 1) << Log.ToText();
	}
}

TEST_F(FAssetRegistryTest, EveryShorterFileIsSurvived)
{
	SaveAsset("BP_Cut");
	std::ifstream Whole(FileOf("BP_Cut"), std::ios::binary);
	const std::string Bytes((std::istreambuf_iterator<char>(Whole)), std::istreambuf_iterator<char>());
	for (size_t Length = 0; Length < Bytes.size(); Length += 7)
	{
		std::ofstream(FileOf("BP_Cut"), std::ios::binary | std::ios::trunc) << Bytes.substr(0, Length);
		Registry().ScanPathsSynchronous({TEXT("/RegistryTest/BP_Cut")});
		EXPECT_LE(ListAssets().size(), 1u);
	}
}

TEST_F(FAssetRegistryTest, AnAssetThatBreaksIsNoLongerListed)
{
	SaveAsset("BP_Breaks");
	std::ofstream(FileOf("BP_Breaks"), std::ios::trunc) << "damaged";
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest/BP_Breaks")});
	EXPECT_EQ(ListAssets(), FPathList());
}

TEST_F(FAssetRegistryTest, AFolderIsNotMistakenForOneWhoseNameStartsAlike)
{
	for (const char* const Name : {"Doors/BP_A", "Doors/Old/BP_B", "DoorsToo/BP_C"})
	{
		SaveAsset(Name);
	}
	EXPECT_EQ(ListAssets(TEXT("/RegistryTest/Doors"), false), (FPathList{"/RegistryTest/Doors/BP_A.BP_A"}));
	EXPECT_EQ(ListAssets(TEXT("/RegistryTest/Doors"), true),
		(FPathList{"/RegistryTest/Doors/BP_A.BP_A", "/RegistryTest/Doors/Old/BP_B.BP_B"}));
	std::filesystem::remove_all(Directory / "Doors");
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest/Doors")});
	EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/DoorsToo/BP_C.BP_C"}));
}

TEST_F(FAssetRegistryTest, AnAssetInMemoryIsListedOnceUntilOnlyTheDiskIsAskedFor)
{
	UPackage* const Package = CreatePackage(TEXT("/RegistryTest/BP_Memory"));
	UBlueprint* const Blueprint = NewObject<UBlueprint>(Package, TEXT("BP_Memory"), RF_Public | RF_Standalone);
	TArray<FAssetData> Added;
	const FDelegateHandle Handle = Registry().OnAssetAdded().AddLambda([&Added](const FAssetData& Asset)
		{ Added.Add(Asset); });
	FAssetRegistryModule::AssetCreated(Blueprint);
	Registry().OnAssetAdded().Remove(Handle);
	ASSERT_EQ(Added.Num(), 1);
	EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/BP_Memory.BP_Memory"}));
	TArray<FAssetData> OnDisk;
	EXPECT_FALSE(Registry().GetAssetsByPackageName(TEXT("/RegistryTest/BP_Memory"), OnDisk, true));
	ASSERT_TRUE(UPackage::SavePackage(Package, Blueprint, *(Content + TEXT("BP_Memory.uasset")), FSavePackageArgs()));
	EXPECT_EQ(ListAssets(), (FPathList{"/RegistryTest/BP_Memory.BP_Memory"}));
	EXPECT_TRUE(Registry().GetAssetsByPackageName(TEXT("/RegistryTest/BP_Memory"), OnDisk, true));
	FAssetRegistryModule::AssetDeleted(Blueprint);
	Blueprint->ClearFlags(RF_Standalone);
	EXPECT_EQ(ListAssets(), FPathList());
}

TEST_F(FAssetRegistryTest, ClassesAreAskedForWithAndWithoutTheirSubclasses)
{
	SaveAsset("BP_Kind");
	const auto CountOf = [](const UClass* Class, bool bSubClasses)
	{
		TArray<FAssetData> Assets;
		Registry().GetAssetsByClass(Class->GetClassPathName(), Assets, bSubClasses);
		return Assets.FilterByPredicate([](const FAssetData& Asset)
						 { return Asset.PackageName == TEXT("/RegistryTest/BP_Kind"); })
			.Num();
	};
	EXPECT_EQ(CountOf(UBlueprint::StaticClass(), false), 1);
	EXPECT_EQ(CountOf(UObject::StaticClass(), false), 0);
	EXPECT_EQ(CountOf(UObject::StaticClass(), true), 1);
	EXPECT_EQ(CountOf(UPackage::StaticClass(), true), 0);
}
}

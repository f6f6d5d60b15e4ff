#include "AssetRegistry/AssetRegistryHelpers.h"
#include "AssetRegistryFixture.h"
#include "AssetRegistryState.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "UObject/UObjectHash.h"

using FPathList = std::vector<std::string>;

namespace
{

FPathList ToPaths(const TArray<FAssetData>& Assets)
{
	FPathList Paths;
	for (const FAssetData& Asset : Assets)
	{
		Paths.push_back(TCHAR_TO_UTF8(*Asset.GetObjectPathString()));
	}
	return Paths;
}

/** Questions to a state that is made by hand: "/T/F<folder>/A<n>", each with a class, tags and dependencies of its own. */
class FAssetStateTest : public testing::Test
{
protected:
	static FName PackageOf(int32 Index) { return FName(*FString::Printf(TEXT("/T/F%d/A%d"), Index % 10, Index)); }

	void AddAsset(int32 Index)
	{
		const FName Package = PackageOf(Index);
		FAssetDataTagMap Tags;
		Tags.Add(TEXT("Kind"), FString::Printf(TEXT("K%d"), Index % 3));
		if (Index % 7 == 0)
		{
			Tags.Add(TEXT("Rare"), TEXT("yes"));
		}
		const FName Path(*FPackageName::GetLongPackagePath(Package.ToString()));
		const FTopLevelAssetPath Class(TEXT("/Script/T"), FName(*FString::Printf(TEXT("Class%d"), Index % 5)));
		FPackageRecord Record;
		Record.Dependencies.Add({PackageOf(Index + 1), UE::AssetRegistry::EDependencyProperty::Hard});
		Record.Dependencies.Add({PackageOf(Index + 1), UE::AssetRegistry::EDependencyProperty::None});
		TArray<FAssetData> Assets{FAssetData(Package, Path, FPackageName::GetShortFName(Package), Class, MoveTemp(Tags))};
		State.AddPackage(Package, MoveTemp(Record), MoveTemp(Assets));
	}

	static int32 NumOf(const TArray<int32>* Ids) { return Ids ? Ids->Num() : 0; }
	int32 NumOfClass(const TCHAR* Name) const { return NumOf(State.FindAssetsOfClass(FTopLevelAssetPath(TEXT("/Script/T"), Name))); }

	FAssetRegistryState State;
};

TEST_F(FAssetStateTest, EveryIndexForgetsWhatIsRemoved)
{
	for (int32 Index = 0; Index < 210; ++Index)
	{
		AddAsset(Index);
	}
	EXPECT_EQ(NumOfClass(TEXT("Class2")), 42);
	EXPECT_EQ(NumOf(State.FindAssetsWithTag(TEXT("Rare"))), 30);
	EXPECT_EQ(NumOf(State.FindAssetsWithTagValue(TEXT("Kind"), TEXT("k1"))), 70);
	ASSERT_NE(State.FindReferencers(PackageOf(1)), nullptr);
	EXPECT_EQ(State.FindReferencers(PackageOf(1))->Num(), 1);
	TArray<FName> Odd;
	for (int32 Index = 1; Index < 210; Index += 2)
	{
		Odd.Add(PackageOf(Index));
	}
	Odd.Add(TEXT("/T/NeverThere"));
	State.RemovePackages(Odd);
	EXPECT_EQ(State.NumAssets(), 105);
	EXPECT_EQ(NumOfClass(TEXT("Class2")), 21);
	EXPECT_EQ(NumOf(State.FindAssetsWithTag(TEXT("Rare"))), 15);
	EXPECT_EQ(NumOf(State.FindAssetsWithTagValue(TEXT("Kind"), TEXT("K1"))), 35);
	EXPECT_EQ(State.FindReferencers(PackageOf(1))->Num(), 1);
	EXPECT_EQ(State.FindReferencers(PackageOf(2))->Num(), 0);
	EXPECT_FALSE(State.HasFolder(TEXT("/T/F1")));
	EXPECT_TRUE(State.HasFolder(TEXT("/T/F2")));
	EXPECT_EQ(State.FindAsset(FTopLevelAssetPath(PackageOf(3), TEXT("A3"))), INDEX_NONE);
	for (int32 Index = 1; Index < 210; Index += 2)
	{
		AddAsset(Index);
	}
	EXPECT_EQ(NumOfClass(TEXT("Class2")), 42);
	EXPECT_EQ(NumOf(State.FindAssetsWithTagValue(TEXT("Kind"), TEXT("K1"))), 70);
	EXPECT_EQ(State.FindReferencers(PackageOf(2))->Num(), 1);
	EXPECT_TRUE(State.HasFolder(TEXT("/T/F1")));
}

TEST_F(FAssetStateTest, LargeAndSmallAnswersHaveTheSameOrder)
{
	for (int32 Index = 99; Index >= 0; --Index)
	{
		AddAsset(Index);
	}
	TArray<int32> All = State.GetAllAssetIds();
	TArray<int32> Few{All[5], All[1], All[9]};
	State.SortByPath(Few);
	State.SortByPath(All);
	TArray<int32> Expected = Few;
	Expected.Sort([&All](int32 A, int32 B)
		{ return All.Find(A) < All.Find(B); });
	EXPECT_EQ(Few, Expected);
	for (int32 Index = 1; Index < All.Num(); ++Index)
	{
		EXPECT_TRUE(FAssetRegistryState::IsPathLess(State.GetAsset(All[Index - 1]), State.GetAsset(All[Index])));
	}
}

TEST_F(FAssetStateTest, AFolderOutlivesItsPackagesWhileItHasSubfolders)
{
	for (const TCHAR* const Name : {TEXT("/T/A/P1"), TEXT("/T/A/B/C/P2")})
	{
		State.AddPackage(Name, FPackageRecord(), {});
	}
	State.RemovePackages({TEXT("/T/A/P1")});
	EXPECT_TRUE(State.HasFolder(TEXT("/T/A")));
	TArray<FName> Below;
	State.GetSubFolders(TEXT("/T"), true, Below);
	EXPECT_EQ(Below, (TArray<FName>{TEXT("/T/A"), TEXT("/T/A/B"), TEXT("/T/A/B/C")}));
	State.RemovePackages({TEXT("/T/A/B/C/P2")});
	EXPECT_FALSE(State.HasFolder(TEXT("/T")));
}

class FAssetQueryTest : public FAssetRegistryTest
{
protected:
	virtual void SetUp() override
	{
		FAssetRegistryTest::SetUp();
		SaveAsset("Doors/BP_Door", [](UBlueprint* Blueprint)
			{
				Blueprint->ParentClass = UObject::StaticClass();
				Blueprint->BlueprintDescription = TEXT("Opens"); });
		SaveAsset("Doors/Old/BP_Gate", [](UBlueprint* Blueprint)
			{ Blueprint->BlueprintType = BPTYPE_Interface; });
		SaveAsset("BP_Player");
	}

	static FPathList Ask(const FARFilter& Filter)
	{
		TArray<FAssetData> Assets;
		Registry().GetAssets(Filter, Assets);
		return ToPaths(Assets);
	}

	/** The filter, for this test's folder alone. */
	static FARFilter Below(const TCHAR* Folder = TEXT("/RegistryTest"), bool bRecursive = true)
	{
		FARFilter Filter;
		Filter.PackagePaths.Add(Folder);
		Filter.bRecursivePaths = bRecursive;
		return Filter;
	}

	const std::string Door = "/RegistryTest/Doors/BP_Door.BP_Door";
	const std::string Gate = "/RegistryTest/Doors/Old/BP_Gate.BP_Gate";
	const std::string Player = "/RegistryTest/BP_Player.BP_Player";
};

TEST_F(FAssetQueryTest, AFilterWantsEveryPartAndInAPartAnyValue)
{
	FARFilter Filter = Below();
	EXPECT_EQ(Ask(Filter), (FPathList{Player, Door, Gate}));
	Filter.PackageNames = {TEXT("/RegistryTest/BP_Player"), TEXT("/RegistryTest/Doors/BP_Door"), TEXT("/RegistryTest/None")};
	EXPECT_EQ(Ask(Filter), (FPathList{Player, Door}));
	Filter.PackagePaths = {TEXT("/RegistryTest/Doors")};
	EXPECT_EQ(Ask(Filter), (FPathList{Door}));
	Filter.ClassPaths = {UPackage::StaticClass()->GetClassPathName()};
	EXPECT_EQ(Ask(Filter), FPathList());
	FARFilter Object;
	Object.SoftObjectPaths = {FSoftObjectPath(TEXT("/RegistryTest/Doors/Old/BP_Gate.BP_Gate"))};
	EXPECT_EQ(Ask(Object), (FPathList{Gate}));
}

TEST_F(FAssetQueryTest, TagsAreFoundByNameAndByValueOnDiskAndInMemory)
{
	for (const bool bInMemory : {false, true})
	{
		SCOPED_TRACE(bInMemory);
		if (bInMemory)
		{
			for (const TCHAR* const Path : {TEXT("/RegistryTest/Doors/BP_Door.BP_Door"), TEXT("/RegistryTest/Doors/Old/BP_Gate.BP_Gate")})
			{
				ASSERT_NE(LoadObject<UBlueprint>(nullptr, Path), nullptr);
			}
		}
		FARFilter Filter = Below();
		Filter.TagsAndValues.Add(TEXT("BlueprintType"), TOptional<FString>(TEXT("bptype_interface")));
		EXPECT_EQ(Ask(Filter), (FPathList{Gate}));
		Filter.TagsAndValues.Add(TEXT("BlueprintDescription"), TOptional<FString>(TEXT("Opens")));
		EXPECT_EQ(Ask(Filter), (FPathList{Door, Gate}));
		Filter.TagsAndValues.Empty();
		Filter.TagsAndValues.Add(TEXT("BlueprintType"), TOptional<FString>());
		EXPECT_EQ(Ask(Filter).size(), 3u);
		Filter.TagsAndValues.Empty();
		Filter.TagsAndValues.Add(TEXT("NoSuchTag"), TOptional<FString>());
		EXPECT_EQ(Ask(Filter), FPathList());
	}
	FindObject<UBlueprint>(nullptr, TEXT("/RegistryTest/Doors/BP_Door.BP_Door"))->ClearFlags(RF_Standalone);
	FindObject<UBlueprint>(nullptr, TEXT("/RegistryTest/Doors/Old/BP_Gate.BP_Gate"))->ClearFlags(RF_Standalone);
}

TEST_F(FAssetQueryTest, AnEmptyFilterIsRefusedWithALine)
{
	TArray<FAssetData> Assets;
	EXPECT_FALSE(Registry().GetAssets(FARFilter(), Assets));
	EXPECT_EQ(Assets.Num(), 0);
	EXPECT_EQ(Log.Count("A filter with nothing in it"), 1) << Log.ToText();
}

TEST_F(FAssetQueryTest, FiltersWorkOnListsToo)
{
	TArray<FAssetData> Assets;
	Registry().GetAssetsByPath(TEXT("/RegistryTest"), Assets, true);
	TArray<FAssetData> Kept = Assets;
	Registry().RunAssetsThroughFilter(Kept, Below(TEXT("/RegistryTest/Doors")));
	EXPECT_EQ(ToPaths(Kept), (FPathList{Door, Gate}));
	Registry().UseFilterToExcludeAssets(Assets, Below(TEXT("/RegistryTest/Doors")));
	EXPECT_EQ(ToPaths(Assets), (FPathList{Player}));
}

TEST_F(FAssetQueryTest, FoldersAreKnownWithWhatIsAboveThem)
{
	TArray<FString> Paths;
	Registry().GetSubPaths(TEXT("/RegistryTest"), Paths, true);
	EXPECT_EQ(Paths, (TArray<FString>{TEXT("/RegistryTest/Doors"), TEXT("/RegistryTest/Doors/Old")}));
	EXPECT_TRUE(Registry().PathExists(TEXT("/RegistryTest/Doors/Old")));
	EXPECT_FALSE(Registry().PathExists(TEXT("/RegistryTest/Old")));
	EXPECT_TRUE(Registry().HasAssets(TEXT("/RegistryTest/Doors/Old")));
	EXPECT_FALSE(Registry().HasAssets(TEXT("/RegistryTest/Windows"), true));
}

/** Writes a data asset's Blueprint parents into tags alone: nothing of it is ever loaded. */
TEST_F(FAssetQueryTest, BlueprintClassesBelowABlueprintClassAreKnownWithoutLoading)
{
	FAssetRegistryState State;
	const auto Add = [&State](const TCHAR* Name, const TCHAR* Parent)
	{
		FAssetDataTagMap Tags;
		Tags.Add(TEXT("GeneratedClass"), FString::Printf(TEXT("/Script/Engine.BlueprintGeneratedClass'/T/%s.%s_C'"), Name, Name));
		Tags.Add(TEXT("ParentClass"), Parent);
		const FName Package(*FString::Printf(TEXT("/T/%s"), Name));
		State.AddPackage(Package, {},
			{FAssetData(Package, TEXT("/T"), Name, UBlueprint::StaticClass()->GetClassPathName(), MoveTemp(Tags))});
	};
	Add(TEXT("A"), TEXT("Class'/Script/Engine.Actor'"));
	Add(TEXT("B"), TEXT("BlueprintGeneratedClass'/T/A.A_C'"));
	const FTopLevelAssetPath Actor(TEXT("/Script/Engine.Actor"));
	ASSERT_NE(State.FindChildClasses(Actor), nullptr);
	EXPECT_EQ(State.FindChildClasses(Actor)->Num(), 1);
	EXPECT_EQ(*State.FindParentClass(FTopLevelAssetPath(TEXT("/T/B.B_C"))), FTopLevelAssetPath(TEXT("/T/A.A_C")));
	State.RemovePackages({TEXT("/T/B")});
	EXPECT_EQ(State.FindParentClass(FTopLevelAssetPath(TEXT("/T/B.B_C"))), nullptr);
	EXPECT_EQ(State.FindChildClasses(FTopLevelAssetPath(TEXT("/T/A.A_C")))->Num(), 0);
}

TEST_F(FAssetQueryTest, NativeClassesHaveTheirAncestorsAndDescendants)
{
	TArray<FTopLevelAssetPath> Ancestors;
	EXPECT_TRUE(Registry().GetAncestorClassNames(UBlueprint::StaticClass()->GetClassPathName(), Ancestors));
	EXPECT_EQ(Ancestors,
		(TArray<FTopLevelAssetPath>{FTopLevelAssetPath(TEXT("/Script/Engine.BlueprintCore")),
			FTopLevelAssetPath(TEXT("/Script/CoreUObject.Object"))}));
	EXPECT_FALSE(Registry().GetAncestorClassNames(FTopLevelAssetPath(TEXT("/Script/Engine.NoSuchClass")), Ancestors));
	TSet<FTopLevelAssetPath> Derived;
	Registry().GetDerivedClassNames({UStruct::StaticClass()->GetClassPathName()}, {UClass::StaticClass()->GetClassPathName()}, Derived);
	EXPECT_TRUE(Derived.Contains(UFunction::StaticClass()->GetClassPathName()));
	EXPECT_TRUE(Derived.Contains(UStruct::StaticClass()->GetClassPathName()));
	EXPECT_FALSE(Derived.Contains(UClass::StaticClass()->GetClassPathName()));
	EXPECT_FALSE(Derived.Contains(UBlueprintGeneratedClass::StaticClass()->GetClassPathName()));
}

TEST_F(FAssetQueryTest, ListenersHearEachChangeOnce)
{
	std::vector<std::string> Heard;
	const auto Note = [&Heard](const char* What)
	{
		return [&Heard, What](const FAssetData& Asset)
		{ Heard.push_back(std::string(What) + " " + TCHAR_TO_UTF8(*Asset.GetObjectPathString())); };
	};
	const FDelegateHandle Added = Registry().OnAssetAdded().AddLambda(Note("added"));
	const FDelegateHandle Removed = Registry().OnAssetRemoved().AddLambda(Note("removed"));
	const FDelegateHandle Updated = Registry().OnAssetUpdated().AddLambda(Note("updated"));
	SaveAsset("BP_New");
	EXPECT_EQ(Heard, (FPathList{"added /RegistryTest/BP_New.BP_New"}));
	Heard.clear();
	SaveAsset("BP_New", [](UBlueprint* Blueprint)
		{ Blueprint->BlueprintDescription = TEXT("Changed"); });
	EXPECT_EQ(Heard, (FPathList{"updated /RegistryTest/BP_New.BP_New"}));
	Heard.clear();
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest")});
	EXPECT_EQ(Heard, FPathList());
	std::filesystem::remove(FileOf("BP_New"));
	Registry().ScanPathsSynchronous({TEXT("/RegistryTest")});
	EXPECT_EQ(Heard, (FPathList{"removed /RegistryTest/BP_New.BP_New"}));
	Registry().OnAssetAdded().Remove(Added);
	Registry().OnAssetRemoved().Remove(Removed);
	Registry().OnAssetUpdated().Remove(Updated);
}

TEST_F(FAssetQueryTest, ARenamedAssetIsFoundUnderItsNewPathAlone)
{
	UBlueprint* const Blueprint = LoadObject<UBlueprint>(nullptr, TEXT("/RegistryTest/BP_Player.BP_Player"));
	ASSERT_NE(Blueprint, nullptr);
	FString OldPath;
	const FDelegateHandle Handle = Registry().OnAssetRenamed().AddLambda([&OldPath](const FAssetData&, const FString& Path)
		{ OldPath = Path; });
	ASSERT_TRUE(Blueprint->Rename(TEXT("BP_Hero"), CreatePackage(TEXT("/RegistryTest/BP_Hero")), REN_DontCreateRedirectors));
	FAssetRegistryModule::AssetRenamed(Blueprint, TEXT("/RegistryTest/BP_Player.BP_Player"));
	Registry().OnAssetRenamed().Remove(Handle);
	EXPECT_EQ(OldPath, TEXT("/RegistryTest/BP_Player.BP_Player"));
	EXPECT_EQ(Ask(Below(TEXT("/RegistryTest"), false)), (FPathList{"/RegistryTest/BP_Hero.BP_Hero"}));
	EXPECT_FALSE(Registry().GetAssetByObjectPath(FSoftObjectPath(OldPath)).IsValid());
	Blueprint->ClearFlags(RF_Standalone);
}

TEST_F(FAssetQueryTest, AssetsInMemoryAnswerWithWhatTheyAreNow)
{
	UBlueprint* const Blueprint = LoadObject<UBlueprint>(nullptr, TEXT("/RegistryTest/Doors/BP_Door.BP_Door"));
	ASSERT_NE(Blueprint, nullptr);
	Blueprint->BlueprintDescription = TEXT("Closes");
	const FSoftObjectPath Path(Blueprint);
	FString Text;
	EXPECT_TRUE(Registry().GetAssetByObjectPath(Path).GetTagValue(TEXT("BlueprintDescription"), Text));
	EXPECT_EQ(Text, TEXT("Closes"));
	EXPECT_TRUE(Registry().GetAssetByObjectPath(Path, true).GetTagValue(TEXT("BlueprintDescription"), Text));
	EXPECT_EQ(Text, TEXT("Opens"));
	Blueprint->ClearFlags(RF_Standalone);
}
}

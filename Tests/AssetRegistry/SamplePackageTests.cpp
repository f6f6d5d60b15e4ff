#include "AssetRegistryFixture.h"
#include "AssetRegistryImpl.h"
#include "Misc/AssetRegistryInterface.h"
#include "PackageHeaderReader.h"

#include <map>
#include <set>

namespace
{
namespace fs = std::filesystem;
using UE::AssetRegistry::EDependencyCategory;
using UE::AssetRegistry::EDependencyQuery;

const fs::path SamplesFolder = fs::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages";

std::vector<std::string> Sorted(const TArray<FName>& Names)
{
	std::set<std::string> Result;
	for (const FName Name : Names)
	{
		const std::string Text = TCHAR_TO_UTF8(*Name.ToString());
		// The engine's own packages differ from version to version.
		if (Text.starts_with("/Game/"))
		{
			Result.insert(Text);
		}
	}
	return {Result.begin(), Result.end()};
}

/** Packages that each version of the engine's editor saved, as /Game, none of them loaded. */
class FSamplePackageTest : public testing::TestWithParam<const char*>
{
protected:
	static void SetUpTestSuite() { ProcessNewlyLoadedUObjects(); }

	virtual void SetUp() override
	{
		const fs::path Folder = SamplesFolder / GetParam();
		if (!fs::exists(Folder))
		{
			GTEST_SKIP() << "no samples at " << Folder;
		}
		Content = FString(UTF8_TO_TCHAR(Folder.c_str())) + TEXT("/");
		FPackageName::RegisterMountPoint(TEXT("/Game/"), Content);
	}
	virtual void TearDown() override { FPackageName::UnRegisterMountPoint(TEXT("/Game/"), Content); }

	std::vector<std::string> Dependencies(const TCHAR* Package, EDependencyQuery Query) const
	{
		TArray<FName> Names;
		EXPECT_TRUE(Registry.GetDependencies(FName(Package), Names, EDependencyCategory::Package, Query));
		return Sorted(Names);
	}
	std::vector<std::string> Referencers(const TCHAR* Package, EDependencyQuery Query) const
	{
		TArray<FName> Names;
		Registry.GetReferencers(FName(Package), Names, EDependencyCategory::Package, Query);
		return Sorted(Names);
	}

	FAssetRegistryImpl Registry;
	FString Content;
	FLogCapture Log;
};

using FNames = std::vector<std::string>;

TEST_P(FSamplePackageTest, EveryBlueprintIsListedWithItsClassesAndTags)
{
	TArray<FAssetData> Assets;
	Registry.GetAssetsByPath(TEXT("/Game"), Assets, true, true);
	EXPECT_EQ(Log.Count(".uasset"), 0) << Log.ToText();
	ASSERT_EQ(Assets.Num(), 9);
	for (const FAssetData& Asset : Assets)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Asset.GetObjectPathString()));
		EXPECT_TRUE(Asset.IsUAsset());
		EXPECT_EQ(Asset.AssetClassPath.ToString(), TEXT("/Script/Engine.Blueprint"));
		EXPECT_EQ(Asset.FindTag(TEXT("BlueprintType")).AsString(), TEXT("BPTYPE_Normal"));
		EXPECT_EQ(FTopLevelAssetPath(Asset.FindTag(TEXT("GeneratedClass")).AsString()).ToString(),
			Asset.GetObjectPathString() + TEXT("_C"));
		EXPECT_FALSE(Asset.IsAssetLoaded());
	}
}

TEST_P(FSamplePackageTest, HardAndSoftReferencesAreTold)
{
	const FString Root = TEXT("/Game/SimpleRefs/SimpleRefsRoot");
	EXPECT_EQ(Dependencies(TEXT("/Game/DirectCycle/DirectCycleA"), EDependencyQuery::Hard), (FNames{"/Game/DirectCycle/DirectCycleB"}));
	EXPECT_EQ(Dependencies(TEXT("/Game/DirectCycle/DirectCycleB"), EDependencyQuery::Hard), (FNames{"/Game/DirectCycle/DirectCycleA"}));
	EXPECT_EQ(Dependencies(TEXT("/Game/SimpleRefs/SimpleRefsSoftRef"), EDependencyQuery::Hard), FNames());
	EXPECT_EQ(Referencers(TEXT("/Game/DirectCycle/DirectCycleA"), EDependencyQuery::NoRequirements),
		(FNames{"/Game/DirectCycle/DirectCycleB"}));
	EXPECT_EQ(Dependencies(*Root, EDependencyQuery::Soft), (FNames{"/Game/SimpleRefs/SimpleRefsSoftRef"}));
	EXPECT_EQ(Dependencies(*Root, EDependencyQuery::Hard),
		(FNames{"/Game/SimpleRefs/SimpleRefsDefaultsRef", "/Game/SimpleRefs/SimpleRefsGraphRef"}));
	EXPECT_EQ(Referencers(TEXT("/Game/SimpleRefs/SimpleRefsSoftRef"), EDependencyQuery::Soft), (FNames{"/Game/SimpleRefs/SimpleRefsRoot"}));
	EXPECT_EQ(Referencers(TEXT("/Game/SimpleRefs/SimpleRefsSoftRef"), EDependencyQuery::Hard), FNames());
}

INSTANTIATE_TEST_SUITE_P(Versions, FSamplePackageTest, testing::Values("UE420", "UE427", "UE50", "UE52", "UE54", "UE56"),
	[](const auto& Info)
	{ return std::string(Info.param); });

TEST(SamplePackage, AssetsOfOtherKindsHaveTheClassesThatTheirImportsName)
{
	const std::map<std::string, std::string> Expected = {
		{"AirSim/AirSimAssets.umap", "/Script/Engine.World"},
		{"AirSim/Weather/WeatherFX/Materials/M_VolumetricDust_Inst.uasset", "/Script/Engine.MaterialInstanceConstant"},
		{"AirSim/Weather/WeatherFX/Meshes/MapleLeaf01.uasset", "/Script/Engine.StaticMesh"},
		{"AirSim/Weather/WeatherFX/Textures/RainDrop_N.uasset", "/Script/Engine.Texture2D"},
		{"AirSim/HUDAssets/BP_LevelLoadButton.uasset", "/Script/UMGEditor.WidgetBlueprint"},
		{"CesiumUnreal/Ellipsoids/WGS84.uasset", "/Script/CesiumRuntime.CesiumEllipsoid"},
		{"CesiumUnreal/Tests/Maps/SingleCube.umap", "/Script/Engine.World"},
		{"CesiumUnreal/WBP_TimeOfDay.uasset", "/Script/UMGEditor.WidgetBlueprint"},
	};
	if (!fs::exists(SamplesFolder))
	{
		GTEST_SKIP() << "no samples at " << SamplesFolder;
	}
	for (const auto& [File, Class] : Expected)
	{
		SCOPED_TRACE(File);
		FPackageHeader Header;
		FString Error;
		ASSERT_TRUE(ReadPackageHeader(UTF8_TO_TCHAR((SamplesFolder / File).c_str()), TEXT("/Game/Any"), Header, Error))
			<< TCHAR_TO_UTF8(*Error);
		ASSERT_EQ(Header.Assets.Num(), 1);
		EXPECT_EQ(TCHAR_TO_UTF8(*Header.Assets[0].AssetClassPath.ToString()), Class);
		EXPECT_GT(Header.Dependencies.Num(), 0);
	}
}

TEST(SamplePackage, CutAndSpoiltHeadersAreRefusedWithAReason)
{
	const fs::path Model = SamplesFolder / "UE56/SimpleRefs/SimpleRefsRoot.uasset";
	if (!fs::exists(Model))
	{
		GTEST_SKIP() << "no samples at " << SamplesFolder;
	}
	std::ifstream Stream(Model, std::ios::binary);
	const std::string Bytes((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
	std::string Pattern = (fs::temp_directory_path() / "vexel-header-XXXXXX").string();
	const fs::path Folder = mkdtemp(Pattern.data());
	const fs::path File = Folder / "Spoilt.uasset";
	for (size_t At = 0; At < Bytes.size(); At += 61)
	{
		std::string Spoilt = Bytes;
		const uint32 Values[] = {0xffffffffu, 0x7fffffffu, 0x80000000u, 0x00ffffffu};
		const size_t Length = std::min<size_t>(4, Bytes.size() - At);
		Spoilt.replace(At, Length, reinterpret_cast<const char*>(&Values[At % 4]), Length);
		for (const std::string& Case : {Spoilt, Bytes.substr(0, At)})
		{
			std::ofstream(File, std::ios::binary | std::ios::trunc) << Case;
			FPackageHeader Header;
			FString Error;
			const bool bRead = ReadPackageHeader(UTF8_TO_TCHAR(File.c_str()), TEXT("/Game/Spoilt"), Header, Error);
			EXPECT_EQ(bRead, Error.IsEmpty());
			EXPECT_FALSE(bRead && Case.size() < Bytes.size());
		}
	}
	fs::remove_all(Folder);
}
}

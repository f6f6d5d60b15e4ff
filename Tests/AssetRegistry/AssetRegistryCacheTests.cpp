#include "AssetRegistryCache.h"
#include "AssetRegistryFixture.h"
#include "AssetRegistryImpl.h"
#include "Async/TaskGraphInterfaces.h"
#include "Misc/Crc.h"
#include "Misc/Paths.h"
#include "PackageFileGatherer.h"

#include <chrono>
#include <map>

namespace
{
namespace fs = std::filesystem;

std::string ReadBytes(const fs::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	return std::string((std::istreambuf_iterator<char>(Stream)), std::istreambuf_iterator<char>());
}

void WriteBytes(const fs::path& File, const std::string& Bytes)
{
	std::ofstream(File, std::ios::binary | std::ios::trunc) << Bytes;
}

/** A thousand packages, and registries that start anew as the next process's would. */
class FAssetRegistryCacheTest : public FAssetRegistryTest
{
protected:
	static constexpr int32 NumPackages = 1000;

	virtual void SetUp() override
	{
		FTaskGraphInterface::Startup(2);
		FAssetRegistryTest::SetUp();
		SaveAsset("Model", [](UBlueprint* Blueprint)
			{ Blueprint->ParentClass = UObject::StaticClass(); });
		for (int32 Index = 0; Index < NumPackages - 1; ++Index)
		{
			fs::create_directories(FileOfNumber(Index).parent_path());
			fs::copy_file(FileOf("Model"), FileOfNumber(Index));
		}
		OldProjectFile = FPaths::GetProjectFilePath();
		FPaths::SetProjectFilePath(Content + TEXT("Project/Test.uproject"));
		CacheFile = Directory / "Project/Saved/CachedAssetRegistry.bin";
	}

	virtual void TearDown() override
	{
		FPaths::SetProjectFilePath(OldProjectFile);
		FAssetRegistryTest::TearDown();
		FTaskGraphInterface::Shutdown();
	}

	fs::path FileOfNumber(int32 Index) const
	{
		return FileOf("Dir" + std::to_string(Index % 10) + "/BP_" + std::to_string(Index));
	}

	/** Assets on disk as a registry sees them that has just been made. */
	static TArray<FAssetData> Start()
	{
		const FAssetRegistryImpl Fresh;
		TArray<FAssetData> Assets;
		Fresh.GetAssetsByPath(TEXT("/RegistryTest"), Assets, true, true);
		return Assets;
	}

	/** What each file came from when it was looked at. */
	std::map<FGatheredPackage::EOutcome, int32> CountOutcomes(const FAssetRegistryState& State, FAssetRegistryCache& Cache) const
	{
		TArray<FPackageFile> Files;
		TArray<FString> Problems;
		PackageFileGatherer::FindFiles(TEXT("/RegistryTest/"), Files, Problems);
		std::map<FGatheredPackage::EOutcome, int32> Counts;
		for (const FGatheredPackage& Package : PackageFileGatherer::Gather(Files, State, Cache, false))
		{
			++Counts[Package.Outcome];
		}
		return Counts;
	}

	FString CacheName() const { return FString(UTF8_TO_TCHAR(CacheFile.c_str())); }

	fs::path CacheFile;
	FString OldProjectFile;
};

using EOutcome = FGatheredPackage::EOutcome;

TEST_F(FAssetRegistryCacheTest, TheNextStartReadsNoHeaderAndAnswersTheSame)
{
	const TArray<FAssetData> First = Start();
	ASSERT_EQ(First.Num(), NumPackages);
	ASSERT_TRUE(fs::exists(CacheFile));
	FAssetRegistryCache Cache;
	FString Error;
	ASSERT_TRUE(Cache.Load(CacheName(), Error)) << TCHAR_TO_UTF8(*Error);
	EXPECT_EQ(CountOutcomes(FAssetRegistryState(), Cache), (std::map<EOutcome, int32>{{EOutcome::Cached, NumPackages}}));
	const fs::file_time_type Written = fs::last_write_time(CacheFile);
	const TArray<FAssetData> Second = Start();
	ASSERT_EQ(Second.Num(), NumPackages);
	for (int32 Index = 0; Index < NumPackages; ++Index)
	{
		EXPECT_EQ(First[Index], Second[Index]);
		EXPECT_EQ(First[Index].AssetClassPath, Second[Index].AssetClassPath);
		EXPECT_EQ(First[Index].TagsAndValues, Second[Index].TagsAndValues);
		EXPECT_EQ(First[Index].PackageFlags, Second[Index].PackageFlags);
	}
	EXPECT_GT(First[0].TagsAndValues.Num(), 3);
	EXPECT_EQ(fs::last_write_time(CacheFile), Written) << "a start that finds nothing new writes nothing";
}

TEST_F(FAssetRegistryCacheTest, ChangedGoneAndCutFilesAreSeenAtTheNextStart)
{
	ASSERT_EQ(Start().Num(), NumPackages);
	fs::remove(FileOfNumber(17));
	fs::resize_file(FileOfNumber(18), fs::file_size(FileOfNumber(18)) - 1);
	fs::resize_file(FileOfNumber(19), 100);
	SaveAsset("Other", [](UBlueprint* Blueprint)
		{ Blueprint->BlueprintDescription = TEXT("Longer than the model"); });
	fs::rename(FileOf("Other"), FileOfNumber(20));
	Log.Clear();
	FAssetRegistryImpl Fresh;
	TArray<FAssetData> Assets;
	Fresh.GetAssetsByPath(TEXT("/RegistryTest"), Assets, true, true);
	EXPECT_EQ(Assets.Num(), NumPackages - 3);
	EXPECT_EQ(Log.Count("BP_18.uasset: the file is cut off"), 1) << Log.ToText();
	EXPECT_EQ(Log.Count("BP_19.uasset"), 1) << Log.ToText();
	TArray<FAssetData> Changed;
	Fresh.GetAssetsByPackageName(TEXT("/RegistryTest/Dir0/BP_20"), Changed, true);
	ASSERT_EQ(Changed.Num(), 1);
	EXPECT_EQ(Changed[0].FindTag(TEXT("BlueprintDescription")).AsString(), TEXT("Longer than the model"));
	// Broken files are told of at every start; the others come out of the cache.
	FAssetRegistryCache Cache;
	FString Error;
	ASSERT_TRUE(Cache.Load(CacheName(), Error));
	EXPECT_EQ(CountOutcomes(FAssetRegistryState(), Cache),
		(std::map<EOutcome, int32>{{EOutcome::Cached, NumPackages - 3}, {EOutcome::Broken, 2}}));
}

TEST_F(FAssetRegistryCacheTest, AFileOfTheSameSizeWithAnotherTimeIsReadAnew)
{
	ASSERT_EQ(Start().Num(), NumPackages);
	const fs::path File = FileOfNumber(5);
	std::string Bytes = ReadBytes(File);
	const size_t At = Bytes.find("Model");
	ASSERT_NE(At, std::string::npos);
	for (size_t Next = At; Next != std::string::npos; Next = Bytes.find("Model", Next))
	{
		Bytes.replace(Next, 5, "Modem");
	}
	WriteBytes(File, Bytes);
	fs::last_write_time(File, fs::last_write_time(File) + std::chrono::seconds(2));
	const FAssetRegistryImpl Fresh;
	EXPECT_TRUE(Fresh.GetAssetByObjectPath(FSoftObjectPath(TEXT("/RegistryTest/Dir5/BP_5.Modem")), true).IsValid());
}

TEST_F(FAssetRegistryCacheTest, ADamagedCacheCostsOneLineAndIsReplaced)
{
	ASSERT_EQ(Start().Num(), NumPackages);
	const std::string Good = ReadBytes(CacheFile);
	std::string Flipped = Good;
	Flipped[Flipped.size() / 2] ^= 1;
	std::string OtherVersion = Good;
	OtherVersion[4] = 99;
	// The sum is right but the counts are not.
	std::string Lying = Good.substr(0, 16) + std::string(64, '\x7f');
	const uint32 Sum = FCrc::MemCrc32(Lying.data() + 16, 64);
	const int32 Length = 64;
	Lying.replace(8, 4, reinterpret_cast<const char*>(&Sum), 4);
	Lying.replace(12, 4, reinterpret_cast<const char*>(&Length), 4);
	const std::string Cases[] = {"", "short", Good.substr(0, Good.size() / 2), Flipped, OtherVersion, Good + "x", Lying};
	for (const std::string& Case : Cases)
	{
		SCOPED_TRACE(Case.size());
		WriteBytes(CacheFile, Case);
		Log.Clear();
		EXPECT_EQ(Start().Num(), NumPackages);
		EXPECT_EQ(Log.Count("The asset registry's cache is not used"), 1) << Log.ToText();
		EXPECT_EQ(ReadBytes(CacheFile).size(), Good.size());
	}
}

TEST_F(FAssetRegistryCacheTest, EveryBitOfACacheFileMayFlipWithoutHarm)
{
	for (int32 Index = 10; Index < NumPackages - 1; ++Index)
	{
		fs::remove(FileOfNumber(Index));
	}
	ASSERT_EQ(Start().Num(), 11);
	const std::string Good = ReadBytes(CacheFile);
	// The sum would catch each: it is made right again, so that the reader itself is tried.
	for (size_t At = 16; At < Good.size(); At += 3)
	{
		std::string Bad = Good;
		Bad[At] ^= static_cast<char>(1 << (At % 8));
		const uint32 Sum = FCrc::MemCrc32(Bad.data() + 16, static_cast<int32>(Bad.size() - 16));
		Bad.replace(8, 4, reinterpret_cast<const char*>(&Sum), 4);
		WriteBytes(CacheFile, Bad);
		FAssetRegistryCache Cache;
		FString Error;
		const bool bLoaded = Cache.Load(CacheName(), Error);
		EXPECT_EQ(bLoaded, Error.IsEmpty());
		EXPECT_LE(Cache.Num(), 20);
	}
}

TEST_F(FAssetRegistryCacheTest, ACacheThatCannotBeWrittenStopsNothing)
{
	fs::create_directories(CacheFile);
	EXPECT_EQ(Start().Num(), NumPackages);
	EXPECT_EQ(Log.Count("The asset registry's cache cannot be written"), 1) << Log.ToText();
}

TEST_F(FAssetRegistryCacheTest, UnchangedFilesAreNotReadUnlessForced)
{
	FAssetRegistryImpl Fresh;
	TArray<FAssetData> Assets;
	Fresh.GetAssetsByPath(TEXT("/RegistryTest/Dir3"), Assets, true, true);
	ASSERT_EQ(Assets.Num(), 100);
	// Damaged without a trace: the same size, the same time.
	const fs::path File = FileOfNumber(3);
	const fs::file_time_type Time = fs::last_write_time(File);
	WriteBytes(File, std::string(fs::file_size(File), '\0'));
	fs::last_write_time(File, Time);
	Fresh.ScanPathsSynchronous({TEXT("/RegistryTest/Dir3")}, false);
	Assets.Reset();
	Fresh.GetAssetsByPath(TEXT("/RegistryTest/Dir3"), Assets, true, true);
	EXPECT_EQ(Assets.Num(), 100);
	Fresh.ScanPathsSynchronous({TEXT("/RegistryTest/Dir3")}, true);
	Assets.Reset();
	Fresh.GetAssetsByPath(TEXT("/RegistryTest/Dir3"), Assets, true, true);
	EXPECT_EQ(Assets.Num(), 99);
}

TEST_F(FAssetRegistryCacheTest, FilesThatNoPackageCanBeNamedAfterAreLeftOutWithALine)
{
	for (const char* const Name : {"with space", "dot.ted", "Twice"})
	{
		fs::copy_file(FileOf("Model"), FileOf(Name));
	}
	fs::copy_file(FileOf("Model"), Directory / "Twice.umap");
	Log.Clear();
	EXPECT_EQ(Start().Num(), NumPackages + 1);
	EXPECT_EQ(Log.Count("is left out"), 3) << Log.ToText();
}

TEST_F(FAssetRegistryCacheTest, AFolderThatIsMountedElsewhereIsNotListedTwice)
{
	const FString Inner = Content + TEXT("Dir4/");
	FPackageName::RegisterMountPoint(TEXT("/RegistryInner/"), Inner);
	const FAssetRegistryImpl Fresh;
	TArray<FAssetData> Assets;
	Fresh.GetAssetsByPath(TEXT("/RegistryInner"), Assets, true, true);
	EXPECT_EQ(Assets.Num(), 100);
	Assets.Reset();
	Fresh.GetAssetsByPath(TEXT("/RegistryTest"), Assets, true, true);
	EXPECT_EQ(Assets.Num(), NumPackages - 100);
	FPackageName::UnRegisterMountPoint(TEXT("/RegistryInner/"), Inner);
}
}

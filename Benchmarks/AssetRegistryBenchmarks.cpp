#include "AssetFilter.h"
#include "AssetRegistryCache.h"
#include "AssetRegistryState.h"
#include "Async/TaskGraphInterfaces.h"
#include "Engine/Blueprint.h"
#include "Misc/PackageName.h"
#include "PackageFileGatherer.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <unordered_map>
#include <vector>

namespace
{
namespace fs = std::filesystem;

constexpr int32 NumFiles = 10'000;
constexpr int32 NumAssets = 100'000;
constexpr int32 AssetsOfRareClass = 100;

/** Ten thousand packages in a hundred folders, mounted as /Bench/; gone at the program's end. */
class FPackageTree
{
public:
	static const FPackageTree& Get()
	{
		static const FPackageTree Tree;
		return Tree;
	}

	FPackageTree()
	{
		FTaskGraphInterface::Startup();
		ProcessNewlyLoadedUObjects();
		std::string Pattern = (fs::temp_directory_path() / "vexel-bench-XXXXXX").string();
		Folder = mkdtemp(Pattern.data());
		FPackageName::RegisterMountPoint(TEXT("/Bench/"), UTF8_TO_TCHAR((Folder.string() + "/").c_str()));
		const fs::path Model = Folder / "Model.uasset";
		UPackage* const Package = CreatePackage(TEXT("/Bench/Model"));
		UBlueprint* const Blueprint = NewObject<UBlueprint>(Package, TEXT("Model"), RF_Public | RF_Standalone);
		UPackage::SavePackage(Package, Blueprint, UTF8_TO_TCHAR(Model.c_str()), FSavePackageArgs());
		for (int32 Index = 0; Index < NumFiles; ++Index)
		{
			const fs::path File = Folder / ("Dir" + std::to_string(Index % 100)) / ("BP_" + std::to_string(Index) + ".uasset");
			fs::create_directories(File.parent_path());
			fs::copy_file(Model, File);
			Paths.push_back(File.string());
		}
		HeaderBytes = fs::file_size(Model);
		fs::remove(Model);
		TArray<FString> Problems;
		PackageFileGatherer::FindFiles(TEXT("/Bench/"), Files, Problems);
	}
	~FPackageTree()
	{
		std::error_code Ignored;
		fs::remove_all(Folder, Ignored);
		FTaskGraphInterface::Shutdown();
	}

	fs::path Folder;
	std::vector<std::string> Paths;
	TArray<FPackageFile> Files;
	size_t HeaderBytes = 0;
};

void ReadHeaders(benchmark::State& State)
{
	const FPackageTree& Tree = FPackageTree::Get();
	for (auto _ : State)
	{
		for (const FPackageFile& File : Tree.Files)
		{
			FPackageHeader Header;
			FString Error;
			const bool bRead = ReadPackageHeader(File.Filename, File.PackageName, Header, Error);
			benchmark::DoNotOptimize(bRead);
		}
	}
}

/** The peer: the same bytes, which are then not looked at. */
void ReadBytes(benchmark::State& State)
{
	const FPackageTree& Tree = FPackageTree::Get();
	std::vector<char> Buffer(Tree.HeaderBytes);
	for (auto _ : State)
	{
		for (const std::string& Path : Tree.Paths)
		{
			const int File = open(Path.c_str(), O_RDONLY | O_CLOEXEC);
			benchmark::DoNotOptimize(pread(File, Buffer.data(), Buffer.size(), 0));
			close(File);
		}
	}
}

FAssetRegistryState Gather(FAssetRegistryCache& Cache)
{
	FAssetRegistryState State;
	TArray<FPackageFile> Files;
	TArray<FString> Problems;
	PackageFileGatherer::FindFiles(TEXT("/Bench/"), Files, Problems);
	for (FGatheredPackage& Package : PackageFileGatherer::Gather(Files, State, Cache, false))
	{
		FPackageRecord Record{Package.Stamp, false, MoveTemp(Package.Header.Dependencies), {}};
		State.AddPackage(Package.PackageName, MoveTemp(Record), MoveTemp(Package.Header.Assets));
	}
	return State;
}

/** A start with the cache: the tree listed, every file's time and size looked at, the indexes made. */
void StartWarm(benchmark::State& State)
{
	const FString File = UTF8_TO_TCHAR((FPackageTree::Get().Folder / "Cache.bin").c_str());
	FAssetRegistryCache Nothing;
	FString Error;
	if (!FAssetRegistryCache::Save(File, Gather(Nothing), Error))
	{
		State.SkipWithError("the cache cannot be written");
	}
	for (auto _ : State)
	{
		FAssetRegistryCache Cache;
		benchmark::DoNotOptimize(Cache.Load(File, Error));
		benchmark::DoNotOptimize(Gather(Cache).NumAssets());
	}
}

/** The peer: every header read. */
void StartCold(benchmark::State& State)
{
	FPackageTree::Get();
	for (auto _ : State)
	{
		FAssetRegistryCache Nothing;
		benchmark::DoNotOptimize(Gather(Nothing).NumAssets());
	}
}

FTopLevelAssetPath ClassOf(int32 Index)
{
	return FTopLevelAssetPath(TEXT("/Script/T"),
		Index % (NumAssets / AssetsOfRareClass) == 0 ? FName(TEXT("Rare")) : FName(TEXT("Common")));
}

/** A hundred thousand assets in a thousand folders; a hundred of a class that is asked for. */
const FAssetRegistryState& GetLargeState()
{
	static const FAssetRegistryState Large = []
	{
		FAssetRegistryState State;
		for (int32 Index = 0; Index < NumAssets; ++Index)
		{
			const FName Path(*FString::Printf(TEXT("/Large/F%d"), Index / 100));
			const FName Name(*FString::Printf(TEXT("Asset%d"), Index));
			const FName Package(*(Path.ToString() + TEXT("/") + Name.ToString()));
			State.AddPackage(Package, FPackageRecord(), {FAssetData(Package, Path, Name, ClassOf(Index))});
		}
		return State;
	}();
	return Large;
}

void Ask(benchmark::State& State, const FARFilter& Wanted)
{
	const FAssetRegistryState& Large = GetLargeState();
	for (auto _ : State)
	{
		FAssetRegistryState::FIds Ids = FAssetFilter(Wanted, {}).FindOnDisk(Large);
		Large.SortByPath(Ids);
		TArray<FAssetData> Assets;
		Assets.Reserve(Ids.Num());
		for (const int32 Id : Ids)
		{
			Assets.Add(Large.GetAsset(Id));
		}
		benchmark::DoNotOptimize(Assets.Num());
	}
}

void AskByClass(benchmark::State& State)
{
	FARFilter Filter;
	Filter.ClassPaths.Add(ClassOf(0));
	Ask(State, Filter);
}

void AskByPath(benchmark::State& State)
{
	FARFilter Filter;
	Filter.PackagePaths.Add(TEXT("/Large/F500"));
	Ask(State, Filter);
}

/** The peer: a table from the class or folder to a list of that many assets, found and copied. */
void LookUp(benchmark::State& State)
{
	std::unordered_map<uint32, std::vector<FAssetData>> Table;
	for (int32 Index = 0; Index < NumAssets; ++Index)
	{
		Table[uint32(Index / AssetsOfRareClass)].push_back(GetLargeState().GetAsset(Index));
	}
	for (auto _ : State)
	{
		const std::vector<FAssetData> Copy = Table.find(500)->second;
		benchmark::DoNotOptimize(Copy.size());
	}
}
}

BENCHMARK(ReadHeaders)->Name("PackageHeaders/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(ReadBytes)->Name("PackageHeaders/Peer:pread")->Unit(benchmark::kMillisecond);
BENCHMARK(StartWarm)->Name("RegistryStart/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(StartCold)->Name("RegistryStart/Peer:without_cache")->Unit(benchmark::kMillisecond);
BENCHMARK(AskByClass)->Name("AssetsByClass/Ours");
BENCHMARK(LookUp)->Name("AssetsByClass/Peer:unordered_map");
BENCHMARK(AskByPath)->Name("AssetsByPath/Ours");
BENCHMARK(LookUp)->Name("AssetsByPath/Peer:unordered_map");

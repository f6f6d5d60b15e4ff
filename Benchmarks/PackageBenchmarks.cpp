#include "PackageInspector.h"

#include "Dom/JsonObject.h"
#include "UObject/GarbageCollection.h"
#include "UObject/LinkerLoad.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <filesystem>
#include <fstream>

namespace
{
/** The largest package that the real editor wrote; empty when the folder of samples is missing. */
const TArray<uint8>& GetLargestSample()
{
	static const TArray<uint8> Bytes = []()
	{
		std::filesystem::path Largest;
		std::error_code Missing;
		for (const auto& Entry : std::filesystem::recursive_directory_iterator(std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/packages", Missing))
		{
			if (Entry.is_regular_file() && (Largest.empty() || Entry.file_size() > std::filesystem::file_size(Largest)))
			{
				Largest = Entry.path();
			}
		}
		std::ifstream Stream(Largest, std::ios::binary);
		const std::vector<uint8> Content(std::istreambuf_iterator<char>(Stream), {});
		return TArray<uint8>(Content.data(), int32(Content.size()));
	}();
	return Bytes;
}

TUniquePtr<FLinkerLoad> Open(benchmark::State& State, UPackage* Package)
{
	FString Error;
	TUniquePtr<FLinkerLoad> Linker = FLinkerLoad::Create(TArray<uint8>(GetLargestSample()), TEXT("sample"), Package, Error);
	if (!Linker)
	{
		State.SkipWithError("the folder of sample packages is missing");
	}
	return Linker;
}

void CountBytes(benchmark::State& State)
{
	State.SetBytesProcessed(State.iterations() * GetLargestSample().Num());
}

void CopyBytes(benchmark::State& State)
{
	const TArray<uint8>& Sample = GetLargestSample();
	std::vector<uint8> Copy(size_t(Sample.Num()) + 1);
	for (auto _ : State)
	{
		std::memcpy(Copy.data(), Sample.GetData(), size_t(Sample.Num()));
		benchmark::DoNotOptimize(Copy.data());
		benchmark::ClobberMemory();
	}
	CountBytes(State);
}

void ReadTables(benchmark::State& State)
{
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Open(State, nullptr));
	}
	CountBytes(State);
}

void Inspect(benchmark::State& State)
{
	for (auto _ : State)
	{
		if (const TUniquePtr<FLinkerLoad> Linker = Open(State, nullptr))
		{
			TArray<FString> Errors;
			benchmark::DoNotOptimize(InspectPackage(*Linker, Errors));
		}
	}
	CountBytes(State);
}

void LoadObjects(benchmark::State& State)
{
	ProcessNewlyLoadedUObjects();
	int32 Number = 0;
	for (auto _ : State)
	{
		UPackage* const Package = CreatePackage(*FString::Printf(TEXT("/Benchmark/Package%d"), ++Number));
		if (const TUniquePtr<FLinkerLoad> Linker = Open(State, Package))
		{
			Linker->LoadAllObjects();
			Linker->TakeFingerprints();
		}
		State.PauseTiming();
		ForEachObjectWithPackage(Package, [](UObject* Object)
			{
				Object->ClearFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone));
				return true; });
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		State.ResumeTiming();
	}
	CountBytes(State);
}

BENCHMARK(ReadTables)->Name("PackageTables/Ours");
BENCHMARK(CopyBytes)->Name("PackageTables/Peer:memcpy");
BENCHMARK(Inspect)->Name("PackageInspect/Ours");
BENCHMARK(CopyBytes)->Name("PackageInspect/Peer:memcpy");
BENCHMARK(LoadObjects)->Name("PackageLoad/Ours");
BENCHMARK(CopyBytes)->Name("PackageLoad/Peer:memcpy");
}

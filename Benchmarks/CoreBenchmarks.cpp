#include "Containers/Array.h"
#include "Containers/Map.h"
#include "Containers/UnrealString.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <random>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace
{
constexpr int32 NumKeys = 10000;
constexpr int32 NumSorted = 20000;

/** Keys in no order, as ids and hashes are. */
const std::vector<int64>& GetNumbers()
{
	static const std::vector<int64> Numbers = []
	{
		std::mt19937_64 Random(1);
		std::vector<int64> Result(NumKeys);
		for (int64& Number : Result)
		{
			Number = static_cast<int64>(Random());
		}
		return Result;
	}();
	return Numbers;
}

/** Keys as assets have them: long, and different at their ends alone. */
const std::vector<std::u16string>& GetTexts()
{
	static const std::vector<std::u16string> Texts = []
	{
		std::vector<std::u16string> Result;
		for (const int64 Number : GetNumbers())
		{
			const std::string Narrow = "/Game/Maps/Asset_" + std::to_string(static_cast<uint64>(Number) % 1000000007);
			Result.emplace_back(Narrow.begin(), Narrow.end());
		}
		return Result;
	}();
	return Texts;
}

TArray<FString> MakeOurTexts()
{
	TArray<FString> Result;
	for (const std::u16string& Text : GetTexts())
	{
		Result.Add(FString(Text.c_str()));
	}
	return Result;
}

void InsertNumbers(benchmark::State& State)
{
	for (auto _ : State)
	{
		TMap<int64, int32> Map;
		for (const int64 Number : GetNumbers())
		{
			Map.Add(Number, 1);
		}
		benchmark::DoNotOptimize(Map.Num());
	}
}

void InsertNumbersInPeer(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::unordered_map<int64, int32> Map;
		for (const int64 Number : GetNumbers())
		{
			Map.insert_or_assign(Number, 1);
		}
		benchmark::DoNotOptimize(Map.size());
	}
}

void FindNumbers(benchmark::State& State)
{
	TMap<int64, int32> Map;
	for (const int64 Number : GetNumbers())
	{
		Map.Add(Number, 1);
	}
	for (auto _ : State)
	{
		int64 Found = 0;
		for (const int64 Number : GetNumbers())
		{
			Found += Map.Find(Number) != nullptr ? 1 : 0;
			Found += Map.Find(Number + 1) != nullptr ? 1 : 0;
		}
		benchmark::DoNotOptimize(Found);
	}
}

void FindNumbersInPeer(benchmark::State& State)
{
	std::unordered_map<int64, int32> Map;
	for (const int64 Number : GetNumbers())
	{
		Map.emplace(Number, 1);
	}
	for (auto _ : State)
	{
		int64 Found = 0;
		for (const int64 Number : GetNumbers())
		{
			Found += Map.find(Number) != Map.end() ? 1 : 0;
			Found += Map.find(Number + 1) != Map.end() ? 1 : 0;
		}
		benchmark::DoNotOptimize(Found);
	}
}

void InsertTexts(benchmark::State& State)
{
	const TArray<FString> Texts = MakeOurTexts();
	for (auto _ : State)
	{
		TMap<FString, int32> Map;
		for (const FString& Text : Texts)
		{
			Map.Add(Text, 1);
		}
		benchmark::DoNotOptimize(Map.Num());
	}
}

void InsertTextsInPeer(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::unordered_map<std::u16string, int32> Map;
		for (const std::u16string& Text : GetTexts())
		{
			Map.insert_or_assign(Text, 1);
		}
		benchmark::DoNotOptimize(Map.size());
	}
}

/** The peer sees case, ours does not: the difference is part of what is compared. */
void FindTexts(benchmark::State& State)
{
	const TArray<FString> Texts = MakeOurTexts();
	TMap<FString, int32> Map;
	for (const FString& Text : Texts)
	{
		Map.Add(Text, 1);
	}
	for (auto _ : State)
	{
		int64 Found = 0;
		for (const FString& Text : Texts)
		{
			Found += Map.Find(Text) != nullptr ? 1 : 0;
		}
		benchmark::DoNotOptimize(Found);
	}
}

void FindTextsInPeer(benchmark::State& State)
{
	std::unordered_map<std::u16string, int32> Map;
	for (const std::u16string& Text : GetTexts())
	{
		Map.emplace(Text, 1);
	}
	for (auto _ : State)
	{
		int64 Found = 0;
		for (const std::u16string& Text : GetTexts())
		{
			Found += Map.find(Text) != Map.end() ? 1 : 0;
		}
		benchmark::DoNotOptimize(Found);
	}
}

void PrintLines(benchmark::State& State)
{
	const FString Name = TEXT("BP_Door");
	int32 Line = 0;
	for (auto _ : State)
	{
		++Line;
		const int64 Number = static_cast<int64>(Line) * 1000;
		const FString Text = FString::Printf(TEXT("%s(%d): expected %s but found %lld of %.2f"), *Name, Line, TEXT("a pin"), Number, 0.25);
		benchmark::DoNotOptimize(*Text);
	}
}

/** A length first and then the text, as a string of the right size needs it. */
void PrintLinesInPeer(benchmark::State& State)
{
	const std::string Name = "BP_Door";
	constexpr const char* Format = "%s(%d): expected %s but found %lld of %.2f";
	int32 Line = 0;
	for (auto _ : State)
	{
		++Line;
		const long long Number = static_cast<long long>(Line) * 1000;
		const int32 Length = std::snprintf(nullptr, 0, Format, Name.c_str(), Line, "a pin", Number, 0.25);
		std::string Text(static_cast<SIZE_T>(Length), 0);
		std::snprintf(Text.data(), Text.size() + 1, Format, Name.c_str(), Line, "a pin", Number, 0.25);
		benchmark::DoNotOptimize(Text.data());
	}
}

void SortNumbers(benchmark::State& State)
{
	std::mt19937 Random(2);
	TArray<int32> Numbers;
	for (int32 Index = 0; Index < NumSorted; ++Index)
	{
		Numbers.Add(static_cast<int32>(Random()));
	}
	for (auto _ : State)
	{
		TArray<int32> Sorted = Numbers;
		Sorted.Sort();
		benchmark::DoNotOptimize(Sorted.GetData());
	}
}

void SortNumbersInPeer(benchmark::State& State)
{
	std::mt19937 Random(2);
	std::vector<int32> Numbers(NumSorted);
	for (int32& Number : Numbers)
	{
		Number = static_cast<int32>(Random());
	}
	for (auto _ : State)
	{
		std::vector<int32> Sorted = Numbers;
		std::sort(Sorted.begin(), Sorted.end());
		benchmark::DoNotOptimize(Sorted.data());
	}
}
}

BENCHMARK(InsertNumbers)->Name("MapInsertInt64/Ours");
BENCHMARK(InsertNumbersInPeer)->Name("MapInsertInt64/Peer:std::unordered_map");
BENCHMARK(FindNumbers)->Name("MapFindInt64/Ours");
BENCHMARK(FindNumbersInPeer)->Name("MapFindInt64/Peer:std::unordered_map");
BENCHMARK(InsertTexts)->Name("MapInsertString/Ours");
BENCHMARK(InsertTextsInPeer)->Name("MapInsertString/Peer:std::unordered_map");
BENCHMARK(FindTexts)->Name("MapFindString/Ours");
BENCHMARK(FindTextsInPeer)->Name("MapFindString/Peer:std::unordered_map");
BENCHMARK(PrintLines)->Name("Printf/Ours");
BENCHMARK(PrintLinesInPeer)->Name("Printf/Peer:snprintf");
BENCHMARK(SortNumbers)->Name("ArraySort/Ours");
BENCHMARK(SortNumbersInPeer)->Name("ArraySort/Peer:std::sort");

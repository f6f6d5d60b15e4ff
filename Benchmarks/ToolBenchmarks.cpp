#include "Tools/VexelAssetNameIndex.h"
#include "Tools/VexelSourceDeclarations.h"
#include "VexelFuzzySearch.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace
{
constexpr int32 NumAssets = 100'000;
constexpr double MinScore = FVexelAssetNameIndex::MinScore;

/** Names like those of a large project. */
const std::vector<std::string>& GetNames()
{
	static const std::vector<std::string> Names = []
	{
		const char* const Kinds[] = {"BP", "SM", "T", "M", "MI", "SK", "A", "WBP", "DA", "S"};
		const char* const Things[] = {"Door", "Enemy", "Lighthouse", "Player", "Rock", "Tree", "Wall", "Window", "Boat", "Lamp", "Bridge", "Guard"};
		const char* const Looks[] = {"Old", "Broken", "Red", "Small", "Wet", "Burnt", "Night", "Stone", "Wooden"};
		std::vector<std::string> Made;
		for (int32 Index = 0; Index < NumAssets; ++Index)
		{
			Made.push_back(std::string(Kinds[Index % 10]) + "_" + Things[Index / 10 % 12] + Looks[Index / 120 % 9] + "_" + std::to_string(Index));
		}
		return Made;
	}();
	return Names;
}

FTopLevelAssetPath MakePath(const std::string& Name)
{
	const FString Text(Name.c_str());
	return FTopLevelAssetPath(FName(*(TEXT("/Game/Content/") + Text)), FName(*Text));
}

const FVexelAssetNameIndex& GetIndex()
{
	static const FVexelAssetNameIndex Index = []
	{
		FVexelAssetNameIndex Made;
		for (const std::string& Name : GetNames())
		{
			Made.Add(MakePath(Name));
		}
		return Made;
	}();
	return Index;
}

constexpr const char* Queries[] = {"BP_DoorOld_42", "lighthous wooden", "gaurd", "bridge night 9", "zeppelin"};

void SearchIndex(benchmark::State& State)
{
	const FVexelAssetNameIndex& Index = GetIndex();
	size_t NumFound = 0;
	for (auto _ : State)
	{
		NumFound = 0;
		for (const char* const Query : Queries)
		{
			NumFound += size_t(Index.Find(FString(Query)).Num());
		}
	}
	State.counters["found"] = double(NumFound);
}

/** Every name rated by every word, as the search would do it without the index. */
void RateEveryName(benchmark::State& State)
{
	std::vector<FString> Names;
	for (const std::string& Name : GetNames())
	{
		Names.push_back(FString(Name.c_str()));
	}
	size_t NumFound = 0;
	for (auto _ : State)
	{
		NumFound = 0;
		for (const char* const Query : Queries)
		{
			TArray<FString> Words;
			FString(Query).Replace(TEXT("_"), TEXT(" ")).ParseIntoArray(Words, TEXT(" "));
			std::vector<std::pair<FVexelFuzzySearch::FScorer, double>> Scorers;
			const double NumLetters = FString(Query).Len() - Words.Num() + 1;
			for (const FString& Word : Words)
			{
				Scorers.emplace_back(FVexelFuzzySearch::ScorerPartialRatio(Word), Word.Len() / NumLetters);
			}
			std::vector<std::pair<double, const FString*>> Found;
			for (const FString& Name : Names)
			{
				double Score = 0.0;
				for (const auto& [Scorer, Weight] : Scorers)
				{
					Score += Scorer(Name) * Weight;
				}
				if (Score >= MinScore)
				{
					Found.emplace_back(Score, &Name);
				}
			}
			std::sort(Found.begin(), Found.end(), [](const auto& A, const auto& B)
				{ return A.first > B.first; });
			NumFound += Found.size();
		}
	}
	State.counters["found"] = double(NumFound);
}

/** A file of the size of a large engine header. */
FString MakeSource()
{
	FString Text;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		Text += FString::Printf(TEXT("/** A class. */\nUCLASS()\nclass GAME_API AThing%d : public AActor\n{\n\tGENERATED_BODY()\n\npublic:\n\tUPROPERTY()\n\t")
									TEXT("int32 Value = 0;\n\n\tvoid Open(const FString& Text) const { if (Value) { Close(\"}\"); } }\n\tvoid Close();\n};\n\n"),
			Index);
	}
	return Text;
}

void ReadDeclarations(benchmark::State& State)
{
	const FString Text = MakeSource();
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(ReadVexelSourceDeclarations(Text));
	}
	State.SetBytesProcessed(State.iterations() * Text.Len());
}

/** The least that looks at every character of a file. */
void CountLines(benchmark::State& State)
{
	const FString Text = MakeSource();
	for (auto _ : State)
	{
		int32 NumLines = 0;
		for (const TCHAR Character : Text)
		{
			NumLines += Character == TEXT('\n') ? 1 : 0;
			benchmark::DoNotOptimize(NumLines);
		}
	}
	State.SetBytesProcessed(State.iterations() * Text.Len());
}
}

BENCHMARK(SearchIndex)->Name("AssetSearch.100000/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(RateEveryName)->Name("AssetSearch.100000/Peer:plain_loop")->Unit(benchmark::kMillisecond);
BENCHMARK(ReadDeclarations)->Name("SourceDeclarations/Ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(CountLines)->Name("SourceDeclarations/Peer:one_pass")->Unit(benchmark::kMicrosecond);

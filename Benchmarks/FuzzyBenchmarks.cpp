#include "Misc/Char.h"
#include "VexelFuzzySearch.h"

#include <benchmark/benchmark.h>

namespace
{
constexpr int32 NumCandidates = 100'000;

/** Names as long and as much alike as those of a project's nodes. */
const TArray<FString>& GetCandidates()
{
	static const TArray<FString> Candidates = []
	{
		const TCHAR* const Verbs[] = {TEXT("Get"), TEXT("Set"), TEXT("Add"), TEXT("Remove"), TEXT("Is"), TEXT("On")};
		const TCHAR* const Nouns[] = {TEXT("Actor"), TEXT("Relative Location"), TEXT("Component"), TEXT("World Rotation"), TEXT("Timer By Handle")};
		TArray<FString> Made;
		for (int32 Index = 0; Index < NumCandidates; ++Index)
		{
			Made.Add(FString::Printf(TEXT("%s %s %d"), Verbs[Index % 6], Nouns[Index % 5], Index));
		}
		return Made;
	}();
	return Candidates;
}

void RateAll(benchmark::State& State, const FVexelFuzzySearch::FScorer& Score)
{
	for (auto _ : State)
	{
		double Best = 0.0;
		for (const FString& Candidate : GetCandidates())
		{
			Best = FMath::Max(Best, Score(Candidate));
		}
		benchmark::DoNotOptimize(Best);
	}
	State.SetItemsProcessed(int64_t(State.iterations()) * NumCandidates);
}

void PartialRatio(benchmark::State& State)
{
	RateAll(State, FVexelFuzzySearch::ScorerPartialRatio(TEXT("relativ lokation")));
}

/** Longer than most names, so that the candidate is the text whose stretch is looked for in the query as often as not. */
void PartialRatioOfALongQuery(benchmark::State& State)
{
	RateAll(State, FVexelFuzzySearch::ScorerPartialRatio(TEXT("get relativ lokation of a scene komponent")));
}

void PartialTokenSet(benchmark::State& State)
{
	RateAll(State, FVexelFuzzySearch::ScorerPartialTokenSet(TEXT("lokation relativ")));
}

/** What every search that ignores case has to do at the least: look at each character and fold it. */
void OnePass(benchmark::State& State)
{
	RateAll(State, [](FStringView Candidate)
		{
			uint32 Hash = 0;
			for (const TCHAR Character : Candidate)
			{
				Hash = Hash * 31 + FChar::ToLower(Character);
			}
			return double(Hash); });
}

BENCHMARK(PartialRatio)->Name("PartialRatio/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(OnePass)->Name("PartialRatio/Peer:one_pass")->Unit(benchmark::kMillisecond);
BENCHMARK(PartialRatioOfALongQuery)->Name("PartialRatioLongQuery/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(OnePass)->Name("PartialRatioLongQuery/Peer:one_pass")->Unit(benchmark::kMillisecond);
BENCHMARK(PartialTokenSet)->Name("PartialTokenSet/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(OnePass)->Name("PartialTokenSet/Peer:one_pass")->Unit(benchmark::kMillisecond);
}

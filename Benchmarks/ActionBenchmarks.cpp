#include "BenchmarkEditor.h"
#include "BlueprintActionDatabase.h"
#include "BlueprintFieldNodeSpawner.h"
#include "UObject/ScriptHeaderLoader.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

#include <benchmark/benchmark.h>
#include <unordered_map>

namespace
{
using FActionList = FBlueprintActionDatabase::FActionList;

/** Declares classes until graphs may call this many functions more than the engine's own. */
bool DeclareFunctions(int32 NumFunctions)
{
	static int32 NumDeclared = 0;
	constexpr int32 FunctionsPerClass = 40;
	TArray<UE::CoreUObject::FScriptHeaderSource> Headers;
	while (NumDeclared < NumFunctions)
	{
		const std::string Name = "Bench" + std::to_string(NumDeclared);
		std::string Text = "// Package: /Script/Bench\n#pragma once\n#include \"CoreMinimal.h\"\n#include \"" + Name + ".generated.h\"\n" +
			"UCLASS(BlueprintType)\nclass U" + Name + " : public UObject\n{\n\tGENERATED_BODY()\npublic:\n";
		for (int32 Index = 0; Index < FunctionsPerClass; ++Index)
		{
			Text += "\tUFUNCTION(BlueprintCallable, Category = \"Bench\")\n\tint32 Work" + std::to_string(Index) + "(int32 Amount, const FString& Reason);\n";
		}
		Text += "};\n";
		UE::CoreUObject::FScriptHeaderSource& Header = Headers.AddDefaulted_GetRef();
		Header.Path = UTF8_TO_TCHAR((Name + ".h").c_str());
		Header.Text.Append(reinterpret_cast<const uint8*>(Text.data()), static_cast<int32>(Text.size()));
		NumDeclared += FunctionsPerClass;
	}
	return UE::CoreUObject::LoadScriptHeaderSources(Headers).Errors.IsEmpty();
}

bool Prepare(benchmark::State& State)
{
	const bool bReady = FBenchmarkEditor::Get().IsRunning() && DeclareFunctions(static_cast<int32>(State.range(0)));
	if (!bReady)
	{
		State.SkipWithError("the editor did not start");
	}
	return bReady;
}

int32 CountActions()
{
	int32 Count = 0;
	for (const TPair<FObjectKey, FActionList>& Entry : FBlueprintActionDatabase::Get().GetAllActions())
	{
		Count += Entry.Value.Num();
	}
	return Count;
}

void BuildDatabase(benchmark::State& State)
{
	if (!Prepare(State))
	{
		return;
	}
	for (auto _ : State)
	{
		FBlueprintActionDatabase::Get().RefreshAll();
		State.PauseTiming();
		CollectGarbage(RF_Standalone);
		State.ResumeTiming();
	}
	State.counters["actions"] = CountActions();
}

/** The peer makes an object for each of as many actions, and keeps it. */
void MakeAsManyObjects(benchmark::State& State)
{
	if (!Prepare(State))
	{
		return;
	}
	const int32 Count = CountActions();
	for (auto _ : State)
	{
		TArray<TObjectPtr<UBlueprintNodeSpawner>> Made;
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Made.Add(NewObject<UBlueprintNodeSpawner>());
		}
		benchmark::DoNotOptimize(Made.GetData());
		State.PauseTiming();
		CollectGarbage(RF_Standalone);
		State.ResumeTiming();
	}
	State.counters["actions"] = Count;
}

/** The keys of ten thousand actions, all over the database. */
TArray<FObjectKey> ChooseKeys()
{
	TArray<FObjectKey> All;
	FBlueprintActionDatabase::Get().GetAllActions().GetKeys(All);
	TArray<FObjectKey> Chosen;
	for (int32 Index = 0; Index < 10000; ++Index)
	{
		Chosen.Add(All[static_cast<int32>(static_cast<int64>(Index) * 7919 % All.Num())]);
	}
	return Chosen;
}

void ResolveActions(benchmark::State& State)
{
	if (!Prepare(State))
	{
		return;
	}
	FBlueprintActionDatabase::Get().RefreshAll();
	const TArray<FObjectKey> Keys = ChooseKeys();
	for (auto _ : State)
	{
		const FBlueprintActionDatabase::FActionRegistry& Actions = FBlueprintActionDatabase::Get().GetAllActions();
		for (const FObjectKey& Key : Keys)
		{
			benchmark::DoNotOptimize(Actions.FindChecked(Key)[0]->NodeClass.Get());
		}
	}
	State.SetItemsProcessed(State.iterations() * Keys.Num());
	State.counters["actions"] = CountActions();
}

void LookUpKeys(benchmark::State& State)
{
	if (!Prepare(State))
	{
		return;
	}
	std::unordered_map<const UObject*, int> Map;
	std::vector<const UObject*> Keys;
	for (const FObjectKey& Key : ChooseKeys())
	{
		Keys.push_back(Key.ResolveObjectPtr());
		Map[Keys.back()] = 1;
	}
	for (auto _ : State)
	{
		for (const UObject* const Key : Keys)
		{
			benchmark::DoNotOptimize(Map.find(Key)->second);
		}
	}
	State.SetItemsProcessed(State.iterations() * static_cast<int64_t>(Keys.size()));
}

/** What the first search costs: a template and its texts for each action. */
void PrimeTemplates(benchmark::State& State)
{
	if (!Prepare(State))
	{
		return;
	}
	int32 NumPrimed = 0;
	for (auto _ : State)
	{
		State.PauseTiming();
		FBlueprintActionDatabase::Get().RefreshAll();
		CollectGarbage(RF_Standalone);
		NumPrimed = 0;
		State.ResumeTiming();
		for (const TPair<FObjectKey, FActionList>& Entry : FBlueprintActionDatabase::Get().GetAllActions())
		{
			for (UBlueprintNodeSpawner* const Action : Entry.Value)
			{
				benchmark::DoNotOptimize(&Action->PrimeDefaultUiSpec());
				++NumPrimed;
			}
		}
	}
	State.counters["actions"] = NumPrimed;
	State.SetItemsProcessed(State.iterations() * NumPrimed);
}
}

// Declared functions stay: all of the first size run before any of the second.
#define ACTION_BENCHMARKS(NumDeclared) \
	BENCHMARK(BuildDatabase)->Name("ActionDatabase.Build/Ours")->Arg(NumDeclared)->Unit(benchmark::kMillisecond); \
	BENCHMARK(MakeAsManyObjects)->Name("ActionDatabase.Build/Peer:NewObject")->Arg(NumDeclared)->Unit(benchmark::kMillisecond); \
	BENCHMARK(ResolveActions)->Name("ActionDatabase.Resolve/Ours")->Arg(NumDeclared)->Unit(benchmark::kMicrosecond); \
	BENCHMARK(LookUpKeys)->Name("ActionDatabase.Resolve/Peer:std_unordered_map")->Arg(NumDeclared)->Unit(benchmark::kMicrosecond); \
	BENCHMARK(PrimeTemplates)->Name("ActionDatabase.Prime/Ours")->Arg(NumDeclared)->Unit(benchmark::kMillisecond)

ACTION_BENCHMARKS(0);
ACTION_BENCHMARKS(60000);

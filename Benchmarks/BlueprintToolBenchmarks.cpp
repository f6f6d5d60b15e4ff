#include "BenchmarkEditor.h"
#include "BranchingGraph.h"
#include "Blueprint/VexelBlueprintManipulator.h"
#include "Blueprint/VexelBlueprintMapping.h"
#include "BlueprintActionDatabase.h"
#include "BlueprintNodeSpawner.h"
#include "Containers/StringConv.h"
#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "GraphFormatter/GraphFormatter.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumContext.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <malloc.h>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace
{
bool Start(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor does not start");
		return false;
	}
	return true;
}

/** Ids of ten thousand actions, spread over the database. */
const std::vector<std::string>& GetTypeIds()
{
	static const std::vector<std::string> Ids = []
	{
		FVexelBlueprintMapping Mapping;
		std::vector<std::string> All;
		for (const auto& [Key, Actions] : FBlueprintActionDatabase::Get().GetAllActions())
		{
			for (const UBlueprintNodeSpawner* const Action : Actions)
			{
				const FString Id = Mapping.MakeNodeTypeReference(*Action->GetTemplateNode()).ToString();
				if (!Id.IsEmpty() && !Id.StartsWith(TEXT("var.")))
				{
					All.push_back(TCHAR_TO_UTF8(*Id));
				}
			}
		}
		constexpr size_t NumIds = 10'000;
		std::vector<std::string> Sample;
		for (size_t Index = 0; Index < NumIds; ++Index)
		{
			Sample.push_back(All[Index * All.size() / NumIds]);
		}
		return Sample;
	}();
	return Ids;
}

void ResolveTypes(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const FBranchingGraph Made(0);
	TArray<TVexelNodeTypeId> Ids;
	for (const std::string& Id : GetTypeIds())
	{
		Ids.Emplace(FString(UTF8_TO_TCHAR(Id.c_str())));
	}
	for (auto _ : State)
	{
		for (const TVexelNodeTypeId& Id : Ids)
		{
			UBlueprintNodeSpawner* Spawner = nullptr;
			benchmark::DoNotOptimize(Made.Mapping->ResolveNodeTypeForGraph(Id, *Made.Graph, Spawner));
		}
	}
	State.SetItemsProcessed(State.iterations() * Ids.Num());
}

void ResolveTypesPeer(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	std::unordered_map<std::string, int> Map;
	for (const std::string& Id : GetTypeIds())
	{
		Map.emplace(Id, 0);
	}
	for (auto _ : State)
	{
		for (const std::string& Id : GetTypeIds())
		{
			benchmark::DoNotOptimize(Map.find(Id));
		}
	}
	State.SetItemsProcessed(State.iterations() * static_cast<int64_t>(GetTypeIds().size()));
}

void Layout(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	FBranchingGraph Made(static_cast<int32>(State.range(0)));
	const TArray<UEdGraphNode*> Nodes = Made.GetNodes();
	for (auto _ : State)
	{
		GraphFormatter::FormatSelectedNodes(*Made.Graph, Nodes, 200.0, 200.0);
	}
	State.SetItemsProcessed(State.iterations() * Nodes.Num());
}

/** The same graph, by the program that draws graphs everywhere; its start is part of it. */
void LayoutPeer(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	FBranchingGraph Made(static_cast<int32>(State.range(0)));
	std::string Text = "digraph G { rankdir=LR; node [shape=box];\n";
	for (const UEdGraphNode* const Node : Made.Graph->Nodes)
	{
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			for (const UEdGraphPin* const To : Pin->LinkedTo)
			{
				if (Pin->Direction == EGPD_Output)
				{
					Text += std::string(TCHAR_TO_UTF8(*Node->GetName())) + " -> " + TCHAR_TO_UTF8(*To->GetOwningNode()->GetName()) + ";\n";
				}
			}
		}
	}
	Text += "}\n";
	for (auto _ : State)
	{
		FILE* const Dot = popen("dot -Tplain > /dev/null 2>&1", "w");
		fwrite(Text.data(), 1, Text.size(), Dot);
		if (pclose(Dot) != 0)
		{
			State.SkipWithError("dot is not installed or failed");
			return;
		}
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

void Export(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	FBranchingGraph Made(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		const FLumContext Context(Made.Mapping);
		benchmark::DoNotOptimize(MakeShared<FLumBlueprintCompound>(*Made.Blueprint)->JsonExportObject(Context));
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

/** Names every node in a new mapping, then finds each by its name. Counts what the mapping keeps. */
void Map(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	FBranchingGraph Made(static_cast<int32>(State.range(0)));
	TArray<TVexelNodeId> Ids;
	size_t NumBytes = 0;
	for (auto _ : State)
	{
		Ids.Reset();
		const size_t Before = mallinfo2().uordblks;
		FVexelBlueprintMapping Mapping;
		for (const UEdGraphNode* const Node : Made.Graph->Nodes)
		{
			Ids.Add(Mapping.MakeNodeReference(*Node, true));
		}
		for (const TVexelNodeId& Id : Ids)
		{
			UEdGraphNode* Node = nullptr;
			benchmark::DoNotOptimize(Mapping.ResolveNodeInGraph(Id, *Made.Graph, Node));
		}
		NumBytes = mallinfo2().uordblks - Before;
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
	State.counters["bytes_a_node"] = static_cast<double>(NumBytes) / State.range(0);
}

void SpawnAndLink(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const TVexelGraphId Graph(TEXT("EventGraph"));
	const TVexelNodeTypeId Print(TEXT("call.KismetSystemLibrary.PrintString"));
	for (auto _ : State)
	{
		State.PauseTiming();
		auto Made = std::make_unique<FBranchingGraph>(0);
		State.ResumeTiming();
		const FVexelBlueprintManipulator Manipulator(*Made->Blueprint, *Made->Mapping);
		const FVexelBlueprintManipulator::FBatch Batch(Manipulator);
		TArray<TVexelNodeId> Nodes;
		for (int64_t Index = 0; Index < State.range(0); ++Index)
		{
			Nodes.Add(Manipulator.SpawnNode(Graph, Print, {}).GetValue());
		}
		for (int32 Index = 1; Index < Nodes.Num(); ++Index)
		{
			benchmark::DoNotOptimize(Manipulator.EditConnection(
				Graph, Nodes[Index - 1], TVexelPinId(TEXT("then")), Nodes[Index], TVexelPinId(TEXT("execute")), true));
		}
		State.PauseTiming();
		Made.reset();
		State.ResumeTiming();
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

BENCHMARK(ResolveTypes)->Name("NodeTypes/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(ResolveTypesPeer)->Name("NodeTypes/Peer:unordered_map")->Unit(benchmark::kMillisecond);
BENCHMARK(Layout)->Name("Layout/Ours")->Arg(2'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(LayoutPeer)->Name("Layout/Peer:dot")->Arg(2'000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK(Layout)->Name("LayoutGrowth")->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Export)->Name("BlueprintExport")->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Map)->Name("NodeNames")->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(SpawnAndLink)->Name("SpawnAndLink")->Arg(100)->Arg(1'000)->Unit(benchmark::kMillisecond)->Iterations(1);
}

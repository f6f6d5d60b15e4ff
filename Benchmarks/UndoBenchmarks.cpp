#include "BenchmarkEditor.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "ScopedTransaction.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>
#include <cstring>
#include <vector>

namespace
{
/** A Blueprint whose event graph is one chain of calls, and the entry of an edit that moved and relinked all of them. */
class FEditedGraph
{
public:
	explicit FEditedGraph(int32 NumNodes)
	{
		const FString Name = FString::Printf(TEXT("BP_Bench%d"), ++Number);
		Blueprint = FKismetEditorUtilities::CreateBlueprint(
			AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		UEdGraph* const Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		const UFunction* const Function =
			FindObject<UClass>(nullptr, TEXT("/Script/Engine.KismetSystemLibrary"))->FindFunctionByName(TEXT("PrintString"));
		for (int32 Index = 0; Index < NumNodes; ++Index)
		{
			FGraphNodeCreator<UK2Node_CallFunction> Creator(*Graph);
			UK2Node_CallFunction* const Node = Creator.CreateNode(false);
			Node->SetFromFunction(Function);
			Creator.Finalize();
			if (Nodes.Num() > 0)
			{
				Nodes.Last()->GetThenPin()->MakeLinkTo(Node->GetExecPin());
			}
			Nodes.Add(Node);
		}
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
		const FScopedTransaction Transaction(FText::FromString(TEXT("Edit")));
		for (int32 Index = 0; Index < NumNodes; ++Index)
		{
			Nodes[Index]->Modify();
			Nodes[Index]->NodePosX = 16 * Index;
			Nodes[Index]->GetThenPin()->BreakAllPinLinks();
		}
	}

	~FEditedGraph()
	{
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	}

	static SIZE_T GetBytes() { return GEditor->Trans->GetUndoSize(); }

private:
	static inline int32 Number = 0;

	UBlueprint* Blueprint = nullptr;
	TArray<UK2Node_CallFunction*> Nodes;
};

void UndoAndRedo(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor did not start");
		return;
	}
	const FEditedGraph Graph(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		if (!GEditor->UndoTransaction() || !GEditor->RedoTransaction())
		{
			State.SkipWithError("nothing to undo");
			return;
		}
	}
	State.SetItemsProcessed(State.iterations() * State.range(0) * 2);
	State.counters["bytes"] = static_cast<double>(FEditedGraph::GetBytes());
}

/** The peer moves the same bytes as an undo and a redo do, out of the objects and into them, and does nothing else. */
void CopyOfTheSameBytes(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor did not start");
		return;
	}
	size_t Size = 0;
	{
		const FEditedGraph Graph(static_cast<int32>(State.range(0)));
		Size = FEditedGraph::GetBytes();
	}
	std::vector<char> Objects(Size, 1);
	for (auto _ : State)
	{
		for (int32 Direction = 0; Direction < 2; ++Direction)
		{
			std::vector<char> Captured(Size);
			std::memcpy(Captured.data(), Objects.data(), Size);
			benchmark::DoNotOptimize(Captured.data());
			std::memcpy(Objects.data(), Captured.data(), Size);
			benchmark::DoNotOptimize(Objects.data());
		}
	}
	State.SetItemsProcessed(State.iterations() * State.range(0) * 2);
}
}

BENCHMARK(UndoAndRedo)->Name("Undo/Ours")->Arg(1000)->Arg(4000)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyOfTheSameBytes)->Name("Undo/Peer:memcpy")->Arg(1000)->Arg(4000)->Unit(benchmark::kMillisecond);

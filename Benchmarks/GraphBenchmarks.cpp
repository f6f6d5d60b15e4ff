#include "BenchmarkEditor.h"
#include "Containers/StringConv.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "EdGraphUtilities.h"
#include "Editor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/CompilerResultsLog.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

namespace
{
/** A Blueprint whose event graph runs through calls, each second one with a text that another node makes of a number. */
class FLongGraph
{
public:
	explicit FLongGraph(int32 NumNodes, bool bLinked = true)
	{
		const FString Name = FString::Printf(TEXT("BP_Graph%d"), ++Number);
		Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		FGraphNodeCreator<UK2Node_CustomEvent> Creator(*Graph);
		UK2Node_CustomEvent* const Event = Creator.CreateNode(false);
		Event->CustomFunctionName = TEXT("Run");
		Creator.Finalize();
		Outputs.Add(Event->GetThenPin());
		for (int32 Index = 0; Index < NumNodes; Index += 2)
		{
			UK2Node_CallFunction* const Print = Call(TEXT("KismetSystemLibrary"), TEXT("PrintString"));
			UK2Node_CallFunction* const Convert = Call(TEXT("KismetStringLibrary"), TEXT("Conv_IntToString"));
			Inputs.Add(Print->GetExecPin());
			Outputs.Add(Convert->GetReturnValuePin());
			Inputs.Add(Print->FindPinChecked(TEXT("InString")));
			Outputs.Add(Print->GetThenPin());
		}
		// The first input is run by the event, and each call by the one before it.
		for (int32 Index = 0; bLinked && Index < Inputs.Num(); ++Index)
		{
			Outputs[Index]->MakeLinkTo(Inputs[Index]);
		}
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
	}

	~FLongGraph()
	{
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	}

	FString Copy() const
	{
		TSet<UObject*> Nodes;
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			Nodes.Add(Node);
		}
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Nodes, Text);
		return Text;
	}

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	/** Pins to be linked, one to one. */
	TArray<UEdGraphPin*> Outputs;
	TArray<UEdGraphPin*> Inputs;

private:
	UK2Node_CallFunction* Call(const TCHAR* Library, const TCHAR* Function)
	{
		const FString Path = FString(TEXT("/Script/Engine.")) + Library;
		FGraphNodeCreator<UK2Node_CallFunction> Creator(*Graph);
		UK2Node_CallFunction* const Node = Creator.CreateNode(false);
		Node->SetFromFunction(FindObject<UClass>(nullptr, *Path)->FindFunctionByName(Function));
		Creator.Finalize();
		return Node;
	}

	static inline int32 Number = 0;
};

bool IsReady(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor did not start");
		return false;
	}
	return true;
}

void CountItems(benchmark::State& State)
{
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

/** What the peers go over: a graph's nodes and pins as plain values. */
struct FPlainPin
{
	std::string Name;
	std::string Category;
	std::string Default;
	std::vector<FPlainPin*> Links;
};

struct FPlainNode
{
	std::string Class;
	std::vector<std::unique_ptr<FPlainPin>> Pins;
};

std::vector<FPlainNode> MakePlainGraph(int64_t NumNodes)
{
	const FLongGraph Source(static_cast<int32>(NumNodes));
	std::vector<FPlainNode> Nodes;
	TMap<const UEdGraphPin*, FPlainPin*> Copies;
	for (const UEdGraphNode* const Node : Source.Graph->Nodes)
	{
		FPlainNode& Plain = Nodes.emplace_back();
		Plain.Class = TCHAR_TO_UTF8(*Node->GetClass()->GetPathName());
		for (const UEdGraphPin* const Pin : Node->Pins)
		{
			Plain.Pins.push_back(std::make_unique<FPlainPin>());
			FPlainPin& Copy = *Plain.Pins.back();
			Copy.Name = TCHAR_TO_UTF8(*Pin->PinName.ToString());
			Copy.Category = TCHAR_TO_UTF8(*Pin->PinType.PinCategory.ToString());
			Copy.Default = TCHAR_TO_UTF8(*Pin->DefaultValue);
			Copies.Add(Pin, &Copy);
		}
	}
	for (const TPair<const UEdGraphPin*, FPlainPin*>& Pair : Copies)
	{
		for (const UEdGraphPin* const Linked : Pair.Key->LinkedTo)
		{
			Pair.Value->Links.push_back(Copies[Linked]);
		}
	}
	return Nodes;
}

void CopyNodes(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FLongGraph Source(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(Source.Copy().Len());
	}
	CountItems(State);
}

/** The same characters of the same graph, put one after the other. */
void WriteText(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FLongGraph Source(static_cast<int32>(State.range(0)));
	const FString Text = Source.Copy();
	for (auto _ : State)
	{
		FString Written;
		for (const TCHAR Character : Text)
		{
			Written.AppendChar(Character);
		}
		benchmark::DoNotOptimize(Written.Len());
	}
	CountItems(State);
}

void PasteNodes(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FString Text = FLongGraph(static_cast<int32>(State.range(0))).Copy();
	for (auto _ : State)
	{
		State.PauseTiming();
		auto Target = std::make_unique<FLongGraph>(0);
		State.ResumeTiming();
		const FNodeTextImportResult Result = FEdGraphUtilities::ImportNodesFromTextWithResult(Target->Graph, Text);
		TSet<UEdGraphNode*> Pasted;
		for (UEdGraphNode* const Node : Result.Nodes)
		{
			Pasted.Add(Node);
		}
		FEdGraphUtilities::PostProcessPastedNodes(Pasted);
		State.PauseTiming();
		if (Pasted.Num() < State.range(0))
		{
			State.SkipWithError("nodes are missing");
		}
		Target.reset();
		State.ResumeTiming();
	}
	CountItems(State);
}

/** The same text, read once and cut at its lines, commas and equal signs. */
void CutText(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FString Text = FLongGraph(static_cast<int32>(State.range(0))).Copy();
	for (auto _ : State)
	{
		std::vector<std::u16string> Pieces;
		std::u16string Piece;
		for (const TCHAR Character : Text)
		{
			if (Character == TEXT('\n') || Character == TEXT(',') || Character == TEXT('='))
			{
				Pieces.push_back(std::move(Piece));
				Piece.clear();
				continue;
			}
			Piece += Character;
		}
		benchmark::DoNotOptimize(Pieces.data());
	}
	CountItems(State);
}

void ReconstructNodes(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FLongGraph Source(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		for (UEdGraphNode* const Node : Source.Graph->Nodes)
		{
			Node->ReconstructNode();
		}
		State.PauseTiming();
		CollectGarbage(RF_Standalone);
		State.ResumeTiming();
	}
	CountItems(State);
}

/** The same pins, made anew with their links moved to them. */
void RemakePins(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	std::vector<FPlainNode> Nodes = MakePlainGraph(State.range(0));
	for (auto _ : State)
	{
		for (FPlainNode& Node : Nodes)
		{
			for (std::unique_ptr<FPlainPin>& Pin : Node.Pins)
			{
				auto Made = std::make_unique<FPlainPin>(*Pin);
				for (FPlainPin* const Linked : Made->Links)
				{
					std::replace(Linked->Links.begin(), Linked->Links.end(), Pin.get(), Made.get());
				}
				Pin = std::move(Made);
			}
		}
		benchmark::DoNotOptimize(Nodes.data());
	}
	CountItems(State);
}

void CompileGraph(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FLongGraph Source(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		FCompilerResultsLog Log;
		FKismetEditorUtilities::CompileBlueprint(Source.Blueprint, EBlueprintCompileOptions::None, &Log);
		if (Log.NumErrors > 0)
		{
			State.SkipWithError("the graph does not compile");
			return;
		}
	}
	CountItems(State);
}

/** The same nodes, pins and links, each looked at once. */
void VisitGraph(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const std::vector<FPlainNode> Nodes = MakePlainGraph(State.range(0));
	for (auto _ : State)
	{
		size_t Mismatches = 0;
		for (const FPlainNode& Node : Nodes)
		{
			for (const std::unique_ptr<FPlainPin>& Pin : Node.Pins)
			{
				Mismatches += Pin->Default.size() > 256;
				for (const FPlainPin* const Linked : Pin->Links)
				{
					Mismatches += Linked->Category != Pin->Category;
				}
			}
		}
		benchmark::DoNotOptimize(Mismatches);
	}
	CountItems(State);
}

void ConnectPins(benchmark::State& State)
{
	if (!IsReady(State))
	{
		return;
	}
	const FLongGraph Source(static_cast<int32>(State.range(0)), false);
	const UEdGraphSchema* const Schema = Source.Graph->GetSchema();
	for (auto _ : State)
	{
		for (int32 Index = 0; Index < Source.Inputs.Num(); ++Index)
		{
			if (!Schema->TryCreateConnection(Source.Outputs[Index], Source.Inputs[Index]))
			{
				State.SkipWithError("a link was refused");
				return;
			}
		}
		State.PauseTiming();
		for (UEdGraphPin* const Input : Source.Inputs)
		{
			Input->BreakAllPinLinks();
		}
		State.ResumeTiming();
	}
	CountItems(State);
}

/** The same links between plain pins, after a look at their kinds. */
void ConnectPlainPins(benchmark::State& State)
{
	std::vector<std::unique_ptr<FPlainPin>> Pins;
	for (int64_t Index = 0; Index < 2 * State.range(0); ++Index)
	{
		Pins.push_back(std::make_unique<FPlainPin>(FPlainPin{"Pin", "exec", "", {}}));
	}
	for (auto _ : State)
	{
		for (size_t Index = 0; Index < Pins.size(); Index += 2)
		{
			FPlainPin& Output = *Pins[Index];
			FPlainPin& Input = *Pins[Index + 1];
			if (Output.Category == Input.Category && Output.Links.empty())
			{
				Output.Links.push_back(&Input);
				Input.Links.push_back(&Output);
			}
		}
		State.PauseTiming();
		for (const std::unique_ptr<FPlainPin>& Pin : Pins)
		{
			Pin->Links = {};
		}
		State.ResumeTiming();
	}
	CountItems(State);
}

/** Two sizes show whether the time grows with the graph alone. */
void AtBothSizes(benchmark::internal::Benchmark* Benchmark)
{
	Benchmark->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
}
}

BENCHMARK(CopyNodes)->Name("GraphCopy/Ours")->Apply(AtBothSizes);
BENCHMARK(WriteText)->Name("GraphCopy/Peer:append")->Apply(AtBothSizes);
BENCHMARK(PasteNodes)->Name("GraphPaste/Ours")->Apply(AtBothSizes);
BENCHMARK(CutText)->Name("GraphPaste/Peer:split")->Apply(AtBothSizes);
BENCHMARK(ReconstructNodes)->Name("GraphReconstruct/Ours")->Apply(AtBothSizes);
BENCHMARK(RemakePins)->Name("GraphReconstruct/Peer:loop")->Apply(AtBothSizes);
BENCHMARK(CompileGraph)->Name("GraphCompile/Ours")->Apply(AtBothSizes);
BENCHMARK(VisitGraph)->Name("GraphCompile/Peer:loop")->Apply(AtBothSizes);
BENCHMARK(ConnectPins)->Name("GraphConnect/Ours")->Apply(AtBothSizes);
BENCHMARK(ConnectPlainPins)->Name("GraphConnect/Peer:loop")->Apply(AtBothSizes);

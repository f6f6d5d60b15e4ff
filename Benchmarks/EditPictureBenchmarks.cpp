#include "BenchmarkEditor.h"
#include "BlueprintDiff.h"
#include "Containers/StringConv.h"
#include "DiffPicture.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphUtilities.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{
/** A Blueprint whose event graph is a chain of prints, each with a number that a node gives it. */
class FChain
{
public:
	explicit FChain(int32 NumNodes)
	{
		static int32 Number = 0;
		const FString Name = FString::Printf(TEXT("BP_Chain%d"), ++Number);
		Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		FGraphNodeCreator<UK2Node_CustomEvent> Creator(*Graph);
		UK2Node_CustomEvent* const Event = Creator.CreateNode(false);
		Event->CustomFunctionName = TEXT("Begin");
		Creator.Finalize();
		UEdGraphPin* Before = Event->FindPinChecked(TEXT("then"));
		for (int32 Index = 0; Index < NumNodes; Index += 2)
		{
			UEdGraphNode* const Print = AddCall(TEXT("/Script/Engine.KismetSystemLibrary"), TEXT("PrintString"));
			UEdGraphNode* const Convert = AddCall(TEXT("/Script/Engine.KismetStringLibrary"), TEXT("Conv_IntToString"));
			Convert->FindPinChecked(TEXT("InInt"))->DefaultValue = FString::FromInt(Index);
			Convert->FindPinChecked(TEXT("ReturnValue"))->MakeLinkTo(Print->FindPinChecked(TEXT("InString")));
			Before->MakeLinkTo(Print->FindPinChecked(TEXT("execute")));
			Before = Print->FindPinChecked(TEXT("then"));
			Changed = Index <= NumNodes / 2 ? Convert->FindPinChecked(TEXT("InInt")) : Changed;
		}
	}

	~FChain()
	{
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	}

	UEdGraphNode* AddCall(const TCHAR* Library, const TCHAR* Function)
	{
		FGraphNodeCreator<UK2Node_CallFunction> Creator(*Graph);
		UK2Node_CallFunction* const Node = Creator.CreateNode(false);
		Node->SetFromFunction(FindObject<UClass>(nullptr, Library)->FindFunctionByName(Function));
		Creator.Finalize();
		return Node;
	}

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	/** An input in the middle of the chain. */
	UEdGraphPin* Changed = nullptr;
};

/** All that a chat does for the picture of one edit: the states before and after, what differs, and its lines. */
void EditPicture(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor does not start");
		return;
	}
	FChain Chain(static_cast<int32>(State.range(0)));
	int32 Value = 1'000'000;
	for (auto _ : State)
	{
		const TSharedRef<const FBlueprintSnapshot> Before = MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Chain.Blueprint));
		Chain.Changed->DefaultValue = FString::FromInt(++Value);
		const TSharedRef<const FBlueprintSnapshot> After = MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Chain.Blueprint));
		const TArray<FStyledLine> Lines = DrawDiff(FBlueprintDiff::Compare(Before, After), 100, 30);
		if (Lines.Num() != 6)
		{
			State.SkipWithError("the picture is not that of one value in a chain");
			return;
		}
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

/** The same change between two files of the graph's text, by the program that compares texts everywhere; its start is part of it. */
void EditPicturePeer(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor does not start");
		return;
	}
	FChain Chain(static_cast<int32>(State.range(0)));
	const auto Write = [&Chain](const std::filesystem::path& File)
	{
		TSet<UObject*> Nodes;
		for (UEdGraphNode* const Node : Chain.Graph->Nodes)
		{
			Nodes.Add(Node);
		}
		FString Text;
		FEdGraphUtilities::ExportNodesToText(Nodes, Text);
		std::ofstream(File) << TCHAR_TO_UTF8(*Text);
	};
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-bench-XXXXXX").string();
	const std::filesystem::path Directory = mkdtemp(Pattern.data());
	Write(Directory / "before");
	Chain.Changed->DefaultValue = TEXT("1000001");
	Write(Directory / "after");
	const std::string Command = "cd " + Directory.string() + " && diff -u before after > /dev/null";
	for (auto _ : State)
	{
		// 1 says that the files differ.
		if (WEXITSTATUS(std::system(Command.c_str())) != 1)
		{
			State.SkipWithError("diff is not installed or failed");
			break;
		}
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
	std::filesystem::remove_all(Directory);
}

BENCHMARK(EditPicture)->Name("EditPicture/Ours")->Arg(100)->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(EditPicturePeer)->Name("EditPicture/Peer:diff")->Arg(100)->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();
}

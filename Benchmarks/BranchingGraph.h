#pragma once

#include "Blueprint/VexelBlueprintMapping.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "Editor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

/** A Blueprint whose event graph runs through branches: of each, one way goes on and one prints a number that two values make. */
class FBranchingGraph
{
public:
	explicit FBranchingGraph(int32 NumNodes)
	{
		static int32 Number = 0;
		const FString Name = FString::Printf(TEXT("BP_Tools%d"), ++Number);
		Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
		UEdGraphPin* Before = Spawn(TEXT("event.custom"))->FindPinChecked(TEXT("then"));
		for (int32 Index = 0; Index < NumNodes; Index += 4)
		{
			UEdGraphNode* const Branch = Spawn(TEXT("flow.if"));
			UEdGraphNode* const Print = Spawn(TEXT("call.KismetSystemLibrary.PrintString"));
			UEdGraphNode* const Convert = Spawn(TEXT("call.KismetStringLibrary.Conv_IntToString"));
			UEdGraphNode* const Random = Spawn(TEXT("call.KismetMathLibrary.RandomInteger"));
			Before->MakeLinkTo(Branch->FindPinChecked(TEXT("execute")));
			Branch->FindPinChecked(TEXT("else"))->MakeLinkTo(Print->FindPinChecked(TEXT("execute")));
			Convert->FindPinChecked(TEXT("ReturnValue"))->MakeLinkTo(Print->FindPinChecked(TEXT("InString")));
			Random->FindPinChecked(TEXT("ReturnValue"))->MakeLinkTo(Convert->FindPinChecked(TEXT("InInt")));
			Before = Branch->FindPinChecked(TEXT("then"));
		}
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
	}

	~FBranchingGraph()
	{
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	}

	UEdGraphNode* Spawn(const TCHAR* Id)
	{
		UBlueprintNodeSpawner* Spawner = nullptr;
		Mapping->ResolveNodeTypeForGraph(TVexelNodeTypeId(Id), *Graph, Spawner);
		return Spawner->Invoke(Graph, IBlueprintNodeBinder::FBindingSet(), FVector2D(0, 0));
	}

	TArray<UEdGraphNode*> GetNodes() const
	{
		TArray<UEdGraphNode*> Nodes;
		for (UEdGraphNode* const Node : Graph->Nodes)
		{
			Nodes.Add(Node);
		}
		return Nodes;
	}

	UBlueprint* Blueprint = nullptr;
	UEdGraph* Graph = nullptr;
	TSharedRef<FVexelBlueprintMapping> Mapping = MakeShared<FVexelBlueprintMapping>();
};

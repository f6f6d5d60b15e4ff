#include "GeneratedGraph.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Math/RandomStream.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const TCHAR* const Statements[] = {TEXT("call.KismetSystemLibrary.PrintString"), TEXT("flow.if"), TEXT("flow.sequence"),
	TEXT("call.KismetSystemLibrary.Delay"), TEXT("call.KismetSystemLibrary.PrintText")};
const TCHAR* const Values[] = {TEXT("call.KismetMathLibrary.Max"), TEXT("call.KismetMathLibrary.Min"), TEXT("call.KismetMathLibrary.RandomInteger"),
	TEXT("call.KismetMathLibrary.Clamp")};

/** Grows a graph node by node from its open ends. */
class FGrower
{
	using EShape = FGeneratedGraph::EShape;

public:
	FGrower(FGeneratedGraph& InGraph, EShape InShape, int32 Seed)
		: Graph(InGraph)
		, Shape(InShape)
		, Random(Seed)
	{
	}

	void Grow(int32 NumNodes)
	{
		while (NumAdded < NumNodes)
		{
			if (Shape == EShape::Values || (Shape == EShape::Mixed && Chance(0.3f)))
			{
				AddValue();
			}
			else
			{
				AddStatement();
			}
		}
	}

private:
	UEdGraphNode* Add(const TCHAR* Id)
	{
		++NumAdded;
		return Graph.Spawn(Id);
	}

	bool Chance(float Share) { return Random.FRand() < Share; }

	static TArray<UEdGraphPin*> Pins(UEdGraphNode& Node, EEdGraphPinDirection Direction, bool bExec)
	{
		TArray<UEdGraphPin*> Found;
		for (UEdGraphPin* const Pin : Node.Pins)
		{
			const bool bIsExec = Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Exec;
			if (Pin->Direction == Direction && bIsExec == bExec && !Pin->bHidden)
			{
				Found.Add(Pin);
			}
		}
		return Found;
	}

	/** Whether the way goes on at a new node rather than at one that is there. */
	bool TryJoin(UEdGraphPin& From)
	{
		const float Share = Shape == EShape::Joins ? 0.2f : Shape == EShape::Mixed ? 0.05f
																				   : 0.0f;
		if (Placed.Num() < 3 || !Chance(Share))
		{
			return false;
		}
		constexpr int32 Near = 12;
		UEdGraphNode* const To = Placed[FMath::Max(0, Placed.Num() - 1 - Random.RandRange(0, Near))];
		if (To == From.GetOwningNode())
		{
			return false;
		}
		From.MakeLinkTo(Pins(*To, EGPD_Input, true)[0]);
		return true;
	}

	void AddStatement()
	{
		const bool bManyEvents = Shape == EShape::Events || Shape == EShape::Mixed;
		if (Open.IsEmpty() || (bManyEvents && Chance(0.2f)))
		{
			Open.Reset();
			Open.Append(Pins(*Add(TEXT("event.custom")), EGPD_Output, true));
		}
		const int32 Way = Shape == EShape::Chain ? 0 : Random.RandRange(0, Open.Num() - 1);
		UEdGraphPin* const From = Open[Way];
		Open.RemoveAt(Way);
		if (TryJoin(*From))
		{
			return;
		}
		const bool bStraight = Shape == EShape::Chain || Shape == EShape::Events;
		const TCHAR* const Kind = bStraight ? Statements[Chance(0.3f) ? 3 : 0] : Statements[Random.RandRange(0, 4)];
		UEdGraphNode* const Node = Add(Kind);
		From->MakeLinkTo(Pins(*Node, EGPD_Input, true)[0]);
		Open.Append(Pins(*Node, EGPD_Output, true));
		Placed.Add(Node);
		AddValuesOf(*Node, 0);
	}

	void AddValuesOf(UEdGraphNode& Node, int32 Depth)
	{
		for (UEdGraphPin* const Pin : Pins(Node, EGPD_Input, false))
		{
			constexpr int32 MaxDepth = 3;
			const FName& Category = Pin->PinType.PinCategory;
			if (Depth >= MaxDepth || !Chance(Depth == 0 ? 0.4f : 0.3f))
			{
				continue;
			}
			if (Category == UEdGraphSchema_K2::PC_String)
			{
				UEdGraphNode* const Convert = Add(TEXT("call.KismetStringLibrary.Conv_IntToString"));
				Convert->FindPinChecked(TEXT("ReturnValue"))->MakeLinkTo(Pin);
				AddValuesOf(*Convert, Depth + 1);
			}
			else if (Category == UEdGraphSchema_K2::PC_Int)
			{
				UEdGraphNode* const Value = FindValue();
				Value->FindPinChecked(TEXT("ReturnValue"))->MakeLinkTo(Pin);
				if (Value->FindPinChecked(TEXT("ReturnValue"))->LinkedTo.Num() == 1)
				{
					AddValuesOf(*Value, Depth + 1);
				}
			}
		}
	}

	/** A new one, or one that something reads already. */
	UEdGraphNode* FindValue()
	{
		constexpr int32 Near = 5;
		if (!Ints.IsEmpty() && Chance(0.2f))
		{
			return Ints[FMath::Max(0, Ints.Num() - 1 - Random.RandRange(0, Near))];
		}
		return Ints.Add_GetRef(Add(Values[2]));
	}

	void AddValue()
	{
		UEdGraphNode* const Node = Add(Values[Random.RandRange(0, 3)]);
		for (UEdGraphPin* const Pin : Pins(*Node, EGPD_Input, false))
		{
			constexpr int32 Near = 8;
			if (Pin->PinType.PinCategory == UEdGraphSchema_K2::PC_Int && !Ints.IsEmpty() && Chance(0.6f))
			{
				Ints[FMath::Max(0, Ints.Num() - 1 - Random.RandRange(0, Near))]->FindPinChecked(TEXT("ReturnValue"))->MakeLinkTo(Pin);
			}
		}
		Ints.Add(Node);
	}

	FGeneratedGraph& Graph;
	const EShape Shape;
	FRandomStream Random;
	int32 NumAdded = 0;
	TArray<UEdGraphPin*> Open;
	TArray<UEdGraphNode*> Placed;
	TArray<UEdGraphNode*> Ints;
};
}

FGeneratedGraph::FGeneratedGraph()
	: Mapping(MakeShared<FVexelBlueprintMapping>())
{
	static int32 Number = 0;
	const FString Name = FString::Printf(TEXT("BP_Generated%d"), ++Number);
	Blueprint = FKismetEditorUtilities::CreateBlueprint(
		AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
	Graph = FBlueprintEditorUtils::FindEventGraph(Blueprint);
	for (UEdGraphNode* const Node : GetNodes())
	{
		Graph->RemoveNode(Node);
	}
}

FGeneratedGraph::~FGeneratedGraph()
{
	GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
	Blueprint->ClearFlags(RF_Standalone);
	CollectGarbage(RF_Standalone);
}

UEdGraphNode* FGeneratedGraph::Spawn(const TCHAR* Id)
{
	UBlueprintNodeSpawner* Spawner = nullptr;
	const bool bFound = Mapping->ResolveNodeTypeForGraph(TVexelNodeTypeId(Id), *Graph, Spawner);
	checkf(bFound, TEXT("No node type %s"), Id);
	return Spawner->Invoke(Graph, IBlueprintNodeBinder::FBindingSet(), FVector2D(0, 0));
}

TArray<UEdGraphNode*> FGeneratedGraph::GetNodes() const
{
	TArray<UEdGraphNode*> Nodes;
	for (UEdGraphNode* const Node : Graph->Nodes)
	{
		Nodes.Add(Node);
	}
	return Nodes;
}

const char* FGeneratedGraph::GetName(EShape Shape)
{
	constexpr const char* Names[] = {"chain", "tree", "joins", "values", "events", "mixed"};
	return Names[static_cast<int32>(Shape)];
}

void FGeneratedGraph::Fill(EShape Shape, int32 NumNodes, int32 Seed)
{
	FGrower(*this, Shape, Seed).Grow(NumNodes);
	GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
}

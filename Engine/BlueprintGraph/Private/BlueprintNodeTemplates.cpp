#include "BlueprintNodeTemplates.h"

#include "BlueprintNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "UObject/Package.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** A node with its pins takes a few thousand bytes. */
constexpr int32 MaxTemplates = 4096;
}

FBlueprintNodeTemplates& FBlueprintNodeTemplates::Get()
{
	static FBlueprintNodeTemplates Templates;
	return Templates;
}

void FBlueprintNodeTemplates::MakeBlueprint()
{
	const auto MakeGraph = [this](const TCHAR* Name)
	{
		UEdGraph* const Graph = NewObject<UEdGraph>(Blueprint, Name, RF_Transient);
		Graph->Schema = UEdGraphSchema_K2::StaticClass();
		return Graph;
	};
	// It has no classes of its own: "self" is any actor.
	Blueprint = NewObject<UBlueprint>(GetTransientPackage(), TEXT("ActionTemplates"), RF_Transient);
	Blueprint->ParentClass = AActor::StaticClass();
	EventGraph = MakeGraph(TEXT("Events"));
	FunctionGraph = MakeGraph(TEXT("Function"));
	Blueprint->UbergraphPages.Add(EventGraph);
	Blueprint->FunctionGraphs.Add(FunctionGraph);
}

UEdGraphNode* FBlueprintNodeTemplates::Find(const UBlueprintNodeSpawner& Spawner) const
{
	const TObjectPtr<UEdGraphNode>* const Found = Templates.Find(FObjectKey(&Spawner));
	return Found ? Found->Get() : nullptr;
}

UEdGraphNode* FBlueprintNodeTemplates::Make(const UBlueprintNodeSpawner& Spawner)
{
	if (!Blueprint)
	{
		MakeBlueprint();
	}
	const UEdGraphNode* const Default = Spawner.NodeClass ? GetDefault<UEdGraphNode>(Spawner.NodeClass) : nullptr;
	if (!Default)
	{
		return nullptr;
	}
	UEdGraph* const Graph = Default->IsCompatibleWithGraph(EventGraph) ? EventGraph : FunctionGraph;
	UEdGraphNode* const Node = Spawner.Invoke(Graph, IBlueprintNodeBinder::FBindingSet(), FVector2D::ZeroVector);
	if (!Node)
	{
		return nullptr;
	}
	// Templates know nothing of each other: one is not there when the next is made.
	Graph->Nodes.Empty();
	Forget(Spawner);
	GiveUpOldest();
	Templates.Add(FObjectKey(&Spawner), Node);
	Order.Add(FObjectKey(&Spawner));
	return Node;
}

void FBlueprintNodeTemplates::Forget(const UBlueprintNodeSpawner& Spawner)
{
	TObjectPtr<UEdGraphNode> Node;
	if (Templates.RemoveAndCopyValue(FObjectKey(&Spawner), Node))
	{
		Destroy(Node);
	}
}

void FBlueprintNodeTemplates::GiveUpOldest()
{
	while (Templates.Num() >= MaxTemplates && FirstInOrder < Order.Num())
	{
		TObjectPtr<UEdGraphNode> Node;
		if (Templates.RemoveAndCopyValue(Order[FirstInOrder++], Node))
		{
			Destroy(Node);
		}
	}
	if (FirstInOrder > MaxTemplates)
	{
		Order.RemoveAt(0, FirstInOrder);
		FirstInOrder = 0;
	}
}

void FBlueprintNodeTemplates::Destroy(UEdGraphNode* Node)
{
	if (IsValid(Node))
	{
		Node->MarkAsGarbage();
	}
}

void FBlueprintNodeTemplates::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObject(Blueprint);
	Collector.AddReferencedObject(EventGraph);
	Collector.AddReferencedObject(FunctionGraph);
	for (TPair<FObjectKey, TObjectPtr<UEdGraphNode>>& Template : Templates)
	{
		Collector.AddReferencedObject(Template.Value);
	}
}

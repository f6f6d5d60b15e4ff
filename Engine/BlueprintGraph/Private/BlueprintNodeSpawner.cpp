#include "BlueprintNodeSpawner.h"

#include "BlueprintNodeTemplates.h"
#include "EdGraph/EdGraph.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

UBlueprintNodeSpawner* UBlueprintNodeSpawner::Create(
	TSubclassOf<UEdGraphNode> const NodeClass, UObject* Outer, FCustomizeNodeDelegate PostSpawnDelegate)
{
	UBlueprintNodeSpawner* const Spawner = NewObject<UBlueprintNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->CustomizeNodeDelegate = PostSpawnDelegate;
	return Spawner;
}

FBlueprintNodeSignature UBlueprintNodeSpawner::GetSpawnerSignature() const
{
	return FBlueprintNodeSignature(NodeClass.Get());
}

const FBlueprintActionUiSpec& UBlueprintNodeSpawner::PrimeDefaultUiSpec(UEdGraph* TargetGraph) const
{
	if (!UiSpec)
	{
		UiSpec = MakeShared<FBlueprintActionUiSpec>();
		if (const UEdGraphNode* const Template = GetTemplateNode(TargetGraph))
		{
			UiSpec->MenuName = Template->GetNodeTitle(ENodeTitleType::MenuTitle);
			UiSpec->Category = Template->GetMenuCategory();
			UiSpec->Tooltip = Template->GetTooltipText();
			UiSpec->Keywords = Template->GetKeywords();
			UiSpec->DocLink = FText::FromString(Template->GetDocumentationLink());
		}
	}
	return *UiSpec;
}

UEdGraphNode* UBlueprintNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	return SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, CustomizeNodeDelegate);
}

UEdGraphNode* UBlueprintNodeSpawner::SpawnEdGraphNode(TSubclassOf<UEdGraphNode> const InNodeClass, UEdGraph* ParentGraph,
	FBindingSet const& Bindings, FVector2D Location, FCustomizeNodeDelegate PostSpawnDelegate) const
{
	if (!InNodeClass || !ParentGraph)
	{
		return nullptr;
	}
	const bool bIsTemplate = IsTemplateGraph(ParentGraph);
	UEdGraphNode* const Node = NewObject<UEdGraphNode>(ParentGraph, InNodeClass, NAME_None, bIsTemplate ? RF_Transient : RF_Transactional);
	Node->NodePosX = static_cast<int32>(Location.X);
	Node->NodePosY = static_cast<int32>(Location.Y);
	PostSpawnDelegate.ExecuteIfBound(Node, bIsTemplate);
	if (!bIsTemplate)
	{
		Node->CreateNewGuid();
		Node->PostPlacedNewNode();
		ParentGraph->Modify();
	}
	if (Node->Pins.IsEmpty())
	{
		Node->AllocateDefaultPins();
	}
	if (bIsTemplate)
	{
		return Node;
	}
	ParentGraph->AddNode(Node, true, false);
	for (const FBindingObject& Binding : Bindings)
	{
		BindToNode(Node, Binding);
	}
	return Node;
}

UEdGraphNode* UBlueprintNodeSpawner::GetCachedTemplateNode() const
{
	return FBlueprintNodeTemplates::Get().Find(*this);
}

UEdGraphNode* UBlueprintNodeSpawner::GetTemplateNode(UEdGraph* TargetGraph, FBindingSet const& Bindings) const
{
	UEdGraphNode* const Kept = GetCachedTemplateNode();
	return Kept ? Kept : FBlueprintNodeTemplates::Get().Make(*this);
}

void UBlueprintNodeSpawner::ClearCachedTemplateNode()
{
	FBlueprintNodeTemplates::Get().Forget(*this);
	UiSpec.Reset();
}

bool UBlueprintNodeSpawner::IsTemplateGraph(const UEdGraph* Graph)
{
	return FBlueprintNodeTemplates::Get().IsTemplateGraph(Graph);
}

bool UBlueprintNodeSpawner::IsTemplateNode(const UEdGraphNode* Node)
{
	return Node && IsTemplateGraph(Node->GetGraph());
}

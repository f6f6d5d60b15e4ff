#include "K2Node_Composite.h"

#include "EdGraph/EdGraph.h"
#include "K2Node_MacroInstance.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_Composite::UK2Node_Composite(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	bCanHaveInputs = true;
	bCanHaveOutputs = true;
	bCanRenameNode = true;
}

UK2Node_Tunnel* UK2Node_Composite::GetEntryNode() const
{
	return const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(BoundGraph, true));
}

UK2Node_Tunnel* UK2Node_Composite::GetExitNode() const
{
	return const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(BoundGraph, false));
}

bool UK2Node_Composite::HasKnownDefinition() const
{
	return BoundGraph != nullptr;
}

void UK2Node_Composite::NameBoundGraph(const FString& WantedName)
{
	// The title is the graph's name, so names are apart among all collapsed graphs of the parent, not only inside the node.
	const UEdGraph* const Parent = GetGraph();
	const auto IsTaken = [this, Parent](const FString& Name)
	{
		const FName AsName(*Name);
		return Parent->SubGraphs.ContainsByPredicate([this, AsName](const UEdGraph* Sibling)
			{ return Sibling && Sibling != BoundGraph && Sibling->GetFName() == AsName; });
	};
	FString Name = WantedName;
	for (int32 Number = 0; IsTaken(Name); ++Number)
	{
		Name = FString::Printf(TEXT("%s_%d"), *WantedName, Number);
	}
	if (BoundGraph->GetName() != Name)
	{
		BoundGraph->Rename(*Name, this, REN_DontCreateRedirectors);
	}
}

void UK2Node_Composite::ConnectTunnels()
{
	UK2Node_Tunnel* const Entry = GetEntryNode();
	UK2Node_Tunnel* const Exit = GetExitNode();
	if (Entry)
	{
		Entry->InputSinkNode = this;
	}
	if (Exit)
	{
		Exit->OutputSourceNode = this;
	}
	InputSinkNode = Entry;
	OutputSourceNode = Exit;
}

void UK2Node_Composite::PostPlacedNewNode()
{
	if (BoundGraph)
	{
		return;
	}
	UEdGraph* const Parent = GetGraph();
	// Inside the node, so that copies of the node bring it along.
	BoundGraph = NewObject<UEdGraph>(this, NAME_None, RF_Transactional);
	BoundGraph->Schema = Parent->Schema;
	NameBoundGraph(TEXT("CollapseGraph"));
	Parent->SubGraphs.Add(BoundGraph);
	GetK2Schema()->CreateMacroGraphTerminators(*BoundGraph, nullptr);
	for (UK2Node_Tunnel* const Tunnel : {GetEntryNode(), GetExitNode()})
	{
		Tunnel->bIsEditable = true;
	}
	ConnectTunnels();
}

void UK2Node_Composite::PostPasteNode()
{
	Super::PostPasteNode();
	if (!BoundGraph)
	{
		return;
	}
	UEdGraph* const Parent = GetGraph();
	NameBoundGraph(BoundGraph->GetName());
	Parent->Modify();
	Parent->SubGraphs.AddUnique(BoundGraph);
	ConnectTunnels();
	for (UEdGraphNode* const Node : TArray<UEdGraphNode*>(BoundGraph->Nodes))
	{
		Node->CreateNewGuid();
		Node->PostPasteNode();
		Node->ReconstructNode();
	}
}

void UK2Node_Composite::DestroyNode()
{
	Modify();
	UEdGraph* const Graph = BoundGraph;
	UEdGraph* const Parent = GetGraph();
	BoundGraph = nullptr;
	if (Graph && Parent)
	{
		Parent->Modify();
		Parent->SubGraphs.Remove(Graph);
	}
	Super::DestroyNode();
}

void UK2Node_Composite::OnRenameNode(const FString& NewName)
{
	if (BoundGraph && !NewName.IsEmpty())
	{
		Modify();
		BoundGraph->Modify();
		NameBoundGraph(NewName);
	}
}

void UK2Node_Composite::AllocateDefaultPins()
{
	CreatePinsOfExpansion();
}

FText UK2Node_Composite::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Name = BoundGraph ? FText::FromString(BoundGraph->GetName()) : LOCTEXT("InvalidGraph", "Invalid Graph");
	return TitleType == ENodeTitleType::FullTitle ? FText::Format(LOCTEXT("Collapsed_Title", "{0}\nCollapsed Graph"), Name) : Name;
}

FText UK2Node_Composite::GetTooltipText() const
{
	return LOCTEXT("CollapsedCompositeNode", "Collapsed composite node");
}

#undef LOCTEXT_NAMESPACE

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

void UK2Node_Composite::PostPlacedNewNode()
{
	if (BoundGraph)
	{
		return;
	}
	UEdGraph* const Parent = GetGraph();
	BoundGraph = NewObject<UEdGraph>(Parent, MakeUniqueObjectName(Parent, UEdGraph::StaticClass(), TEXT("CollapseGraph")), RF_Transactional);
	BoundGraph->Schema = Parent->Schema;
	Parent->SubGraphs.Add(BoundGraph);
	GetK2Schema()->CreateMacroGraphTerminators(*BoundGraph, nullptr);
	for (UK2Node_Tunnel* const Tunnel : {GetEntryNode(), GetExitNode()})
	{
		Tunnel->bIsEditable = true;
	}
	GetEntryNode()->InputSinkNode = this;
	GetExitNode()->OutputSourceNode = this;
	InputSinkNode = GetEntryNode();
	OutputSourceNode = GetExitNode();
}

void UK2Node_Composite::AllocateDefaultPins()
{
	CreatePinsOfTunnels(GetEntryNode(), GetExitNode());
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

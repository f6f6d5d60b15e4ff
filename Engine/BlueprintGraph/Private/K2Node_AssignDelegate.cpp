#include "K2Node_AssignDelegate.h"

#include "EdGraph/EdGraph.h"
#include "K2Node_CustomEvent.h"

#define LOCTEXT_NAMESPACE "K2Node"

bool UK2Node_AssignDelegate::IsCompatibleWithGraph(const UEdGraph* TargetGraph) const
{
	// An event stands in an event graph alone.
	const UEdGraphSchema* const Schema = TargetGraph->GetSchema();
	return Super::IsCompatibleWithGraph(TargetGraph) && Schema && Schema->GetGraphType(TargetGraph) == GT_Ubergraph;
}

void UK2Node_AssignDelegate::PostPlacedNewNode()
{
	Super::PostPlacedNewNode();
	constexpr int32 EventDistance = 150;
	UEdGraph* const Graph = GetGraph();
	if (Graph && GetDelegateSignature() && IsCompatibleWithGraph(Graph))
	{
		NewEvent = UK2Node_CustomEvent::CreateFromFunction(FVector2D(NodePosX - EventDistance, NodePosY + EventDistance), Graph,
			FString::Printf(TEXT("%s_Event"), *GetPropertyName().ToString()), GetDelegateSignature(), false);
	}
}

void UK2Node_AssignDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	if (UK2Node_CustomEvent* const Event = NewEvent.Get())
	{
		NewEvent.Reset();
		GetK2Schema()->TryCreateConnection(Event->FindPin(UK2Node_Event::DelegateOutputName), GetDelegatePin());
	}
}

FText UK2Node_AssignDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TitleType == ENodeTitleType::FullTitle ? Super::GetNodeTitle(TitleType)
												  : FText::Format(LOCTEXT("AssignDelegate_Title", "Assign {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_EnhancedInputAction.h"

#include "EdGraph/EdGraph.h"
#include "InputActionValuePin.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_EnhancedInputAction::AllocateDefaultPins()
{
	// What triggers is what most graphs use; the other events are there for who asks for them.
	static const TCHAR* const Events[] = {TEXT("Triggered"), TEXT("Started"), TEXT("Ongoing"), TEXT("Canceled"), TEXT("Completed")};
	for (const TCHAR* const Event : Events)
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, Event)->bAdvancedView = Event != Events[0];
	}
	HideAdvancedPins();
	CreatePin(EGPD_Output, FInputActionValuePin::GetType(InputAction), TEXT("ActionValue"));
	for (const TCHAR* const Name : {TEXT("ElapsedSeconds"), TEXT("TriggeredSeconds")})
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double, Name)->bAdvancedView = true;
	}
	if (InputAction)
	{
		UEdGraphPin* const Action = CreatePin(
			EGPD_Output, UEdGraphSchema_K2::PC_Object, FInputActionValuePin::GetActionClass(), TEXT("InputAction"));
		Action->DefaultObject = InputAction;
		Action->bAdvancedView = true;
	}
}

bool UK2Node_EnhancedInputAction::IsCompatibleWithGraph(const UEdGraph* TargetGraph) const
{
	const UEdGraphSchema* const Schema = TargetGraph->GetSchema();
	return Super::IsCompatibleWithGraph(TargetGraph) && Schema && Schema->GetGraphType(TargetGraph) == GT_Ubergraph;
}

FText UK2Node_EnhancedInputAction::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Name = FInputActionValuePin::GetActionName(InputAction);
	return TitleType == ENodeTitleType::MenuTitle ? Name
												  : FText::Format(LOCTEXT("EnhancedInputAction_Name", "EnhancedInputAction {0}"), Name);
}

FText UK2Node_EnhancedInputAction::GetTooltipText() const
{
	return FText::Format(
		LOCTEXT("EnhancedInputAction_Tooltip", "Event for when the keys bound to input action {0} are pressed or released."),
		FInputActionValuePin::GetActionName(InputAction));
}

FText UK2Node_EnhancedInputAction::GetMenuCategory() const
{
	return LOCTEXT("EnhancedInputAction_Category", "Input|Enhanced Action Events");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_InputDebugKey.h"

#include "BlueprintActionDatabaseRegistrar.h"
#include "BlueprintNodeSpawner.h"
#include "InputNodePins.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_InputDebugKey::AllocateDefaultPins()
{
	FInputNodePins::CreateKeyPins(*this);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, FindObject<UScriptStruct>(nullptr, TEXT("/Script/EnhancedInput.InputActionValue")),
		TEXT("ActionValue"));
}

FText UK2Node_InputDebugKey::GetKeyText() const
{
	return FInputNodePins::GetKeyText(InputKey, bControl, bAlt, bShift, bCommand);
}

FText UK2Node_InputDebugKey::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("InputDebugKey_Title", "Debug Key {0}"), GetKeyText());
}

FText UK2Node_InputDebugKey::GetTooltipText() const
{
	return FText::Format(LOCTEXT("InputKey_Tooltip", "Events for when the {0} key is pressed or released."), GetKeyText());
}

FText UK2Node_InputDebugKey::GetMenuCategory() const
{
	return LOCTEXT("KeyEventsCategory", "Input|Debug Events");
}

void UK2Node_InputDebugKey::GetMenuActions(FBlueprintActionDatabaseRegistrar& ActionRegistrar) const
{
	if (!ActionRegistrar.IsOpenForRegistration(GetClass()))
	{
		return;
	}
	TArray<FKey> Keys;
	EKeys::GetAllKeys(Keys);
	for (const FKey& Key : Keys)
	{
		if (!Key.IsAxis1D() && !Key.IsVector())
		{
			const auto SetKey = [Key](UEdGraphNode* Node, bool)
			{ CastChecked<UK2Node_InputDebugKey>(Node)->InputKey = Key; };
			ActionRegistrar.AddBlueprintAction(UBlueprintNodeSpawner::Create(
				GetClass(), nullptr, UBlueprintNodeSpawner::FCustomizeNodeDelegate::CreateLambda(SetKey)));
		}
	}
}

#undef LOCTEXT_NAMESPACE

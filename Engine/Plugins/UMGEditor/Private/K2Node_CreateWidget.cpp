#include "K2Node_CreateWidget.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UClass* UK2Node_CreateWidget::GetClassPinBaseClass() const
{
	UClass* const Class = FindObject<UClass>(nullptr, TEXT("/Script/UMG.UserWidget"));
	return Class ? Class : UObject::StaticClass();
}

void UK2Node_CreateWidget::CreateOwnPins()
{
	UEdGraphPin* const Player = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object,
		FindObject<UClass>(nullptr, TEXT("/Script/Engine.PlayerController")), TEXT("OwningPlayer"));
	GeneratePinTooltip(*Player, LOCTEXT("CreateWidget_OwnerTip", "The player that 'owns' the widget."));
}

FText UK2Node_CreateWidget::GetBaseNodeTitle() const
{
	return LOCTEXT("CreateWidget_BaseTitle", "Create Widget");
}

FText UK2Node_CreateWidget::GetNodeTitleFormat() const
{
	return LOCTEXT("CreateWidget", "Create {0} Widget");
}

FText UK2Node_CreateWidget::GetNothingSelectedTitle() const
{
	return LOCTEXT("CreateWidget_Title_NONE", "Construct NONE");
}

FText UK2Node_CreateWidget::GetMenuCategory() const
{
	return LOCTEXT("CreateWidget_Category", "User Interface");
}

#undef LOCTEXT_NAMESPACE

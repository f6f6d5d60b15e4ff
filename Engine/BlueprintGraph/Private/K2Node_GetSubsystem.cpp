#include "K2Node_GetSubsystem.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetSubsystem::AllocateDefaultPins()
{
	if (!CustomClass)
	{
		CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Class, USubsystem::StaticClass(), TEXT("Class"));
	}
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Object, CustomClass ? CustomClass.Get() : USubsystem::StaticClass(),
		UEdGraphSchema_K2::PN_ReturnValue);
}

void UK2Node_GetSubsystemFromPC::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, FindObject<UClass>(nullptr, TEXT("/Script/Engine.PlayerController")),
		TEXT("PlayerController"));
	Super::AllocateDefaultPins();
}

FText UK2Node_GetSubsystem::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return CustomClass ? FText::Format(LOCTEXT("GetSubsystem_Title", "Get {0}"), CustomClass->GetDisplayNameText())
					   : LOCTEXT("GetSubsystem_Base", "Get Subsystem");
}

FText UK2Node_GetSubsystem::GetMenuCategory() const
{
	return LOCTEXT("SubsystemCategory", "Subsystems");
}

#undef LOCTEXT_NAMESPACE

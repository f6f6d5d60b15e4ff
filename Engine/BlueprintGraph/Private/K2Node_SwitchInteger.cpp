#include "K2Node_SwitchInteger.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_SwitchInteger::CreateSelectionPin()
{
	SetComparison(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("NotEqual_IntInt"));
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Int, TEXT("Selection"));
}

void UK2Node_SwitchInteger::CreateCasePins()
{
}

void UK2Node_SwitchInteger::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	int32 Value = StartIndex;
	for (const UEdGraphPin* const OldPin : OldPins)
	{
		const bool bIsCase = OldPin->Direction == EGPD_Output && UEdGraphSchema_K2::IsExecPin(*OldPin) &&
			OldPin->PinName != TEXT("Default") && !OldPin->bOrphanedPin;
		if (bIsCase)
		{
			CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, FName(*FString::FromInt(Value++)));
		}
	}
}

void UK2Node_SwitchInteger::AddPinToSwitchNode()
{
	Modify();
	int32 Value = StartIndex;
	while (FindPin(FString::FromInt(Value), EGPD_Output))
	{
		++Value;
	}
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, FName(*FString::FromInt(Value)));
}

void UK2Node_SwitchInteger::RemovePinFromSwitchNode(UEdGraphPin* TargetPin)
{
	Super::RemovePinFromSwitchNode(TargetPin);
	ReconstructNode();
}

FText UK2Node_SwitchInteger::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("SwitchInteger_Title", "Switch on Int");
}

#undef LOCTEXT_NAMESPACE

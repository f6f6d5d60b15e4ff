#include "K2Node_DoOnceMultiInput.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
constexpr int32 BaseInputs = 1;
}

FName UK2Node_DoOnceMultiInput::GetNameForPin(int32 PinIndex, bool bIn)
{
	return FName(*FString::Printf(TEXT("%s %s"), *GetNameForAdditionalPin(PinIndex).ToString(), bIn ? TEXT("In") : TEXT("Out")));
}

void UK2Node_DoOnceMultiInput::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, TEXT("Reset"));
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Boolean, TEXT("StartClosed"));
	const int32 Count = FMath::Clamp(NumAdditionalInputs, 0, GetMaxInputPinsNum() - BaseInputs) + BaseInputs;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		CreateWay(Index);
	}
}

void UK2Node_DoOnceMultiInput::CreateWay(int32 WayIndex)
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, GetNameForPin(WayIndex, true));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, GetNameForPin(WayIndex, false));
}

TArray<UEdGraphPin*> UK2Node_DoOnceMultiInput::GetWays(EEdGraphPinDirection Direction) const
{
	return Pins.FilterByPredicate([this, Direction](const UEdGraphPin* Pin)
		{ return Pin->Direction == Direction && UEdGraphSchema_K2::IsExecPin(*Pin) && Pin != GetResetPin() && !Pin->bOrphanedPin; });
}

bool UK2Node_DoOnceMultiInput::CanAddPin() const
{
	return NumAdditionalInputs + BaseInputs < GetMaxInputPinsNum();
}

void UK2Node_DoOnceMultiInput::AddInputPin()
{
	if (CanAddPin())
	{
		Modify();
		CreateWay(BaseInputs + NumAdditionalInputs++);
	}
}

bool UK2Node_DoOnceMultiInput::CanRemovePin(const UEdGraphPin* Pin) const
{
	return NumAdditionalInputs > 0 && Pin && GetWays(Pin->Direction).Contains(const_cast<UEdGraphPin*>(Pin));
}

void UK2Node_DoOnceMultiInput::RemoveInputPin(UEdGraphPin* Pin)
{
	if (!CanRemovePin(Pin))
	{
		return;
	}
	Modify();
	const int32 Way = GetWays(Pin->Direction).IndexOfByKey(Pin);
	for (const EEdGraphPinDirection Direction : {EGPD_Input, EGPD_Output})
	{
		RemovePin(GetWays(Direction)[Way]);
		RenamePins(GetWays(Direction), [Direction](int32 Index)
			{ return GetNameForPin(Index, Direction == EGPD_Input); });
	}
	--NumAdditionalInputs;
}

FText UK2Node_DoOnceMultiInput::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("DoOnceMultiInput_Title", "DoOnce MultiInput");
}

FText UK2Node_DoOnceMultiInput::GetTooltipText() const
{
	return LOCTEXT("DoOnceMultiInput_Tooltip",
		"Goes on the first time that any of its inputs is reached, by the output beside that input, until it is reset.");
}

FText UK2Node_DoOnceMultiInput::GetMenuCategory() const
{
	return LOCTEXT("DoOnceMultiInput_Category", "Utilities|FlowControl");
}

#undef LOCTEXT_NAMESPACE

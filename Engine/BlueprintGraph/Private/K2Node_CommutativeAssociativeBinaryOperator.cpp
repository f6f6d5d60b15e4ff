#include "K2Node_CommutativeAssociativeBinaryOperator.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
/** The function itself has A and B. */
constexpr int32 FunctionOperands = 2;
}

UK2Node_CommutativeAssociativeBinaryOperator::UK2Node_CommutativeAssociativeBinaryOperator(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	OrphanedPinSaveMode = ESaveOrphanPinMode::SaveNone;
}

UEdGraphPin* UK2Node_CommutativeAssociativeBinaryOperator::AddOperand(int32 Index)
{
	const UEdGraphPin* const First = FindPin(GetNameForAdditionalPin(0), EGPD_Input);
	const UEdGraphPin* const Second = FindPin(GetNameForAdditionalPin(1), EGPD_Input);
	const UEdGraphPin* const Model = First && Second && !Second->bHidden ? First : Second;
	if (!Model)
	{
		return nullptr;
	}
	UEdGraphPin* const Pin = CreatePin(EGPD_Input, Model->PinType, GetNameForAdditionalPin(Index));
	GeneratePinTooltip(*Pin, FText::GetEmpty());
	return Pin;
}

void UK2Node_CommutativeAssociativeBinaryOperator::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	const int32 Count = FMath::Clamp(NumAdditionalInputs, 0, GetMaxInputPinsNum() - FunctionOperands);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		AddOperand(FunctionOperands + Index);
	}
}

bool UK2Node_CommutativeAssociativeBinaryOperator::CanAddPin() const
{
	return NumAdditionalInputs + FunctionOperands < GetMaxInputPinsNum();
}

bool UK2Node_CommutativeAssociativeBinaryOperator::CanRemovePin(const UEdGraphPin* Pin) const
{
	return Pin && NumAdditionalInputs > 0 && Pin->Direction == EGPD_Input && !Pin->ParentPin &&
		Pin->PinName != UEdGraphSchema_K2::PN_Self && Pins.Contains(const_cast<UEdGraphPin*>(Pin));
}

void UK2Node_CommutativeAssociativeBinaryOperator::AddInputPin()
{
	if (CanAddPin())
	{
		Modify();
		AddOperand(FunctionOperands + NumAdditionalInputs);
		++NumAdditionalInputs;
	}
}

void UK2Node_CommutativeAssociativeBinaryOperator::RemoveInputPin(UEdGraphPin* Pin)
{
	if (!CanRemovePin(Pin))
	{
		return;
	}
	Modify();
	RemovePin(Pin);
	--NumAdditionalInputs;
	// The letters stay without gaps.
	const TArray<UEdGraphPin*> Operands = Pins.FilterByPredicate(
		[](const UEdGraphPin* Item)
		{
			return Item->Direction == EGPD_Input && Item->PinName != UEdGraphSchema_K2::PN_Self && !Item->ParentPin &&
				!Item->bOrphanedPin && !UEdGraphSchema_K2::IsExecPin(*Item);
		});
	RenamePins(Operands, GetNameForAdditionalPin);
	ReconstructNode();
}

#undef LOCTEXT_NAMESPACE

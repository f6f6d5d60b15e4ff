#include "K2Node_MakeContainer.h"

#define LOCTEXT_NAMESPACE "K2Node"

UEdGraphPin* UK2Node_MakeContainer::GetOutputPin() const
{
	return FindPin(GetOutputPinName(), EGPD_Output);
}

void UK2Node_MakeContainer::AllocateDefaultPins()
{
	FCreatePinParams Params;
	Params.ContainerType = ContainerType;
	Params.ValueTerminalType.TerminalCategory = ContainerType == EPinContainerType::Map ? UEdGraphSchema_K2::PC_Wildcard : FName();
	UEdGraphPin* const Output = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, GetOutputPinName(), Params);
	for (int32 Index = 0; Index < NumInputs; ++Index)
	{
		CreateElementPins(Index, FEdGraphPinType::GetTerminalTypeForContainer(Output->PinType));
	}
}

void UK2Node_MakeContainer::CreateElementPins(int32 PinIndex, const FEdGraphPinType& Type)
{
	CreatePinWithDefault(EGPD_Input, Type, GetPinName(PinIndex));
}

FEdGraphPinType UK2Node_MakeContainer::GetElementType() const
{
	const UEdGraphPin* const Output = GetOutputPin();
	FEdGraphPinType Type = Output ? Output->PinType : FEdGraphPinType();
	Type.ContainerType = EPinContainerType::None;
	return Type;
}

void UK2Node_MakeContainer::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	KeepResolvedWildcards(OldPins);
}

void UK2Node_MakeContainer::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	FollowLinkedType(Pins);
}

void UK2Node_MakeContainer::AddInputPin()
{
	Modify();
	CreateElementPins(NumInputs++, GetElementType());
}

void UK2Node_MakeContainer::RemoveInputPin(UEdGraphPin* Pin)
{
	if (NumInputs < 2 || !Pin || Pin->Direction != EGPD_Input || !RemovePin(Pin))
	{
		return;
	}
	--NumInputs;
	int32 Index = 0;
	for (UEdGraphPin* const Item : Pins)
	{
		if (Item->Direction == EGPD_Input && !Item->ParentPin)
		{
			Item->PinName = GetPinName(Index++);
		}
	}
}

FText UK2Node_MakeContainer::GetMenuCategory() const
{
	return ContainerType == EPinContainerType::Array ? LOCTEXT("ArrayCategory", "Utilities|Array") : ContainerType == EPinContainerType::Set ? LOCTEXT("SetCategory", "Utilities|Set")
																																			 : LOCTEXT("MapCategory", "Utilities|Map");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_MakeContainer.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_MakeContainer::UK2Node_MakeContainer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	OrphanedPinSaveMode = ESaveOrphanPinMode::SaveNone;
}

UEdGraphPin* UK2Node_MakeContainer::GetOutputPin() const
{
	return FindPin(GetOutputPinName(), EGPD_Output);
}

TArray<UEdGraphPin*> UK2Node_MakeContainer::GetInputPins() const
{
	return Pins.FilterByPredicate([](const UEdGraphPin* Pin)
		{ return Pin->Direction == EGPD_Input && !Pin->ParentPin; });
}

void UK2Node_MakeContainer::AllocateDefaultPins()
{
	FCreatePinParams Params;
	Params.ContainerType = ContainerType;
	Params.ValueTerminalType.TerminalCategory = ContainerType == EPinContainerType::Map ? UEdGraphSchema_K2::PC_Wildcard : FName();
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, GetOutputPinName(), Params);
	for (int32 Index = 0; Index < NumInputs; ++Index)
	{
		CreateElementPins(Index);
	}
}

FEdGraphPinType UK2Node_MakeContainer::GetInputType(int32 PinIndex) const
{
	const UEdGraphPin* const Output = GetOutputPin();
	return Output ? FEdGraphPinType::GetTerminalTypeForContainer(Output->PinType) : FEdGraphPinType();
}

void UK2Node_MakeContainer::CreateElementPins(int32 ElementIndex)
{
	for (int32 Part = 0; Part < GetPinsPerElement(); ++Part)
	{
		const int32 PinIndex = ElementIndex * GetPinsPerElement() + Part;
		CreatePinWithDefault(EGPD_Input, GetInputType(PinIndex), GetPinName(PinIndex));
	}
}

void UK2Node_MakeContainer::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	// A value that a user typed in keeps the type as a link does.
	const bool bHasLinks = Pins.ContainsByPredicate([](const UEdGraphPin* Item)
		{ return Item->LinkedTo.Num() > 0; });
	if (bHasLinks || !AreAnyInUse(Pins))
	{
		FollowLinks();
	}
}

void UK2Node_MakeContainer::PinDefaultValueChanged(UEdGraphPin* Pin)
{
	Super::PinDefaultValueChanged(Pin);
	if (!AreAnyInUse(Pins))
	{
		FollowLinks();
	}
}

void UK2Node_MakeContainer::AddInputPin()
{
	Modify();
	CreateElementPins(NumInputs++);
}

bool UK2Node_MakeContainer::CanRemovePin(const UEdGraphPin* Pin) const
{
	return NumInputs > 1 && GetInputPins().Contains(const_cast<UEdGraphPin*>(Pin));
}

void UK2Node_MakeContainer::RemoveInputPin(UEdGraphPin* Pin)
{
	if (!CanRemovePin(Pin))
	{
		return;
	}
	Modify();
	const TArray<UEdGraphPin*> Inputs = GetInputPins();
	const int32 First = Inputs.IndexOfByKey(Pin) / GetPinsPerElement() * GetPinsPerElement();
	for (int32 Part = 0; Part < GetPinsPerElement(); ++Part)
	{
		RemovePin(Inputs[First + Part]);
	}
	--NumInputs;
	RenamePins(GetInputPins(), [this](int32 Index)
		{ return GetPinName(Index); });
	NotifyPinConnectionListChanged(GetOutputPin());
}

FText UK2Node_MakeContainer::GetMenuCategory() const
{
	return ContainerType == EPinContainerType::Array ? LOCTEXT("ArrayCategory", "Utilities|Array")
		: ContainerType == EPinContainerType::Set    ? LOCTEXT("SetCategory", "Utilities|Set")
													 : LOCTEXT("MapCategory", "Utilities|Map");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_MakeMap.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_MakeMap::UK2Node_MakeMap(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	ContainerType = EPinContainerType::Map;
}

void UK2Node_MakeMap::CreateElementPins(int32 PinIndex, const FEdGraphPinType& Type)
{
	const UEdGraphPin* const Output = GetOutputPin();
	CreatePinWithDefault(EGPD_Input, Type, GetPinName(PinIndex));
	FEdGraphPinType ValueType = FEdGraphPinType::GetPinTypeForTerminalType(Output->PinType.PinValueType);
	CreatePinWithDefault(EGPD_Input, ValueType, FName(*FString::Printf(TEXT("Value %d"), PinIndex)));
}

void UK2Node_MakeMap::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	// Keys share one type and values another; both come from what is linked first.
	UEdGraphPin* const Output = GetOutputPin();
	if (Pin->LinkedTo.Num() == 0 || Pin->LinkedTo[0]->PinType.PinCategory == UEdGraphSchema_K2::PC_Wildcard || !Output)
	{
		return;
	}
	const FEdGraphPinType Linked = Pin->LinkedTo[0]->PinType;
	const bool bIsValue = Pin->PinName.ToString().StartsWith(TEXT("Value"));
	FEdGraphPinType KeyType = bIsValue ? GetElementType() : Linked;
	KeyType.ContainerType = EPinContainerType::Map;
	KeyType.PinValueType = bIsValue ? FEdGraphTerminalType::FromPinType(Linked) : Pin == Output ? Linked.PinValueType
																								: Output->PinType.PinValueType;
	KeyType.bIsReference = false;
	KeyType.bIsConst = false;
	Output->PinType = KeyType;
	for (UEdGraphPin* const Item : Pins)
	{
		if (Item->Direction == EGPD_Input)
		{
			FEdGraphPinType Type = GetElementType();
			Type.PinValueType = FEdGraphTerminalType();
			const bool bItemIsValue = Item->PinName.ToString().StartsWith(TEXT("Value"));
			Item->PinType = bItemIsValue ? FEdGraphPinType::GetPinTypeForTerminalType(KeyType.PinValueType) : Type;
		}
	}
}

FText UK2Node_MakeMap::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("MakeMap_Title", "Make Map");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_MakeMap.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_MakeMap::UK2Node_MakeMap(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	ContainerType = EPinContainerType::Map;
}

FName UK2Node_MakeMap::GetPinName(int32 PinIndex) const
{
	return FName(*FString::Printf(TEXT("%s %d"), PinIndex % 2 == 0 ? TEXT("Key") : TEXT("Value"), PinIndex / 2));
}

FEdGraphPinType UK2Node_MakeMap::GetInputType(int32 PinIndex) const
{
	const UEdGraphPin* const Output = GetOutputPin();
	return PinIndex % 2 == 0 || !Output ? Super::GetInputType(PinIndex)
										: FEdGraphPinType::GetPinTypeForTerminalType(Output->PinType.PinValueType);
}

void UK2Node_MakeMap::FollowLinks()
{
	TArray<UEdGraphPin*> Keys;
	TArray<UEdGraphPin*> Values;
	const TArray<UEdGraphPin*> Inputs = GetInputPins();
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		(Index % 2 == 0 ? Keys : Values).Add(Inputs[Index]);
	}
	FollowLinkedMapType(GetOutputPin(), Keys, Values);
}

FText UK2Node_MakeMap::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("MakeMap_Title", "Make Map");
}

#undef LOCTEXT_NAMESPACE

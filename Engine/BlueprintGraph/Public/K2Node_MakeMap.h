#pragma once

#include "K2Node_MakeContainer.h"

#include "K2Node_MakeMap.generated.h"

/** Makes a map of its elements. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MakeMap : public UK2Node_MakeContainer
{
	GENERATED_BODY()

public:
	UK2Node_MakeMap(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual FName GetOutputPinName() const override { return FName(TEXT("Map")); }
	virtual FName GetPinName(int32 PinIndex) const override { return FName(*FString::Printf(TEXT("Key %d"), PinIndex)); }
	virtual void CreateElementPins(int32 PinIndex, const FEdGraphPinType& Type) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
};

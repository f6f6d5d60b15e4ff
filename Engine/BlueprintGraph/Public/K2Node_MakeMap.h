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
	virtual FName GetPinName(int32 PinIndex) const override;
	virtual int32 GetPinsPerElement() const override { return 2; }
	virtual FEdGraphPinType GetInputType(int32 PinIndex) const override;
	virtual void FollowLinks() override;
};

#pragma once

#include "K2Node_MakeContainer.h"

#include "K2Node_MakeArray.generated.h"

/** Makes an array of its elements. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MakeArray : public UK2Node_MakeContainer
{
	GENERATED_BODY()

public:
	UK2Node_MakeArray(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual FName GetOutputPinName() const override { return FName(TEXT("Array")); }
};

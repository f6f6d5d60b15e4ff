#pragma once

#include "K2Node_MakeContainer.h"

#include "K2Node_MakeSet.generated.h"

/** Makes a set of its elements. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MakeSet : public UK2Node_MakeContainer
{
	GENERATED_BODY()

public:
	UK2Node_MakeSet(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual FName GetOutputPinName() const override { return FName(TEXT("Set")); }
};

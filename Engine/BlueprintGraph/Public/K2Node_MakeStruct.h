#pragma once

#include "K2Node_StructMemberSet.h"

#include "K2Node_MakeStruct.generated.h"

/** Makes a struct of its members. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MakeStruct : public UK2Node_StructMemberSet
{
	GENERATED_BODY()

public:
	UPROPERTY()
	bool bMadeAfterOverridePinRemoval = true;

	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

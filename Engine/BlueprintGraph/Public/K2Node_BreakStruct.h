#pragma once

#include "K2Node_StructMemberGet.h"

#include "K2Node_BreakStruct.generated.h"

/** Takes a struct apart into its members. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_BreakStruct : public UK2Node_StructMemberGet
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

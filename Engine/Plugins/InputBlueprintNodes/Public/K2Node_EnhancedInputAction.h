#pragma once

#include "K2Node.h"

#include "K2Node_EnhancedInputAction.generated.h"

/** Events of an input action: when it starts, goes on, and ends. */
UCLASS()
class INPUTBLUEPRINTNODES_API UK2Node_EnhancedInputAction : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UObject> InputAction = nullptr;

	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
	virtual bool IsNodeRootSet() const override { return true; }
	virtual bool IsCompatibleWithGraph(const UEdGraph* TargetGraph) const override;
};

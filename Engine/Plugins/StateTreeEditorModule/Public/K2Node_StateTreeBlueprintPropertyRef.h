#pragma once

#include "K2Node.h"

#include "K2Node_StateTreeBlueprintPropertyRef.generated.h"

/** Reads what a property reference of a state tree node leads to. */
UCLASS()
class STATETREEEDITORMODULE_API UK2Node_StateTreeBlueprintPropertyRef : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

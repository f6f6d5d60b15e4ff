#pragma once

#include "K2Node.h"

#include "K2Node_GetNumEnumEntries.generated.h"

/** The number of values that an enumeration has. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetNumEnumEntries : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UEnum> Enum = nullptr;

	virtual bool HasKnownDefinition() const override { return IsKnownEnum(Enum); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
	virtual bool IsNodePure() const override { return true; }
};

#pragma once

#include "K2Node.h"

#include "K2Node_BitmaskLiteral.generated.h"

/** A set of flags, chosen one by one. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_BitmaskLiteral : public UK2Node
{
	GENERATED_BODY()

public:
	/** The enumeration whose values are the flags; null for flags that have no names. */
	UPROPERTY()
	TObjectPtr<UEnum> BitflagsEnum = nullptr;

	static const FName& GetBitmaskInputPinName();
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

#pragma once

#include "K2Node.h"

#include "K2Node_EnumEquality.generated.h"

/** Returns true if A is equal to B (A == B) */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_EnumEquality : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

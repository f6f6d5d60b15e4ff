#pragma once

#include "K2Node.h"

#include "K2Node_GetEnumeratorName.generated.h"

/** Gets the name of an enumeration's value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetEnumeratorName : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }

protected:
	virtual FName GetResultCategory() const { return UEdGraphSchema_K2::PC_Name; }

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

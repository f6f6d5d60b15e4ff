#pragma once

#include "K2Node.h"

#include "K2Node_UpdateVirtualSubjectDataBase.generated.h"

/** Gives a virtual subject new data. */
UCLASS(abstract)
class LIVELINKGRAPHNODE_API UK2Node_UpdateVirtualSubjectDataBase : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetStructPin() const { return FindPin(TEXT("Struct"), EGPD_Input); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

#pragma once

#include "K2Node.h"

#include "K2Node_IfThenElse.generated.h"

/** Branch Statement
 * If Condition is true, execution goes to True, otherwise it goes to False */
UCLASS(meta = (Keywords = "if bool"))
class BLUEPRINTGRAPH_API UK2Node_IfThenElse : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetConditionPin() const { return FindPin(UEdGraphSchema_K2::PN_Condition); }
	UEdGraphPin* GetElsePin() const { return FindPin(UEdGraphSchema_K2::PN_Else); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

#pragma once

#include "K2Node_MakeStruct.h"

#include "K2Node_SetFieldsInStruct.generated.h"

/** Sets some of a struct's members and leaves the others as they are. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SetFieldsInStruct : public UK2Node_MakeStruct
{
	GENERATED_BODY()

public:
	/** Shows a pin for the member, or takes it away. */
	void SetMemberVisible(FName MemberName, bool bVisible);
	virtual bool IsNodePure() const override { return false; }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

#pragma once

#include "K2Node.h"

#include "K2Node_MakeStateTreeReference.generated.h"

/** Makes a reference to a state tree. */
UCLASS()
class STATETREEEDITORMODULE_API UK2Node_MakeStateTreeReference : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetStateTreePin() const { return FindPin(TEXT("StateTree"), EGPD_Input); }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

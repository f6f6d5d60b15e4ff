#pragma once

#include "K2Node_ConstructObjectFromClass.h"

#include "K2Node_AddComponentByClass.generated.h"

/** Adds a component of a class that a pin names to an actor. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AddComponentByClass : public UK2Node_ConstructObjectFromClass
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetRelativeTransformPin() const { return FindPin(TEXT("RelativeTransform"), EGPD_Input); }
	UEdGraphPin* GetManualAttachmentPin() const { return FindPin(TEXT("bManualAttachment"), EGPD_Input); }

protected:
	virtual UClass* GetClassPinBaseClass() const override;
	virtual void CreateOwnPins() override;
	/** A component that is no part of the scene has no place and is attached to nothing. */
	virtual void CreatePinsForClass(const UClass* InClass) override;
	virtual FText GetBaseNodeTitle() const override;
	virtual FText GetNodeTitleFormat() const override;
	virtual FText GetNothingSelectedTitle() const override;

public:
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

#pragma once

#include "K2Node_ConstructObjectFromClass.h"

#include "K2Node_CreateWidget.generated.h"

/** Makes a widget of a class. */
UCLASS()
class UMGEDITOR_API UK2Node_CreateWidget : public UK2Node_ConstructObjectFromClass
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetOwningPlayerPin() const { return FindPin(TEXT("OwningPlayer"), EGPD_Input); }
	virtual FText GetMenuCategory() const override;

protected:
	virtual UClass* GetClassPinBaseClass() const override;
	virtual FText GetBaseNodeTitle() const override;
	virtual FText GetNodeTitleFormat() const override;
	virtual FText GetNothingSelectedTitle() const override;
	virtual void CreateOwnPins() override;
};

#pragma once

#include "K2Node.h"

#include "K2Node_Literal.generated.h"

/** A reference to an object of the level. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Literal : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UObject> ObjectRef = nullptr;

	UObject* GetObjectRef() const { return ObjectRef; }
	void SetObjectRef(UObject* NewValue) { ObjectRef = NewValue; }
	UEdGraphPin* GetValuePin() const { return Pins.Num() > 0 ? Pins[0] : nullptr; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

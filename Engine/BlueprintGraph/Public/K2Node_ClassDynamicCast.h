#pragma once

#include "K2Node_DynamicCast.h"

#include "K2Node_ClassDynamicCast.generated.h"

/** Tries to treat a class as one below another. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ClassDynamicCast : public UK2Node_DynamicCast
{
	GENERATED_BODY()

public:
	virtual UEdGraphPin* GetCastSourcePin() const override { return FindPin(GetSourcePinName(), EGPD_Input); }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual FName GetSourcePinName() const override { return FName(TEXT("Class")); }
	virtual void CreateResultPin() override;
	virtual bool CanCast(const FEdGraphPinType& Type) const override;
};

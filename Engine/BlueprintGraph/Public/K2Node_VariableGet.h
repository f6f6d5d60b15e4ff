#pragma once

#include "K2Node_Variable.h"

#include "K2Node_VariableGet.generated.h"

/** What a variable get does beside reading. */
UENUM()
enum class EGetNodeVariation : uint8
{
	Pure,
	ValidatedObject,
	Branch
};

/** Reads the value of a variable */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_VariableGet : public UK2Node_Variable
{
	GENERATED_BODY()

public:
	/** A get of a variable that may be null can check it first. */
	UPROPERTY()
	EGetNodeVariation CurrentVariation = EGetNodeVariation::Pure;

	UPROPERTY()
	bool bIsPureGet = true;

	virtual bool IsNodePure() const override { return bIsPureGet && CurrentVariation == EGetNodeVariation::Pure; }
	void SetPurity(bool bNewPurity);
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

#pragma once

#include "K2Node.h"
#include "UObject/Class.h"

#include "K2Node_CastByteToEnum.generated.h"

/** Takes a byte as a value of an enumeration */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CastByteToEnum : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UEnum> Enum = nullptr;

	/** A byte that is no value of the enumeration becomes its last one. */
	UPROPERTY()
	bool bSafe = false;

	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual bool HasKnownDefinition() const override { return IsKnownEnum(Enum); }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

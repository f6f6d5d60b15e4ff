#pragma once

#include "K2Node.h"
#include "UObject/Class.h"

#include "K2Node_ForEachElementInEnum.generated.h"

/** Executes the loop body once a value of an enumeration */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ForEachElementInEnum : public UK2Node
{
	GENERATED_BODY()

public:
	static const FName InsideLoopPinName;
	static const FName EnumOuputPinName;
	static const FName SkipHiddenPinName;
	UPROPERTY()
	TObjectPtr<UEnum> Enum = nullptr;

	virtual void AllocateDefaultPins() override;
	virtual bool HasKnownDefinition() const override { return IsKnownEnum(Enum); }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

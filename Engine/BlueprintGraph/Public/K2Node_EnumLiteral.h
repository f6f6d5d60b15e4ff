#pragma once

#include "K2Node.h"
#include "UObject/Class.h"

#include "K2Node_EnumLiteral.generated.h"

/** A value of an enumeration */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_EnumLiteral : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UEnum> Enum = nullptr;

	static const FName& GetEnumInputPinName();
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual bool HasKnownDefinition() const override { return IsKnownEnum(Enum); }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_CallFunctionOnMember.generated.h"

/** A call of a function on a variable of the Blueprint. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallFunctionOnMember : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FMemberReference MemberVariableToCallOn;

	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual UEdGraphPin* CreateSelfPin(const UFunction* Function) override;
};

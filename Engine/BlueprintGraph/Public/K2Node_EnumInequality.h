#pragma once

#include "K2Node_EnumEquality.h"

#include "K2Node_EnumInequality.generated.h"

/** Returns true if A is not equal to B (A != B) */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_EnumInequality : public UK2Node_EnumEquality
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

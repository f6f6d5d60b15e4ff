#pragma once

#include "K2Node_StructOperation.h"

#include "K2Node_StructMemberSet.generated.h"

/** A node that writes members of a struct, each by a pin that may be shown or not. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_StructMemberSet : public UK2Node_StructOperation
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FOptionalPinFromProperty> ShowPinForProperties;
};

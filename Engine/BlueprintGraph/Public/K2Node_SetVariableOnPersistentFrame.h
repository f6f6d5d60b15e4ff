#pragma once

#include "K2Node.h"

#include "K2Node_SetVariableOnPersistentFrame.generated.h"

/** Stores a value for the part of an event graph that goes on later. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SetVariableOnPersistentFrame : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

#pragma once

#include "K2Node_AddDelegate.h"

#include "K2Node_AssignDelegate.generated.h"

/** Binds a new event of the Blueprint to the dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AssignDelegate : public UK2Node_AddDelegate
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

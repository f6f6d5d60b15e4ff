#pragma once

#include "K2Node_AddDelegate.h"

#include "K2Node_AssignDelegate.generated.h"

class UK2Node_CustomEvent;

/** Binds a new event of the Blueprint to the dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AssignDelegate : public UK2Node_AddDelegate
{
	GENERATED_BODY()

public:
	/** Makes the event beside the node; it is bound as soon as the node has its pins. */
	virtual void PostPlacedNewNode() override;
	virtual void AllocateDefaultPins() override;
	virtual bool IsCompatibleWithGraph(const UEdGraph* TargetGraph) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

private:
	/** The event that waits for the node's pins. */
	TWeakObjectPtr<UK2Node_CustomEvent> NewEvent;
};

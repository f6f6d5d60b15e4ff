#pragma once

#include "K2Node.h"

#include "K2Node_Self.generated.h"

/** Gets a reference to this instance of the Blueprint */
UCLASS(meta = (Keywords = "This"))
class BLUEPRINTGRAPH_API UK2Node_Self : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

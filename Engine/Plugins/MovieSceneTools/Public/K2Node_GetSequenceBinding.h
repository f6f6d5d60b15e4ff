#pragma once

#include "K2Node.h"

#include "K2Node_GetSequenceBinding.generated.h"

/** A binding of a level sequence, to find or change what it is bound to. */
UCLASS()
class MOVIESCENETOOLS_API UK2Node_GetSequenceBinding : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

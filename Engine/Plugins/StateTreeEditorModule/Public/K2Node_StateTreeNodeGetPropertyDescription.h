#pragma once

#include "Engine/MemberReference.h"
#include "K2Node.h"

#include "K2Node_StateTreeNodeGetPropertyDescription.generated.h"

/** The text that describes a property of a state tree node, or what it is bound to. */
UCLASS()
class STATETREEEDITORMODULE_API UK2Node_StateTreeNodeGetPropertyDescription : public UK2Node
{
	GENERATED_BODY()

public:
	/** The property, one of the Blueprint's own. */
	UPROPERTY()
	FMemberReference Variable;

	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

#pragma once

#include "K2Node.h"
#include "Templates/SubclassOf.h"

#include "K2Node_DelegateSet.generated.h"

/** Binds what follows it to an object's dispatcher: the older form of assigning an event. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_DelegateSet : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName DelegatePropertyName;

	UPROPERTY()
	TSubclassOf<UObject> DelegatePropertyClass;

	/** Null while the dispatcher is not known. */
	UFunction* GetDelegateSignature() const;
	UEdGraphPin* GetDelegateOwner() const { return FindPin(DelegatePropertyName); }

	virtual bool HasKnownDefinition() const override;
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

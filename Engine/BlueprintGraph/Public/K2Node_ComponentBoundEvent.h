#pragma once

#include "K2Node_Event.h"

#include "K2Node_ComponentBoundEvent.generated.h"

class FMulticastDelegateProperty;
class FObjectProperty;

/** An event of one of the Blueprint's components. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ComponentBoundEvent : public UK2Node_Event
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName DelegatePropertyName;

	UPROPERTY()
	TObjectPtr<UClass> DelegateOwnerClass = nullptr;

	UPROPERTY()
	FName ComponentPropertyName;

	void InitializeComponentBoundEventParams(
		const FObjectProperty* InComponentProperty, const FMulticastDelegateProperty* InDelegateProperty);
	FMulticastDelegateProperty* GetTargetDelegateProperty() const { return FindDispatcher(DelegateOwnerClass, DelegatePropertyName); }
	FText GetTargetDelegateDisplayName() const { return GetDispatcherName(DelegateOwnerClass, DelegatePropertyName); }
	FName GetComponentPropertyName() const { return ComponentPropertyName; }
	virtual UFunction* FindEventSignatureFunction() const override;
	virtual bool CanDuplicateNode() const override { return false; }
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

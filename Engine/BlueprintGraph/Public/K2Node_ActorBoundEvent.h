#pragma once

#include "K2Node_Event.h"

#include "K2Node_ActorBoundEvent.generated.h"

class AActor;
class FMulticastDelegateProperty;

/** An event of an actor that stands in the level. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ActorBoundEvent : public UK2Node_Event
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName DelegatePropertyName;

	UPROPERTY()
	TObjectPtr<UClass> DelegateOwnerClass = nullptr;

	UPROPERTY()
	TObjectPtr<AActor> EventOwner = nullptr;

	/** Binds the event to a dispatcher of the actor. */
	void InitializeActorBoundEventParams(AActor* InEventOwner, const FMulticastDelegateProperty* InDelegateProperty);
	AActor* GetReferencedLevelActor() const { return EventOwner; }
	FMulticastDelegateProperty* GetTargetDelegateProperty() const { return FindDispatcher(DelegateOwnerClass, DelegatePropertyName); }
	FText GetTargetDelegateDisplayName() const { return GetDispatcherName(DelegateOwnerClass, DelegatePropertyName); }
	virtual UFunction* FindEventSignatureFunction() const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

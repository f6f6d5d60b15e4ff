// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "ActorComponent.generated.h"

DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorComponentActivatedSignature, UActorComponent, OnComponentActivated, UActorComponent*, Component, bool, bReset);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(
	FActorComponentDeactivateSignature, UActorComponent, OnComponentDeactivated, UActorComponent*, Component);

// Extends native
UCLASS()
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	/** Switches the component on. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void Activate(bool bReset = false);

	/** Switches the component off. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void Deactivate();

	/** Switches the component on or off. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void SetActive(bool bNewActive, bool bReset = false);

	/** True if the component is on. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	bool IsActive() const;

	/** Switches the component's tick. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void SetComponentTickEnabled(bool bEnabled);

	/** Actor that owns the component. */
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Keywords = "Actor Owning Parent"))
	AActor* GetOwner() const;

	/** True if the component has a tag. */
	UFUNCTION(BlueprintCallable, Category = "Components")
	bool ComponentHasTag(FName Tag) const;

	/** Ends the component. */
	UFUNCTION(BlueprintCallable, Category = "Components",
		meta = (Keywords = "Delete", DisplayName = "Destroy Component", ScriptName = "DestroyComponent"))
	void K2_DestroyComponent(UObject* Object);

	/** Play begins for the component. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Begin Play"))
	void ReceiveBeginPlay();

	/** Play ends for the component. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "End Play"))
	void ReceiveEndPlay(EEndPlayReason::Type EndPlayReason);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);

	UPROPERTY(BlueprintAssignable, Category = "Components|Activation")
	FActorComponentActivatedSignature OnComponentActivated;

	UPROPERTY(BlueprintAssignable, Category = "Components|Activation")
	FActorComponentDeactivateSignature OnComponentDeactivated;

	/** Switches the component on if it is off and off if it is on. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void ToggleActive();

	/** Whether the component is on from the start. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void SetAutoActivate(bool bNewAutoActivate);

	/** Whether the component ticks while the game is paused. */
	UFUNCTION(BlueprintCallable, Category = "Components")
	void SetTickableWhenPaused(bool bTickableWhenPaused);

	/** True if it is being destroyed. */
	UFUNCTION(BlueprintPure, Category = "Components")
	bool IsBeingDestroyed() const;

	/** True if the component ticks. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	bool IsComponentTickEnabled() const;

	/** Seconds between ticks. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void SetComponentTickInterval(float TickInterval);

	/** Seconds between ticks, from now on. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void SetComponentTickIntervalAndCooldown(float TickInterval);

	/** Seconds between ticks. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	float GetComponentTickInterval() const;

	/** When in a frame the component ticks. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void SetTickGroup(TEnumAsByte<ETickingGroup> NewTickGroup);

	/** Ticks after an actor. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void AddTickPrerequisiteActor(AActor* PrerequisiteActor);

	/** Ticks after a component. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void AddTickPrerequisiteComponent(UActorComponent* PrerequisiteComponent);

	/** Does not wait for an actor any more. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void RemoveTickPrerequisiteActor(AActor* PrerequisiteActor);

	/** Does not wait for a component any more. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void RemoveTickPrerequisiteComponent(UActorComponent* PrerequisiteComponent);

	/** Whether the component is sent to clients. */
	UFUNCTION(BlueprintCallable, Category = "Networking")
	void SetIsReplicated(bool ShouldReplicate);
};

#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Templates/Casts.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "ActorComponent.generated.h"

class AActor;
class UActorComponent;
class ULevel;
class UWorld;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorComponentActivatedSignature, UActorComponent*, Component, bool, bReset);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FActorComponentDeactivateSignature, UActorComponent*, Component);

/** A part of an actor. */
UCLASS(DefaultToInstanced, BlueprintType, abstract,
	meta = (ShortTooltip = "An ActorComponent is a reusable component that can be added to any actor."), config = Engine,
	HideCategories = (Activation, "Components|Activation"))
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	UActorComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY(EditDefaultsOnly, Category = "ComponentTick")
	FActorComponentTickFunction PrimaryComponentTick;

	/** Words that gameplay finds the component by. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Tags)
	TArray<FName> ComponentTags;

	/** What the component of a parent is given may be changed in its children. */
	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "Variable")
	uint8 bEditableWhenInherited : 1;

	/** The component is active from the start. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Activation)
	uint8 bAutoActivate : 1;

	/** The server keeps what is replicated of the component the same on its clients. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = ComponentReplication, meta = (DisplayName = "Component Replicates"))
	uint8 bReplicates : 1;

	UPROPERTY(EditDefaultsOnly, Category = Variable)
	uint8 bIsEditorOnly : 1;

	UPROPERTY()
	EComponentCreationMethod CreationMethod = EComponentCreationMethod::Native;

	/** Called when the component has become active. */
	UPROPERTY(BlueprintAssignable, Category = "Components|Activation")
	FActorComponentActivatedSignature OnComponentActivated;

	/** Called when the component has become inactive. */
	UPROPERTY(BlueprintAssignable, Category = "Components|Activation")
	FActorComponentDeactivateSignature OnComponentDeactivated;

	/** The actor that this is a part of: the nearest actor it is outered to. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Components", meta = (Keywords = "Actor Owning Parent"))
	AActor* GetOwner() const;

	virtual UWorld* GetWorld() const override;
	virtual void PostEditUndo() override;
	ULevel* GetComponentLevel() const;

	/** True if the tag is among the tags of the component. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Components")
	bool ComponentHasTag(FName Tag) const;

	/** True while the component does its work. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Components|Activation")
	bool IsActive() const { return bIsActive; }

	/** Starts the component; one that is active already starts again only with Reset. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void Activate(bool bReset = false);

	/** Stops the component. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void Deactivate();

	/** Starts or stops the component; one that is active already starts again only with Reset. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void SetActive(bool bNewActive, bool bReset = false);

	/** Removes the component from its actor. */
	UFUNCTION(BlueprintCallable, Category = "Components",
		meta = (Keywords = "Delete", DisplayName = "Destroy Component", ScriptName = "DestroyComponent"))
	void K2_DestroyComponent(UObject* Object);

	/** When play begins for the component. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Begin Play"))
	void ReceiveBeginPlay();

	/** When the component leaves play, and why. */
	UFUNCTION(BlueprintImplementableEvent, meta = (Keywords = "delete", DisplayName = "End Play"))
	void ReceiveEndPlay(EEndPlayReason::Type EndPlayReason);

	/** Every frame that the component ticks, with the seconds that have passed since the one before. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);

	void RegisterComponent();
	void UnregisterComponent();
	bool IsRegistered() const { return bRegistered; }
	virtual void DestroyComponent(bool bPromoteChildren = false);
	virtual void OnRegister() { bRegistered = true; }
	virtual void OnUnregister() { bRegistered = false; }
	bool IsVisualizationComponent() const { return false; }

private:
	UPROPERTY(Transient)
	uint8 bIsActive : 1;

	uint8 bRegistered : 1;
};

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
UCLASS(DefaultToInstanced, BlueprintType, abstract, meta = (ShortTooltip = "An ActorComponent is a reusable component that can be added to any actor."), config = Engine, HideCategories = (Activation, "Components|Activation"))
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

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "Variable")
	uint8 bEditableWhenInherited : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Activation)
	uint8 bAutoActivate : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = ComponentReplication, meta = (DisplayName = "Component Replicates"))
	uint8 bReplicates : 1;

	UPROPERTY(EditDefaultsOnly, Category = Variable)
	uint8 bIsEditorOnly : 1;

	UPROPERTY()
	EComponentCreationMethod CreationMethod = EComponentCreationMethod::Native;

	UPROPERTY(BlueprintAssignable, Category = "Components|Activation")
	FActorComponentActivatedSignature OnComponentActivated;

	UPROPERTY(BlueprintAssignable, Category = "Components|Activation")
	FActorComponentDeactivateSignature OnComponentDeactivated;

	/** The actor that this is a part of: the nearest actor it is outered to. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Components", meta = (Keywords = "Actor Owning Parent"))
	AActor* GetOwner() const;

	virtual UWorld* GetWorld() const override;
	virtual void PostEditUndo() override;
	ULevel* GetComponentLevel() const;

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Components")
	bool ComponentHasTag(FName Tag) const;

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Components|Activation")
	bool IsActive() const { return bIsActive; }

	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void Activate(bool bReset = false);

	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void Deactivate();

	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	virtual void SetActive(bool bNewActive, bool bReset = false);

	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Keywords = "Delete", DisplayName = "Destroy Component", ScriptName = "DestroyComponent"))
	void K2_DestroyComponent(UObject* Object);

	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Begin Play"))
	void ReceiveBeginPlay();

	UFUNCTION(BlueprintImplementableEvent, meta = (Keywords = "delete", DisplayName = "End Play"))
	void ReceiveEndPlay(EEndPlayReason::Type EndPlayReason);

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

#pragma once

#include "Components/ActorComponent.h"
#include "CoreMinimal.h"

#include "SceneComponent.generated.h"

struct FAttachmentTransformRules;
struct FDetachmentTransformRules;

/** A component with a place, which other components can hang from. Locations are centimetres, rotations degrees. */
UCLASS(ClassGroup = (Utility, Common), BlueprintType, hidecategories = (Trigger, PhysicsVolume), meta = (BlueprintSpawnableComponent))
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	USceneComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

private:
	UPROPERTY()
	TObjectPtr<USceneComponent> AttachParent = nullptr;

	UPROPERTY()
	FName AttachSocketName;

	UPROPERTY(Transient)
	TArray<TObjectPtr<USceneComponent>> AttachChildren;

	/** Where the component is, seen from what it is attached to. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform,
		meta = (AllowPrivateAccess = "true", LinearDeltaSensitivity = "1", Delta = "1.0"))
	FVector RelativeLocation = FVector::ZeroVector;

	/** How the component is turned against what it is attached to. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FRotator RelativeRotation = FRotator::ZeroRotator;

	/** The scale of the component against what it is attached to. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FVector RelativeScale3D = FVector::OneVector;

	UPROPERTY()
	uint8 bAbsoluteLocation : 1;

	UPROPERTY()
	uint8 bAbsoluteRotation : 1;

	UPROPERTY()
	uint8 bAbsoluteScale : 1;

	/** The component is drawn. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering, meta = (AllowPrivateAccess = "true"))
	uint8 bVisible : 1;

public:
	/** Not drawn while the game runs. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering)
	uint8 bHiddenInGame : 1;

	/** Whether the component may move while the game runs, which decides how it is lit. */
	UPROPERTY(Category = Mobility, EditAnywhere, BlueprintReadOnly)
	TEnumAsByte<EComponentMobility::Type> Mobility = EComponentMobility::Movable;

	/** The component that this one is attached to, or none. */
	UFUNCTION(BlueprintPure, BlueprintCallable, Category = "Components")
	USceneComponent* GetAttachParent() const { return AttachParent; }

	/** The socket of its parent that the component is attached at. */
	UFUNCTION(BlueprintPure, BlueprintCallable, Category = "Components")
	FName GetAttachSocketName() const { return AttachSocketName; }

	const TArray<TObjectPtr<USceneComponent>>& GetAttachChildren() const { return AttachChildren; }
	FVector GetRelativeLocation() const { return RelativeLocation; }
	FRotator GetRelativeRotation() const { return RelativeRotation; }
	FVector GetRelativeScale3D() const { return RelativeScale3D; }

	/** Place, rotation and scale of the component, seen from what it is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FTransform GetRelativeTransform() const;

	void SetRelativeLocation(FVector NewLocation);
	void SetRelativeRotation(FRotator NewRotation);

	/** Sets the scale of the component against what it is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetRelativeScale3D(FVector NewScale3D);

	void SetRelativeTransform(const FTransform& NewTransform);

	/** Where the component is, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure,
		meta = (DisplayName = "Get World Location", ScriptName = "GetWorldLocation", Keywords = "position"), Category = "Transformation")
	FVector K2_GetComponentLocation() const;

	/** How the component is turned, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Rotation", ScriptName = "GetWorldRotation"),
		Category = "Transformation")
	FRotator K2_GetComponentRotation() const;

	/** The scale of the component, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Scale", ScriptName = "GetWorldScale"),
		Category = "Transformation")
	FVector K2_GetComponentScale() const;

	/** Place, rotation and scale of the component, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Transform", ScriptName = "GetWorldTransform"),
		Category = "Transformation")
	FTransform K2_GetComponentToWorld() const;

	/** Where the component stands in the world, as of this call; the reference is good until the next one for this component. */
	const FTransform& GetComponentTransform() const;
	FVector GetComponentLocation() const { return K2_GetComponentLocation(); }
	FRotator GetComponentRotation() const { return K2_GetComponentRotation(); }

	/** The direction of length one that the component looks to (X), in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetForwardVector() const;

	/** The direction of length one to the right of the component (Y), in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetRightVector() const;

	/** The direction of length one above the component (Z), in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetUpVector() const;

	/** Places the component so that it stands there in the world, whatever it hangs from. */
	void SetWorldTransform(const FTransform& NewTransform);

	/** True if the component is drawn. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Rendering")
	virtual bool IsVisible() const { return bVisible; }

	/** Shows or hides the component, and with Propagate to Children what is attached to it. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetVisibility(bool bNewVisibility, bool bPropagateToChildren = false);

	/** Hangs this component below another when it is registered; for constructors. */
	void SetupAttachment(USceneComponent* InParent, FName InSocketName = NAME_None);
	/** Keeps the relative transform. False when it would make a circle. */
	bool AttachToComponent(USceneComponent* InParent, const FAttachmentTransformRules& AttachmentRules, FName InSocketName = NAME_None);
	void DetachFromComponent(const FDetachmentTransformRules& DetachmentRules);
	bool IsAttachedTo(const USceneComponent* TestComp) const;

	static FName GetRelativeLocationPropertyName();
	static FName GetRelativeRotationPropertyName();
	static FName GetRelativeScale3DPropertyName();

private:
	/** The last answer of GetComponentTransform. */
	mutable FTransform ComponentToWorld;
};

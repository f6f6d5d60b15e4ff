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

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true", LinearDeltaSensitivity = "1", Delta = "1.0"))
	FVector RelativeLocation = FVector::ZeroVector;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FRotator RelativeRotation = FRotator::ZeroRotator;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Transform, meta = (AllowPrivateAccess = "true"))
	FVector RelativeScale3D = FVector::OneVector;

	UPROPERTY()
	uint8 bAbsoluteLocation : 1;

	UPROPERTY()
	uint8 bAbsoluteRotation : 1;

	UPROPERTY()
	uint8 bAbsoluteScale : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering, meta = (AllowPrivateAccess = "true"))
	uint8 bVisible : 1;

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = Rendering)
	uint8 bHiddenInGame : 1;

	UPROPERTY(Category = Mobility, EditAnywhere, BlueprintReadOnly)
	TEnumAsByte<EComponentMobility::Type> Mobility = EComponentMobility::Movable;

	UFUNCTION(BlueprintPure, BlueprintCallable, Category = "Components")
	USceneComponent* GetAttachParent() const { return AttachParent; }

	UFUNCTION(BlueprintPure, BlueprintCallable, Category = "Components")
	FName GetAttachSocketName() const { return AttachSocketName; }

	const TArray<TObjectPtr<USceneComponent>>& GetAttachChildren() const { return AttachChildren; }
	FVector GetRelativeLocation() const { return RelativeLocation; }
	FRotator GetRelativeRotation() const { return RelativeRotation; }
	FVector GetRelativeScale3D() const { return RelativeScale3D; }

	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FTransform GetRelativeTransform() const;

	void SetRelativeLocation(FVector NewLocation);
	void SetRelativeRotation(FRotator NewRotation);

	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetRelativeScale3D(FVector NewScale3D);

	void SetRelativeTransform(const FTransform& NewTransform);

	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Location", ScriptName = "GetWorldLocation", Keywords = "position"), Category = "Transformation")
	FVector K2_GetComponentLocation() const;

	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Rotation", ScriptName = "GetWorldRotation"), Category = "Transformation")
	FRotator K2_GetComponentRotation() const;

	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Scale", ScriptName = "GetWorldScale"), Category = "Transformation")
	FVector K2_GetComponentScale() const;

	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get World Transform", ScriptName = "GetWorldTransform"), Category = "Transformation")
	FTransform K2_GetComponentToWorld() const;

	/** Where the component stands in the world, as of this call; the reference is good until the next one for this component. */
	const FTransform& GetComponentTransform() const;
	FVector GetComponentLocation() const { return K2_GetComponentLocation(); }
	FRotator GetComponentRotation() const { return K2_GetComponentRotation(); }

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetForwardVector() const;

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetRightVector() const;

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetUpVector() const;

	/** Places the component so that it stands there in the world, whatever it hangs from. */
	void SetWorldTransform(const FTransform& NewTransform);

	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Rendering")
	virtual bool IsVisible() const { return bVisible; }

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

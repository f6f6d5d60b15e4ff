// Package: /Script/Engine
#pragma once

#include "ActorComponent.h"
#include "SceneComponent.h"
#include "PhysicsComponents.generated.h"

/** Which body of a joint. */
UENUM(BlueprintType)
namespace EConstraintFrame
{
enum Type : int
{
	Frame1,
	Frame2
};
}

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FConstraintBrokenSignature, int32, ConstraintIndex);

/** How a surface behaves in physics. */
UCLASS(BlueprintType)
class ENGINE_API UPhysicalMaterial : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicalMaterial")
	float Friction = 0.7f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicalMaterial")
	float Restitution = 0.3f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicalMaterial")
	float Density = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "PhysicalProperties")
	TEnumAsByte<EPhysicalSurface> SurfaceType;
};

/** Grabs bodies and moves them. */
UCLASS(collapsecategories, ClassGroup = Physics, hidecategories = Object, meta = (BlueprintSpawnableComponent))
class ENGINE_API UPhysicsHandleComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	float LinearDamping = 200.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	float LinearStiffness = 750.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	float AngularDamping = 500.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	float AngularStiffness = 1500.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	float InterpolationSpeed = 50.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	uint8 bSoftAngularConstraint : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	uint8 bSoftLinearConstraint : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PhysicsHandle")
	uint8 bInterpolateTarget : 1;

	/** Grabs a body, which may turn. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void GrabComponentAtLocation(UPrimitiveComponent* Component, FName InBoneName, FVector GrabLocation);

	/** Grabs a body with its rotation. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void GrabComponentAtLocationWithRotation(UPrimitiveComponent* Component, FName InBoneName, FVector Location, FRotator Rotation);

	/** Lets go. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void ReleaseComponent();

	/** The grabbed component. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	UPrimitiveComponent* GetGrabbedComponent() const;

	/** Sets the target location. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetTargetLocation(FVector NewLocation);

	/** Sets the target rotation. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetTargetRotation(FRotator NewRotation);

	/** Sets the target location and rotation. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetTargetLocationAndRotation(FVector NewLocation, FRotator NewRotation);

	/** The target location and rotation. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void GetTargetLocationAndRotation(FVector& TargetLocation, FRotator& TargetRotation) const;

	/** Sets the linear damping. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetLinearDamping(float NewLinearDamping);

	/** Sets the linear stiffness. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetLinearStiffness(float NewLinearStiffness);

	/** Sets the angular damping. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetAngularDamping(float NewAngularDamping);

	/** Sets the angular stiffness. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetAngularStiffness(float NewAngularStiffness);

	/** Sets the interpolation speed. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsHandle")
	void SetInterpolationSpeed(float NewInterpolationSpeed);
};

/** A joint between two bodies. */
UCLASS(
	ClassGroup = Physics, meta = (BlueprintSpawnableComponent), HideCategories = (Activation, "Components|Activation", Physics, Mobility))
class ENGINE_API UPhysicsConstraintComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Constraint")
	TObjectPtr<AActor> ConstraintActor1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Constraint")
	TObjectPtr<AActor> ConstraintActor2;

	UPROPERTY(BlueprintAssignable, Category = "Constraint")
	FConstraintBrokenSignature OnConstraintBroken;

	UPROPERTY(BlueprintAssignable, Category = "Constraint")
	FPlasticDeformationEventSignature OnPlasticDeformation;

	/** Breaks the joint. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void BreakConstraint();

	/** True if it is broken. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	bool IsBroken();

	/** Sets the bodies of the joint. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetConstrainedComponents(UPrimitiveComponent* Component1, FName BoneName1, UPrimitiveComponent* Component2, FName BoneName2);

	/** The constrained components. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void GetConstrainedComponents(
		UPrimitiveComponent*& OutComponent1, FName& OutBoneName1, UPrimitiveComponent*& OutComponent2, FName& OutBoneName2);

	/** Sets the disable collision. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetDisableCollision(bool bDisableCollision);

	/** Sets the linear position drive. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearPositionDrive(bool bEnableDriveX, bool bEnableDriveY, bool bEnableDriveZ);

	/** Sets the linear velocity drive. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearVelocityDrive(bool bEnableDriveX, bool bEnableDriveY, bool bEnableDriveZ);

	/** Sets the linear position target. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearPositionTarget(const FVector& InPosTarget);

	/** Sets the linear velocity target. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearVelocityTarget(const FVector& InVelTarget);

	/** Sets the linear drive params. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearDriveParams(float PositionStrength, float VelocityStrength, float InForceLimit);

	/** Sets the linear x limit. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearXLimit(ELinearConstraintMotion ConstraintType, float LimitSize);

	/** Sets the linear y limit. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearYLimit(ELinearConstraintMotion ConstraintType, float LimitSize);

	/** Sets the linear z limit. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearZLimit(ELinearConstraintMotion ConstraintType, float LimitSize);

	/** Sets the linear breakable. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetLinearBreakable(bool bLinearBreakable, float LinearBreakThreshold);

	/** Sets the angular orientation drive. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularOrientationDrive(bool bEnableSwingDrive, bool bEnableTwistDrive);

	/** Sets the angular velocity drive. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularVelocityDrive(bool bEnableSwingDrive, bool bEnableTwistDrive);

	/** Sets the angular orientation target. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularOrientationTarget(const FRotator& InPosTarget);

	/** Sets the angular velocity target. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularVelocityTarget(const FVector& InVelTarget);

	/** Sets the angular drive mode. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularDriveMode(EAngularDriveMode::Type DriveMode);

	/** Sets the angular drive params. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularDriveParams(float PositionStrength, float VelocityStrength, float InForceLimit);

	/** Sets the angular swing1 limit. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularSwing1Limit(EAngularConstraintMotion MotionType, float Swing1LimitAngle);

	/** Sets the angular swing2 limit. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularSwing2Limit(EAngularConstraintMotion MotionType, float Swing2LimitAngle);

	/** Sets the angular twist limit. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularTwistLimit(EAngularConstraintMotion ConstraintType, float TwistLimitAngle);

	/** Sets the angular breakable. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetAngularBreakable(bool bAngularBreakable, float AngularBreakThreshold);

	/** Sets the constraint reference position. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetConstraintReferencePosition(EConstraintFrame::Type Frame, const FVector& RefPosition);

	/** Sets the constraint reference orientation. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void SetConstraintReferenceOrientation(EConstraintFrame::Type Frame, const FVector& PriAxis, const FVector& SecAxis);

	/** The constraint force. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	void GetConstraintForce(FVector& OutLinearForce, FVector& OutAngularForce);

	/** The current twist. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	float GetCurrentTwist() const;

	/** The current swing1. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	float GetCurrentSwing1() const;

	/** The current swing2. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|PhysicsConstraint")
	float GetCurrentSwing2() const;
};

/** Pushes what it is attached to. */
UCLASS(hidecategories = (Object, Mobility, LOD), ClassGroup = Physics, showcategories = Trigger, meta = (BlueprintSpawnableComponent))
class ENGINE_API UPhysicsThrusterComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Physics")
	float ThrustStrength = 100.f;
};

/** Pushes everything around it. */
UCLASS(
	hidecategories = (Object, Mobility, LOD, Physics), ClassGroup = Physics, showcategories = Trigger, meta = (BlueprintSpawnableComponent))
class ENGINE_API URadialForceComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "RadialForceComponent")
	float Radius = 200.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialForceComponent")
	TEnumAsByte<ERadialImpulseFalloff> Falloff;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "RadialForceComponent")
	float ImpulseStrength = 1000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialForceComponent")
	uint8 bImpulseVelChange : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialForceComponent")
	uint8 bIgnoreOwningActor : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "RadialForceComponent")
	float ForceStrength = 10.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "RadialForceComponent")
	float DestructibleDamage = 0.f;

	/** Pushes once. */
	UFUNCTION(BlueprintCallable, Category = "Physics|Components|RadialForce")
	void FireImpulse();

	UFUNCTION(BlueprintCallable, Category = "Physics|Components|RadialForce")
	void AddObjectTypeToAffect(TEnumAsByte<EObjectTypeQuery> ObjectType);

	UFUNCTION(BlueprintCallable, Category = "Physics|Components|RadialForce")
	void RemoveObjectTypeToAffect(TEnumAsByte<EObjectTypeQuery> ObjectType);
};

/** Bodies and joints of a skeleton. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UPhysicsAsset : public UObject
{
	GENERATED_BODY()
};

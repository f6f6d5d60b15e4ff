// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "EngineStructs.generated.h"

/** A vector that keeps one digit behind the point when it is sent. */
USTRUCT(noexport, BlueprintType)
struct FVector_NetQuantize10 : public FVector
{
	GENERATED_BODY()
};

/** A vector that keeps two digits behind the point when it is sent. */
USTRUCT(noexport, BlueprintType)
struct FVector_NetQuantize100 : public FVector
{
	GENERATED_BODY()
};

/** Name of a collision profile. */
USTRUCT(BlueprintType)
struct FCollisionProfileName
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Collision")
	FName Name;
};

/** Answers to all collision channels. */
USTRUCT(BlueprintType)
struct FCollisionResponseContainer
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "WorldStatic"))
	TEnumAsByte<ECollisionResponse> WorldStatic;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "WorldDynamic"))
	TEnumAsByte<ECollisionResponse> WorldDynamic;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "Pawn"))
	TEnumAsByte<ECollisionResponse> Pawn;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "Visibility"))
	TEnumAsByte<ECollisionResponse> Visibility;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "Camera"))
	TEnumAsByte<ECollisionResponse> Camera;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "PhysicsBody"))
	TEnumAsByte<ECollisionResponse> PhysicsBody;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "Vehicle"))
	TEnumAsByte<ECollisionResponse> Vehicle;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CollisionResponseContainer", meta = (DisplayName = "Destructible"))
	TEnumAsByte<ECollisionResponse> Destructible;
};

/** Physics settings of a body. */
USTRUCT(BlueprintType)
struct FBodyInstance
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Physics")
	uint8 bSimulatePhysics : 1;

	UPROPERTY(EditAnywhere, Category = "Physics")
	uint8 bEnableGravity : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Physics")
	float LinearDamping = 0.01f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Physics")
	float AngularDamping = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Physics")
	FVector COMNudge;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Physics")
	float MassScale = 1.f;
};

/** Which lights reach a component. */
USTRUCT(BlueprintType)
struct FLightingChannels
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lighting")
	uint8 bChannel0 : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lighting")
	uint8 bChannel1 : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lighting")
	uint8 bChannel2 : 1;
};

/** What a camera sees. */
USTRUCT(BlueprintType)
struct FMinimalViewInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	FVector Location;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	FRotator Rotation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float FOV = 90.f;

	UPROPERTY(BlueprintReadWrite, Category = "Camera")
	float DesiredFOV = 90.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float OrthoWidth = 512.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float OrthoNearClipPlane = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float OrthoFarClipPlane = 2097152.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float AspectRatio = 1.333333f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	uint8 bConstrainAspectRatio : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	uint8 bUseFieldOfViewForLOD : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	TEnumAsByte<ECameraProjectionMode::Type> ProjectionMode;

	UPROPERTY(BlueprintReadWrite, Category = "Camera")
	float PostProcessBlendWeight = 0.f;

	UPROPERTY(BlueprintReadWrite, Category = "Camera")
	FPostProcessSettings PostProcessSettings;
};

USTRUCT(BlueprintType)
struct FWeightedBlendable
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcess")
	float Weight = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcess")
	TObjectPtr<UObject> Object;
};

USTRUCT(BlueprintType)
struct FWeightedBlendables
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcess")
	TArray<FWeightedBlendable> Array;
};

/** Effects over the whole picture. */
USTRUCT(BlueprintType)
struct FPostProcessSettings
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_BloomIntensity : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_AutoExposureBias : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_VignetteIntensity : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_MotionBlurAmount : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_DepthOfFieldFocalDistance : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_SceneFringeIntensity : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_ColorSaturation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Overrides")
	uint8 bOverride_SceneColorTint : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Bloom")
	float BloomIntensity = 0.675f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Bloom")
	float BloomThreshold = -1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Exposure")
	float AutoExposureBias = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Exposure")
	float AutoExposureMinBrightness = -10.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Exposure")
	float AutoExposureMaxBrightness = 20.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Image Effects")
	float VignetteIntensity = 0.4f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Image Effects")
	float Sharpen = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Rendering Features|Motion Blur")
	float MotionBlurAmount = 0.5f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Rendering Features|Motion Blur")
	float MotionBlurMax = 5.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Depth of Field")
	float DepthOfFieldFocalDistance = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Depth of Field")
	float DepthOfFieldFstop = 4.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Lens|Chromatic Aberration")
	float SceneFringeIntensity = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Color Grading|Global")
	FVector4 ColorSaturation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Color Grading|Global")
	FVector4 ColorContrast;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Color Grading|Global")
	FVector4 ColorGamma;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Color Grading|Global")
	FVector4 ColorGain;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Color Grading|Global")
	FVector4 ColorOffset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Color Grading|Misc")
	FLinearColor SceneColorTint;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering Features|Post Process Materials")
	FWeightedBlendables WeightedBlendables;
};

/** How the view changes. */
USTRUCT(BlueprintType)
struct FViewTargetTransitionParams
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ViewTargetTransitionParams")
	float BlendTime = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ViewTargetTransitionParams")
	TEnumAsByte<EViewTargetBlendFunction> BlendFunction;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ViewTargetTransitionParams")
	float BlendExp = 2.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ViewTargetTransitionParams")
	uint8 bLockOutgoing : 1;
};

/** Damage that was dealt. */
USTRUCT(BlueprintType)
struct FDamageEvent
{
	GENERATED_BODY()
};

/** How damage falls with distance. */
USTRUCT(BlueprintType)
struct FRadialDamageParams
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialDamageParams")
	float BaseDamage = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialDamageParams")
	float MinimumDamage = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialDamageParams")
	float InnerRadius = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialDamageParams")
	float OuterRadius = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RadialDamageParams")
	float DamageFalloff = 1.f;
};

/** A point of a projectile's way. */
USTRUCT(BlueprintType)
struct FPredictProjectilePathPointData
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathPointData")
	FVector Location;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathPointData")
	FVector Velocity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathPointData")
	float Time = 0.f;
};

/** How a projectile's way is foretold. */
USTRUCT(BlueprintType)
struct FPredictProjectilePathParams
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	FVector StartLocation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	FVector LaunchVelocity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	bool bTraceWithCollision = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	float ProjectileRadius = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	float MaxSimTime = 2.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	bool bTraceWithChannel = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	TEnumAsByte<ECollisionChannel> TraceChannel;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	TArray<TEnumAsByte<EObjectTypeQuery>> ObjectTypes;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	TArray<TObjectPtr<AActor>> ActorsToIgnore;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	float SimFrequency = 20.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	float OverrideGravityZ = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	TEnumAsByte<EDrawDebugTrace::Type> DrawDebugType;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	float DrawDebugTime = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathParams")
	bool bTraceComplex = false;
};

/** How a projectile will fly. */
USTRUCT(BlueprintType)
struct FPredictProjectilePathResult
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathResult")
	TArray<FPredictProjectilePathPointData> PathData;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathResult")
	FPredictProjectilePathPointData LastTraceDestination;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PredictProjectilePathResult")
	FHitResult HitResult;
};

/** A text that is shown while a sound plays. */
USTRUCT(BlueprintType)
struct FSubtitleCue
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SubtitleCue")
	FText Text;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SubtitleCue")
	float Time = 0.f;
};

/** Who speaks to whom. */
USTRUCT(BlueprintType)
struct FDialogueContext
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DialogueContext")
	TObjectPtr<UDialogueVoice> Speaker;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "DialogueContext")
	TArray<TObjectPtr<UDialogueVoice>> Targets;
};

USTRUCT(BlueprintType)
struct FActiveForceFeedbackEffect
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FForceFeedbackParameters
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FURL
{
	GENERATED_BODY()
};

/** Identifier of a player on the network. */
USTRUCT(BlueprintType)
struct FUniqueNetIdRepl
{
	GENERATED_BODY()
};

/** A user of the platform. */
USTRUCT(BlueprintType)
struct FPlatformUserId
{
	GENERATED_BODY()
};

/** An input device. */
USTRUCT(BlueprintType)
struct FInputDeviceId
{
	GENERATED_BODY()
};

/** A component's own limit for slopes to walk on. */
USTRUCT(BlueprintType)
struct FWalkableSlopeOverride
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "WalkableSlopeOverride")
	TEnumAsByte<EWalkableSlopeBehavior> WalkableSlopeBehavior;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "WalkableSlopeOverride")
	float WalkableSlopeAngle = 0.f;
};

/** A component of an actor, by name. */
USTRUCT(BlueprintType)
struct FComponentReference
{
	GENERATED_BODY()

	UPROPERTY(EditInstanceOnly, BlueprintReadWrite, Category = "Component")
	TSoftObjectPtr<AActor> OtherActor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Component")
	FName ComponentProperty;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Component")
	FString PathToComponent;
};

/** Movement that is sent to clients. */
USTRUCT(BlueprintType)
struct FRepMovement
{
	GENERATED_BODY()

	UPROPERTY(EditDefaultsOnly)
	FVector LinearVelocity;

	UPROPERTY(EditDefaultsOnly)
	FVector AngularVelocity;

	UPROPERTY(EditDefaultsOnly)
	FVector Location;

	UPROPERTY(EditDefaultsOnly)
	FRotator Rotation;
};

USTRUCT(BlueprintType)
struct FOverlapInfo
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FBasedMovementInfo
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "BasedMovementInfo")
	TObjectPtr<UPrimitiveComponent> MovementBase;

	UPROPERTY(BlueprintReadOnly, Category = "BasedMovementInfo")
	FName BoneName;

	UPROPERTY(BlueprintReadOnly, Category = "BasedMovementInfo")
	FVector Location;

	UPROPERTY(BlueprintReadOnly, Category = "BasedMovementInfo")
	FRotator Rotation;
};

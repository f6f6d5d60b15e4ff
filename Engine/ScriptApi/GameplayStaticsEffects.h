// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "GameplayStaticsEffects.generated.h"

// Continues
UCLASS()
class ENGINE_API UGameplayStatics : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Sets how fast time passes; 1 is normal. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static void SetGlobalTimeDilation(const UObject* WorldContextObject, float TimeDilation);

	/** How fast time passes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetGlobalTimeDilation(const UObject* WorldContextObject);

	/** Seconds of the last frame. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetWorldDeltaSeconds(const UObject* WorldContextObject);

	/** Seconds since play began, with time dilation, without pauses. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetTimeSeconds(const UObject* WorldContextObject);

	/** Seconds since play began, without time dilation and pauses. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetRealTimeSeconds(const UObject* WorldContextObject);

	/** The parts of a hit. */
	UFUNCTION(BlueprintPure, Category = "Collision", meta = (NativeBreakFunc, AdvancedDisplay = "3"))
	static void BreakHitResult(const FHitResult& Hit, bool& bBlockingHit, bool& bInitialOverlap, float& Time, float& Distance,
		FVector& Location, FVector& ImpactPoint, FVector& Normal, FVector& ImpactNormal, UPhysicalMaterial*& PhysMat, AActor*& HitActor,
		UPrimitiveComponent*& HitComponent, FName& HitBoneName, FName& BoneName, int32& HitItem, int32& ElementIndex, int32& FaceIndex,
		FVector& TraceStart, FVector& TraceEnd);

	/** Shakes the cameras around a place. */
	UFUNCTION(BlueprintCallable, Category = "Camera", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static void PlayWorldCameraShake(const UObject* WorldContextObject, TSubclassOf<UCameraShakeBase> Shake, FVector Epicenter,
		float InnerRadius, float OuterRadius, float Falloff = 1.f, bool bOrientShakeTowardsEpicenter = false);

	/** Shows particles at a place. */
	UFUNCTION(BlueprintCallable, Category = "Effects",
		meta = (WorldContext = "WorldContextObject", Keywords = "particle system", UnsafeDuringActorConstruction = "true"))
	static UParticleSystemComponent* SpawnEmitterAtLocation(const UObject* WorldContextObject, UParticleSystem* EmitterTemplate,
		FVector Location, FRotator Rotation = FRotator::ZeroRotator, FVector Scale = FVector(1.f), bool bAutoDestroy = true,
		EPSCPoolMethod PoolingMethod = EPSCPoolMethod::None, bool bAutoActivateSystem = true);

	/** Shows particles on a component. */
	UFUNCTION(BlueprintCallable, Category = "Effects", meta = (Keywords = "particle system", UnsafeDuringActorConstruction = "true"))
	static UParticleSystemComponent* SpawnEmitterAttached(UParticleSystem* EmitterTemplate, USceneComponent* AttachToComponent,
		FName AttachPointName = NAME_None, FVector Location = FVector(ForceInit), FRotator Rotation = FRotator::ZeroRotator,
		FVector Scale = FVector(1.f), EAttachLocation::Type LocationType = EAttachLocation::KeepRelativeOffset, bool bAutoDestroy = true,
		EPSCPoolMethod PoolingMethod = EPSCPoolMethod::None, bool bAutoActivate = true);

	/** Puts a decal at a place. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Decal",
		meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static UDecalComponent* SpawnDecalAtLocation(const UObject* WorldContextObject, UMaterialInterface* DecalMaterial, FVector DecalSize,
		FVector Location, FRotator Rotation = FRotator(-90, 0, 0), float LifeSpan = 0);

	/** Puts a decal on a component. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Decal", meta = (UnsafeDuringActorConstruction = "true"))
	static UDecalComponent* SpawnDecalAttached(UMaterialInterface* DecalMaterial, FVector DecalSize, USceneComponent* AttachToComponent,
		FName AttachPointName = NAME_None, FVector Location = FVector(ForceInit), FRotator Rotation = FRotator::ZeroRotator,
		EAttachLocation::Type LocationType = EAttachLocation::KeepRelativeOffset, float LifeSpan = 0);

	/** Plays a rumble at a place. */
	UFUNCTION(BlueprintCallable, Category = "Game|Force Feedback",
		meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "4", UnsafeDuringActorConstruction = "true"))
	static UForceFeedbackComponent* SpawnForceFeedbackAtLocation(const UObject* WorldContextObject,
		UForceFeedbackEffect* ForceFeedbackEffect, FVector Location, FRotator Rotation = FRotator::ZeroRotator, bool bLooping = false,
		float IntensityMultiplier = 1.f, float StartTime = 0.f, UForceFeedbackAttenuation* AttenuationSettings = nullptr,
		bool bAutoDestroy = true);

	/** Plays a rumble on a component. */
	UFUNCTION(BlueprintCallable, Category = "Game|Force Feedback", meta = (AdvancedDisplay = "4", UnsafeDuringActorConstruction = "true"))
	static UForceFeedbackComponent* SpawnForceFeedbackAttached(UForceFeedbackEffect* ForceFeedbackEffect,
		USceneComponent* AttachToComponent, FName AttachPointName = NAME_None, FVector Location = FVector(ForceInit),
		FRotator Rotation = FRotator::ZeroRotator, EAttachLocation::Type LocationType = EAttachLocation::KeepRelativeOffset,
		bool bStopWhenAttachedToDestroyed = false, bool bLooping = false, float IntensityMultiplier = 1.f, float StartTime = 0.f,
		UForceFeedbackAttenuation* AttenuationSettings = nullptr, bool bAutoDestroy = true);

	/** A hit of its parts. */
	UFUNCTION(
		BlueprintPure, Category = "Collision", meta = (NativeMakeFunc, AdvancedDisplay = "2", Normal = "0,0,1", ImpactNormal = "0,0,1"))
	static FHitResult MakeHitResult(bool bBlockingHit, bool bInitialOverlap, float Time, float Distance, FVector Location,
		FVector ImpactPoint, FVector Normal, FVector ImpactNormal, UPhysicalMaterial* PhysMat, AActor* HitActor,
		UPrimitiveComponent* HitComponent, FName HitBoneName, FName BoneName, int32 HitItem, int32 ElementIndex, int32 FaceIndex,
		FVector TraceStart, FVector TraceEnd);

	/** The surface type. */
	UFUNCTION(BlueprintPure, Category = "Collision")
	static EPhysicalSurface GetSurfaceType(const FHitResult& Hit);

	UFUNCTION(BlueprintPure, Category = "Collision")
	static bool FindCollisionUV(const FHitResult& Hit, int32 UVChannel, FVector2D& UV);

	/** Seconds since play began, with time dilation and pauses. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetUnpausedTimeSeconds(const UObject* WorldContextObject);

	/** The audio time seconds. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetAudioTimeSeconds(const UObject* WorldContextObject);

	/** The accurate real time. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time")
	static void GetAccurateRealTime(int32& Seconds, double& PartialSeconds);

	/** Velocity that throws something to a place on an arc. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Suggest Projectile Velocity Custom Arc"))
	static bool SuggestProjectileVelocity_CustomArc(const UObject* WorldContextObject, FVector& OutLaunchVelocity, FVector StartPos,
		FVector EndPos, float OverrideGravityZ = 0, float ArcParam = 0.5);

	/** Velocity that throws something to a place at a speed. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Suggest Projectile Velocity"))
	static bool BlueprintSuggestProjectileVelocity(const UObject* WorldContextObject, FVector& TossVelocity, FVector StartLocation,
		FVector EndLocation, float LaunchSpeed, float OverrideGravityZ, ESuggestProjVelocityTraceOption::Type TraceOption,
		float CollisionRadius, bool bFavorHighArc, bool bDrawDebug);

	/** Foretells how something thrown will fly. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Predict Projectile Path By ObjectType",
			AutoCreateRefTerm = "ActorsToIgnore", AdvancedDisplay = "DrawDebugTime,DrawDebugType,SimFrequency,MaxSimTime,OverrideGravityZ",
			bTracePath = "true"))
	static bool Blueprint_PredictProjectilePath_ByObjectType(const UObject* WorldContextObject, FHitResult& OutHit,
		TArray<FVector>& OutPathPositions, FVector& OutLastTraceDestination, FVector StartPos, FVector LaunchVelocity, bool bTracePath,
		float ProjectileRadius, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex,
		const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, float DrawDebugTime, float SimFrequency = 15.f,
		float MaxSimTime = 2.f, float OverrideGravityZ = 0);

	/** Foretells how something thrown will fly. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Predict Projectile Path By TraceChannel",
			AutoCreateRefTerm = "ActorsToIgnore", AdvancedDisplay = "DrawDebugTime,DrawDebugType,SimFrequency,MaxSimTime,OverrideGravityZ",
			bTracePath = "true"))
	static bool Blueprint_PredictProjectilePath_ByTraceChannel(const UObject* WorldContextObject, FHitResult& OutHit,
		TArray<FVector>& OutPathPositions, FVector& OutLastTraceDestination, FVector StartPos, FVector LaunchVelocity, bool bTracePath,
		float ProjectileRadius, TEnumAsByte<ECollisionChannel> TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore,
		EDrawDebugTrace::Type DrawDebugType, float DrawDebugTime, float SimFrequency = 15.f, float MaxSimTime = 2.f,
		float OverrideGravityZ = 0);

	/** Foretells how something thrown will fly. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Predict Projectile Path (Advanced)"))
	static bool Blueprint_PredictProjectilePath_Advanced(
		const UObject* WorldContextObject, const FPredictProjectilePathParams& PredictParams, FPredictProjectilePathResult& PredictResult);

	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static FVector RebaseLocalOriginOntoZero(UObject* WorldContextObject, FVector WorldLocation);

	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static FVector RebaseZeroOriginOntoLocal(UObject* WorldContextObject, FVector WorldLocation);

	/** Sets the world origin location. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static void SetWorldOriginLocation(const UObject* WorldContextObject, FIntVector NewLocation);

	/** The world origin location. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static FIntVector GetWorldOriginLocation(const UObject* WorldContextObject);

	/** Point and direction of a place on the screen. */
	UFUNCTION(BlueprintPure, Category = "Camera", meta = (Keywords = "unproject"))
	static bool DeprojectScreenToWorld(
		const APlayerController* Player, const FVector2D& ScreenPosition, FVector& WorldPosition, FVector& WorldDirection);

	/** Screen place of a point of the world. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	static bool ProjectWorldToScreen(
		const APlayerController* Player, const FVector& WorldPosition, FVector2D& ScreenPosition, bool bPlayerViewportRelative = false);

	/** The view projection matrix. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	static void GetViewProjectionMatrix(
		FMinimalViewInfo DesiredView, FMatrix& ViewMatrix, FMatrix& ProjectionMatrix, FMatrix& ViewProjectionMatrix);

	/** Reads a text out. */
	UFUNCTION(BlueprintCallable, Category = "Accessibility")
	static void AnnounceAccessibleString(const FString& AnnouncementString);
};

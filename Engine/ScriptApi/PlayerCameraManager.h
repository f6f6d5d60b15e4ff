// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "SceneComponent.h"
#include "PlayerCameraManager.generated.h"

/** Camera of a player. */
UCLASS(notplaceable, transient, BlueprintType, Blueprintable)
class ENGINE_API APlayerCameraManager : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "PlayerCameraManager")
	TObjectPtr<USceneComponent> TransformComponent;

	/** Place of the camera. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	FVector GetCameraLocation() const;

	/** Rotation of the camera. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	FRotator GetCameraRotation() const;

	/** Angle of view in degrees. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	float GetFOVAngle() const;

	UPROPERTY(BlueprintReadOnly, Category = "PlayerCameraManager")
	TObjectPtr<APlayerController> PCOwner;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float DefaultFOV = 90.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float DefaultOrthoWidth = 1536.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float ViewPitchMin = -89.9f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float ViewPitchMax = 89.9f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float ViewYawMin = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float ViewYawMax = 359.999f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float ViewRollMin = -89.9f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	float ViewRollMax = 89.9f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	uint8 bIsOrthographic : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	uint8 bDefaultConstrainAspectRatio : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	uint8 bUseClientSideCameraUpdates : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerCameraManager")
	uint8 bGameCameraCutThisFrame : 1;

	/** The owning player controller. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	APlayerController* GetOwningPlayerController() const;

	/** Fades the picture to a colour. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetManualCameraFade(float InFadeAmount, FLinearColor Color, bool bInFadeAudio);

	/** Fades the picture over time. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void StartCameraFade(
		float FromAlpha, float ToAlpha, float Duration, FLinearColor Color, bool bShouldFadeAudio = false, bool bHoldWhenFinished = false);

	/** Ends a fade. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void StopCameraFade();

	/** Sets the game camera cut this frame. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	void SetGameCameraCutThisFrame();

	/** Shakes the camera. */
	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	UCameraShakeBase* StartCameraShake(TSubclassOf<UCameraShakeBase> ShakeClass, float Scale = 1.f,
		ECameraShakePlaySpace PlaySpace = ECameraShakePlaySpace::CameraLocal, FRotator UserPlaySpaceRot = FRotator::ZeroRotator);

	/** Shakes the camera from a place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	UCameraShakeBase* StartCameraShakeFromSource(TSubclassOf<UCameraShakeBase> ShakeClass, UCameraShakeSourceComponent* SourceComponent,
		float Scale = 1.f, ECameraShakePlaySpace PlaySpace = ECameraShakePlaySpace::CameraLocal,
		FRotator UserPlaySpaceRot = FRotator::ZeroRotator);

	/** Ends a shake. */
	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	void StopCameraShake(UCameraShakeBase* ShakeInstance, bool bImmediately = true);

	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	void StopAllInstancesOfCameraShake(TSubclassOf<UCameraShakeBase> Shake, bool bImmediately = true);

	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	void StopAllInstancesOfCameraShakeFromSource(
		TSubclassOf<UCameraShakeBase> Shake, UCameraShakeSourceComponent* SourceComponent, bool bImmediately = true);

	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	void StopAllCameraShakes(bool bImmediately = true);

	UFUNCTION(BlueprintCallable, Category = "Camera Shakes")
	void StopAllCameraShakesFromSource(UCameraShakeSourceComponent* SourceComponent, bool bImmediately = true);

	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (DeterminesOutputType = "ModifierClass"))
	UCameraModifier* AddNewCameraModifier(TSubclassOf<UCameraModifier> ModifierClass);

	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (DeterminesOutputType = "ModifierClass"))
	UCameraModifier* FindCameraModifierByClass(TSubclassOf<UCameraModifier> ModifierClass);

	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	bool RemoveCameraModifier(UCameraModifier* ModifierToRemove);

	/** Places the camera; true if it did. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "Camera")
	bool BlueprintUpdateCamera(AActor* CameraTarget, FVector& NewCameraLocation, FRotator& NewCameraRotation, float& NewCameraFOV);
};

/** Changes what a camera sees. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API UCameraModifier : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "CameraModifier")
	uint8 bDebug : 1;

	UPROPERTY(EditAnywhere, Category = "CameraModifier")
	uint8 Priority = 127;

	UPROPERTY(EditAnywhere, Category = "CameraModifier")
	float AlphaInTime = 0.f;

	UPROPERTY(EditAnywhere, Category = "CameraModifier")
	float AlphaOutTime = 0.f;

	/** True if it is disabled. */
	UFUNCTION(BlueprintCallable, Category = "CameraModifier")
	bool IsDisabled() const;

	/** The view target. */
	UFUNCTION(BlueprintCallable, Category = "CameraModifier")
	AActor* GetViewTarget() const;

	UFUNCTION(BlueprintCallable, Category = "CameraModifier")
	void EnableModifier();

	UFUNCTION(BlueprintCallable, Category = "CameraModifier")
	void DisableModifier(bool bImmediate = false);

	/** Changes the camera. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "CameraModifier")
	void BlueprintModifyCamera(float DeltaTime, FVector ViewLocation, FRotator ViewRotation, float FOV, FVector& NewViewLocation,
		FRotator& NewViewRotation, float& NewFOV);

	/** Changes the effects. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintCosmetic, Category = "CameraModifier")
	void BlueprintModifyPostProcess(float DeltaTime, float& PostProcessBlendWeight, FPostProcessSettings& PostProcessSettings);
};

/** How a camera shakes. */
UCLASS(Abstract, EditInlineNew)
class ENGINE_API UCameraShakePattern : public UObject
{
	GENERATED_BODY()
};

/** Shakes a camera. */
UCLASS(Blueprintable)
class ENGINE_API UCameraShakeBase : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "CameraShake")
	bool bSingleInstance = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraShake")
	float ShakeScale = 1.f;

	/** The root shake pattern. */
	UFUNCTION(BlueprintCallable, Category = "CameraShakePattern")
	UCameraShakePattern* GetRootShakePattern() const;

	/** Sets the root shake pattern. */
	UFUNCTION(BlueprintCallable, Category = "CameraShakePattern")
	void SetRootShakePattern(UCameraShakePattern* InPattern);
};

/** A place that shakes cameras. */
UCLASS(HideCategories = (Activation, Collision, Cooking, LOD, Physics, Rendering), meta = (BlueprintSpawnableComponent))
class ENGINE_API UCameraShakeSourceComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraShakeSourceComponent")
	float InnerAttenuationRadius = 100.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraShakeSourceComponent")
	float OuterAttenuationRadius = 1000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraShakeSourceComponent")
	TSubclassOf<UCameraShakeBase> CameraShake;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraShakeSourceComponent")
	bool bAutoStart = false;

	UFUNCTION(BlueprintCallable, Category = "CameraShakeSourceComponent")
	void Start();

	UFUNCTION(BlueprintCallable, Category = "CameraShakeSourceComponent")
	void StartCameraShake(TSubclassOf<UCameraShakeBase> InCameraShake, float Scale = 1.f,
		ECameraShakePlaySpace PlaySpace = ECameraShakePlaySpace::CameraLocal, FRotator UserPlaySpaceRot = FRotator::ZeroRotator);

	UFUNCTION(BlueprintCallable, Category = "CameraShakeSourceComponent")
	void StopAllCameraShakes(bool bImmediately = true);

	UFUNCTION(BlueprintCallable, Category = "CameraShakeSourceComponent")
	void StopAllCameraShakesOfType(TSubclassOf<UCameraShakeBase> InCameraShake, bool bImmediately = true);

	/** The attenuation factor. */
	UFUNCTION(BlueprintCallable, Category = "CameraShakeSourceComponent")
	float GetAttenuationFactor(const FVector& Location) const;
};

/** A camera in the world. */
UCLASS(ClassGroup = Common, hideCategories = (Input, Rendering), showcategories = ("Input|MouseInput", "Input|TouchInput"), Blueprintable)
class ENGINE_API ACameraActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "CameraActor")
	TObjectPtr<UCameraComponent> CameraComponent;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "CameraActor", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<USceneComponent> SceneComponent;

	UPROPERTY(EditAnywhere, Category = "CameraActor")
	TEnumAsByte<EAutoReceiveInput::Type> AutoActivateForPlayer;

	/** The auto activate player index. */
	UFUNCTION(BlueprintCallable, Category = "AutoPlayerActivation")
	int32 GetAutoActivatePlayerIndex() const;
};

/** Particles on the camera's lens. */
UCLASS(notplaceable, Abstract, Blueprintable)
class ENGINE_API AEmitterCameraLensEffectBase : public AActor
{
	GENERATED_BODY()
};

/** A rumble. */
UCLASS(BlueprintType)
class ENGINE_API UForceFeedbackEffect : public UObject
{
	GENERATED_BODY()
};

/** A haptic effect. */
UCLASS(MinimalAPI, BlueprintType)
class ENGINE_API UHapticFeedbackEffect_Base : public UObject
{
	GENERATED_BODY()
};

// Package: /Script/Engine
#pragma once

#include "SceneComponent.h"
#include "CameraComponents.generated.h"

/** A point of view. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UCameraComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(Interp, EditAnywhere, BlueprintReadWrite, Category = "CameraSettings", meta = (ClampMin = "0.001", ClampMax = "360.0"))
	float FieldOfView = 90.f;

	/** Sets the angle of view in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetFieldOfView(float InFieldOfView);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "CameraSettings")
	float OrthoWidth = 1536.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "CameraSettings")
	float AspectRatio = 1.777778f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "CameraSettings")
	uint8 bConstrainAspectRatio : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "CameraOptions")
	uint8 bUsePawnControlRotation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraSettings")
	TEnumAsByte<ECameraProjectionMode::Type> ProjectionMode;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcess")
	float PostProcessBlendWeight = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcess")
	FPostProcessSettings PostProcessSettings;

	/** Sets the ortho width. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetOrthoWidth(float InOrthoWidth);

	/** Sets the ortho near clip plane. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetOrthoNearClipPlane(float InOrthoNearClipPlane);

	/** Sets the ortho far clip plane. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetOrthoFarClipPlane(float InOrthoFarClipPlane);

	/** Sets the aspect ratio. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetAspectRatio(float InAspectRatio);

	/** Sets the constraint aspect ratio. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetConstraintAspectRatio(bool bInConstrainAspectRatio);

	/** Sets the use field of view for LOD. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetUseFieldOfViewForLOD(bool bInUseFieldOfViewForLOD);

	/** Sets the projection mode. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetProjectionMode(ECameraProjectionMode::Type InProjectionMode);

	/** Sets the post process blend weight. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetPostProcessBlendWeight(float InPostProcessBlendWeight);

	/** What the camera sees. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void GetCameraView(float DeltaTime, FMinimalViewInfo& DesiredView);

	/** Adds an effect to the picture or sets its weight. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void AddOrUpdateBlendable(TScriptInterface<IBlendableInterface> InBlendableObject, float InWeight = 1.0f);

	/** Takes an effect from the picture. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void RemoveBlendable(TScriptInterface<IBlendableInterface> InBlendableObject);
};

/** Holds a camera at a distance that obstacles shorten. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USpringArmComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float TargetArmLength;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraSettings")
	uint32 bUsePawnControlRotation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraCollision")
	uint32 bDoCollisionTest : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	FVector SocketOffset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	FVector TargetOffset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraCollision")
	float ProbeSize = 12.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraCollision")
	TEnumAsByte<ECollisionChannel> ProbeChannel;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraSettings")
	uint8 bInheritPitch : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraSettings")
	uint8 bInheritYaw : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraSettings")
	uint8 bInheritRoll : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	uint8 bEnableCameraLag : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	uint8 bEnableCameraRotationLag : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	float CameraLagSpeed = 10.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	float CameraRotationLagSpeed = 10.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	float CameraLagMaxDistance = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	float CameraLagMaxTimeStep = 0.016667f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	uint8 bUseCameraLagSubstepping : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Lag")
	uint8 bDrawDebugLagMarkers : 1;

	/** Rotation that the arm goes to. */
	UFUNCTION(BlueprintCallable, Category = "CameraSettings")
	FRotator GetTargetRotation() const;

	/** Where the camera would be if nothing were in its way. */
	UFUNCTION(BlueprintCallable, Category = "CameraCollision")
	FVector GetUnfixedCameraPosition() const;

	/** True if something is in the camera's way. */
	UFUNCTION(BlueprintCallable, Category = "CameraCollision")
	bool IsCollisionFixApplied() const;
};

/** An effect over the picture. */
UINTERFACE()
class ENGINE_API UBlendableInterface : public UInterface
{
	GENERATED_BODY()
};

class ENGINE_API IBlendableInterface
{
	GENERATED_BODY()
};

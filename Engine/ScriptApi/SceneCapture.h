// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "SceneComponent.h"
#include "SceneCapture.generated.h"

/** What a capture writes. */
UENUM(BlueprintType)
enum ESceneCaptureSource : int
{
	SCS_SceneColorHDR,
	SCS_SceneColorHDRNoAlpha,
	SCS_FinalColorLDR,
	SCS_SceneColorSceneDepth,
	SCS_SceneDepth,
	SCS_DeviceDepth,
	SCS_Normal,
	SCS_BaseColor,
	SCS_FinalColorHDR,
	SCS_FinalToneCurveHDR
};

/** What a capture draws. */
UENUM(BlueprintType)
enum class ESceneCapturePrimitiveRenderMode : uint8
{
	PRM_LegacySceneCapture,
	PRM_RenderScenePrimitives,
	PRM_UseShowOnlyList
};

/** Draws the world into a texture. */
UCLASS(abstract, hidecategories = (Collision, Object, Physics, SceneComponent, Mobility))
class ENGINE_API USceneCaptureComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	ESceneCapturePrimitiveRenderMode PrimitiveRenderMode;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	TEnumAsByte<ESceneCaptureSource> CaptureSource;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	uint8 bCaptureEveryFrame : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	uint8 bCaptureOnMovement : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	TArray<TObjectPtr<AActor>> HiddenActors;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	TArray<TObjectPtr<AActor>> ShowOnlyActors;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	float LODDistanceFactor = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	float MaxViewDistanceOverride = -1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	int32 CaptureSortPriority = 0;

	/** Leaves a component out. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void HideComponent(UPrimitiveComponent* InComponent);

	/** Leaves an actor out. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void HideActorComponents(AActor* InActor, const bool bIncludeFromChildActors = false);

	/** Draws a component. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void ShowOnlyComponent(UPrimitiveComponent* InComponent);

	/** Draws an actor. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void ShowOnlyActorComponents(AActor* InActor, const bool bIncludeFromChildActors = false);

	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void RemoveShowOnlyComponent(UPrimitiveComponent* InComponent);

	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void RemoveShowOnlyActorComponents(AActor* InActor, const bool bIncludeFromChildActors = false);

	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void ClearShowOnlyComponents();

	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void ClearHiddenComponents();

	/** Sets the capture sort priority. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void SetCaptureSortPriority(int32 NewCaptureSortPriority);
};

/** Draws what a camera sees into a texture. */
UCLASS(hidecategories = (Collision, Object, Physics, SceneComponent), ClassGroup = Rendering, editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API USceneCaptureComponent2D : public USceneCaptureComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projection")
	TEnumAsByte<ECameraProjectionMode::Type> ProjectionType;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Projection")
	float FOVAngle = 90.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Projection")
	float OrthoWidth = 512.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	TObjectPtr<UTextureRenderTarget2D> TextureTarget;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcessVolume")
	FPostProcessSettings PostProcessSettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	float PostProcessBlendWeight = 1.f;

	/** Draws now. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void CaptureScene();

	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void AddOrUpdateBlendable(TScriptInterface<IBlendableInterface> InBlendableObject, float InWeight = 1.0f);

	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void RemoveBlendable(TScriptInterface<IBlendableInterface> InBlendableObject);

	/** Sets the camera view. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void SetCameraView(const FMinimalViewInfo& DesiredView);
};

/** Draws the world on all sides into a texture. */
UCLASS(hidecategories = (Collision, Object, Physics, SceneComponent), ClassGroup = Rendering, editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API USceneCaptureComponentCube : public USceneCaptureComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SceneCapture")
	TObjectPtr<UTextureRenderTargetCube> TextureTarget;

	/** Draws now. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|SceneCapture")
	void CaptureScene();
};

/** Draws the world into a texture. */
UCLASS(abstract, hidecategories = (Collision, Attachment, Actor))
class ENGINE_API ASceneCapture : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "SceneCapture", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<USceneComponent> SceneComponent;
};

/** Draws what a camera sees into a texture. */
UCLASS(hidecategories = (Collision, Material, Attachment, Actor))
class ENGINE_API ASceneCapture2D : public ASceneCapture
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "DecalActor")
	TObjectPtr<USceneCaptureComponent2D> CaptureComponent2D;
};

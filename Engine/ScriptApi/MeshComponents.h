// Package: /Script/Engine
#pragma once

#include "PrimitiveComponent.h"
#include "SkeletalMeshComponent.h"
#include "MeshComponents.generated.h"

/** Axis of a mesh that follows the curve. */
UENUM(BlueprintType)
namespace ESplineMeshAxis
{
enum Type : int
{
	X,
	Y,
	Z
};
}

/** Space of a bone's transform. */
UENUM(BlueprintType)
namespace EBoneSpaces
{
enum Type : int
{
	WorldSpace UMETA(DisplayName = "World Space"),
	ComponentSpace UMETA(DisplayName = "Component Space")
};
}

/** A component that shows a mesh. */
UCLASS(abstract, ShowCategories = (VirtualTexture))
class ENGINE_API UMeshComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	/** Materials of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	TArray<UMaterialInterface*> GetMaterials() const;

	/** Sets a number in all materials of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetScalarParameterValueOnMaterials(const FName ParameterName, const float ParameterValue);

	/** Sets a vector in all materials of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetVectorParameterValueOnMaterials(const FName ParameterName, const FVector ParameterValue);

	/** Names of all material slots. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	TArray<FName> GetMaterialSlotNames() const;

	/** Place of a material slot. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	int32 GetMaterialIndex(FName MaterialSlotName) const;

	/** True if there is such a slot. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	bool IsMaterialSlotNameValid(FName MaterialSlotName) const;

	/** Sets the vector parameter for custom primitive data. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetVectorParameterForCustomPrimitiveData(FName ParameterName, FVector4 Value);

	/** Sets the scalar parameter for custom primitive data. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetScalarParameterForCustomPrimitiveData(FName ParameterName, float Value);

	/** Sets a colour of all materials. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetColorParameterValueOnMaterials(const FName ParameterName, const FLinearColor ParameterValue);

	UPROPERTY(EditAnywhere, AdvancedDisplay, Category = "Rendering|Material")
	TArray<TObjectPtr<UMaterialInterface>> OverrideMaterials;

	/** Loads the textures in full. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void PrestreamTextures(float Seconds, bool bPrioritizeCharacterTextures, int32 CinematicTextureGroups = 0);

	/** Draws a material over the others. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetOverlayMaterial(UMaterialInterface* NewOverlayMaterial);

	/** Sets the overlay material max draw distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetOverlayMaterialMaxDrawDistance(float InMaxDrawDistance);

	/** The overlay material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInterface* GetOverlayMaterial() const;
};

/** Shows a mesh that does not bend. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UStaticMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "StaticMesh", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UStaticMesh> StaticMesh;

	/** Sets the mesh; false if it may not change. */
	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	bool SetStaticMesh(UStaticMesh* NewMesh);

	/** Corners of the mesh in its own space. */
	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	void GetLocalBounds(FVector& Min, FVector& Max) const;

	/** Sets the distance field self shadow bias. */
	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	void SetDistanceFieldSelfShadowBias(float NewValue);

	/** Shows one level of detail always; 0 is by distance. */
	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	void SetForcedLodModel(int32 NewForcedLodModel);

	/** Sets the evaluate world position offset. */
	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	void SetEvaluateWorldPositionOffset(bool NewValue);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	int32 ForcedLodModel;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	int32 MinLOD = 0;
};

/** Many copies of one mesh. */
UCLASS(ClassGroup = Rendering, meta = (BlueprintSpawnableComponent), Blueprintable)
class ENGINE_API UInstancedStaticMeshComponent : public UStaticMeshComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "Components|InstancedStaticMesh")
	int32 NumCustomDataFloats = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Components|InstancedStaticMesh")
	int32 InstanceStartCullDistance;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Components|InstancedStaticMesh")
	int32 InstanceEndCullDistance;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Components|InstancedStaticMesh")
	int32 InstancingRandomSeed;

	/** Adds a copy and answers its number. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	int32 AddInstance(const FTransform& InstanceTransform, bool bWorldSpace = false);

	/** Adds copies. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	TArray<int32> AddInstances(
		const TArray<FTransform>& InstanceTransforms, bool bShouldReturnIndices, bool bWorldSpace = false, bool bUpdateNavigation = true);

	/** Adds a copy at a place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh", meta = (DeprecatedFunction))
	int32 AddInstanceWorldSpace(const FTransform& WorldTransform);

	/** Transform of a copy. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool GetInstanceTransform(int32 InstanceIndex, FTransform& OutInstanceTransform, bool bWorldSpace = false) const;

	/** Moves a copy. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool UpdateInstanceTransform(int32 InstanceIndex, const FTransform& NewInstanceTransform, bool bWorldSpace = false,
		bool bMarkRenderStateDirty = false, bool bTeleport = false);

	/** Moves several copies. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool BatchUpdateInstancesTransforms(int32 StartInstanceIndex, const TArray<FTransform>& NewInstancesTransforms,
		bool bWorldSpace = false, bool bMarkRenderStateDirty = false, bool bTeleport = false);

	/** Moves several copies to one place. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool BatchUpdateInstancesTransform(int32 StartInstanceIndex, int32 NumInstances, const FTransform& NewInstancesTransform,
		bool bWorldSpace = false, bool bMarkRenderStateDirty = false, bool bTeleport = false);

	/** Removes a copy. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool RemoveInstance(int32 InstanceIndex);

	/** Removes copies. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool RemoveInstances(const TArray<int32>& InstancesToRemove);

	/** Removes all copies. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	void ClearInstances();

	/** Number of copies. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	int32 GetInstanceCount() const;

	/** Sets a number of a copy that the material reads. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	bool SetCustomDataValue(int32 InstanceIndex, int32 CustomDataIndex, float CustomDataValue, bool bMarkRenderStateDirty = false);

	/** Distances between which copies fade. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	void SetCullDistances(int32 StartCullDistance, int32 EndCullDistance);

	/** The cull distances. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	void GetCullDistances(int32& OutStartCullDistance, int32& OutEndCullDistance) const;

	/** Copies in a sphere. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	TArray<int32> GetInstancesOverlappingSphere(const FVector& Center, float Radius, bool bSphereInWorldSpace = true) const;

	/** Copies in a box. */
	UFUNCTION(BlueprintCallable, Category = "Components|InstancedStaticMesh")
	TArray<int32> GetInstancesOverlappingBox(const FBox& Box, bool bBoxInWorldSpace = true) const;
};

/** Many copies of one mesh with levels of detail. */
UCLASS(ClassGroup = Rendering, meta = (BlueprintSpawnableComponent), Blueprintable)
class ENGINE_API UHierarchicalInstancedStaticMeshComponent : public UInstancedStaticMeshComponent
{
	GENERATED_BODY()
};

/** A mesh that is bent along a curve. */
UCLASS(ClassGroup = Rendering, hidecategories = (Physics), meta = (BlueprintSpawnableComponent), Blueprintable)
class ENGINE_API USplineMeshComponent : public UStaticMeshComponent
{
	GENERATED_BODY()

public:
	/** Shows what was changed. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void UpdateMesh();

	/** The start position. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector GetStartPosition() const;

	/** Sets the start position. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetStartPosition(FVector StartPos, bool bUpdateMesh = true);

	/** The start tangent. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector GetStartTangent() const;

	/** Sets the start tangent. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetStartTangent(FVector StartTangent, bool bUpdateMesh = true);

	/** The end position. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector GetEndPosition() const;

	/** Sets the end position. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetEndPosition(FVector EndPos, bool bUpdateMesh = true);

	/** The end tangent. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector GetEndTangent() const;

	/** Sets the end tangent. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetEndTangent(FVector EndTangent, bool bUpdateMesh = true);

	/** Sets both ends of the curve. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetStartAndEnd(FVector StartPos, FVector StartTangent, FVector EndPos, FVector EndTangent, bool bUpdateMesh = true);

	/** The start scale. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector2D GetStartScale() const;

	/** Sets the start scale. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetStartScale(FVector2D StartScale = FVector2D(1, 1), bool bUpdateMesh = true);

	/** The start offset. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector2D GetStartOffset() const;

	/** Sets the start offset. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetStartOffset(FVector2D StartOffset, bool bUpdateMesh = true);

	/** The end scale. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector2D GetEndScale() const;

	/** Sets the end scale. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetEndScale(FVector2D EndScale = FVector2D(1, 1), bool bUpdateMesh = true);

	/** The end offset. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector2D GetEndOffset() const;

	/** Sets the end offset. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetEndOffset(FVector2D EndOffset, bool bUpdateMesh = true);

	/** The start roll. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	float GetStartRoll() const;

	/** Sets the start roll. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetStartRoll(float StartRoll, bool bUpdateMesh = true);

	/** The end roll. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	float GetEndRoll() const;

	/** Sets the end roll. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetEndRoll(float EndRoll, bool bUpdateMesh = true);

	/** The spline up dir. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	FVector GetSplineUpDir() const;

	/** Sets the spline up dir. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetSplineUpDir(const FVector& InSplineUpDir, bool bUpdateMesh = true);

	/** The forward axis. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	ESplineMeshAxis::Type GetForwardAxis() const;

	/** Sets the forward axis. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetForwardAxis(ESplineMeshAxis::Type InForwardAxis, bool bUpdateMesh = true);

	/** The boundary min. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	float GetBoundaryMin() const;

	/** Sets the boundary min. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetBoundaryMin(float InBoundaryMin, bool bUpdateMesh = true);

	/** The boundary max. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	float GetBoundaryMax() const;

	/** Sets the boundary max. */
	UFUNCTION(BlueprintCallable, Category = "SplineMesh")
	void SetBoundaryMax(float InBoundaryMax, bool bUpdateMesh = true);
};

/** A mesh whose bones are moved one by one. */
UCLASS(ClassGroup = Rendering, hidecategories = (Object, Physics), meta = (BlueprintSpawnableComponent), Blueprintable)
class ENGINE_API UPoseableMeshComponent : public USkinnedMeshComponent
{
	GENERATED_BODY()

public:
	/** Sets the bone transform by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	void SetBoneTransformByName(FName BoneName, const FTransform& InTransform, EBoneSpaces::Type BoneSpace);

	/** Sets the bone location by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	void SetBoneLocationByName(FName BoneName, FVector InLocation, EBoneSpaces::Type BoneSpace);

	/** Sets the bone rotation by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	void SetBoneRotationByName(FName BoneName, FRotator InRotation, EBoneSpaces::Type BoneSpace);

	/** Sets the bone scale by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	void SetBoneScaleByName(FName BoneName, FVector InScale3D, EBoneSpaces::Type BoneSpace);

	/** The bone transform by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	FTransform GetBoneTransformByName(FName BoneName, EBoneSpaces::Type BoneSpace);

	/** The bone location by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	FVector GetBoneLocationByName(FName BoneName, EBoneSpaces::Type BoneSpace);

	/** The bone rotation by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	FRotator GetBoneRotationByName(FName BoneName, EBoneSpaces::Type BoneSpace);

	/** The bone scale by name. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	FVector GetBoneScaleByName(FName BoneName, EBoneSpaces::Type BoneSpace);

	/** Puts a bone back. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	void ResetBoneTransformByName(FName BoneName);

	/** Takes the pose of another mesh. */
	UFUNCTION(BlueprintCallable, Category = "Components|PoseableMesh")
	void CopyPoseFromSkeletalComponent(USkeletalMeshComponent* InComponentToCopy);
};

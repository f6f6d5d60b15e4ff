// Package: /Script/Engine
#pragma once

#include "PrimitiveComponent.h"
#include "ShapeComponents.generated.h"

/** Collides as a simple shape. */
UCLASS(abstract)
class ENGINE_API UShapeComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Shape")
	FColor ShapeColor;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Shape")
	uint8 bDrawOnlyIfSelected : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Shape")
	uint8 bDynamicObstacle : 1;

	/** Sets the line thickness. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	void SetLineThickness(float Thickness);
};

/** Collides as a box. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UBoxComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Half sizes of the box. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	void SetBoxExtent(FVector InBoxExtent, bool bUpdateOverlaps = true);

	/** Half sizes of the box, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	FVector GetScaledBoxExtent() const;

	/** Half sizes of the box. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	FVector GetUnscaledBoxExtent() const;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Shape", meta = (AllowPrivateAccess = "true"))
	FVector BoxExtent = FVector(32.0, 32.0, 32.0);
};

/** Collides as a sphere. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USphereComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Sets the radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	void SetSphereRadius(float InSphereRadius, bool bUpdateOverlaps = true);

	/** Radius, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	float GetScaledSphereRadius() const;

	/** Radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	float GetUnscaledSphereRadius() const;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Shape", meta = (AllowPrivateAccess = "true"))
	float SphereRadius = 32.f;

	/** The shape scale. */
	UFUNCTION(BlueprintCallable, Category = "Shape", meta = (DisplayName = "Get Shape Scale"))
	float GetShapeScale() const;
};

/** Collides as a capsule that stands. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UCapsuleComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Sets the radius and half of the height. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleSize(float InRadius, float InHalfHeight, bool bUpdateOverlaps = true);

	/** Sets the radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleRadius(float Radius, bool bUpdateOverlaps = true);

	/** Sets half of the height. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleHalfHeight(float HalfHeight, bool bUpdateOverlaps = true);

	/** Radius, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	float GetScaledCapsuleRadius() const;

	/** Half of the height, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	float GetScaledCapsuleHalfHeight() const;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Shape", meta = (AllowPrivateAccess = "true"))
	float CapsuleHalfHeight = 44.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Shape", meta = (AllowPrivateAccess = "true"))
	float CapsuleRadius = 22.f;

	/** The scaled capsule size. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	void GetScaledCapsuleSize(float& OutRadius, float& OutHalfHeight) const;

	/** The unscaled capsule size. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	void GetUnscaledCapsuleSize(float& OutRadius, float& OutHalfHeight) const;

	/** The scaled capsule size without hemisphere. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	void GetScaledCapsuleSize_WithoutHemisphere(float& OutRadius, float& OutHalfHeightWithoutHemisphere) const;

	/** The unscaled capsule size without hemisphere. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	void GetUnscaledCapsuleSize_WithoutHemisphere(float& OutRadius, float& OutHalfHeightWithoutHemisphere) const;

	/** The unscaled capsule radius. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	float GetUnscaledCapsuleRadius() const;

	/** The unscaled capsule half height. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	float GetUnscaledCapsuleHalfHeight() const;

	/** The scaled capsule half height without hemisphere. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	float GetScaledCapsuleHalfHeight_WithoutHemisphere() const;

	/** The unscaled capsule half height without hemisphere. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	float GetUnscaledCapsuleHalfHeight_WithoutHemisphere() const;

	/** The shape scale. */
	UFUNCTION(BlueprintCallable, Category = "Shape")
	float GetShapeScale() const;
};

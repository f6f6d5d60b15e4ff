// Package: /Script/Engine
#pragma once

#include "Materials.h"
#include "Components.generated.h"

DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_FiveParams(FComponentHitSignature, UPrimitiveComponent, OnComponentHit, UPrimitiveComponent*,
	HitComponent, AActor*, OtherActor, UPrimitiveComponent*, OtherComp, FVector, NormalImpulse, const FHitResult&, Hit);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_SixParams(FComponentBeginOverlapSignature, UPrimitiveComponent, OnComponentBeginOverlap,
	UPrimitiveComponent*, OverlappedComponent, AActor*, OtherActor, UPrimitiveComponent*, OtherComp, int32, OtherBodyIndex, bool,
	bFromSweep, const FHitResult&, SweepResult);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_FourParams(FComponentEndOverlapSignature, UPrimitiveComponent, OnComponentEndOverlap,
	UPrimitiveComponent*, OverlappedComponent, AActor*, OtherActor, UPrimitiveComponent*, OtherComp, int32, OtherBodyIndex);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FComponentOnClickedSignature, UPrimitiveComponent, OnClicked, UPrimitiveComponent*, TouchedComponent, FKey, ButtonPressed);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnAudioFinished);

/** How a surface looks, as a graph says. */
UCLASS(BlueprintType)
class ENGINE_API UMaterial : public UMaterialInterface
{
	GENERATED_BODY()
};

/** A material with values of its own. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UMaterialInstance : public UMaterialInterface
{
	GENERATED_BODY()
};

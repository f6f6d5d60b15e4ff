// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "GameFramework.generated.h"

/** An actor that has no place in the world. */
// Extends native
UCLASS(abstract, hidecategories = (Input, Movement, Collision, Rendering, HLOD, WorldPartition, DataLayers),
	showcategories = ("Input|MouseInput", "Input|TouchInput"), NotBlueprintable)
class ENGINE_API AInfo : public AActor
{
	GENERATED_BODY()
};

/** Letters to draw. */
UCLASS(BlueprintType)
class ENGINE_API UFont : public UObject
{
	GENERATED_BODY()
};

/** Kind of damage. */
UCLASS(MinimalAPI, const, Blueprintable, BlueprintType)
class ENGINE_API UDamageType : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "DamageType")
	uint32 bCausedByWorld : 1;
};

/** A light that shines to all sides. */
UCLASS(Blueprintable, ClassGroup = (Lights, PointLights))
class ENGINE_API APointLight : public ALight
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Light", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UPointLightComponent> PointLightComponent;
};

/** A light. */
UCLASS(Abstract, ClassGroup = Lights, hideCategories = (Input, Collision, Replication))
class ENGINE_API ALight : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, VisibleAnywhere, Category = "Light", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<ULightComponent> LightComponent;

	/** Brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting", meta = (DeprecatedFunction))
	void SetBrightness(float NewBrightness);
};

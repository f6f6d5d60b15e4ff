// Package: /Script/Engine
#pragma once

#include "GameFramework.h"
#include "SceneComponent.h"
#include "SkeletalMeshActor.h"
#include "SkyComponents.generated.h"

/** Effects over the picture within a shape. */
UCLASS(ClassGroup = Rendering, collapsecategories, hidecategories = (Object, Mobility), editinlinenew, meta = (BlueprintSpawnableComponent))
class ENGINE_API UPostProcessComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	FPostProcessSettings Settings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	float Priority = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	float BlendRadius = 100.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	float BlendWeight = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcessVolume")
	uint8 bEnabled : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcessVolume")
	uint8 bUnbound : 1;

	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void AddOrUpdateBlendable(TScriptInterface<IBlendableInterface> InBlendableObject, float InWeight = 1.0f);
};

/** Effects over the picture within a volume. */
UCLASS(autoexpandcategories = PostProcessVolume, hidecategories = (Advanced, Collision, Volume, Brush, Attachment))
class ENGINE_API APostProcessVolume : public AVolume
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	FPostProcessSettings Settings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcessVolume")
	float Priority = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	float BlendRadius = 100.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	float BlendWeight = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "PostProcessVolume")
	uint8 bEnabled : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PostProcessVolume")
	uint8 bUnbound : 1;

	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void AddOrUpdateBlendable(TScriptInterface<IBlendableInterface> InBlendableObject, float InWeight = 1.0f);
};

/** Fog that is thicker below. */
UCLASS(ClassGroup = Rendering, collapsecategories, hidecategories = (Object, Mobility), editinlinenew, meta = (BlueprintSpawnableComponent))
class ENGINE_API UExponentialHeightFogComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "ExponentialHeightFogComponent")
	float FogDensity = 0.02f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "ExponentialHeightFogComponent")
	float FogHeightFalloff = 0.2f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "ExponentialHeightFogComponent")
	float FogMaxOpacity = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "ExponentialHeightFogComponent")
	float StartDistance = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "ExponentialHeightFogComponent")
	float FogCutoffDistance = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "VolumetricFog")
	bool bEnableVolumetricFog = false;

	/** Sets the fog density. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetFogDensity(float Value);

	/** Sets the second fog density. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetSecondFogDensity(float Value);

	/** Sets the second fog height falloff. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetSecondFogHeightFalloff(float Value);

	/** Sets the second fog height offset. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetSecondFogHeightOffset(float Value);

	/** Sets the fog inscattering color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetFogInscatteringColor(FLinearColor Value);

	/** Sets the inscattering color cubemap. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetInscatteringColorCubemap(UTextureCube* Value);

	/** Sets the inscattering color cubemap angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetInscatteringColorCubemapAngle(float Value);

	/** Sets the fully directional inscattering color distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetFullyDirectionalInscatteringColorDistance(float Value);

	/** Sets the non directional inscattering color distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetNonDirectionalInscatteringColorDistance(float Value);

	/** Sets the inscattering texture tint. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetInscatteringTextureTint(FLinearColor Value);

	/** Sets the directional inscattering exponent. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetDirectionalInscatteringExponent(float Value);

	/** Sets the directional inscattering start distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetDirectionalInscatteringStartDistance(float Value);

	/** Sets the directional inscattering color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetDirectionalInscatteringColor(FLinearColor Value);

	/** Sets the fog height falloff. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetFogHeightFalloff(float Value);

	/** Sets the fog max opacity. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetFogMaxOpacity(float Value);

	/** Sets the start distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetStartDistance(float Value);

	/** Sets the fog cutoff distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetFogCutoffDistance(float Value);

	/** Sets the volumetric fog. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetVolumetricFog(bool bNewValue);

	/** Sets the volumetric fog scattering distribution. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetVolumetricFogScatteringDistribution(float NewValue);

	/** Sets the volumetric fog extinction scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetVolumetricFogExtinctionScale(float NewValue);

	/** Sets the volumetric fog albedo. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetVolumetricFogAlbedo(FColor NewValue);

	/** Sets the volumetric fog emissive. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetVolumetricFogEmissive(FLinearColor NewValue);

	/** Sets the volumetric fog distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|ExponentialHeightFog")
	void SetVolumetricFogDistance(float NewValue);
};

/** Air of a planet. */
UCLASS(ClassGroup = Rendering, collapsecategories, hidecategories = (Object, Mobility, Activation), editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API USkyAtmosphereComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Planet")
	float BottomRadius = 6360.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Atmosphere")
	float AtmosphereHeight = 60.f;

	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void OverrideAtmosphereLightDirection(int32 AtmosphereLightIndex, const FVector& LightDirection);

	/** True if it is atmosphere light direction overriden. */
	UFUNCTION(BlueprintPure, Category = "Rendering")
	bool IsAtmosphereLightDirectionOverriden(int32 AtmosphereLightIndex);

	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void ResetAtmosphereLightDirectionOverride(int32 AtmosphereLightIndex);

	/** Sets the bottom radius. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetBottomRadius(float NewValue);

	/** Sets the atmosphere height. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetAtmosphereHeight(float NewValue);

	/** Sets the multi scattering factor. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMultiScatteringFactor(float NewValue);

	/** Sets the rayleigh scattering scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetRayleighScatteringScale(float NewValue);

	/** Sets the rayleigh scattering. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetRayleighScattering(FLinearColor NewValue);

	/** Sets the rayleigh exponential distribution. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetRayleighExponentialDistribution(float NewValue);

	/** Sets the mie scattering scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMieScatteringScale(float NewValue);

	/** Sets the mie scattering. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMieScattering(FLinearColor NewValue);

	/** Sets the mie absorption scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMieAbsorptionScale(float NewValue);

	/** Sets the mie absorption. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMieAbsorption(FLinearColor NewValue);

	/** Sets the mie anisotropy. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMieAnisotropy(float NewValue);

	/** Sets the mie exponential distribution. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetMieExponentialDistribution(float NewValue);

	/** Sets the sky luminance factor. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetSkyLuminanceFactor(FLinearColor NewValue);

	/** Sets the aerial pespective view distance scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetAerialPespectiveViewDistanceScale(float NewValue);

	/** Sets the height fog contribution. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetHeightFogContribution(float NewValue);
};

/** Fog in the world. */
UCLASS(showcategories = (Movement, Rendering, Transformation, "Input|MouseInput", "Input|TouchInput"), ClassGroup = Fog)
class ENGINE_API AExponentialHeightFog : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "ExponentialHeightFog")
	TObjectPtr<UExponentialHeightFogComponent> Component;
};

/** Light of the sky. */
UCLASS(ClassGroup = (Lights, SkyLights), hidecategories = (Input, Collision, Replication, Info),
	showcategories = (Movement, Rendering, "Utilities|Transformation", "Input|MouseInput", "Input|TouchInput"), ComponentWrapperClass,
	ConversionRoot, Blueprintable)
class ENGINE_API ASkyLight : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Light")
	TObjectPtr<USkyLightComponent> LightComponent;
};

/** Air of a planet. */
UCLASS(showcategories = (Movement, Rendering, Transformation, DataLayers, "Input|MouseInput", "Input|TouchInput"))
class ENGINE_API ASkyAtmosphere : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Atmosphere", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<USkyAtmosphereComponent> SkyAtmosphereComponent;
};

// Package: /Script/Engine
#pragma once

#include "SceneComponent.h"
#include "LightComponents.generated.h"

/** Where a sky light's picture comes from. */
UENUM(BlueprintType)
enum ESkyLightSourceType : int
{
	SLS_CapturedScene UMETA(DisplayName = "SLS Captured Scene"),
	SLS_SpecifiedCubemap UMETA(DisplayName = "SLS Specified Cubemap")
};

/** What all lights have. */
UCLASS(abstract, hidecategories = (Trigger, Activation, "Components|Activation", Physics))
class ENGINE_API ULightComponentBase : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, interp, EditAnywhere, Category = "Light")
	float Intensity;

	UPROPERTY(BlueprintReadOnly, interp, EditAnywhere, Category = "Light", meta = (HideAlphaChannel))
	FColor LightColor = FColor::White;

	/** Switches the shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetCastShadows(bool bNewValue);

	/** Colour of the light. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	FLinearColor GetLightColor() const;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 bAffectsWorld : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 CastShadows : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 CastStaticShadows : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 CastDynamicShadows : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Light")
	float IndirectLightingIntensity = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Light")
	float VolumetricScatteringIntensity = 1.f;

	/** Sets the affect reflection. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAffectReflection(bool bNewValue);

	/** Sets the affect global illumination. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAffectGlobalIllumination(bool bNewValue);

	/** Sets the cast raytraced shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetCastRaytracedShadow(bool bNewValue);

	/** Sets the cast volumetric shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetCastVolumetricShadow(bool bNewValue);

	/** Sets the cast deep shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetCastDeepShadow(bool bNewValue);

	/** Sets the samples per pixel. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSamplesPerPixel(int32 NewValue);
};

/** A light. */
UCLASS(abstract, HideCategories = (Trigger, Activation, "Components|Activation", Physics), ShowCategories = (Mobility))
class ENGINE_API ULightComponent : public ULightComponentBase
{
	GENERATED_BODY()

public:
	/** Sets the brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetIntensity(float NewIntensity);

	/** Sets the colour. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetLightColor(FLinearColor NewLightColor, bool bSRGB = true);

	/** Sets the colour temperature in kelvins. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetTemperature(float NewTemperature);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Light")
	float Temperature = 6500.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 bUseTemperature : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	float SpecularScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	float MaxDrawDistance = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	float MaxDistanceFadeRange = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	TObjectPtr<UMaterialInterface> LightFunctionMaterial;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	TObjectPtr<UTextureLightProfile> IESTexture;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	FLightingChannels LightingChannels;

	/** Sets the use temperature. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetUseTemperature(bool bNewValue);

	/** Sets the indirect lighting intensity. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetIndirectLightingIntensity(float NewIntensity);

	/** Sets the volumetric scattering intensity. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetVolumetricScatteringIntensity(float NewIntensity);

	/** Sets the light f color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightFColor(FColor NewLightColor);

	/** Sets the light function material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightFunctionMaterial(UMaterialInterface* NewLightFunctionMaterial);

	/** Sets the light function scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightFunctionScale(FVector NewLightFunctionScale);

	/** Sets the light function fade distance. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightFunctionFadeDistance(float NewLightFunctionFadeDistance);

	/** Sets the light function disabled brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightFunctionDisabledBrightness(float NewValue);

	/** Sets the affect translucent lighting. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAffectTranslucentLighting(bool bNewValue);

	/** Sets the transmission. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetTransmission(bool bNewValue);

	/** Sets the enable light shaft bloom. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetEnableLightShaftBloom(bool bNewValue);

	/** Sets the bloom scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetBloomScale(float NewValue);

	/** Sets the bloom threshold. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetBloomThreshold(float NewValue);

	/** Sets the bloom max brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetBloomMaxBrightness(float NewValue);

	/** Sets the bloom tint. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetBloomTint(FColor NewValue);

	/** Sets the IES texture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetIESTexture(UTextureLightProfile* NewValue);

	/** Sets the use IES brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetUseIESBrightness(bool bNewValue);

	/** Sets the IES brightness scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetIESBrightnessScale(float NewValue);

	/** Sets the shadow bias. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetShadowBias(float NewValue);

	/** Sets the shadow slope bias. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetShadowSlopeBias(float NewValue);

	/** Sets the specular scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSpecularScale(float NewValue);

	/** Sets the force cached shadows for movable primitives. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetForceCachedShadowsForMovablePrimitives(bool bNewValue);

	/** Sets the lighting channels. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightingChannels(bool bChannel0, bool bChannel1, bool bChannel2);
};

/** A light that fades with distance. */
// Initially: Intensity = 5000.f
UCLASS(abstract)
class ENGINE_API ULocalLightComponent : public ULightComponent
{
	GENERATED_BODY()

public:
	/** Sets the distance that the light reaches. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAttenuationRadius(float NewRadius);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	ELightUnits IntensityUnits;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Light")
	float AttenuationRadius = 1000.f;

	/** Sets the intensity units. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetIntensityUnits(ELightUnits NewIntensityUnits);

	/** The units conversion factor. */
	UFUNCTION(BlueprintPure, Category = "Light")
	static float GetUnitsConversionFactor(ELightUnits SrcUnits, ELightUnits TargetUnits, float CosHalfConeAngle = -1);
};

/** A light that shines to all sides. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UPointLightComponent : public ULocalLightComponent
{
	GENERATED_BODY()

public:
	/** Sets the size of the source. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSourceRadius(float bNewValue);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 bUseInverseSquaredFalloff : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float LightFalloffExponent = 8.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float SourceRadius = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float SoftSourceRadius = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float SourceLength = 0.f;

	/** Sets the use inverse squared falloff. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetUseInverseSquaredFalloff(bool bNewValue);

	/** Sets the light falloff exponent. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightFalloffExponent(float NewLightFalloffExponent);

	/** Sets the inverse exposure blend. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetInverseExposureBlend(float NewInverseExposureBlend);

	/** Sets the soft source radius. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSoftSourceRadius(float bNewValue);

	/** Sets the source length. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSourceLength(float NewValue);
};

/** A light that shines in a cone. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USpotLightComponent : public UPointLightComponent
{
	GENERATED_BODY()

public:
	/** Sets the angle of the bright cone, in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetInnerConeAngle(float NewInnerConeAngle);

	/** Sets the angle of the cone, in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetOuterConeAngle(float NewOuterConeAngle);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float InnerConeAngle = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float OuterConeAngle = 44.f;
};

/** A light from far away. */
// Initially: Intensity = 10.f
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UDirectionalLightComponent : public ULightComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	float LightSourceAngle = 0.5357f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 bAtmosphereSunLight : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	int32 AtmosphereSunLightIndex = 0;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	float DynamicShadowDistanceMovableLight = 20000.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	int32 DynamicShadowCascades = 4;

	/** Sets the dynamic shadow distance movable light. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetDynamicShadowDistanceMovableLight(float NewValue);

	/** Sets the dynamic shadow distance stationary light. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetDynamicShadowDistanceStationaryLight(float NewValue);

	/** Sets the dynamic shadow cascades. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetDynamicShadowCascades(int32 NewValue);

	/** Sets the cascade distribution exponent. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetCascadeDistributionExponent(float NewValue);

	/** Sets the cascade transition fraction. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetCascadeTransitionFraction(float NewValue);

	/** Sets the shadow distance fadeout fraction. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetShadowDistanceFadeoutFraction(float NewValue);

	/** Sets the shadow amount. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetShadowAmount(float NewValue);

	/** Sets the light source angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightSourceAngle(float NewValue);

	/** Sets the light source soft angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightSourceSoftAngle(float NewValue);

	/** Sets the occlusion mask darkness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetOcclusionMaskDarkness(float NewValue);

	/** Sets the occlusion depth range. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetOcclusionDepthRange(float NewValue);

	/** Sets the enable light shaft occlusion. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetEnableLightShaftOcclusion(bool bNewValue);

	/** Sets the light shaft override direction. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetLightShaftOverrideDirection(FVector NewValue);

	/** Sets the atmosphere sun light. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAtmosphereSunLight(bool bNewValue);

	/** Sets the atmosphere sun light index. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAtmosphereSunLightIndex(int32 NewValue);
};

/** A rectangle that shines. */
UCLASS(Blueprintable, ClassGroup = (Lights, Common), meta = (BlueprintSpawnableComponent))
class ENGINE_API URectLightComponent : public ULocalLightComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float SourceWidth = 64.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float SourceHeight = 64.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float BarnDoorAngle = 88.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Interp, Category = "Light")
	float BarnDoorLength = 20.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	TObjectPtr<UTexture> SourceTexture;

	/** Sets the source texture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSourceTexture(UTexture* bNewValue);

	/** Sets the source width. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSourceWidth(float bNewValue);

	/** Sets the source height. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSourceHeight(float NewValue);

	/** Sets the barn door angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetBarnDoorAngle(float NewValue);

	/** Sets the barn door length. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetBarnDoorLength(float NewValue);
};

/** Light of the sky from all sides. */
// Initially: Intensity = 1.f
UCLASS(Blueprintable, ClassGroup = Lights, meta = (BlueprintSpawnableComponent))
class ENGINE_API USkyLightComponent : public ULightComponentBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	TEnumAsByte<ESkyLightSourceType> SourceType;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	TObjectPtr<UTextureCube> Cubemap;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Light")
	uint8 bRealTimeCapture : 1;

	/** Sets the intensity. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetIntensity(float NewIntensity);

	/** Sets the indirect lighting intensity. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetIndirectLightingIntensity(float NewIntensity);

	/** Sets the volumetric scattering intensity. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetVolumetricScatteringIntensity(float NewIntensity);

	/** Sets the light color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetLightColor(FLinearColor NewLightColor);

	/** Sets the cubemap. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetCubemap(UTextureCube* NewCubemap);

	/** Sets the cubemap blend. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetCubemapBlend(UTextureCube* SourceCubemap, UTextureCube* DestinationCubemap, float InBlendFraction);

	/** Sets the source cubemap angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetSourceCubemapAngle(float NewValue);

	/** Sets the lower hemisphere color. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetLowerHemisphereColor(const FLinearColor& InLowerHemisphereColor);

	/** Sets the occlusion tint. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetOcclusionTint(const FColor& InTint);

	/** Sets the occlusion contrast. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetOcclusionContrast(float InOcclusionContrast);

	/** Sets the occlusion exponent. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetOcclusionExponent(float InOcclusionExponent);

	/** Sets the min occlusion. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void SetMinOcclusion(float InMinOcclusion);

	/** Captures the sky anew. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|SkyLight")
	void RecaptureSky();
};

// Package: /Script/Engine
#pragma once

#include "PrimitiveComponent.h"
#include "ParticleComponents.generated.h"

/** What a trail's width is counted from. */
UENUM(BlueprintType)
enum ETrailWidthMode : int
{
	ETrailWidthMode_FromCentre UMETA(DisplayName = "From Centre"),
	ETrailWidthMode_FromFirst UMETA(DisplayName = "From First Socket"),
	ETrailWidthMode_FromSecond UMETA(DisplayName = "From Second Socket")
};

/** How effects are used again. */
UENUM(BlueprintType)
enum class EPSCPoolMethod : uint8
{
	None,
	AutoRelease,
	ManualRelease,
	ManualRelease_OnComplete UMETA(Hidden),
	FreeInPool UMETA(Hidden)
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnSystemFinished, UParticleSystemComponent*, PSystem);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(
	FParticleSpawnSignature, FName, EventName, float, EmitterTime, FVector, Location, FVector, Velocity);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FParticleBurstSignature, FName, EventName, float, EmitterTime, int32, ParticleCount);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_SixParams(FParticleDeathSignature, FName, EventName, float, EmitterTime, int32, ParticleTime, FVector,
	Location, FVector, Velocity, FVector, Direction);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_NineParams(FParticleCollisionSignature, FName, EventName, float, EmitterTime, int32, ParticleTime,
	FVector, Location, FVector, Velocity, FVector, Direction, FVector, Normal, FName, BoneName, UPhysicalMaterial*, PhysMat);

/** An effect. */
UCLASS(Abstract, BlueprintType)
class ENGINE_API UFXSystemAsset : public UObject
{
	GENERATED_BODY()
};

/** An effect of particles. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API UParticleSystem : public UFXSystemAsset
{
	GENERATED_BODY()
};

/** Shows an effect. */
UCLASS(Abstract)
class ENGINE_API UFXSystemComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	/** Sets the bool parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetBoolParameter(FName ParameterName, bool Param);

	/** Sets the int parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetIntParameter(FName ParameterName, int32 Param);

	/** Sets the float parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetFloatParameter(FName ParameterName, float Param);

	/** Sets the vector parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetVectorParameter(FName ParameterName, FVector Param);

	/** Sets the color parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetColorParameter(FName ParameterName, FLinearColor Param);

	/** Sets the actor parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetActorParameter(FName ParameterName, AActor* Param);

	/** The FX system asset. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	UFXSystemAsset* GetFXSystemAsset() const;

	/** Sets the use auto manage attachment. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetUseAutoManageAttachment(bool bAutoManage);

	/** Sets the auto attachment parameters. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetAutoAttachmentParameters(
		USceneComponent* Parent, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule, EAttachmentRule ScaleRule);

	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void ReleaseToPool();
};

/** Shows particles. */
UCLASS(ClassGroup = (Rendering, Common), hidecategories = (Object, Physics, Collision), showcategories = Trigger, editinlinenew,
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UParticleSystemComponent : public UFXSystemComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Particles")
	TObjectPtr<UParticleSystem> Template;

	UPROPERTY(BlueprintAssignable, DuplicateTransient, Category = "Particles")
	FOnSystemFinished OnSystemFinished;

	UPROPERTY(BlueprintAssignable, Category = "Particles")
	FParticleSpawnSignature OnParticleSpawn;

	UPROPERTY(BlueprintAssignable, Category = "Particles")
	FParticleBurstSignature OnParticleBurst;

	UPROPERTY(BlueprintAssignable, Category = "Particles")
	FParticleDeathSignature OnParticleDeath;

	UPROPERTY(BlueprintAssignable, Category = "Particles")
	FParticleCollisionSignature OnParticleCollide;

	/** Sets the template. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetTemplate(UParticleSystem* NewTemplate);

	/** The num active particles. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	int32 GetNumActiveParticles() const;

	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void BeginTrails(FName InFirstSocketName, FName InSecondSocketName, ETrailWidthMode InWidthMode, float InWidth);

	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void EndTrails();

	/** Sets the trail source data. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetTrailSourceData(FName InFirstSocketName, FName InSecondSocketName, ETrailWidthMode InWidthMode, float InWidth);

	/** Sets the beam end point. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetBeamEndPoint(int32 EmitterIndex, FVector NewEndPoint);

	/** Sets the beam source point. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetBeamSourcePoint(int32 EmitterIndex, FVector NewSourcePoint, int32 SourceIndex);

	/** Sets the beam target point. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetBeamTargetPoint(int32 EmitterIndex, FVector NewTargetPoint, int32 TargetIndex);

	/** Sets the material parameter. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void SetMaterialParameter(FName ParameterName, UMaterialInterface* Param);

	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	void GenerateParticleEvent(
		const FName InEventName, const float InEmitterTime, const FVector InLocation, const FVector InDirection, const FVector InVelocity);

	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	UMaterialInstanceDynamic* CreateNamedDynamicMaterialInstance(FName InName, UMaterialInterface* SourceMaterial);

	/** The named material. */
	UFUNCTION(BlueprintCallable, Category = "Effects|Components|ParticleSystem")
	UMaterialInterface* GetNamedMaterial(FName InName) const;
};

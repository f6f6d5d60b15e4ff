// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "GameFramework.h"
#include "SkeletalMeshActor.generated.h"

/** A mesh with bones in the world. */
UCLASS(ClassGroup = ISkeletalMeshes, Blueprintable, ComponentWrapperClass, ConversionRoot)
class ENGINE_API ASkeletalMeshActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "SkeletalMeshActor")
	TObjectPtr<USkeletalMeshComponent> SkeletalMeshComponent;
};

/** A mesh in the world. */
UCLASS(hidecategories = (Input), showcategories = ("Input|MouseInput", "Input|TouchInput"), ConversionRoot, ComponentWrapperClass,
	Blueprintable)
class ENGINE_API AStaticMeshActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "StaticMeshActor")
	TObjectPtr<UStaticMeshComponent> StaticMeshComponent;

	/** Sets the mobility. */
	UFUNCTION(BlueprintCallable, Category = "Mobility")
	void SetMobility(EComponentMobility::Type InMobility);
};

/** A light that shines in a cone. */
UCLASS(Blueprintable, ClassGroup = (Lights, SpotLights), hidecategories = (Input))
class ENGINE_API ASpotLight : public ALight
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Light")
	TObjectPtr<USpotLightComponent> SpotLightComponent;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;

	/** Sets the inner cone angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting", meta = (DeprecatedFunction))
	void SetInnerConeAngle(float NewInnerConeAngle);

	/** Sets the outer cone angle. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting", meta = (DeprecatedFunction))
	void SetOuterConeAngle(float NewOuterConeAngle);
};

/** A light from far away. */
UCLASS(ClassGroup = (Lights, DirectionalLights), Blueprintable)
class ENGINE_API ADirectionalLight : public ALight
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;
};

/** A rectangle that shines in the world. */
UCLASS(ClassGroup = (Lights, RectLights), Blueprintable)
class ENGINE_API ARectLight : public ALight
{
	GENERATED_BODY()
};

/** Particles in the world. */
UCLASS(ClassGroup = Effects, ConversionRoot)
class ENGINE_API AEmitter : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Emitter")
	TObjectPtr<UParticleSystemComponent> ParticleSystemComponent;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;
};

/** A sound in the world. */
UCLASS(AutoExpandCategories = Audio, ClassGroup = Sounds, hideCategories = (Collision, Input, Game))
class ENGINE_API AAmbientSound : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Audio")
	TObjectPtr<UAudioComponent> AudioComponent;

	UFUNCTION(BlueprintCallable, Category = "Audio", meta = (DeprecatedFunction))
	void FadeIn(float FadeInDuration, float FadeVolumeLevel = 1.0f);

	UFUNCTION(BlueprintCallable, Category = "Audio", meta = (DeprecatedFunction))
	void FadeOut(float FadeOutDuration, float FadeVolumeLevel);

	UFUNCTION(BlueprintCallable, Category = "Audio", meta = (DeprecatedFunction))
	void Play(float StartTime = 0.0f);

	UFUNCTION(BlueprintCallable, Category = "Audio", meta = (DeprecatedFunction))
	void Stop();
};

/** A shape in the level. */
UCLASS(hidecategories = (Object, Collision, Display, Rendering, Physics, Input, Blueprint),
	showcategories = ("Input|MouseInput", "Input|TouchInput"), NotBlueprintable, ConversionRoot)
class ENGINE_API ABrush : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Collision", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UBrushComponent> BrushComponent;
};

/** A part of the level. */
UCLASS(abstract, hidecategories = (Brush, Physics))
class ENGINE_API AVolume : public ABrush
{
	GENERATED_BODY()
};

/** A part of the level with physics of its own. */
UCLASS()
class ENGINE_API APhysicsVolume : public AVolume
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CharacterMovement")
	float TerminalVelocity = 4000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CharacterMovement")
	float FluidFriction = 0.3f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CharacterMovement")
	uint8 bWaterVolume : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CharacterMovement")
	uint8 bPhysicsOnContact : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CharacterMovement")
	int32 Priority = 0;
};

/** A part of the level that sends events. */
UCLASS()
class ENGINE_API ATriggerVolume : public AVolume
{
	GENERATED_BODY()
};

/** A part of the level that nobody enters. */
UCLASS()
class ENGINE_API ABlockingVolume : public AVolume
{
	GENERATED_BODY()
};

/** A part of the level that hurts. */
UCLASS()
class ENGINE_API APainCausingVolume : public APhysicsVolume
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PainCausingVolume")
	uint8 bPainCausing : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PainCausingVolume")
	float DamagePerSec = 1.f;

	UPROPERTY(EditAnywhere, Category = "PainCausingVolume")
	TSubclassOf<UDamageType> DamageType;
};

/** A part of the level that destroys what enters it. */
UCLASS()
class ENGINE_API AKillZVolume : public APhysicsVolume
{
	GENERATED_BODY()
};

/** An actor that sends events. */
UCLASS(Abstract, ClassGroup = Common, hidecategories = (Input))
class ENGINE_API ATriggerBase : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "TriggerBase")
	TObjectPtr<UShapeComponent> CollisionComponent;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;
};

/** A box that sends events. */
UCLASS()
class ENGINE_API ATriggerBox : public ATriggerBase
{
	GENERATED_BODY()
};

/** A sphere that sends events. */
UCLASS()
class ENGINE_API ATriggerSphere : public ATriggerBase
{
	GENERATED_BODY()
};

/** A capsule that sends events. */
UCLASS()
class ENGINE_API ATriggerCapsule : public ATriggerBase
{
	GENERATED_BODY()
};

/** A place in the level. */
UCLASS()
class ENGINE_API ATargetPoint : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;
};

/** A remark in the level. */
UCLASS()
class ENGINE_API ANote : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;
};

/** A mesh that is bent along a curve in the world. */
UCLASS()
class ENGINE_API ASplineMeshActor : public AActor
{
	GENERATED_BODY()
};

/** What is outside all volumes. */
UCLASS(notplaceable, transient)
class ENGINE_API ADefaultPhysicsVolume : public APhysicsVolume
{
	GENERATED_BODY()
};

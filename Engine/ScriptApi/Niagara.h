// Package: /Script/Niagara
#pragma once

#include "Actor.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "ParticleComponents.h"
#include "Niagara.generated.h"

/** How effects are used again. */
UENUM(BlueprintType)
enum class ENCPoolMethod : uint8
{
	None,
	AutoRelease,
	ManualRelease,
	ManualRelease_OnComplete UMETA(Hidden),
	FreeInPool UMETA(Hidden)
};

/** When an effect ticks. */
UENUM(BlueprintType)
enum class ENiagaraTickBehavior : uint8
{
	UsePrereqs UMETA(DisplayName = "Use Prerequisites"),
	UseComponentTickGroup UMETA(DisplayName = "Use Component Tick Group"),
	ForceTickFirst UMETA(DisplayName = "Force Tick First"),
	ForceTickLast UMETA(DisplayName = "Force Tick Last")
};

/** How an effect's age goes on. */
UENUM(BlueprintType)
enum class ENiagaraAgeUpdateMode : uint8
{
	TickDeltaTime,
	DesiredAge,
	DesiredAgeNoSeek
};

/** A truth value of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraBool
{
	GENERATED_BODY()
};

/** A number of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraFloat
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	float Value = 0.f;
};

/** A whole number of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraInt32
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Value = 0;
};

/** A number of any type of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraNumeric
{
	GENERATED_BODY()
};

/** All parameters of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraParameterMap
{
	GENERATED_BODY()
};

/** A place of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraPosition : public FVector3f
{
	GENERATED_BODY()
};

/** A matrix of an effect. */
USTRUCT(BlueprintType)
struct FNiagaraMatrix
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	FVector4f Row0;

	UPROPERTY(EditAnywhere)
	FVector4f Row1;

	UPROPERTY(EditAnywhere)
	FVector4f Row2;

	UPROPERTY(EditAnywhere)
	FVector4f Row3;
};

/** A particle. */
USTRUCT(BlueprintType)
struct FNiagaraID
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Index = 0;

	UPROPERTY(EditAnywhere)
	int32 AcquireTag = 0;
};

/** How many particles come. */
USTRUCT(BlueprintType)
struct FNiagaraSpawnInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Count = 0;

	UPROPERTY(EditAnywhere)
	float InterpStartDt = 0.f;

	UPROPERTY(EditAnywhere)
	float IntervalDt = 1.f;

	UPROPERTY(EditAnywhere)
	int32 SpawnGroup = 0;
};

USTRUCT(BlueprintType)
struct FNiagaraRandInfo
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	int32 Seed1 = 0;

	UPROPERTY(EditAnywhere)
	int32 Seed2 = 0;

	UPROPERTY(EditAnywhere)
	int32 Seed3 = 0;
};

/** A place on a triangle of a mesh. */
USTRUCT(BlueprintType)
struct FMeshTriCoordinate
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Tri = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FVector3f BaryCoord;
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnNiagaraSystemFinished, UNiagaraComponent*, PSystem);

/** An effect. */
UCLASS(BlueprintType)
class NIAGARA_API UNiagaraSystem : public UFXSystemAsset
{
	GENERATED_BODY()
};

/** Parameters that effects share. */
UCLASS()
class NIAGARA_API UNiagaraParameterCollection : public UObject
{
	GENERATED_BODY()
};

/** Script of an effect. */
UCLASS()
class NIAGARA_API UNiagaraScript : public UObject
{
	GENERATED_BODY()
};

/** Shows an effect. */
UCLASS(ClassGroup = (Rendering, Common), Blueprintable, hidecategories = (Object, Physics, Collision), showcategories = Trigger,
	editinlinenew, meta = (BlueprintSpawnableComponent, DisplayName = "Niagara Particle System Component"))
class NIAGARA_API UNiagaraComponent : public UFXSystemComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, DuplicateTransient, Category = "Niagara")
	FOnNiagaraSystemFinished OnSystemFinished;

	/** Sets the asset. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara System Asset"))
	void SetAsset(UNiagaraSystem* InAsset, bool bResetExistingOverrideParameters = true);

	/** The asset. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Get Niagara System Asset"))
	UNiagaraSystem* GetAsset() const;

	/** Sets the force solo. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetForceSolo(bool bInForceSolo);

	/** The force solo. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	bool GetForceSolo() const;

	/** The tick behavior. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	ENiagaraTickBehavior GetTickBehavior() const;

	/** Sets the tick behavior. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetTickBehavior(ENiagaraTickBehavior NewTickBehavior);

	/** The age update mode. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	ENiagaraAgeUpdateMode GetAgeUpdateMode() const;

	/** Sets the age update mode. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetAgeUpdateMode(ENiagaraAgeUpdateMode InAgeUpdateMode);

	/** The desired age. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	float GetDesiredAge() const;

	/** Sets the desired age. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetDesiredAge(float InDesiredAge);

	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SeekToDesiredAge(float InDesiredAge);

	/** The seek delta. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	float GetSeekDelta() const;

	/** Sets the seek delta. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetSeekDelta(float InSeekDelta);

	/** The max sim time. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	float GetMaxSimTime() const;

	/** Sets the max sim time. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetMaxSimTime(float InMaxTime);

	/** Sets the auto destroy. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetAutoDestroy(bool bInAutoDestroy);

	/** Sets the niagara variable linear color. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (LinearColor)"))
	void SetNiagaraVariableLinearColor(const FString& InVariableName, const FLinearColor& InValue);

	/** Sets the variable linear color. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (LinearColor)"))
	void SetVariableLinearColor(FName InVariableName, const FLinearColor& InValue);

	/** Sets the niagara variable vec4. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Vector4)"))
	void SetNiagaraVariableVec4(const FString& InVariableName, const FVector4& InValue);

	/** Sets the variable vec4. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Vector4)"))
	void SetVariableVec4(FName InVariableName, const FVector4& InValue);

	/** Sets the niagara variable quat. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Quaternion)"))
	void SetNiagaraVariableQuat(const FString& InVariableName, const FQuat& InValue);

	/** Sets the variable quat. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Quaternion)"))
	void SetVariableQuat(FName InVariableName, const FQuat& InValue);

	/** Sets the niagara variable vec3. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Vector3)"))
	void SetNiagaraVariableVec3(const FString& InVariableName, FVector InValue);

	/** Sets the variable vec3. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Vector3)"))
	void SetVariableVec3(FName InVariableName, FVector InValue);

	/** Sets the niagara variable position. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Position)"))
	void SetNiagaraVariablePosition(const FString& InVariableName, FVector InValue);

	/** Sets the variable position. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Position)"))
	void SetVariablePosition(FName InVariableName, FVector InValue);

	/** Sets the niagara variable vec2. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Vector2)"))
	void SetNiagaraVariableVec2(const FString& InVariableName, FVector2D InValue);

	/** Sets the variable vec2. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Vector2)"))
	void SetVariableVec2(FName InVariableName, FVector2D InValue);

	/** Sets the niagara variable float. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Float)"))
	void SetNiagaraVariableFloat(const FString& InVariableName, float InValue);

	/** Sets the variable float. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Float)"))
	void SetVariableFloat(FName InVariableName, float InValue);

	/** Sets the niagara variable int. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Int32)"))
	void SetNiagaraVariableInt(const FString& InVariableName, int32 InValue);

	/** Sets the variable int. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Int32)"))
	void SetVariableInt(FName InVariableName, int32 InValue);

	/** Sets the niagara variable bool. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Bool)"))
	void SetNiagaraVariableBool(const FString& InVariableName, bool InValue);

	/** Sets the variable bool. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Bool)"))
	void SetVariableBool(FName InVariableName, bool InValue);

	/** Sets the niagara variable actor. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Actor)"))
	void SetNiagaraVariableActor(const FString& InVariableName, AActor* Actor);

	/** Sets the variable actor. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Actor)"))
	void SetVariableActor(FName InVariableName, AActor* Actor);

	/** Sets the niagara variable object. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable By String (Object)"))
	void SetNiagaraVariableObject(const FString& InVariableName, UObject* Object);

	/** Sets the variable object. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Object)"))
	void SetVariableObject(FName InVariableName, UObject* Object);

	/** Sets the variable material. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Material)"))
	void SetVariableMaterial(FName InVariableName, UMaterialInterface* Object);

	/** Sets the variable static mesh. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Static Mesh)"))
	void SetVariableStaticMesh(FName InVariableName, UStaticMesh* InValue);

	/** Sets the variable texture. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (Texture)"))
	void SetVariableTexture(FName InVariableName, UTexture* Texture);

	/** Sets the variable texture render target. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Set Niagara Variable (TextureRenderTarget)"))
	void SetVariableTextureRenderTarget(FName InVariableName, UTextureRenderTarget* TextureRenderTarget);

	/** Begins the effect anew. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Reset System"))
	void ResetSystem();

	/** Makes the effect anew. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (DisplayName = "Reinitialize System"))
	void ReinitializeSystem();

	/** True if it is paused. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	bool IsPaused() const;

	/** Sets the paused. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetPaused(bool bInPaused);

	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (Keywords = "AdvanceSimulation"))
	void AdvanceSimulation(int32 TickCount, float TickDeltaSeconds);

	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void AdvanceSimulationByTime(float SimulateTime, float TickDeltaSeconds);

	/** Sets the allow scalability. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetAllowScalability(bool bAllow);

	/** Sets the custom time dilation. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetCustomTimeDilation(float Dilation = 1.0f);

	/** The custom time dilation. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	float GetCustomTimeDilation() const;

	/** Sets the random seed offset. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetRandomSeedOffset(int32 NewRandomSeedOffset);
};

/** Effects. */
UCLASS()
class NIAGARA_API UNiagaraFunctionLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Shows an effect at a place. */
	UFUNCTION(BlueprintCallable, Category = "Niagara",
		meta = (WorldContext = "WorldContextObject", Keywords = "niagara System", UnsafeDuringActorConstruction = "true"))
	static UNiagaraComponent* SpawnSystemAtLocation(const UObject* WorldContextObject, UNiagaraSystem* SystemTemplate, FVector Location,
		FRotator Rotation = FRotator::ZeroRotator, FVector Scale = FVector(1.f), bool bAutoDestroy = true, bool bAutoActivate = true,
		ENCPoolMethod PoolingMethod = ENCPoolMethod::None, bool bPreCullCheck = true);

	/** Shows an effect on a component. */
	UFUNCTION(BlueprintCallable, Category = "Niagara", meta = (Keywords = "niagara System", UnsafeDuringActorConstruction = "true"))
	static UNiagaraComponent* SpawnSystemAttached(UNiagaraSystem* SystemTemplate, USceneComponent* AttachToComponent, FName AttachPointName,
		FVector Location, FRotator Rotation, EAttachLocation::Type LocationType, bool bAutoDestroy, bool bAutoActivate = true,
		ENCPoolMethod PoolingMethod = ENCPoolMethod::None, bool bPreCullCheck = true);

	UFUNCTION(BlueprintCallable, Category = "Niagara",
		meta = (Keywords = "niagara StaticMesh", DisplayName = "Set Niagara Static Mesh Component"))
	static void OverrideSystemUserVariableStaticMeshComponent(
		UNiagaraComponent* NiagaraSystem, const FString& OverrideName, UStaticMeshComponent* StaticMeshComponent);

	UFUNCTION(BlueprintCallable, Category = "Niagara",
		meta = (Keywords = "niagara SkeletalMesh", DisplayName = "Set Niagara Skeletal Mesh Component"))
	static void OverrideSystemUserVariableSkeletalMeshComponent(
		UNiagaraComponent* NiagaraSystem, const FString& OverrideName, USkeletalMeshComponent* SkeletalMeshComponent);

	/** The niagara parameter collection. */
	UFUNCTION(
		BlueprintCallable, Category = "Niagara", meta = (WorldContext = "WorldContextObject", Keywords = "niagara parameter collection"))
	static UNiagaraParameterCollectionInstance* GetNiagaraParameterCollection(
		UObject* WorldContextObject, UNiagaraParameterCollection* Collection);
};

/** Values of parameters that effects share. */
UCLASS()
class NIAGARA_API UNiagaraParameterCollectionInstance : public UObject
{
	GENERATED_BODY()

public:
	/** The bool parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	bool GetBoolParameter(const FString& InVariableName);

	/** The float parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	float GetFloatParameter(const FString& InVariableName);

	/** The int parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	int32 GetIntParameter(const FString& InVariableName);

	/** The vector2 d parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	FVector2D GetVector2DParameter(const FString& InVariableName);

	/** The vector parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	FVector GetVectorParameter(const FString& InVariableName);

	/** The vector4 parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	FVector4 GetVector4Parameter(const FString& InVariableName);

	/** The quat parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	FQuat GetQuatParameter(const FString& InVariableName);

	/** The color parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	FLinearColor GetColorParameter(const FString& InVariableName);

	/** Sets the bool parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetBoolParameter(const FString& InVariableName, bool InValue);

	/** Sets the float parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetFloatParameter(const FString& InVariableName, float InValue);

	/** Sets the int parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetIntParameter(const FString& InVariableName, int32 InValue);

	/** Sets the vector2 d parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetVector2DParameter(const FString& InVariableName, FVector2D InValue);

	/** Sets the vector parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetVectorParameter(const FString& InVariableName, FVector InValue);

	/** Sets the vector4 parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetVector4Parameter(const FString& InVariableName, const FVector4& InValue);

	/** Sets the color parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetColorParameter(const FString& InVariableName, FLinearColor InValue);

	/** Sets the quat parameter. */
	UFUNCTION(BlueprintCallable, Category = "Niagara")
	void SetQuatParameter(const FString& InVariableName, const FQuat& InValue);
};

/** An effect in the world. */
UCLASS(hidecategories = (Activation, "Components|Activation", Input, Collision, "Game|Damage"), ComponentWrapperClass)
class NIAGARA_API ANiagaraActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "NiagaraActor")
	TObjectPtr<UNiagaraComponent> NiagaraComponent;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> SpriteComponent;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;

	/** Sets the destroy on system finish. */
	UFUNCTION(BlueprintCallable, Category = "NiagaraActor")
	void SetDestroyOnSystemFinish(bool bShouldDestroyOnSystemFinish);
};

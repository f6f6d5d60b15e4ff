// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "AnimationTypes.generated.h"

/** What playing a montage answers. */
UENUM(BlueprintType)
enum class EMontagePlayReturnType : uint8
{
	MontageLength UMETA(DisplayName = "Return value is the length of the montage (in seconds)"),
	Duration UMETA(DisplayName = "Return value is the play duration of the montage (length / play rate, in seconds)")
};

/** Which animations move the character. */
UENUM(BlueprintType)
namespace ERootMotionMode
{
enum Type : int
{
	NoRootMotionExtraction UMETA(DisplayName = "No Root Motion Extraction"),
	IgnoreRootMotion UMETA(DisplayName = "Ignore Root Motion"),
	RootMotionFromEverything UMETA(DisplayName = "Root Motion from Everything"),
	RootMotionFromMontagesOnly UMETA(DisplayName = "Root Motion from Montages Only")
};
}

/** What an animation's curve is for. */
UENUM(BlueprintType)
enum class EAnimCurveType : uint8
{
	AttributeCurve,
	MaterialCurve,
	MorphTargetCurve,
	MaxAnimCurveType UMETA(Hidden)
};

/** How a blend goes. */
UENUM(BlueprintType)
enum class EAlphaBlendOption : uint8
{
	Linear,
	Cubic,
	HermiteCubic,
	Sinusoidal,
	QuadraticInOut,
	CubicInOut,
	QuarticInOut,
	QuinticInOut,
	CircularIn,
	CircularOut,
	CircularInOut,
	ExpIn,
	ExpOut,
	ExpInOut,
	Custom
};

/** What an animation is added to. */
UENUM(BlueprintType)
enum EAdditiveAnimationType : int
{
	AAT_None UMETA(DisplayName = "No additive"),
	AAT_LocalSpaceBase UMETA(DisplayName = "Local Space"),
	AAT_RotationOffsetMeshSpace UMETA(DisplayName = "Mesh Space"),
	AAT_MAX UMETA(Hidden)
};

/** A pose that was kept. */
USTRUCT(BlueprintType)
struct FPoseSnapshot
{
	GENERATED_BODY()
};

/** How long and how a blend goes. */
USTRUCT(BlueprintType)
struct FAlphaBlendArgs
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Blend")
	float BlendTime = 0.2f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Blend")
	EAlphaBlendOption BlendOption;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Blend")
	TObjectPtr<UCurveFloat> CustomCurve;
};

USTRUCT(BlueprintType)
struct FBranchingPointNotifyPayload
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FAnimNotifyEventReference
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FMarkerSyncAnimPosition
{
	GENERATED_BODY()
};

/** Something that animates. */
UCLASS(BlueprintType)
class ENGINE_API UAnimationAsset : public UObject
{
	GENERATED_BODY()

public:
	/** The play length. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	float GetPlayLength() const;
};

/** An animation of sections. */
UCLASS(BlueprintType)
class ENGINE_API UAnimMontage : public UAnimationAsset
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "BlendOption")
	float BlendOutTriggerTime = -1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "BlendOption")
	bool bEnableAutoBlendOut = true;

	/** The num sections. */
	UFUNCTION(BlueprintCallable, Category = "Montage")
	int32 GetNumSections() const;

	/** The section name. */
	UFUNCTION(BlueprintCallable, Category = "Montage")
	FName GetSectionName(int32 SectionIndex) const;

	/** True if it is valid section name. */
	UFUNCTION(BlueprintCallable, Category = "Montage")
	bool IsValidSectionName(FName InSectionName) const;

	/** The section index. */
	UFUNCTION(BlueprintCallable, Category = "Montage")
	int32 GetSectionIndex(FName InSectionName) const;

	/** The section length. */
	UFUNCTION(BlueprintPure, Category = "Montage")
	float GetSectionLength(int32 SectionIndex) const;

	/** The default blend in time. */
	UFUNCTION(BlueprintPure, Category = "Montage")
	float GetDefaultBlendInTime() const;

	/** The default blend out time. */
	UFUNCTION(BlueprintPure, Category = "Montage")
	float GetDefaultBlendOutTime() const;

	/** True if it is dynamic montage. */
	UFUNCTION(BlueprintPure, Category = "Montage")
	bool IsDynamicMontage() const;
};

/** Bones that animations are made for. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API USkeleton : public UObject
{
	GENERATED_BODY()
};

/** A mesh with bones. */
UCLASS(hidecategories = Object, config = Engine, editinlinenew, abstract)
class ENGINE_API USkinnedAsset : public UStreamableRenderAsset
{
	GENERATED_BODY()
};

/** Something that is streamed in for drawing. */
UCLASS(Abstract)
class ENGINE_API UStreamableRenderAsset : public UObject
{
	GENERATED_BODY()
};

/** A mesh with bones. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API USkeletalMesh : public USkinnedAsset
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Animation")
	int32 NumSockets() const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	USkeletalMeshSocket* FindSocket(FName InSocketName) const;

	/** The socket by index. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	USkeletalMeshSocket* GetSocketByIndex(int32 Index) const;

	/** True if it is section using cloth. */
	UFUNCTION(BlueprintCallable, Category = "Skeletal Mesh")
	bool IsSectionUsingCloth(int32 InSectionIndex, bool bCheckCorrespondingSections = true) const;
};

/** A place on a bone. */
UCLASS(hidecategories = Object, BlueprintType)
class ENGINE_API USkeletalMeshSocket : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Socket Parameters")
	FName SocketName;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Socket Parameters")
	FName BoneName;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Socket Parameters")
	FVector RelativeLocation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Socket Parameters")
	FRotator RelativeRotation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Socket Parameters")
	FVector RelativeScale;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void InitializeSocketFromLocation(const USkeletalMeshComponent* SkelComp, FVector WorldLocation, FVector WorldNormal);

	/** The socket location. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	FVector GetSocketLocation(const USkeletalMeshComponent* SkelComp) const;
};

/** An animation of some length. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UAnimSequenceBase : public UAnimationAsset
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Animation")
	float RateScale = 1.f;
};

/** An animation of bones. */
UCLASS(config = Engine, hidecategories = (UObject, Length), BlueprintType)
class ENGINE_API UAnimSequence : public UAnimSequenceBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "RootMotion")
	bool bEnableRootMotion = false;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "RootMotion")
	bool bForceRootLock = false;
};

/** An animation of several. */
UCLASS(abstract)
class ENGINE_API UAnimCompositeBase : public UAnimSequenceBase
{
	GENERATED_BODY()
};

/** Animations one after the other. */
UCLASS(BlueprintType)
class ENGINE_API UAnimComposite : public UAnimCompositeBase
{
	GENERATED_BODY()
};

/** Animations blended by numbers. */
UCLASS(config = Engine, hidecategories = Object, BlueprintType)
class ENGINE_API UBlendSpace : public UAnimationAsset
{
	GENERATED_BODY()
};

/** Animations blended by a number. */
UCLASS(config = Engine, hidecategories = (Object, InputInterpolation), BlueprintType)
class ENGINE_API UBlendSpace1D : public UBlendSpace
{
	GENERATED_BODY()
};

/** Poses for aiming. */
UCLASS(config = Engine, hidecategories = Object, BlueprintType)
class ENGINE_API UAimOffsetBlendSpace : public UBlendSpace
{
	GENERATED_BODY()
};

/** Poses that are blended. */
UCLASS(BlueprintType)
class ENGINE_API UPoseAsset : public UAnimationAsset
{
	GENERATED_BODY()
};

/** How fast each bone blends. */
UCLASS()
class ENGINE_API UBlendProfile : public UObject
{
	GENERATED_BODY()
};

/** A moment of an animation. */
UCLASS(abstract, editinlinenew, Blueprintable, const, hidecategories = Object, collapsecategories, meta = (ShowWorldContextPin))
class ENGINE_API UAnimNotify : public UObject
{
	GENERATED_BODY()

public:
	/** The moment has come. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AnimNotify", meta = (AutoCreateRefTerm = "EventReference"))
	bool Received_Notify(
		USkeletalMeshComponent* MeshComp, UAnimSequenceBase* Animation, const FAnimNotifyEventReference& EventReference) const;

	/** The notify name. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "AnimNotify")
	FString GetNotifyName() const;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AnimNotify")
	FColor NotifyColor;
};

/** A span of an animation. */
UCLASS(abstract, editinlinenew, Blueprintable, const, hidecategories = Object, collapsecategories, meta = (ShowWorldContextPin))
class ENGINE_API UAnimNotifyState : public UObject
{
	GENERATED_BODY()

public:
	/** The span begins. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AnimNotify", meta = (AutoCreateRefTerm = "EventReference"))
	bool Received_NotifyBegin(USkeletalMeshComponent* MeshComp, UAnimSequenceBase* Animation, float TotalDuration,
		const FAnimNotifyEventReference& EventReference) const;

	/** Each frame of the span. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AnimNotify", meta = (AutoCreateRefTerm = "EventReference"))
	bool Received_NotifyTick(USkeletalMeshComponent* MeshComp, UAnimSequenceBase* Animation, float FrameDeltaTime,
		const FAnimNotifyEventReference& EventReference) const;

	/** The span ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AnimNotify", meta = (AutoCreateRefTerm = "EventReference"))
	bool Received_NotifyEnd(
		USkeletalMeshComponent* MeshComp, UAnimSequenceBase* Animation, const FAnimNotifyEventReference& EventReference) const;

	/** The notify name. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "AnimNotify")
	FString GetNotifyName() const;
};

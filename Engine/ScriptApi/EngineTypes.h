// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "EngineTypes.generated.h"

/** Kinds of collision objects and traces. */
UENUM(BlueprintType)
enum ECollisionChannel : int
{
	ECC_WorldStatic UMETA(DisplayName = "WorldStatic"),
	ECC_WorldDynamic UMETA(DisplayName = "WorldDynamic"),
	ECC_Pawn UMETA(DisplayName = "Pawn"),
	ECC_Visibility UMETA(DisplayName = "Visibility"),
	ECC_Camera UMETA(DisplayName = "Camera"),
	ECC_PhysicsBody UMETA(DisplayName = "PhysicsBody"),
	ECC_Vehicle UMETA(DisplayName = "Vehicle"),
	ECC_Destructible UMETA(DisplayName = "Destructible"),
	ECC_EngineTraceChannel1 UMETA(Hidden),
	ECC_EngineTraceChannel2 UMETA(Hidden),
	ECC_EngineTraceChannel3 UMETA(Hidden),
	ECC_EngineTraceChannel4 UMETA(Hidden),
	ECC_EngineTraceChannel5 UMETA(Hidden),
	ECC_EngineTraceChannel6 UMETA(Hidden),
	ECC_GameTraceChannel1 UMETA(Hidden),
	ECC_GameTraceChannel2 UMETA(Hidden),
	ECC_GameTraceChannel3 UMETA(Hidden),
	ECC_GameTraceChannel4 UMETA(Hidden),
	ECC_GameTraceChannel5 UMETA(Hidden),
	ECC_GameTraceChannel6 UMETA(Hidden),
	ECC_GameTraceChannel7 UMETA(Hidden),
	ECC_GameTraceChannel8 UMETA(Hidden),
	ECC_GameTraceChannel9 UMETA(Hidden),
	ECC_GameTraceChannel10 UMETA(Hidden),
	ECC_GameTraceChannel11 UMETA(Hidden),
	ECC_GameTraceChannel12 UMETA(Hidden),
	ECC_GameTraceChannel13 UMETA(Hidden),
	ECC_GameTraceChannel14 UMETA(Hidden),
	ECC_GameTraceChannel15 UMETA(Hidden),
	ECC_GameTraceChannel16 UMETA(Hidden),
	ECC_GameTraceChannel17 UMETA(Hidden),
	ECC_GameTraceChannel18 UMETA(Hidden),
	ECC_OverlapAll_Deprecated UMETA(Hidden),
	ECC_MAX
};

/** What happens between two collision objects. */
UENUM(BlueprintType)
enum ECollisionResponse : int
{
	ECR_Ignore UMETA(DisplayName = "Ignore"),
	ECR_Overlap UMETA(DisplayName = "Overlap"),
	ECR_Block UMETA(DisplayName = "Block"),
	ECR_MAX
};

/** A trace channel as Blueprints see it. */
UENUM(BlueprintType)
enum ETraceTypeQuery : int
{
	TraceTypeQuery1 UMETA(DisplayName = "Visibility"),
	TraceTypeQuery2 UMETA(DisplayName = "Camera"),
	TraceTypeQuery3 UMETA(Hidden),
	TraceTypeQuery4 UMETA(Hidden),
	TraceTypeQuery5 UMETA(Hidden),
	TraceTypeQuery6 UMETA(Hidden),
	TraceTypeQuery7 UMETA(Hidden),
	TraceTypeQuery8 UMETA(Hidden),
	TraceTypeQuery9 UMETA(Hidden),
	TraceTypeQuery10 UMETA(Hidden),
	TraceTypeQuery11 UMETA(Hidden),
	TraceTypeQuery12 UMETA(Hidden),
	TraceTypeQuery13 UMETA(Hidden),
	TraceTypeQuery14 UMETA(Hidden),
	TraceTypeQuery15 UMETA(Hidden),
	TraceTypeQuery16 UMETA(Hidden),
	TraceTypeQuery17 UMETA(Hidden),
	TraceTypeQuery18 UMETA(Hidden),
	TraceTypeQuery19 UMETA(Hidden),
	TraceTypeQuery20 UMETA(Hidden),
	TraceTypeQuery21 UMETA(Hidden),
	TraceTypeQuery22 UMETA(Hidden),
	TraceTypeQuery23 UMETA(Hidden),
	TraceTypeQuery24 UMETA(Hidden),
	TraceTypeQuery25 UMETA(Hidden),
	TraceTypeQuery26 UMETA(Hidden),
	TraceTypeQuery27 UMETA(Hidden),
	TraceTypeQuery28 UMETA(Hidden),
	TraceTypeQuery29 UMETA(Hidden),
	TraceTypeQuery30 UMETA(Hidden),
	TraceTypeQuery31 UMETA(Hidden),
	TraceTypeQuery32 UMETA(Hidden),
	TraceTypeQuery_MAX UMETA(Hidden)
};

/** An object channel as Blueprints see it. */
UENUM(BlueprintType)
enum EObjectTypeQuery : int
{
	ObjectTypeQuery1 UMETA(DisplayName = "WorldStatic"),
	ObjectTypeQuery2 UMETA(DisplayName = "WorldDynamic"),
	ObjectTypeQuery3 UMETA(DisplayName = "Pawn"),
	ObjectTypeQuery4 UMETA(DisplayName = "PhysicsBody"),
	ObjectTypeQuery5 UMETA(DisplayName = "Vehicle"),
	ObjectTypeQuery6 UMETA(DisplayName = "Destructible"),
	ObjectTypeQuery7 UMETA(Hidden),
	ObjectTypeQuery8 UMETA(Hidden),
	ObjectTypeQuery9 UMETA(Hidden),
	ObjectTypeQuery10 UMETA(Hidden),
	ObjectTypeQuery11 UMETA(Hidden),
	ObjectTypeQuery12 UMETA(Hidden),
	ObjectTypeQuery13 UMETA(Hidden),
	ObjectTypeQuery14 UMETA(Hidden),
	ObjectTypeQuery15 UMETA(Hidden),
	ObjectTypeQuery16 UMETA(Hidden),
	ObjectTypeQuery17 UMETA(Hidden),
	ObjectTypeQuery18 UMETA(Hidden),
	ObjectTypeQuery19 UMETA(Hidden),
	ObjectTypeQuery20 UMETA(Hidden),
	ObjectTypeQuery21 UMETA(Hidden),
	ObjectTypeQuery22 UMETA(Hidden),
	ObjectTypeQuery23 UMETA(Hidden),
	ObjectTypeQuery24 UMETA(Hidden),
	ObjectTypeQuery25 UMETA(Hidden),
	ObjectTypeQuery26 UMETA(Hidden),
	ObjectTypeQuery27 UMETA(Hidden),
	ObjectTypeQuery28 UMETA(Hidden),
	ObjectTypeQuery29 UMETA(Hidden),
	ObjectTypeQuery30 UMETA(Hidden),
	ObjectTypeQuery31 UMETA(Hidden),
	ObjectTypeQuery32 UMETA(Hidden),
	ObjectTypeQuery_MAX UMETA(Hidden)
};

/** What collision is used for. */
UENUM(BlueprintType)
namespace ECollisionEnabled
{
enum Type : int
{
	NoCollision UMETA(DisplayName = "No Collision"),
	QueryOnly UMETA(DisplayName = "Query Only (No Physics Collision)"),
	PhysicsOnly UMETA(DisplayName = "Physics Only (No Query Collision)"),
	QueryAndPhysics UMETA(DisplayName = "Collision Enabled (Query and Physics)"),
	ProbeOnly UMETA(DisplayName = "Probe Only (Contact Data, No Query or Physics Collision)"),
	QueryAndProbe UMETA(DisplayName = "Query and Probe (Query Collision and Contact Data, No Physics Collision)")
};
}

/** How a character moves. */
UENUM(BlueprintType)
enum EMovementMode : int
{
	MOVE_None,
	MOVE_Walking,
	MOVE_NavWalking,
	MOVE_Falling,
	MOVE_Swimming,
	MOVE_Flying,
	MOVE_Custom,
	MOVE_MAX
};

/** What an audio component is doing. */
UENUM(BlueprintType)
enum class EAudioComponentPlayState : uint8
{
	Playing,
	Stopped,
	Paused,
	FadingIn,
	FadingOut,
	Count UMETA(Hidden)
};

/** How a view passes to another. */
UENUM(BlueprintType)
enum EViewTargetBlendFunction : int
{
	VTBlend_Linear,
	VTBlend_Cubic,
	VTBlend_EaseIn,
	VTBlend_EaseOut,
	VTBlend_PreBlended,
	VTBlend_MAX
};

/** Whether physics keeps its velocity when a component is set elsewhere. */
UENUM()
enum class ETeleportType : uint8
{
	None,
	TeleportPhysics,
	ResetPhysics
};

/** What a trace or a sweep hit, and where. */
USTRUCT(BlueprintType,
	meta = (HasNativeBreak = "/Script/Engine.GameplayStatics.BreakHitResult",
		HasNativeMake = "/Script/Engine.GameplayStatics.MakeHitResult"))
struct ENGINE_API FHitResult
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	int32 FaceIndex;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	float Time;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	float Distance;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FVector_NetQuantize Location;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FVector_NetQuantize ImpactPoint;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FVector_NetQuantizeNormal Normal;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FVector_NetQuantizeNormal ImpactNormal;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FVector_NetQuantize TraceStart;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FVector_NetQuantize TraceEnd;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	float PenetrationDepth;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	int32 MyItem;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	int32 Item;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	uint8 ElementIndex;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	uint8 bBlockingHit : 1;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	uint8 bStartPenetrating : 1;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	TWeakObjectPtr<UPhysicalMaterial> PhysMaterial;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	TWeakObjectPtr<UPrimitiveComponent> Component;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FName BoneName;

	UPROPERTY(BlueprintReadWrite, Category = "HitResult")
	FName MyBoneName;
};

/** A vector that is sent with whole numbers. */
USTRUCT(BlueprintType)
struct FVector_NetQuantize : public FVector
{
	GENERATED_BODY()
};

/** A vector of length 1 that is sent with 16 bits a component. */
USTRUCT(BlueprintType)
struct FVector_NetQuantizeNormal : public FVector
{
	GENERATED_BODY()
};

/** Where a node goes on that takes time. */
USTRUCT(BlueprintInternalUseOnly)
struct ENGINE_API FLatentActionInfo
{
	GENERATED_BODY()

	UPROPERTY(meta = (NeedsLatentFixup = true))
	int32 Linkage;

	UPROPERTY()
	int32 UUID;

	UPROPERTY()
	FName ExecutionFunction;

	UPROPERTY(meta = (LatentCallbackTarget = true))
	TObjectPtr<UObject> CallbackTarget;
};

DECLARE_DYNAMIC_DELEGATE(FTimerDynamicDelegate);

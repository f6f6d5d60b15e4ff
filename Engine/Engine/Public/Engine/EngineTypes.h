#pragma once

#include "CoreMinimal.h"
#include "UObject/CoreNetTypes.h"
#include "UObject/ObjectMacros.h"

#include "EngineTypes.generated.h"

/** What happens when an actor is spawned into something. */
UENUM(BlueprintType)
enum class ESpawnActorCollisionHandlingMethod : uint8
{
	Undefined UMETA(DisplayName = "Default"),
	AlwaysSpawn UMETA(DisplayName = "Always Spawn, Ignore Collisions"),
	AdjustIfPossibleButAlwaysSpawn UMETA(DisplayName = "Try To Adjust Location, But Always Spawn"),
	AdjustIfPossibleButDontSpawnIfColliding UMETA(DisplayName = "Try To Adjust Location, Don't Spawn If Still Colliding"),
	DontSpawnIfColliding UMETA(DisplayName = "Do Not Spawn")
};

/** How an actor's scale joins its template's when it is spawned. */
UENUM(BlueprintType)
enum class ESpawnActorScaleMethod : uint8
{
	OverrideRootScale UMETA(DisplayName = "Override Root Component Scale"),
	MultiplyWithRoot UMETA(DisplayName = "Multiply Scale With Root Component Scale"),
	SelectDefaultAtRuntime UMETA(DisplayName = "Default")
};

/** What an event is sent through: the gameplay objects' input priority. */
UENUM()
namespace EAutoReceiveInput
{
enum Type : int
{
	Disabled,
	Player0,
	Player1,
	Player2,
	Player3,
	Player4,
	Player5,
	Player6,
	Player7
};
}

/** Where in a frame a tick runs. */
UENUM(BlueprintType)
enum ETickingGroup : int
{
	TG_PrePhysics UMETA(DisplayName = "Pre Physics"),
	TG_StartPhysics UMETA(Hidden, DisplayName = "Start Physics"),
	TG_DuringPhysics UMETA(DisplayName = "During Physics"),
	TG_EndPhysics UMETA(Hidden, DisplayName = "End Physics"),
	TG_PostPhysics UMETA(DisplayName = "Post Physics"),
	TG_PostUpdateWork UMETA(DisplayName = "Post Update Work"),
	TG_LastDemotable UMETA(Hidden, DisplayName = "Last Demotable"),
	TG_NewlySpawned UMETA(Hidden, DisplayName = "Newly Spawned"),
	TG_MAX
};

/** When an actor or component ticks. */
USTRUCT()
struct FTickFunction
{
	GENERATED_BODY()

	UPROPERTY(EditDefaultsOnly, Category = "Tick", AdvancedDisplay)
	TEnumAsByte<enum ETickingGroup> TickGroup = TG_PrePhysics;

	UPROPERTY(EditDefaultsOnly, Category = "Tick", AdvancedDisplay)
	TEnumAsByte<enum ETickingGroup> EndTickGroup = TG_PrePhysics;

	UPROPERTY(EditDefaultsOnly, Category = "Tick", AdvancedDisplay)
	uint8 bTickEvenWhenPaused : 1;

	UPROPERTY()
	uint8 bCanEverTick : 1;

	UPROPERTY(EditDefaultsOnly, Category = "Tick")
	uint8 bStartWithTickEnabled : 1;

	UPROPERTY(EditDefaultsOnly, Category = "Tick", AdvancedDisplay)
	uint8 bAllowTickOnDedicatedServer : 1;

	/** Seconds between ticks; 0 ticks every frame. */
	UPROPERTY(EditDefaultsOnly, Category = "Tick")
	float TickInterval = 0.0f;

	FTickFunction()
		: bTickEvenWhenPaused(false)
		, bCanEverTick(false)
		, bStartWithTickEnabled(true)
		, bAllowTickOnDedicatedServer(true)
	{
	}
};

USTRUCT()
struct FActorTickFunction : public FTickFunction
{
	GENERATED_BODY()
};

USTRUCT()
struct FActorComponentTickFunction : public FTickFunction
{
	GENERATED_BODY()
};

/** How a transform changes when a component is attached. */
UENUM(BlueprintType)
enum class EAttachmentRule : uint8
{
	KeepRelative,
	KeepWorld,
	SnapToTarget
};

/** How a transform changes when a component is detached. */
UENUM()
enum class EDetachmentRule : uint8
{
	KeepRelative,
	KeepWorld
};

/** Whether and when a component may move. */
UENUM(BlueprintType)
namespace EComponentMobility
{
enum Type : int
{
	Static,
	Stationary,
	Movable
};
}

/** Why an actor leaves play. */
UENUM(BlueprintType)
namespace EEndPlayReason
{
enum Type : int
{
	Destroyed,
	LevelTransition,
	EndPlayInEditor,
	RemovedFromWorld,
	Quit
};
}

/** Which machine has authority over an actor. */
UENUM()
enum ENetRole : int
{
	ROLE_None,
	ROLE_SimulatedProxy,
	ROLE_AutonomousProxy,
	ROLE_Authority,
	ROLE_MAX
};

/** How a component was made. */
UENUM()
enum class EComponentCreationMethod : uint8
{
	Native,
	SimpleConstructionScript,
	UserConstructionScript,
	Instance
};

/** What kind of world a UWorld is. */
namespace EWorldType
{
enum Type
{
	None,
	Game,
	Editor,
	PIE,
	EditorPreview,
	GamePreview,
	GameRPC,
	Inactive
};
}

/** How each part of a transform changes when a component is attached. */
struct FAttachmentTransformRules
{
	static ENGINE_API FAttachmentTransformRules KeepRelativeTransform;
	static ENGINE_API FAttachmentTransformRules KeepWorldTransform;
	static ENGINE_API FAttachmentTransformRules SnapToTargetNotIncludingScale;
	static ENGINE_API FAttachmentTransformRules SnapToTargetIncludingScale;

	FAttachmentTransformRules(EAttachmentRule InRule, bool bInWeldSimulatedBodies)
		: LocationRule(InRule)
		, RotationRule(InRule)
		, ScaleRule(InRule)
		, bWeldSimulatedBodies(bInWeldSimulatedBodies)
	{
	}
	FAttachmentTransformRules(
		EAttachmentRule InLocationRule, EAttachmentRule InRotationRule, EAttachmentRule InScaleRule, bool bInWeldSimulatedBodies)
		: LocationRule(InLocationRule)
		, RotationRule(InRotationRule)
		, ScaleRule(InScaleRule)
		, bWeldSimulatedBodies(bInWeldSimulatedBodies)
	{
	}

	EAttachmentRule LocationRule;
	EAttachmentRule RotationRule;
	EAttachmentRule ScaleRule;
	bool bWeldSimulatedBodies;
};

/** How a transform changes when a component is detached. */
struct FDetachmentTransformRules
{
	static ENGINE_API FDetachmentTransformRules KeepRelativeTransform;
	static ENGINE_API FDetachmentTransformRules KeepWorldTransform;

	FDetachmentTransformRules(EDetachmentRule InRule, bool bInCallModify)
		: LocationRule(InRule)
		, RotationRule(InRule)
		, ScaleRule(InRule)
		, bCallModify(bInCallModify)
	{
	}

	EDetachmentRule LocationRule;
	EDetachmentRule RotationRule;
	EDetachmentRule ScaleRule;
	bool bCallModify;
};

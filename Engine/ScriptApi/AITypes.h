// Package: /Script/AIModule
#pragma once

#include "CoreMinimal.h"
#include "AITypes.generated.h"

/** What following a path does. */
UENUM(BlueprintType)
namespace EPathFollowingStatus
{
enum Type : int
{
	Idle,
	Waiting,
	Paused,
	Moving
};
}

/** How following a path ended. */
UENUM(BlueprintType)
namespace EPathFollowingResult
{
enum Type : int
{
	Success,
	Blocked,
	OffPath,
	Aborted,
	Skipped_DEPRECATED,
	Invalid
};
}

/** How a path is followed. */
UENUM(BlueprintType)
namespace EPathFollowingAction
{
enum Type : int
{
	Error,
	NoMove,
	DirectMove,
	PartialPath,
	PathToGoal
};
}

/** Whether a move begins. */
UENUM(BlueprintType)
namespace EPathFollowingRequestResult
{
enum Type : int
{
	Failed,
	AlreadyAtGoal,
	RequestSuccessful
};
}

/** Yes, no or as usual. */
UENUM(BlueprintType)
namespace EAIOptionFlag
{
enum Type : int
{
	Default,
	Enable UMETA(DisplayName = "Yes"),
	Disable UMETA(DisplayName = "No")
};
}

/** How urgent a request is. */
UENUM(BlueprintType)
namespace EAIRequestPriority
{
enum Type : int
{
	SoftScript,
	Logic,
	HardScript,
	Reaction,
	Ultimate
};
}

/** How a node of a behaviour tree ended. */
UENUM(BlueprintType)
namespace EBTNodeResult
{
enum Type : int
{
	Succeeded,
	Failed,
	Aborted,
	InProgress
};
}

/** What a decorator gives up. */
UENUM(BlueprintType)
namespace EBTFlowAbortMode
{
enum Type : int
{
	None UMETA(DisplayName = "Nothing"),
	LowerPriority UMETA(DisplayName = "Lower Priority"),
	Self UMETA(DisplayName = "Self"),
	Both UMETA(DisplayName = "Both")
};
}

/** Which results of a query are wanted. */
UENUM(BlueprintType)
namespace EEnvQueryRunMode
{
enum Type : int
{
	SingleResult UMETA(DisplayName = "Single Best Item"),
	RandomBest5Pct UMETA(DisplayName = "Single Random Item from Best 5%"),
	RandomBest25Pct UMETA(DisplayName = "Single Random Item from Best 25%"),
	AllMatching UMETA(DisplayName = "All Matching")
};
}

/** What a query does. */
UENUM(BlueprintType)
namespace EEnvQueryStatus
{
enum Type : int
{
	Processing,
	Success,
	Failed,
	Aborted,
	OwnerLost,
	MissingParam
};
}

/** How teams stand to each other. */
UENUM(BlueprintType)
namespace ETeamAttitude
{
enum Type : int
{
	Friendly,
	Neutral,
	Hostile
};
}

USTRUCT(BlueprintType)
struct FAIRequestID
{
	GENERATED_BODY()

	UPROPERTY(Category = "AI")
	uint32 RequestID = 0;
};

/** Something that was sensed. */
USTRUCT(BlueprintType)
struct FAIStimulus
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	float Strength = -1.f;

	UPROPERTY(BlueprintReadOnly, Category = "AI|Perception")
	FVector StimulusLocation;

	UPROPERTY(BlueprintReadOnly, Category = "AI|Perception")
	FVector ReceiverLocation;

	UPROPERTY(BlueprintReadOnly, Category = "AI|Perception")
	FName Tag;

	UPROPERTY(BlueprintReadOnly, VisibleAnywhere, Category = "Sight")
	uint8 bSuccessfullySensed : 1;
};

/** What is known of an actor. */
USTRUCT(BlueprintType)
struct FActorPerceptionBlueprintInfo
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	TObjectPtr<AActor> Target;

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	TArray<FAIStimulus> LastSensedStimuli;

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	uint8 bIsHostile : 1;
};

/** What has changed in what is known of an actor. */
USTRUCT(BlueprintType)
struct FActorPerceptionUpdateInfo
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	int32 TargetId = 0;

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	TWeakObjectPtr<AActor> Target;

	UPROPERTY(BlueprintReadWrite, Category = "AI|Perception")
	FAIStimulus Stimulus;
};

/** Whom a sense finds. */
USTRUCT(BlueprintType)
struct FAISenseAffiliationFilter
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	uint8 bDetectEnemies : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	uint8 bDetectNeutrals : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	uint8 bDetectFriendlies : 1;
};

/** A team. */
USTRUCT(BlueprintType)
struct FGenericTeamId
{
	GENERATED_BODY()
};

/** A key of a blackboard that is chosen in the editor. */
USTRUCT(BlueprintType)
struct FBlackboardKeySelector
{
	GENERATED_BODY()

	UPROPERTY(EditInstanceOnly, BlueprintReadWrite, Category = "Blackboard")
	FName SelectedKeyName;
};

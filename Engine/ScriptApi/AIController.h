// Package: /Script/AIModule
#pragma once

#include "ActorComponent.h"
#include "Controller.h"
#include "Engine/DataAsset.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "AIController.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FAIMoveCompletedSignature, FAIRequestID, RequestID, EPathFollowingResult::Type, Result);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOAISimpleDelegate, EPathFollowingResult::Type, MovementResult);

/** Controls a pawn without a player. */
UCLASS(ClassGroup = AI, BlueprintType, Blueprintable)
class AIMODULE_API AAIController : public AController
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "AI|Navigation", meta = (DisplayName = "MoveCompleted"))
	FAIMoveCompletedSignature ReceiveMoveCompleted;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "AI", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UBlackboardComponent> Blackboard;

	UPROPERTY(VisibleDefaultsOnly, Category = "AI")
	TObjectPtr<UPathFollowingComponent> PathFollowingComponent;

	UPROPERTY(EditAnywhere, Category = "AI")
	uint8 bStartAILogicOnPossess : 1;

	UPROPERTY(EditAnywhere, Category = "AI")
	uint8 bStopAILogicOnUnposses : 1;

	UPROPERTY(VisibleDefaultsOnly, BlueprintReadWrite, Category = "AI")
	TObjectPtr<UAIPerceptionComponent> PerceptionComponent;

	UPROPERTY(BlueprintReadWrite, Category = "AI")
	TObjectPtr<UBrainComponent> BrainComponent;

	/** Goes to an actor. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (AdvancedDisplay = "bStopOnOverlap,bCanStrafe,bAllowPartialPath"))
	EPathFollowingRequestResult::Type MoveToActor(AActor* Goal, float AcceptanceRadius = -1, bool bStopOnOverlap = true,
		bool bUsePathfinding = true, bool bCanStrafe = true, TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr,
		bool bAllowPartialPath = true);

	/** Goes to a place. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation", meta = (AdvancedDisplay = "bStopOnOverlap,bCanStrafe,bAllowPartialPath"))
	EPathFollowingRequestResult::Type MoveToLocation(const FVector& Dest, float AcceptanceRadius = -1, bool bStopOnOverlap = true,
		bool bUsePathfinding = true, bool bProjectDestinationToNavigation = false, bool bCanStrafe = true,
		TSubclassOf<UNavigationQueryFilter> FilterClass = nullptr, bool bAllowPartialPath = true);

	/** The move status. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	EPathFollowingStatus::Type GetMoveStatus() const;

	/** True if it has partial path. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	bool HasPartialPath() const;

	/** The immediate move destination. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	FVector GetImmediateMoveDestination() const;

	/** Sets the move block detection. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void SetMoveBlockDetection(bool bEnable);

	/** Runs a behaviour tree. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	bool RunBehaviorTree(UBehaviorTree* BTAsset);

	/** Uses a blackboard. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	bool UseBlackboard(UBlackboardData* BlackboardAsset, UBlackboardComponent*& BlackboardComponent);

	/** Keeps a resource of tasks for itself. */
	UFUNCTION(BlueprintCallable, Category = "AI|Tasks")
	void ClaimTaskResource(TSubclassOf<UGameplayTaskResource> ResourceClass);

	/** Gives a resource of tasks free. */
	UFUNCTION(BlueprintCallable, Category = "AI|Tasks")
	void UnclaimTaskResource(TSubclassOf<UGameplayTaskResource> ResourceClass);

	/** Looks at an actor. */
	UFUNCTION(BlueprintCallable, Category = "AI", meta = (DisplayName = "SetFocus", ScriptName = "SetFocus"))
	void K2_SetFocus(AActor* NewFocus);

	/** Looks at a place. */
	UFUNCTION(BlueprintCallable, Category = "AI", meta = (DisplayName = "SetFocalPoint", ScriptName = "SetFocalPoint"))
	void K2_SetFocalPoint(FVector FP);

	/** Looks at nothing. */
	UFUNCTION(BlueprintCallable, Category = "AI", meta = (DisplayName = "ClearFocus", ScriptName = "ClearFocus"))
	void K2_ClearFocus();

	/** The focal point. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	FVector GetFocalPoint() const;

	/** The focal point on actor. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	FVector GetFocalPointOnActor(const AActor* Actor) const;

	/** The focus actor. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	AActor* GetFocusActor() const;

	/** The path following component. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	UPathFollowingComponent* GetPathFollowingComponent() const;

	/** The AI perception component. */
	UFUNCTION(BlueprintPure, Category = "AI|Perception")
	UAIPerceptionComponent* GetAIPerceptionComponent();

	/** Sets the path following component. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	void SetPathFollowingComponent(UPathFollowingComponent* NewPFComponent);

	/** A blackboard is used. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void OnUsingBlackBoard(UBlackboardComponent* BlackboardComp, UBlackboardData* BlackboardAsset);
};

/** Pawns without players. */
UCLASS(meta = (ScriptName = "AIHelperLibrary"))
class AIMODULE_API UAIBlueprintHelperLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Goes to an actor or a place. */
	UFUNCTION(BlueprintCallable, Category = "AI", meta = (WorldContext = "WorldContextObject", BlueprintInternalUseOnly = "true"))
	static UAIAsyncTaskBlueprintProxy* CreateMoveToProxyObject(UObject* WorldContextObject, APawn* Pawn, FVector Destination,
		AActor* TargetActor = nullptr, float AcceptanceRadius = 5.f, bool bStopOnOverlap = false);

	/** Sends a message to a pawn's logic. */
	UFUNCTION(BlueprintCallable, Category = "AI", meta = (DefaultToSelf = "MessageSource"))
	static void SendAIMessage(APawn* Target, FName Message, UObject* MessageSource, bool bSuccess = true);

	/** Spawns a pawn that a behaviour tree controls. */
	UFUNCTION(BlueprintCallable, Category = "AI", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static APawn* SpawnAIFromClass(UObject* WorldContextObject, TSubclassOf<APawn> PawnClass, UBehaviorTree* BehaviorTree, FVector Location,
		FRotator Rotation = FRotator::ZeroRotator, bool bNoCollisionFail = false, AActor* Owner = nullptr);

	/** The AI controller. */
	UFUNCTION(BlueprintPure, Category = "AI", meta = (DefaultToSelf = "ControlledActor"))
	static AAIController* GetAIController(AActor* ControlledActor);

	/** The blackboard. */
	UFUNCTION(BlueprintPure, Category = "AI", meta = (DefaultToSelf = "Target"))
	static UBlackboardComponent* GetBlackboard(AActor* Target);

	/** Stops the movement or the logic of the AI while an animation plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (DefaultToSelf = "AnimInstance"))
	static void LockAIResourcesWithAnimation(UAnimInstance* AnimInstance, bool bLockMovement, bool LockAILogic);

	/** Lets the movement or the logic of the AI go on after an animation. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (DefaultToSelf = "AnimInstance"))
	static void UnlockAIResourcesWithAnimation(UAnimInstance* AnimInstance, bool bUnlockMovement, bool UnlockAILogic);

	/** True if it is valid AI location. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static bool IsValidAILocation(FVector Location);

	/** True if it is valid AI direction. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static bool IsValidAIDirection(FVector DirectionVector);

	/** True if it is valid AI rotation. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static bool IsValidAIRotation(FRotator Rotation);

	/** The current path. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static UNavigationPath* GetCurrentPath(AController* Controller);

	/** The current path points. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static const TArray<FVector> GetCurrentPathPoints(AController* Controller);

	/** The current path index. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static int32 GetCurrentPathIndex(const AController* Controller);

	/** The next nav link index. */
	UFUNCTION(BlueprintPure, Category = "AI")
	static int32 GetNextNavLinkIndex(const AController* Controller);

	/** Goes to an actor. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	static void SimpleMoveToActor(AController* Controller, const AActor* Goal);

	/** Goes to a place. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	static void SimpleMoveToLocation(AController* Controller, const FVector& Goal);
};

/** Tells how a move ended. */
UCLASS()
class AIMODULE_API UAIAsyncTaskBlueprintProxy : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOAISimpleDelegate OnSuccess;

	UPROPERTY(BlueprintAssignable)
	FOAISimpleDelegate OnFail;

	UFUNCTION(BlueprintCallable, meta = (BlueprintInternalUseOnly = "true"))
	void OnMoveCompleted(FAIRequestID RequestID, EPathFollowingResult::Type MovementResult);
};

/** Follows paths. */
UCLASS(config = Engine)
class AIMODULE_API UPathFollowingComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PathFollowing")
	void OnActorBump(AActor* SelfActor, AActor* OtherActor, FVector NormalImpulse, const FHitResult& Hit);

	/** The path destination. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PathFollowing")
	FVector GetPathDestination() const;

	/** The path action type. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PathFollowing")
	EPathFollowingAction::Type GetPathActionType() const;
};

/** Logic of a pawn. */
UCLASS(BlueprintType, hidecategories = (Sockets, Collision))
class AIMODULE_API UBrainComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** Starts what the AI does. */
	UFUNCTION(BlueprintCallable, Category = "AI|Logic")
	void StartLogic();

	/** Starts what the AI does from its beginning. */
	UFUNCTION(BlueprintCallable, Category = "AI|Logic")
	void RestartLogic();

	/** Stops what the AI does. */
	UFUNCTION(BlueprintCallable, Category = "AI|Logic")
	void StopLogic(const FString& Reason);

	/** True if it is running. */
	UFUNCTION(BlueprintPure, Category = "AI|Logic")
	bool IsRunning() const;

	/** True if it is paused. */
	UFUNCTION(BlueprintPure, Category = "AI|Logic")
	bool IsPaused() const;
};

/** Runs a behaviour tree. */
UCLASS()
class AIMODULE_API UBehaviorTreeComponent : public UBrainComponent
{
	GENERATED_BODY()

public:
	/** Sets the dynamic subtree. */
	UFUNCTION(BlueprintCallable, Category = "AI|Logic")
	void SetDynamicSubtree(FGameplayTag InjectTag, UBehaviorTree* BehaviorAsset);

	/** The tag cooldown end time. */
	UFUNCTION(BlueprintCallable, Category = "AI|Logic")
	float GetTagCooldownEndTime(FGameplayTag CooldownTag) const;

	UFUNCTION(BlueprintCallable, Category = "AI|Logic")
	void AddCooldownTagDuration(FGameplayTag CooldownTag, float CooldownDuration, bool bAddToExistingDuration);
};

/** A tree of what a pawn does. */
UCLASS(BlueprintType)
class AIMODULE_API UBehaviorTree : public UObject
{
	GENERATED_BODY()
};

/** Keys of a blackboard. */
UCLASS(BlueprintType, AutoExpandCategories = (Blackboard))
class AIMODULE_API UBlackboardData : public UDataAsset
{
	GENERATED_BODY()
};

/** Type of a key. */
UCLASS(EditInlineNew, Abstract, CollapseCategories, AutoExpandCategories = (Blackboard))
class AIMODULE_API UBlackboardKeyType : public UObject
{
	GENERATED_BODY()
};

/** What a pawn remembers. */
UCLASS()
class AIMODULE_API UBlackboardComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** The value as object. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	UObject* GetValueAsObject(const FName& KeyName) const;

	/** The value as class. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	UClass* GetValueAsClass(const FName& KeyName) const;

	/** The value as enum. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	uint8 GetValueAsEnum(const FName& KeyName) const;

	/** The value as int. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	int32 GetValueAsInt(const FName& KeyName) const;

	/** The value as float. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	float GetValueAsFloat(const FName& KeyName) const;

	/** The value as bool. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	bool GetValueAsBool(const FName& KeyName) const;

	/** The value as string. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	FString GetValueAsString(const FName& KeyName) const;

	/** The value as name. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	FName GetValueAsName(const FName& KeyName) const;

	/** The value as vector. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	FVector GetValueAsVector(const FName& KeyName) const;

	/** The value as rotator. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	FRotator GetValueAsRotator(const FName& KeyName) const;

	/** Sets the value as object. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsObject(const FName& KeyName, UObject* ObjectValue);

	/** Sets the value as class. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsClass(const FName& KeyName, UClass* ClassValue);

	/** Sets the value as enum. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsEnum(const FName& KeyName, uint8 EnumValue);

	/** Sets the value as int. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsInt(const FName& KeyName, int32 IntValue);

	/** Sets the value as float. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsFloat(const FName& KeyName, float FloatValue);

	/** Sets the value as bool. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsBool(const FName& KeyName, bool BoolValue);

	/** Sets the value as string. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsString(const FName& KeyName, FString StringValue);

	/** Sets the value as name. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsName(const FName& KeyName, FName NameValue);

	/** Sets the value as vector. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsVector(const FName& KeyName, FVector VectorValue);

	/** Sets the value as rotator. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void SetValueAsRotator(const FName& KeyName, FRotator VectorValue);

	/** True if it is vector value set. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	bool IsVectorValueSet(const FName& KeyName) const;

	/** The location from entry. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	bool GetLocationFromEntry(const FName& KeyName, FVector& ResultLocation) const;

	/** The rotation from entry. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	bool GetRotationFromEntry(const FName& KeyName, FRotator& ResultRotation) const;

	/** Forgets a value. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|Blackboard")
	void ClearValue(const FName& KeyName);
};

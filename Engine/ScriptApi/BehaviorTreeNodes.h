// Package: /Script/AIModule
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "BehaviorTreeNodes.generated.h"

/** A node of a behaviour tree. */
UCLASS(Abstract, config = Game)
class AIMODULE_API UBTNode : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Description")
	FString NodeName;
};

/** Something that a pawn does. */
UCLASS(Abstract)
class AIMODULE_API UBTTaskNode : public UBTNode
{
	GENERATED_BODY()
};

/** A node beside another. */
UCLASS(Abstract)
class AIMODULE_API UBTAuxiliaryNode : public UBTNode
{
	GENERATED_BODY()
};

/** Whether a pawn does something. */
UCLASS(Abstract)
class AIMODULE_API UBTDecorator : public UBTAuxiliaryNode
{
	GENERATED_BODY()
};

/** Something that goes on beside. */
UCLASS(Abstract)
class AIMODULE_API UBTService : public UBTAuxiliaryNode
{
	GENERATED_BODY()
};

/** Something that a pawn does, of a project. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UBTTask_BlueprintBase : public UBTTaskNode
{
	GENERATED_BODY()

public:
	/** The task begins. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveExecute(AActor* OwnerActor);

	/** The task is given up. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveAbort(AActor* OwnerActor);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveTick(AActor* OwnerActor, float DeltaSeconds);

	/** The task begins. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveExecuteAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** The task is given up. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveAbortAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveTickAI(AAIController* OwnerController, APawn* ControlledPawn, float DeltaSeconds);

	/** Ends the task. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	void FinishExecute(bool bSuccess);

	/** Ends giving the task up. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	void FinishAbort();

	/** Sets the finish on message. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	void SetFinishOnMessage(FName MessageName);

	/** Sets the finish on message with id. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	void SetFinishOnMessageWithId(FName MessageName, int32 RequestID = -1);

	/** True if it is task executing. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	bool IsTaskExecuting() const;

	/** True if it is task aborting. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	bool IsTaskAborting() const;
};

/** Whether a pawn does something, of a project. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UBTDecorator_BlueprintBase : public UBTDecorator
{
	GENERATED_BODY()

public:
	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveTick(AActor* OwnerActor, float DeltaSeconds);

	/** What is below begins. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveExecutionStart(AActor* OwnerActor);

	/** What is below ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveExecutionFinish(AActor* OwnerActor, EBTNodeResult::Type NodeResult);

	/** True if the pawn does what is below. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	bool PerformConditionCheck(AActor* OwnerActor);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveTickAI(AAIController* OwnerController, APawn* ControlledPawn, float DeltaSeconds);

	/** True if the pawn does what is below. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	bool PerformConditionCheckAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** True if it is decorator execution active. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	bool IsDecoratorExecutionActive() const;

	/** True if it is decorator observer active. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	bool IsDecoratorObserverActive() const;
};

/** Something that goes on beside, of a project. */
UCLASS(Abstract, Blueprintable)
class AIMODULE_API UBTService_BlueprintBase : public UBTService
{
	GENERATED_BODY()

public:
	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveTick(AActor* OwnerActor, float DeltaSeconds);

	/** What to do is sought. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveSearchStart(AActor* OwnerActor);

	/** The service begins. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveActivation(AActor* OwnerActor);

	/** The service ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveDeactivation(AActor* OwnerActor);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveTickAI(AAIController* OwnerController, APawn* ControlledPawn, float DeltaSeconds);

	/** The service begins. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveActivationAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** The service ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "AI")
	void ReceiveDeactivationAI(AAIController* OwnerController, APawn* ControlledPawn);

	/** True if it is service active. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (BlueprintProtected = "true"))
	bool IsServiceActive() const;
};

/** Nodes of behaviour trees. */
UCLASS(meta = (RestrictedToClasses = "BTNode"))
class AIMODULE_API UBTFunctionLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** The owner component. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static UBehaviorTreeComponent* GetOwnerComponent(UBTNode* NodeOwner);

	/** The owners blackboard. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static UBlackboardComponent* GetOwnersBlackboard(UBTNode* NodeOwner);

	/** The blackboard value as object. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static UObject* GetBlackboardValueAsObject(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as actor. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static AActor* GetBlackboardValueAsActor(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as class. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static UClass* GetBlackboardValueAsClass(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as enum. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static uint8 GetBlackboardValueAsEnum(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as int. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static int32 GetBlackboardValueAsInt(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as float. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static float GetBlackboardValueAsFloat(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as bool. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static bool GetBlackboardValueAsBool(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as string. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static FString GetBlackboardValueAsString(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as name. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static FName GetBlackboardValueAsName(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as vector. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static FVector GetBlackboardValueAsVector(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** The blackboard value as rotator. */
	UFUNCTION(BlueprintPure, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static FRotator GetBlackboardValueAsRotator(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);

	/** Sets the blackboard value as object. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsObject(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, UObject* Value);

	/** Sets the blackboard value as class. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsClass(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, UClass* Value);

	/** Sets the blackboard value as enum. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsEnum(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, uint8 Value);

	/** Sets the blackboard value as int. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsInt(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, int32 Value);

	/** Sets the blackboard value as float. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsFloat(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, float Value);

	/** Sets the blackboard value as bool. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsBool(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, bool Value);

	/** Sets the blackboard value as string. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsString(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, FString Value);

	/** Sets the blackboard value as name. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsName(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, FName Value);

	/** Sets the blackboard value as vector. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsVector(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, FVector Value);

	/** Sets the blackboard value as rotator. */
	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void SetBlackboardValueAsRotator(UBTNode* NodeOwner, const FBlackboardKeySelector& Key, FRotator Value);

	UFUNCTION(BlueprintCallable, Category = "AI|BehaviorTree", meta = (HidePin = "NodeOwner", DefaultToSelf = "NodeOwner"))
	static void ClearBlackboardValue(UBTNode* NodeOwner, const FBlackboardKeySelector& Key);
};

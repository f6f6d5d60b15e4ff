// Package: /Script/EnhancedInput
#pragma once

#include "Engine/DataAsset.h"
#include "GameInstance.h"
#include "InputComponent.h"
#include "Kismet/BlueprintFunctionLibrary.h"
#include "PlayerController.h"
#include "EnhancedInput.generated.h"

/** How many dimensions the value of an input action has. */
UENUM()
enum class EInputActionValueType : uint8
{
	Boolean UMETA(DisplayName = "Digital (bool)"),
	Axis1D UMETA(DisplayName = "Axis1D (float)"),
	Axis2D UMETA(DisplayName = "Axis2D (Vector2D)"),
	Axis3D UMETA(DisplayName = "Axis3D (Vector)")
};

/** What an input action did. */
UENUM(BlueprintType)
enum class ETriggerEvent : uint8
{
	None = 0,
	Triggered = 1,
	Started = 2,
	Ongoing = 4,
	Canceled = 8,
	Completed = 16
};

/** State of a trigger. */
UENUM(BlueprintType)
enum class ETriggerState : uint8
{
	None,
	Ongoing,
	Triggered
};

/** Which key of a mapping. */
UENUM(BlueprintType)
enum class EPlayerMappableKeySlot : uint8
{
	First = 0 UMETA(DisplayName = "First Key Slot"),
	Second UMETA(DisplayName = "Second Key Slot"),
	Third UMETA(DisplayName = "Third Key Slot"),
	Fourth UMETA(DisplayName = "Fourth Key Slot"),
	Fifth UMETA(DisplayName = "Fifth Key Slot"),
	Sixth UMETA(DisplayName = "Sixth Key Slot"),
	Seventh UMETA(DisplayName = "Seventh Key Slot"),
	Unspecified UMETA(DisplayName = "Unspecified Key Slot"),
	Max UMETA(Hidden)
};

/** What is wrong with a mapping. */
UENUM()
enum class EMappingQueryIssue : uint8
{
	NoIssue = 0,
	ReservedByAction = 1,
	HidesExistingMapping = 2,
	HiddenByExistingMapping = 4,
	CollisionWithMappingInSameContext = 8,
	ForcesTypePromotion = 16,
	ForcesTypeDemotion = 32
};

/** Whether a mapping can be. */
UENUM(BlueprintType)
enum class EMappingQueryResult : uint8
{
	Error_EnhancedInputNotEnabled,
	Error_InputContextNotInActiveContexts,
	Error_InvalidAction,
	NotMappable,
	MappingAvailable
};

/** How keys are brought up to date. */
UENUM(BlueprintType)
enum class EInputMappingRebuildType : uint8
{
	None,
	Rebuild,
	RebuildWithFlush
};

/** The value of an input action. */
USTRUCT(BlueprintType)
struct FInputActionValue
{
	GENERATED_BODY()
};

/** How mapping contexts change. */
USTRUCT(BlueprintType)
struct FModifyContextOptions
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, Category = "Input")
	uint8 bIgnoreAllPressedKeysUntilRelease : 1;

	UPROPERTY(BlueprintReadWrite, Category = "Input")
	uint8 bForceImmediately : 1;

	UPROPERTY(BlueprintReadWrite, Category = "Input")
	uint8 bNotifyUserSettings : 1;
};

/** An input action that runs. */
USTRUCT(BlueprintType)
struct FInputActionInstance
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly, Category = "Trigger State")
	ETriggerEvent TriggerEvent;

	UPROPERTY(BlueprintReadOnly, Category = "Trigger State")
	float LastTriggeredWorldTime;

	UPROPERTY(BlueprintReadOnly, Category = "Config")
	TArray<TObjectPtr<UInputTrigger>> Triggers;

	UPROPERTY(BlueprintReadOnly, Category = "Config")
	TArray<TObjectPtr<UInputModifier>> Modifiers;

	UPROPERTY(BlueprintReadOnly, Category = "Action")
	float ElapsedProcessedTime;

	UPROPERTY(BlueprintReadOnly, Category = "Action")
	float ElapsedTriggeredTime;
};

/** A key of an action. */
USTRUCT(BlueprintType)
struct FEnhancedActionKeyMapping
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Input")
	TObjectPtr<UInputAction> Action;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Input")
	FKey Key;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Input")
	TArray<TObjectPtr<UInputTrigger>> Triggers;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Input")
	TArray<TObjectPtr<UInputModifier>> Modifiers;
};

DECLARE_DYNAMIC_DELEGATE_FourParams(FEnhancedInputActionHandlerDynamicSignature, FInputActionValue, ActionValue, float, ElapsedTime, float,
	TriggeredTime, const UInputAction*, SourceAction);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnControlMappingsRebuilt);

/** Something that a player does by input. */
UCLASS(BlueprintType)
class ENHANCEDINPUT_API UInputAction : public UDataAsset
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Description")
	FText ActionDescription;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Action")
	bool bTriggerWhenPaused = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Input Consumption")
	bool bConsumeInput = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Action")
	bool bReserveAllMappings = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Action")
	EInputActionValueType ValueType;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Instanced, Category = "Triggers And Modifiers")
	TArray<TObjectPtr<UInputTrigger>> Triggers;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Instanced, Category = "Triggers And Modifiers")
	TArray<TObjectPtr<UInputModifier>> Modifiers;
};

/** Keys of actions. */
UCLASS(BlueprintType, config = Input)
class ENHANCEDINPUT_API UInputMappingContext : public UDataAsset
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Description")
	FText ContextDescription;

	/** Adds a key. */
	UFUNCTION(BlueprintCallable, Category = "Mapping")
	FEnhancedActionKeyMapping& MapKey(const UInputAction* Action, FKey ToKey);

	/** Takes a key out. */
	UFUNCTION(BlueprintCallable, Category = "Mapping")
	void UnmapKey(const UInputAction* Action, FKey Key);

	UFUNCTION(BlueprintCallable, Category = "Mapping")
	void UnmapAllKeysFromAction(const UInputAction* Action);

	UFUNCTION(BlueprintCallable, Category = "Mapping")
	void UnmapAll();
};

/** When an action happens. */
UCLASS(Abstract, Blueprintable, EditInlineNew, CollapseCategories)
class ENHANCEDINPUT_API UInputTrigger : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Trigger Settings")
	float ActuationThreshold = 0.5f;

	UPROPERTY(BlueprintReadWrite, Category = "Trigger")
	FInputActionValue LastValue;

	/** Says whether the trigger has fired, for the value that the action has now. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Trigger")
	ETriggerState UpdateState(const UEnhancedPlayerInput* PlayerInput, FInputActionValue ModifiedValue, float DeltaTime);

	/** True if it is actuated. */
	UFUNCTION(BlueprintCallable, Category = "Trigger")
	bool IsActuated(const FInputActionValue& ForValue) const;
};

/** Changes the value of an action. */
UCLASS(Abstract, Blueprintable, EditInlineNew, CollapseCategories)
class ENHANCEDINPUT_API UInputModifier : public UObject
{
	GENERATED_BODY()

public:
	/** Changes the value of the input before its action sees it. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Modifier")
	FInputActionValue ModifyRaw(const UEnhancedPlayerInput* PlayerInput, FInputActionValue CurrentValue, float DeltaTime) const;

	/** The visualization color. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Modifier")
	FLinearColor GetVisualizationColor(FInputActionValue SampleValue, FInputActionValue FinalValue) const;
};

/** Keys of a player with actions. */
UCLASS(config = Input, transient)
class ENHANCEDINPUT_API UEnhancedPlayerInput : public UPlayerInput
{
	GENERATED_BODY()
};

/** Actions of an actor. */
UCLASS(transient, config = Input, hidecategories = (Activation, "Components|Activation"))
class ENHANCEDINPUT_API UEnhancedInputComponent : public UInputComponent
{
	GENERATED_BODY()

public:
	/** The bound action value. */
	UFUNCTION(BlueprintPure, Category = "Input")
	FInputActionValue GetBoundActionValue(const UInputAction* Action) const;
};

/** Mapping contexts of a player. */
UINTERFACE()
class ENHANCEDINPUT_API UEnhancedInputSubsystemInterface : public UInterface
{
	GENERATED_BODY()
};

class ENHANCEDINPUT_API IEnhancedInputSubsystemInterface
{
	GENERATED_BODY()

public:
	/** True if it has mapping context. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	bool HasMappingContext(const UInputMappingContext* MappingContext, int32& OutFoundPriority) const;

	/** Adds keys of actions. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (AutoCreateRefTerm = "Options"))
	void AddMappingContext(
		const UInputMappingContext* MappingContext, int32 Priority, const FModifyContextOptions& Options = FModifyContextOptions());

	/** Takes keys of actions away. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (AutoCreateRefTerm = "Options"))
	void RemoveMappingContext(const UInputMappingContext* MappingContext, const FModifyContextOptions& Options = FModifyContextOptions());

	/** Takes all keys away. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void ClearAllMappings();

	UFUNCTION(BlueprintCallable, Category = "Input", meta = (AutoCreateRefTerm = "Options"))
	void RequestRebuildControlMappings(const FModifyContextOptions& Options = FModifyContextOptions(),
		EInputMappingRebuildType RebuildType = EInputMappingRebuildType::Rebuild);

	UFUNCTION(BlueprintCallable, Category = "Input")
	TArray<FKey> QueryKeysMappedToAction(const UInputAction* Action) const;

	/** Plays an action. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (AutoCreateRefTerm = "Modifiers,Triggers"))
	void InjectInputForAction(const UInputAction* Action, FInputActionValue RawValue, const TArray<UInputModifier*>& Modifiers,
		const TArray<UInputTrigger*>& Triggers);

	/** Plays an action. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (AutoCreateRefTerm = "Modifiers,Triggers"))
	void InjectInputVectorForAction(
		const UInputAction* Action, FVector Value, const TArray<UInputModifier*>& Modifiers, const TArray<UInputTrigger*>& Triggers);
};

/** Mapping contexts of a player at this machine. */
UCLASS()
class ENHANCEDINPUT_API UEnhancedInputLocalPlayerSubsystem : public ULocalPlayerSubsystem, public IEnhancedInputSubsystemInterface
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Input", meta = (DisplayName = "OnControlMappingsRebuilt"))
	FOnControlMappingsRebuilt ControlMappingsRebuiltDelegate;
};

/** Input actions. */
UCLASS()
class ENHANCEDINPUT_API UEnhancedInputLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "Input")
	static void RequestRebuildControlMappingsUsingContext(const UInputMappingContext* Context, bool bForceImmediately = false);

	/** The bound action value. */
	UFUNCTION(BlueprintPure, Category = "Input", meta = (BlueprintInternalUseOnly = "true"))
	static FInputActionValue GetBoundActionValue(AActor* Actor, const UInputAction* Action);

	/** The parts of a value. */
	UFUNCTION(BlueprintPure, Category = "Input", meta = (NativeBreakFunc))
	static void BreakInputActionValue(FInputActionValue InActionValue, double& X, double& Y, double& Z, EInputActionValueType& Type);

	/** A value of its parts. */
	UFUNCTION(BlueprintPure, Category = "Input", meta = (DeprecatedFunction))
	static FInputActionValue MakeInputActionValue(double X, double Y, double Z, const FInputActionValue& MatchValueType);

	/** A value of its parts. */
	UFUNCTION(BlueprintPure, Category = "Input", meta = (NativeMakeFunc))
	static FInputActionValue MakeInputActionValueOfType(double X, double Y, double Z, const EInputActionValueType ValueType);

	UFUNCTION(BlueprintPure, Category = "Input",
		meta = (DisplayName = "Get Input Action Value (bool)", CompactNodeTitle = "->", BlueprintAutocast))
	static bool Conv_InputActionValueToBool(FInputActionValue InValue);

	UFUNCTION(BlueprintPure, Category = "Input",
		meta = (DisplayName = "Get Input Action Value (axis 1D)", CompactNodeTitle = "->", BlueprintAutocast))
	static double Conv_InputActionValueToAxis1D(FInputActionValue InValue);

	UFUNCTION(BlueprintPure, Category = "Input",
		meta = (DisplayName = "Get Input Action Value (axis 2D)", CompactNodeTitle = "->", BlueprintAutocast))
	static FVector2D Conv_InputActionValueToAxis2D(FInputActionValue InValue);

	UFUNCTION(BlueprintPure, Category = "Input",
		meta = (DisplayName = "Get Input Action Value (axis 3D)", CompactNodeTitle = "->", BlueprintAutocast))
	static FVector Conv_InputActionValueToAxis3D(FInputActionValue ActionValue);

	UFUNCTION(BlueprintPure, Category = "Input",
		meta = (DisplayName = "To String (Input Action Value)", CompactNodeTitle = "->", BlueprintAutocast))
	static FString Conv_InputActionValueToString(FInputActionValue ActionValue);
};

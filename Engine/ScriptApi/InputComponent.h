// Package: /Script/Engine
#pragma once

#include "ActorComponent.h"
#include "InputComponent.generated.h"

/** A key of an action was pressed or released. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FInputActionHandlerDynamicSignature, FKey, Key);

/** The value of an axis, each frame. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FInputAxisHandlerDynamicSignature, float, AxisValue);

/** The value of an axis of three dimensions, each frame. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FInputVectorAxisHandlerDynamicSignature, FVector, AxisValue);

/** A finger touched the screen, moved on it or left it. */
DECLARE_DYNAMIC_DELEGATE_TwoParams(FInputTouchHandlerDynamicSignature, ETouchIndex::Type, FingerIndex, FVector, Location);

/** Input of an actor. */
UCLASS(transient, config = Input, hidecategories = (Activation, "Components|Activation"))
class ENGINE_API UInputComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "Input")
	int32 Priority;

	UPROPERTY(BlueprintReadWrite, Category = "Input")
	uint8 bBlockInput : 1;
};

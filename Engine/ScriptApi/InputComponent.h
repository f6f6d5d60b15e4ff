// Package: /Script/Engine
#pragma once

#include "InputCore.h"
#include "InputComponent.generated.h"

/** A key of an action was pressed or released. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FInputActionHandlerDynamicSignature, FKey, Key);

/** The value of an axis, each frame. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FInputAxisHandlerDynamicSignature, float, AxisValue);

/** The value of an axis of three dimensions, each frame. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FInputVectorAxisHandlerDynamicSignature, FVector, AxisValue);

/** A finger touched the screen, moved on it or left it. */
DECLARE_DYNAMIC_DELEGATE_TwoParams(FInputTouchHandlerDynamicSignature, ETouchIndex::Type, FingerIndex, FVector, Location);

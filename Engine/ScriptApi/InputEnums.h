// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "InputEnums.generated.h"

/** What happened to a key. */
UENUM(BlueprintType)
enum EInputEvent : int
{
	IE_Pressed UMETA(DisplayName = "Pressed"),
	IE_Released UMETA(DisplayName = "Released"),
	IE_Repeat UMETA(DisplayName = "Repeat"),
	IE_DoubleClick UMETA(DisplayName = "Double Click"),
	IE_Axis UMETA(DisplayName = "Axis"),
	IE_MAX UMETA(Hidden)
};

/** When the mouse is the viewport's. */
UENUM(BlueprintType)
enum class EMouseCaptureMode : uint8
{
	NoCapture,
	CapturePermanently,
	CapturePermanently_IncludingInitialMouseDown,
	CaptureDuringMouseDown,
	CaptureDuringRightMouseDown
};

/** When the mouse stays in the viewport. */
UENUM(BlueprintType)
enum class EMouseLockMode : uint8
{
	DoNotLock,
	LockOnCapture,
	LockAlways,
	LockInFullscreen
};

// Package: /Script/InputCore
#pragma once

#include "CoreMinimal.h"
#include "InputTypes.generated.h"

/** Which hand holds a controller. */
UENUM(BlueprintType)
enum class EControllerHand : uint8
{
	Left,
	Right,
	AnyHand,
	Pad,
	ExternalCamera,
	Gun,
	HMD,
	Chest,
	LeftShoulder,
	RightShoulder,
	LeftElbow,
	RightElbow,
	Waist,
	LeftKnee,
	RightKnee,
	LeftFoot,
	RightFoot,
	Special,
	ControllerHand_Count UMETA(Hidden)
};

/** What a finger does. */
UENUM(BlueprintType)
namespace ETouchType
{
enum Type : int
{
	Began,
	Moved,
	Stationary,
	ForceChanged,
	FirstMove,
	Ended,
	NumTypes
};
}

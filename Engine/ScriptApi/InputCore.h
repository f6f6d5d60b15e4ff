// Package: /Script/InputCore
#pragma once

#include "CoreMinimal.h"
#include "InputCore.generated.h"

/** Which finger touches the screen. */
UENUM(BlueprintType)
namespace ETouchIndex
{
enum Type : int
{
	Touch1,
	Touch2,
	Touch3,
	Touch4,
	Touch5,
	Touch6,
	Touch7,
	Touch8,
	Touch9,
	Touch10,
	CursorPointerIndex UMETA(Hidden),
	MAX_TOUCHES UMETA(Hidden)
};
}

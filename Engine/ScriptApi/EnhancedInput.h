// Package: /Script/EnhancedInput
#pragma once

#include "CoreMinimal.h"
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

/** The value of an input action. */
USTRUCT(BlueprintType)
struct FInputActionValue
{
	GENERATED_BODY()
};

// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "KismetMathTypes.generated.h"

/** Columns of a matrix. */
UENUM(BlueprintType)
namespace EMatrixColumns
{
enum Type : int
{
	First,
	Second,
	Third,
	Fourth
};
}

/** How rotations between two transforms are found. */
UENUM(BlueprintType)
namespace ELerpInterpolationMode
{
enum Type : int
{
	QuatInterp UMETA(DisplayName = "Quaternion Interpolation"),
	EulerInterp UMETA(DisplayName = "Euler Interpolation"),
	DualQuatInterp UMETA(DisplayName = "Dual Quaternion Interpolation")
};
}

/** What a spring of one number remembers from frame to frame. */
USTRUCT(BlueprintType)
struct FFloatSpringState
{
	GENERATED_BODY()
};

/** What a spring of a vector remembers from frame to frame. */
USTRUCT(BlueprintType)
struct FVectorSpringState
{
	GENERATED_BODY()
};

/** What a spring of a rotation remembers from frame to frame. */
USTRUCT(BlueprintType)
struct FQuaternionSpringState
{
	GENERATED_BODY()
};

// Package: /Script/AugmentedReality
#pragma once

#include "CoreMinimal.h"
#include "AugmentedReality.generated.h"

/** What a trace in augmented reality may hit. */
UENUM(BlueprintType, Category = "AR AugmentedReality|Trace Result", meta = (Bitflags))
enum class EARLineTraceChannels : uint8
{
	None = 0,
	FeaturePoint = 1,
	GroundPlane = 2,
	PlaneUsingExtent = 4,
	PlaneUsingBoundaryPolygon = 8
};

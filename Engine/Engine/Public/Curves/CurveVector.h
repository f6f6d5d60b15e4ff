#pragma once

#include "Curves/CurveBase.h"

#include "CurveVector.generated.h"

/** A vector over time. */
UCLASS(BlueprintType)
class ENGINE_API UCurveVector : public UCurveBase
{
	GENERATED_BODY()
};

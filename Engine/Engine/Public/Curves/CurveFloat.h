#pragma once

#include "Curves/CurveBase.h"

#include "CurveFloat.generated.h"

/** A number over time. */
UCLASS(BlueprintType)
class ENGINE_API UCurveFloat : public UCurveBase
{
	GENERATED_BODY()
};

#pragma once

#include "Curves/CurveBase.h"

#include "CurveLinearColor.generated.h"

/** A colour over time. */
UCLASS(BlueprintType)
class ENGINE_API UCurveLinearColor : public UCurveBase
{
	GENERATED_BODY()
};

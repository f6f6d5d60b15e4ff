#pragma once

#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "CurveBase.generated.h"

/** An asset or a timeline's track that gives values over time. Its keys stay as they were read. */
UCLASS(abstract)
class ENGINE_API UCurveBase : public UObject
{
	GENERATED_BODY()
};

#pragma once

#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "BlueprintFunctionLibrary.generated.h"

/** Base of classes whose static functions every Blueprint may call. */
UCLASS(Abstract)
class ENGINE_API UBlueprintFunctionLibrary : public UObject
{
	GENERATED_BODY()
};

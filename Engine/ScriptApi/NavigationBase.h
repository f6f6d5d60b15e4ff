// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "NavigationBase.generated.h"

/** Finds ways. */
UCLASS(Abstract, config = Engine, defaultconfig, Transient)
class ENGINE_API UNavigationSystemBase : public UObject
{
	GENERATED_BODY()
};

// Package: /Script/NavigationSystem
#pragma once

#include "AssetInternals.h"
#include "NavigationSystemConfig.generated.h"

/** Settings of navigation of a world. */
UCLASS()
class NAVIGATIONSYSTEM_API UNavigationSystemModuleConfig : public UNavigationSystemConfig
{
	GENERATED_BODY()
};

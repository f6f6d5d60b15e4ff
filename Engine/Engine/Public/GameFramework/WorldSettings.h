#pragma once

#include "GameFramework/Info.h"

#include "WorldSettings.generated.h"

/** What a level says about its whole world: the first of the level's actors. */
UCLASS(config = Game, notplaceable)
class ENGINE_API AWorldSettings : public AInfo
{
	GENERATED_BODY()
};

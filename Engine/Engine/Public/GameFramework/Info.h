#pragma once

#include "GameFramework/Actor.h"

#include "Info.generated.h"

/** An actor that has no place in the world. */
UCLASS(abstract, hidecategories = (Input, Movement, Collision, Rendering, HLOD, WorldPartition, DataLayers),
	showcategories = ("Input|MouseInput", "Input|TouchInput"), NotBlueprintable)
class ENGINE_API AInfo : public AActor
{
	GENERATED_BODY()
};

#pragma once

#include "GameFramework/Actor.h"

#include "LevelScriptActor.generated.h"

/** The actor whose class a level's Blueprint makes. */
UCLASS(notplaceable,
	meta = (KismetHideOverrides =
				"ReceiveAnyDamage,ReceivePointDamage,ReceiveRadialDamage,ReceiveActorBeginOverlap,ReceiveActorEndOverlap,ReceiveDestroyed"),
	HideCategories = (Collision, Rendering, Transformation))
class ENGINE_API ALevelScriptActor : public AActor
{
	GENERATED_BODY()
};

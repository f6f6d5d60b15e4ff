// Package: /Script/GameplayTasks
#pragma once

#include "CoreMinimal.h"
#include "GameplayTasks.generated.h"

/** What only one task has at a time. */
UCLASS(Abstract, config = Game, hidedropdown)
class GAMEPLAYTASKS_API UGameplayTaskResource : public UObject
{
	GENERATED_BODY()
};

// Package: /Script/GameplayTags
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "GameplayTagContainer.generated.h"

/** A word of a project's hierarchy of words: "State.Burning". */
USTRUCT(BlueprintType)
struct FGameplayTag
{
	GENERATED_BODY()

	UPROPERTY()
	FName TagName;
};

/** Any number of tags. */
USTRUCT(BlueprintType)
struct FGameplayTagContainer
{
	GENERATED_BODY()

	UPROPERTY()
	TArray<FGameplayTag> GameplayTags;
};

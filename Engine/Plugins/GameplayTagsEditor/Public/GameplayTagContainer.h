// Package: /Script/GameplayTags
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include "GameplayTagContainer.generated.h"

/** A name in a tree of names. */
USTRUCT(BlueprintType,
	meta = (HasNativeMake = "/Script/GameplayTags.BlueprintGameplayTagLibrary.MakeLiteralGameplayTag",
		HasNativeBreak = "/Script/GameplayTags.BlueprintGameplayTagLibrary.GetTagName"))
struct FGameplayTag
{
	GENERATED_BODY()

	UPROPERTY(VisibleAnywhere, SaveGame, Category = "GameplayTags")
	FName TagName;
};

/** Several tags. */
USTRUCT(BlueprintType,
	meta = (HasNativeMake = "/Script/GameplayTags.BlueprintGameplayTagLibrary.MakeGameplayTagContainerFromArray",
		HasNativeBreak = "/Script/GameplayTags.BlueprintGameplayTagLibrary.BreakGameplayTagContainer"))
struct FGameplayTagContainer
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadWrite, SaveGame, Category = "GameplayTags")
	TArray<FGameplayTag> GameplayTags;

	/** The tags above those in the hierarchy, derived from them. */
	UPROPERTY(Transient)
	TArray<FGameplayTag> ParentTags;
};

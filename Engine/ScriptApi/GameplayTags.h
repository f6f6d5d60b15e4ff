// Package: /Script/GameplayTags
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "GameplayTags.generated.h"

/** Whether one tag or all must match. */
UENUM(BlueprintType)
enum class EGameplayContainerMatchType : uint8
{
	Any UMETA(DisplayName = "Any"),
	All UMETA(DisplayName = "All")
};

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

	UPROPERTY(Transient)
	TArray<FGameplayTag> ParentTags;
};

/** A question about tags. */
USTRUCT(BlueprintType)
struct FGameplayTagQuery
{
	GENERATED_BODY()
};

/** Tags. */
UCLASS(meta = (BlueprintThreadSafe, ScriptName = "GameplayTagLibrary"))
class GAMEPLAYTAGS_API UBlueprintGameplayTagLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintPure, Category = "GameplayTags", meta = (Keywords = "DoGameplayTagsMatch"))
	static bool MatchesTag(FGameplayTag TagOne, FGameplayTag TagTwo, bool bExactMatch);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static bool MatchesAnyTags(FGameplayTag TagOne, const FGameplayTagContainer& OtherContainer, bool bExactMatch);

	UFUNCTION(BlueprintPure, Category = "GameplayTags",
		meta = (DisplayName = "Equal (GameplayTag)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_GameplayTag(FGameplayTag A, FGameplayTag B);

	UFUNCTION(BlueprintPure, Category = "GameplayTags",
		meta = (DisplayName = "Not Equal (GameplayTag)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_GameplayTag(FGameplayTag A, FGameplayTag B);

	/** True if it is gameplay tag valid. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static bool IsGameplayTagValid(FGameplayTag GameplayTag);

	/** The tag name. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FName GetTagName(const FGameplayTag& GameplayTag);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FGameplayTag MakeLiteralGameplayTag(FGameplayTag Value);

	/** The num gameplay tags in container. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static int32 GetNumGameplayTagsInContainer(const FGameplayTagContainer& TagContainer);

	/** True if it has tag. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static bool HasTag(const FGameplayTagContainer& TagContainer, FGameplayTag Tag, bool bExactMatch);

	/** True if it has any tags. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static bool HasAnyTags(const FGameplayTagContainer& TagContainer, const FGameplayTagContainer& OtherContainer, bool bExactMatch);

	/** True if it has all tags. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static bool HasAllTags(const FGameplayTagContainer& TagContainer, const FGameplayTagContainer& OtherContainer, bool bExactMatch);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static bool DoesContainerMatchTagQuery(const FGameplayTagContainer& TagContainer, const FGameplayTagQuery& TagQuery);

	/** The all actors of class matching tag query. */
	UFUNCTION(BlueprintCallable, Category = "GameplayTags",
		meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass", DynamicOutputParam = "OutActors"))
	static void GetAllActorsOfClassMatchingTagQuery(
		UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, const FGameplayTagQuery& GameplayTagQuery, TArray<AActor*>& OutActors);

	/** Adds a tag. */
	UFUNCTION(BlueprintCallable, Category = "GameplayTags")
	static void AddGameplayTag(UPARAM(ref) FGameplayTagContainer& TagContainer, FGameplayTag Tag);

	/** Takes a tag out. */
	UFUNCTION(BlueprintCallable, Category = "GameplayTags")
	static bool RemoveGameplayTag(UPARAM(ref) FGameplayTagContainer& TagContainer, FGameplayTag Tag);

	/** Adds tags. */
	UFUNCTION(BlueprintCallable, Category = "GameplayTags")
	static void AppendGameplayTagContainers(
		UPARAM(ref) FGameplayTagContainer& InOutTagContainer, const FGameplayTagContainer& InTagContainer);

	UFUNCTION(BlueprintPure, Category = "GameplayTags",
		meta = (DisplayName = "Equal (GameplayTagContainer)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_GameplayTagContainer(const FGameplayTagContainer& A, const FGameplayTagContainer& B);

	UFUNCTION(BlueprintPure, Category = "GameplayTags",
		meta = (DisplayName = "Not Equal (GameplayTagContainer)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_GameplayTagContainer(const FGameplayTagContainer& A, const FGameplayTagContainer& B);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FGameplayTagContainer MakeLiteralGameplayTagContainer(FGameplayTagContainer Value);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FGameplayTagContainer MakeGameplayTagContainerFromArray(const TArray<FGameplayTag>& GameplayTags);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FGameplayTagContainer MakeGameplayTagContainerFromTag(FGameplayTag SingleTag);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static void BreakGameplayTagContainer(const FGameplayTagContainer& GameplayTagContainer, TArray<FGameplayTag>& GameplayTags);

	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FGameplayTagQuery MakeGameplayTagQuery(FGameplayTagQuery TagQuery);

	/** The debug string from gameplay tag container. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FString GetDebugStringFromGameplayTagContainer(const FGameplayTagContainer& TagContainer);

	/** The debug string from gameplay tag. */
	UFUNCTION(BlueprintPure, Category = "GameplayTags")
	static FString GetDebugStringFromGameplayTag(FGameplayTag GameplayTag);
};

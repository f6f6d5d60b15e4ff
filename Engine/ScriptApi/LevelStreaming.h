// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "SkeletalMeshActor.h"
#include "LevelStreaming.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FLevelStreamingLoadedStatus);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FLevelStreamingVisibilityStatus);

/** A level that comes and goes. */
UCLASS(Abstract, editinlinenew, BlueprintType, Within = World)
class ENGINE_API ULevelStreaming : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "LevelStreaming")
	FLevelStreamingLoadedStatus OnLevelLoaded;

	UPROPERTY(BlueprintAssignable, Category = "LevelStreaming")
	FLevelStreamingLoadedStatus OnLevelUnloaded;

	UPROPERTY(BlueprintAssignable, Category = "LevelStreaming")
	FLevelStreamingVisibilityStatus OnLevelShown;

	UPROPERTY(BlueprintAssignable, Category = "LevelStreaming")
	FLevelStreamingVisibilityStatus OnLevelHidden;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "LevelStreaming")
	FTransform LevelTransform;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "LevelStreaming")
	uint8 bShouldBlockOnLoad : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "LevelStreaming")
	FLinearColor LevelColor;

	/** True if it is level visible. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool IsLevelVisible() const;

	/** True if it is level loaded. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool IsLevelLoaded() const;

	/** True if it is streaming state pending. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool IsStreamingStatePending() const;

	UFUNCTION(BlueprintCallable, Category = "Game")
	ULevelStreaming* CreateInstance(const FString& UniqueInstanceName);

	/** The loaded level. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	ULevel* GetLoadedLevel() const;

	/** The level script actor. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	ALevelScriptActor* GetLevelScriptActor();

	/** The world asset package f name. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	FName GetWorldAssetPackageFName() const;

	/** Sets the should be loaded. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (BlueprintInternalUseOnly = "true"))
	void SetShouldBeLoaded(const bool bInShouldBeLoaded);

	/** Sets the should be visible. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void SetShouldBeVisible(bool bInShouldBeVisible);

	UFUNCTION(BlueprintCallable, Category = "Game")
	bool ShouldBeLoaded() const;

	/** Sets the level LOD index. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void SetLevelLODIndex(int32 LODIndex);

	/** Sets the priority. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void SetPriority(int32 NewPriority);

	/** Sets the is requesting unload and removal. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void SetIsRequestingUnloadAndRemoval(bool bInIsRequestingUnloadAndRemoval);

	/** The is requesting unload and removal. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool GetIsRequestingUnloadAndRemoval() const;
};

/** A level that is streamed by Blueprints. */
UCLASS(BlueprintType)
class ENGINE_API ULevelStreamingDynamic : public ULevelStreaming
{
	GENERATED_BODY()

public:
	/** Loads a copy of a level at a place. */
	UFUNCTION(BlueprintCallable, Category = "LevelStreaming",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Load Level Instance (by Name)"))
	static ULevelStreamingDynamic* LoadLevelInstance(UObject* WorldContextObject, FString LevelName, FVector Location, FRotator Rotation,
		bool& bOutSuccess, const FString& OptionalLevelNameOverride = TEXT(""),
		TSubclassOf<ULevelStreamingDynamic> OptionalLevelStreamingClass = nullptr, bool bLoadAsTempPackage = false);

	/** Loads a copy of a level at a place. */
	UFUNCTION(BlueprintCallable, Category = "LevelStreaming",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Load Level Instance (by Object Reference)"))
	static ULevelStreamingDynamic* LoadLevelInstanceBySoftObjectPtr(UObject* WorldContextObject, TSoftObjectPtr<UWorld> Level,
		FVector Location, FRotator Rotation, bool& bOutSuccess, const FString& OptionalLevelNameOverride = TEXT(""),
		TSubclassOf<ULevelStreamingDynamic> OptionalLevelStreamingClass = nullptr, bool bLoadAsTempPackage = false);
};

/** A level that is always there. */
UCLASS()
class ENGINE_API ULevelStreamingAlwaysLoaded : public ULevelStreaming
{
	GENERATED_BODY()
};

/** A part of the level that streams others in. */
UCLASS()
class ENGINE_API ALevelStreamingVolume : public AVolume
{
	GENERATED_BODY()
};

/** Script of a level. */
// Extends native
UCLASS(notplaceable,
	meta = (KismetHideOverrides =
				"ReceiveAnyDamage,ReceivePointDamage,ReceiveRadialDamage,ReceiveActorBeginOverlap,ReceiveActorEndOverlap,ReceiveHit,"
				"ReceiveDestroyed,ReceiveActorBeginCursorOver,ReceiveActorEndCursorOver,ReceiveActorOnClicked,ReceiveActorOnReleased,"
				"ReceiveActorOnInputTouchBegin,ReceiveActorOnInputTouchEnd,ReceiveActorOnInputTouchEnter,ReceiveActorOnInputTouchLeave"),
	HideCategories = (Collision, Rendering, Transformation))
class ENGINE_API ALevelScriptActor : public AActor
{
	GENERATED_BODY()

public:
	/** Calls events of a name in all levels. */
	UFUNCTION(BlueprintCallable, Category = "Miscellaneous")
	bool RemoteEvent(FName EventName);

	/** Sets the cinematic mode. */
	UFUNCTION(BlueprintCallable, Category = "Game|Cinematic")
	void SetCinematicMode(
		bool bCinematicMode, bool bHidePlayer = true, bool bAffectsHUD = true, bool bAffectsMovement = false, bool bAffectsTurning = false);

	/** The level begins anew. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, Category = "Miscellaneous")
	void LevelReset();

	/** The world's origin moves. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Miscellaneous")
	void WorldOriginLocationChanged(FIntVector OldOriginLocation, FIntVector NewOriginLocation);
};

// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "Components.h"
#include "GameplayStatics.generated.h"

/** Players, actors, levels, sounds, damage and saved games for Blueprints. */
UCLASS()
class ENGINE_API UGameplayStatics : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Controller of a player by number. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static APlayerController* GetPlayerController(const UObject* WorldContextObject, int32 PlayerIndex);

	/** Pawn of a player by number. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static APawn* GetPlayerPawn(const UObject* WorldContextObject, int32 PlayerIndex);

	/** Character of a player by number, or null. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static ACharacter* GetPlayerCharacter(const UObject* WorldContextObject, int32 PlayerIndex);

	/** Camera of a player by number. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true"))
	static APlayerCameraManager* GetPlayerCameraManager(const UObject* WorldContextObject, int32 PlayerIndex);

	/** Rules of the game; null on a client. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static AGameModeBase* GetGameMode(const UObject* WorldContextObject);

	/** An actor of a class, or null. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass"))
	static AActor* GetActorOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass);

	/** All actors of a class. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass", DynamicOutputParam = "OutActors"))
	static void GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors);

	/** All actors that have an interface. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DynamicOutputParam = "OutActors"))
	static void GetAllActorsWithInterface(const UObject* WorldContextObject, TSubclassOf<UInterface> Interface, TArray<AActor*>& OutActors);

	/** All actors that have a tag. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DynamicOutputParam = "OutActors"))
	static void GetAllActorsWithTag(const UObject* WorldContextObject, FName Tag, TArray<AActor*>& OutActors);

	/** Opens a level by name. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "2", DisplayName = "Open Level (by Name)"))
	static void OpenLevel(const UObject* WorldContextObject, FName LevelName, bool bAbsolute = true, FString Options = FString(TEXT("")));

	/** Name of the level. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "1"))
	static FString GetCurrentLevelName(const UObject* WorldContextObject, bool bRemovePrefixString = true);

	/** Pauses the game or goes on. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static bool SetGamePaused(const UObject* WorldContextObject, bool bPaused);

	/** True while the game is paused. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static bool IsGamePaused(const UObject* WorldContextObject);

	/** Sets how fast time passes; 1 is normal. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static void SetGlobalTimeDilation(const UObject* WorldContextObject, float TimeDilation);

	/** How fast time passes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetGlobalTimeDilation(const UObject* WorldContextObject);

	/** Seconds of the last frame. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetWorldDeltaSeconds(const UObject* WorldContextObject);

	/** Seconds since play began, with time dilation, without pauses. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetTimeSeconds(const UObject* WorldContextObject);

	/** Seconds since play began, without time dilation and pauses. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (WorldContext = "WorldContextObject"))
	static double GetRealTimeSeconds(const UObject* WorldContextObject);

	/** Hurts an actor, and answers by how much. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game|Damage")
	static float ApplyDamage(AActor* DamagedActor, float BaseDamage, AController* EventInstigator, AActor* DamageCauser, TSubclassOf<UDamageType> DamageTypeClass);

	/** Hurts an actor at a place, and answers by how much. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game|Damage")
	static float ApplyPointDamage(AActor* DamagedActor, float BaseDamage, const FVector& HitFromDirection, const FHitResult& HitInfo, AController* EventInstigator, AActor* DamageCauser, TSubclassOf<UDamageType> DamageTypeClass);

	/** Plays a sound without a place. */
	UFUNCTION(BlueprintCallable, Category = "Audio", meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "2", UnsafeDuringActorConstruction = "true"))
	static void PlaySound2D(const UObject* WorldContextObject, USoundBase* Sound, float VolumeMultiplier = 1.f, float PitchMultiplier = 1.f, float StartTime = 0.f, USoundConcurrency* ConcurrencySettings = nullptr, const AActor* OwningActor = nullptr, bool bIsUISound = true);

	/** Plays a sound at a place. */
	UFUNCTION(BlueprintCallable, Category = "Audio", meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "3", UnsafeDuringActorConstruction = "true", Keywords = "play"))
	static void PlaySoundAtLocation(const UObject* WorldContextObject, USoundBase* Sound, FVector Location, FRotator Rotation, float VolumeMultiplier = 1.f, float PitchMultiplier = 1.f, float StartTime = 0.f, class USoundAttenuation* AttenuationSettings = nullptr, USoundConcurrency* ConcurrencySettings = nullptr, const AActor* OwningActor = nullptr);

	/** Makes an empty saved game. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame", meta = (DeterminesOutputType = "SaveGameClass"))
	static USaveGame* CreateSaveGameObject(TSubclassOf<USaveGame> SaveGameClass);

	/** Saves a game; false if it cannot. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame")
	static bool SaveGameToSlot(USaveGame* SaveGameObject, const FString& SlotName, const int32 UserIndex);

	/** Loads a saved game, or null. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame")
	static USaveGame* LoadGameFromSlot(const FString& SlotName, const int32 UserIndex);

	/** True if a game is saved there. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame")
	static bool DoesSaveGameExist(const FString& SlotName, const int32 UserIndex);

	/** Deletes a saved game; false if it cannot. */
	UFUNCTION(BlueprintCallable, Category = "SaveGame")
	static bool DeleteGameInSlot(const FString& SlotName, const int32 UserIndex);

	/** The parts of a hit. */
	UFUNCTION(BlueprintPure, Category = "Collision", meta = (NativeBreakFunc, AdvancedDisplay = "3"))
	static void BreakHitResult(const FHitResult& Hit, bool& bBlockingHit, bool& bInitialOverlap, float& Time, float& Distance, FVector& Location, FVector& ImpactPoint, FVector& Normal, FVector& ImpactNormal, UPhysicalMaterial*& PhysMat, AActor*& HitActor, UPrimitiveComponent*& HitComponent, FName& HitBoneName, FName& BoneName, int32& HitItem, int32& ElementIndex, int32& FaceIndex, FVector& TraceStart, FVector& TraceEnd);

	/** Begins to spawn an actor; its values are set before FinishSpawningActor. */
	UFUNCTION(BlueprintCallable, Category = "Spawning", meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true", BlueprintInternalUseOnly = "true"))
	static AActor* BeginDeferredActorSpawnFromClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, const FTransform& SpawnTransform, ESpawnActorCollisionHandlingMethod CollisionHandlingOverride = ESpawnActorCollisionHandlingMethod::Undefined, AActor* Owner = nullptr, ESpawnActorScaleMethod TransformScaleMethod = ESpawnActorScaleMethod::MultiplyWithRoot);

	/** Ends the spawning of an actor. */
	UFUNCTION(BlueprintCallable, Category = "Spawning", meta = (UnsafeDuringActorConstruction = "true", BlueprintInternalUseOnly = "true"))
	static AActor* FinishSpawningActor(AActor* Actor, const FTransform& SpawnTransform, ESpawnActorScaleMethod TransformScaleMethod = ESpawnActorScaleMethod::MultiplyWithRoot);

	/** Makes an object of a class. */
	UFUNCTION(BlueprintCallable, Category = "Spawning", meta = (BlueprintInternalUseOnly = "true", DefaultToSelf = "Outer"))
	static UObject* SpawnObject(TSubclassOf<UObject> ObjectClass, UObject* Outer);
};

/** What a saved game keeps. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API USaveGame : public UObject
{
	GENERATED_BODY()

public:
};

/** How many of a sound play at once. */
UCLASS(BlueprintType)
class ENGINE_API USoundConcurrency : public UObject
{
	GENERATED_BODY()

public:
};

/** How a sound fades with distance. */
UCLASS(BlueprintType)
class ENGINE_API USoundAttenuation : public UObject
{
	GENERATED_BODY()

public:
};

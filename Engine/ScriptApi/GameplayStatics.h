// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "GameplayStatics.generated.h"

// Continues
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
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass", DynamicOutputParam = "OutActors"))
	static void GetAllActorsOfClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, TArray<AActor*>& OutActors);

	/** All actors that have an interface. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DynamicOutputParam = "OutActors"))
	static void GetAllActorsWithInterface(const UObject* WorldContextObject, TSubclassOf<UInterface> Interface, TArray<AActor*>& OutActors);

	/** All actors that have a tag. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (WorldContext = "WorldContextObject", DynamicOutputParam = "OutActors"))
	static void GetAllActorsWithTag(const UObject* WorldContextObject, FName Tag, TArray<AActor*>& OutActors);

	/** Opens a level by name. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "2", DisplayName = "Open Level (by Name)"))
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

	/** Hurts an actor, and answers by how much. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game|Damage")
	static float ApplyDamage(AActor* DamagedActor, float BaseDamage, AController* EventInstigator, AActor* DamageCauser,
		TSubclassOf<UDamageType> DamageTypeClass);

	/** Hurts an actor at a place, and answers by how much. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game|Damage")
	static float ApplyPointDamage(AActor* DamagedActor, float BaseDamage, const FVector& HitFromDirection, const FHitResult& HitInfo,
		AController* EventInstigator, AActor* DamageCauser, TSubclassOf<UDamageType> DamageTypeClass);

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

	/** Begins to spawn an actor; its values are set before FinishSpawningActor. */
	UFUNCTION(BlueprintCallable, Category = "Spawning",
		meta = (WorldContext = "WorldContextObject", UnsafeDuringActorConstruction = "true", BlueprintInternalUseOnly = "true"))
	static AActor* BeginDeferredActorSpawnFromClass(const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass,
		const FTransform& SpawnTransform,
		ESpawnActorCollisionHandlingMethod CollisionHandlingOverride = ESpawnActorCollisionHandlingMethod::Undefined,
		AActor* Owner = nullptr, ESpawnActorScaleMethod TransformScaleMethod = ESpawnActorScaleMethod::MultiplyWithRoot);

	/** Ends the spawning of an actor. */
	UFUNCTION(BlueprintCallable, Category = "Spawning", meta = (UnsafeDuringActorConstruction = "true", BlueprintInternalUseOnly = "true"))
	static AActor* FinishSpawningActor(AActor* Actor, const FTransform& SpawnTransform,
		ESpawnActorScaleMethod TransformScaleMethod = ESpawnActorScaleMethod::MultiplyWithRoot);

	/** Makes an object of a class. */
	UFUNCTION(BlueprintCallable, Category = "Spawning", meta = (BlueprintInternalUseOnly = "true", DefaultToSelf = "Outer"))
	static UObject* SpawnObject(TSubclassOf<UObject> ObjectClass, UObject* Outer);

	/** The game instance. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static UGameInstance* GetGameInstance(const UObject* WorldContextObject);

	/** The num player states. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static int32 GetNumPlayerStates(const UObject* WorldContextObject);

	/** The player state. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static APlayerState* GetPlayerState(const UObject* WorldContextObject, int32 PlayerStateIndex);

	/** The player state from unique net id. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static APlayerState* GetPlayerStateFromUniqueNetId(const UObject* WorldContextObject, const FUniqueNetIdRepl& UniqueId);

	/** The num player controllers. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static int32 GetNumPlayerControllers(const UObject* WorldContextObject);

	/** The num local player controllers. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static int32 GetNumLocalPlayerControllers(const UObject* WorldContextObject);

	/** The player controller from ID. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static APlayerController* GetPlayerControllerFromID(const UObject* WorldContextObject, int32 ControllerID);

	/** The player controller from platform user. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static APlayerController* GetPlayerControllerFromPlatformUser(const UObject* WorldContextObject, FPlatformUserId UserId);

	/** The game state. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static AGameStateBase* GetGameState(const UObject* WorldContextObject);

	/** The object class. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (DeterminesOutputType = "Object", DisplayName = "Get Class"))
	static UClass* GetObjectClass(const UObject* Object);

	/** Adds a player at this machine. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "2", UnsafeDuringActorConstruction = "true"))
	static APlayerController* CreatePlayer(const UObject* WorldContextObject, int32 ControllerId = -1, bool bSpawnPlayerController = true);

	/** Takes a player at this machine out. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (UnsafeDuringActorConstruction = "true"))
	static void RemovePlayer(APlayerController* Player, bool bDestroyPawn);

	/** The player controller ID. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (UnsafeDuringActorConstruction = "true"))
	static int32 GetPlayerControllerID(APlayerController* Player);

	/** Sets the player controller ID. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (UnsafeDuringActorConstruction = "true"))
	static void SetPlayerControllerID(APlayerController* Player, int32 ControllerId);

	/** Opens a level. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", AdvancedDisplay = "2", DisplayName = "Open Level (by Object Reference)"))
	static void OpenLevelBySoftObjectPtr(
		const UObject* WorldContextObject, const TSoftObjectPtr<UWorld> Level, bool bAbsolute = true, FString Options = FString(TEXT("")));

	/** Streams a level in. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", Latent, LatentInfo = "LatentInfo", DisplayName = "Load Stream Level (by Name)"))
	static void LoadStreamLevel(const UObject* WorldContextObject, FName LevelName, bool bMakeVisibleAfterLoad, bool bShouldBlockOnLoad,
		FLatentActionInfo LatentInfo);

	/** Streams a level in. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", Latent, LatentInfo = "LatentInfo",
			DisplayName = "Load Stream Level (by Object Reference)"))
	static void LoadStreamLevelBySoftObjectPtr(const UObject* WorldContextObject, const TSoftObjectPtr<UWorld> Level,
		bool bMakeVisibleAfterLoad, bool bShouldBlockOnLoad, FLatentActionInfo LatentInfo);

	/** Streams a level out. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", Latent, LatentInfo = "LatentInfo", DisplayName = "Unload Stream Level (by Name)"))
	static void UnloadStreamLevel(
		const UObject* WorldContextObject, FName LevelName, FLatentActionInfo LatentInfo, bool bShouldBlockOnUnload);

	/** Streams a level out. */
	UFUNCTION(BlueprintCallable, Category = "Game",
		meta = (WorldContext = "WorldContextObject", Latent, LatentInfo = "LatentInfo",
			DisplayName = "Unload Stream Level (by Object Reference)"))
	static void UnloadStreamLevelBySoftObjectPtr(
		const UObject* WorldContextObject, const TSoftObjectPtr<UWorld> Level, FLatentActionInfo LatentInfo, bool bShouldBlockOnUnload);

	/** The streaming level. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static ULevelStreaming* GetStreamingLevel(const UObject* WorldContextObject, FName PackageName);

	/** Waits for all streaming of levels. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static void FlushLevelStreaming(const UObject* WorldContextObject);

	/** Ends all loading in the background. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	static void CancelAsyncLoading();

	/** The platform name. */
	UFUNCTION(BlueprintPure, Category = "Game")
	static FString GetPlatformName();

	/** Sets the force disable splitscreen. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static void SetForceDisableSplitscreen(const UObject* WorldContextObject, bool bDisable);

	/** Sets the viewport mouse capture mode. */
	UFUNCTION(BlueprintCallable, Category = "Viewport", meta = (WorldContext = "WorldContextObject"))
	static void SetViewportMouseCaptureMode(const UObject* WorldContextObject, const EMouseCaptureMode MouseCaptureMode);

	/** Value of a key of a level's options. */
	UFUNCTION(BlueprintPure, Category = "Game Options")
	static FString ParseOption(FString Options, const FString& Key);

	/** True if it has option. */
	UFUNCTION(BlueprintPure, Category = "Game Options")
	static bool HasOption(FString Options, const FString& InKey);

	/** The int option. */
	UFUNCTION(BlueprintPure, Category = "Game Options")
	static int32 GetIntOption(const FString& Options, const FString& Key, int32 DefaultValue);

	/** The key value. */
	UFUNCTION(BlueprintPure, Category = "Game Options")
	static void GetKeyValue(const FString& Pair, FString& Key, FString& Value);

	/** True if it has launch option. */
	UFUNCTION(BlueprintPure, Category = "Game Options")
	static bool HasLaunchOption(const FString& OptionToCheck);

	UFUNCTION(BlueprintPure, Category = "Foliage", meta = (WorldContext = "WorldContextObject"))
	static int32 GrassOverlappingSphereCount(
		const UObject* WorldContextObject, const UStaticMesh* StaticMesh, FVector CenterPosition, float Radius);

	/** All actors of a class that have a tag. Slow: do not call it each frame. */
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (WorldContext = "WorldContextObject", DeterminesOutputType = "ActorClass", DynamicOutputParam = "OutActors"))
	static void GetAllActorsOfClassWithTag(
		const UObject* WorldContextObject, TSubclassOf<AActor> ActorClass, FName Tag, TArray<AActor*>& OutActors);

	/** The actor array average location. */
	UFUNCTION(BlueprintPure, Category = "Actor")
	static FVector GetActorArrayAverageLocation(const TArray<AActor*>& Actors);

	/** The actor array bounds. */
	UFUNCTION(BlueprintPure, Category = "Actor")
	static void GetActorArrayBounds(const TArray<AActor*>& Actors, bool bOnlyCollidingComponents, FVector& Center, FVector& BoxExtent);

	/** The actor that is nearest to a place. */
	UFUNCTION(BlueprintPure, Category = "Actor")
	static AActor* FindNearestActor(FVector Origin, const TArray<AActor*>& ActorsToCheck, float& Distance);

	/** Hurts actors around a place. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game|Damage",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "IgnoreActors"))
	static bool ApplyRadialDamage(const UObject* WorldContextObject, float BaseDamage, const FVector& Origin, float DamageRadius,
		TSubclassOf<UDamageType> DamageTypeClass, const TArray<AActor*>& IgnoreActors, AActor* DamageCauser = nullptr,
		AController* InstigatedByController = nullptr, bool bDoFullDamage = false,
		ECollisionChannel DamagePreventionChannel = ECC_Visibility);

	/** Hurts actors around a place, less the further they are. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game|Damage",
		meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "IgnoreActors"))
	static bool ApplyRadialDamageWithFalloff(const UObject* WorldContextObject, float BaseDamage, float MinimumDamage,
		const FVector& Origin, float DamageInnerRadius, float DamageOuterRadius, float DamageFalloff,
		TSubclassOf<UDamageType> DamageTypeClass, const TArray<AActor*>& IgnoreActors, AActor* DamageCauser = nullptr,
		AController* InstigatedByController = nullptr, ECollisionChannel DamagePreventionChannel = ECC_Visibility);
};

/** What a saved game keeps. */
UCLASS(BlueprintType, Blueprintable)
class ENGINE_API USaveGame : public UObject
{
	GENERATED_BODY()
};

/** How many of a sound play at once. */
UCLASS(BlueprintType)
class ENGINE_API USoundConcurrency : public UObject
{
	GENERATED_BODY()
};

/** How a sound fades with distance. */
UCLASS(BlueprintType)
class ENGINE_API USoundAttenuation : public UObject
{
	GENERATED_BODY()
};

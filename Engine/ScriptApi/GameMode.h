// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "GameFramework.h"
#include "GameMode.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FOnPlayerStatePawnSet, APlayerState*, Player, APawn*, NewPawn, APawn*, OldPawn);

/** Rules of a game; it is on the server alone. */
UCLASS(config = Game, notplaceable, BlueprintType, Blueprintable, Transient,
	hideCategories = (Info, Rendering, MovementReplication, Replication, Actor))
class ENGINE_API AGameModeBase : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<APawn> DefaultPawnClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<APlayerController> PlayerControllerClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes", meta = (DisplayName = "HUD Class"))
	TSubclassOf<AHUD> HUDClass;

	/** Makes a player begin anew. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void RestartPlayer(AController* NewPlayer);

	/** Number of players, without spectators. */
	UFUNCTION(BlueprintPure, Category = "Game")
	int32 GetNumPlayers();

	/** Place where a player begins. */
	UFUNCTION(BlueprintNativeEvent, Category = "Game")
	AActor* ChoosePlayerStart(AController* Player);

	/** A player has joined. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Game", meta = (DisplayName = "OnPostLogin", ScriptName = "OnPostLogin"))
	void K2_PostLogin(APlayerController* NewPlayer);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<AGameSession> GameSessionClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<AGameStateBase> GameStateClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<APlayerState> PlayerStateClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<ASpectatorPawn> SpectatorClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	TSubclassOf<APlayerController> ReplaySpectatorPlayerControllerClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Classes")
	FText DefaultPlayerName;

	UPROPERTY(BlueprintReadOnly, Category = "Game")
	FString OptionsString;

	UPROPERTY(EditAnywhere, Category = "Game")
	uint8 bUseSeamlessTravel : 1;

	UPROPERTY(EditAnywhere, Category = "Game")
	uint8 bStartPlayersAsSpectators : 1;

	UPROPERTY(EditAnywhere, Category = "Game")
	uint8 bPauseable : 1;

	/** The num spectators. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	int32 GetNumSpectators();

	/** True if it has match started. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool HasMatchStarted() const;

	/** True if it has match ended. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool HasMatchEnded() const;

	/** Begins the level anew. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void ResetLevel();

	/** Ends the game for all. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void ReturnToMainMenuHost();

	UFUNCTION(BlueprintCallable, Category = "Game")
	void RestartPlayerAtPlayerStart(AController* NewPlayer, AActor* StartSpot);

	UFUNCTION(BlueprintCallable, Category = "Game")
	void RestartPlayerAtTransform(AController* NewPlayer, const FTransform& SpawnTransform);

	/** Renames a player. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void ChangeName(AController* Controller, const FString& NewName, bool bNameChange);

	/** When a player is about to start at a place, which can still be prepared here. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	void InitStartSpot(AActor* StartSpot, AController* NewPlayer);

	/** Whether the actor starts anew when the level is reset. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	bool ShouldReset(AActor* ActorToReset);

	/** Whether the player may enter the world again, for example after a death. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	bool PlayerCanRestart(APlayerController* Player);

	/** True if it can spectate. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	bool CanSpectate(APlayerController* Viewer, APlayerState* ViewTarget);

	/** When a new player has joined and is to start. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	void HandleStartingNewPlayer(APlayerController* NewPlayer);

	/** Finds the place where the player starts, by its name when one is asked for. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game", meta = (BlueprintInternalUseOnly = "true"))
	AActor* FindPlayerStart(AController* Player, const FString& IncomingName = TEXT(""));

	/** Place where a player begins. */
	UFUNCTION(BlueprintPure, Category = "Game", meta = (DisplayName = "FindPlayerStart", ScriptName = "FindPlayerStart"))
	AActor* K2_FindPlayerStart(AController* Player, const FString& IncomingName = TEXT(""));

	/** Makes the pawn of the player at the place where the player starts. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	APawn* SpawnDefaultPawnFor(AController* NewPlayer, AActor* StartSpot);

	/** Makes the pawn of the player at a place. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	APawn* SpawnDefaultPawnAtTransform(AController* NewPlayer, const FTransform& SpawnTransform);

	/** The default pawn class for controller. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	UClass* GetDefaultPawnClassForController(AController* InController);

	/** Whether the player watches instead of playing. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	bool MustSpectate(APlayerController* NewPlayerController) const;

	/** A player leaves. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Game", meta = (DisplayName = "OnLogout", ScriptName = "OnLogout"))
	void K2_OnLogout(AController* ExitingController);

	/** A player begins anew. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Game", meta = (DisplayName = "OnRestartPlayer", ScriptName = "OnRestartPlayer"))
	void K2_OnRestartPlayer(AController* NewPlayer);

	/** A player is renamed. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Game", meta = (DisplayName = "OnChangeName", ScriptName = "OnChangeName"))
	void K2_OnChangeName(AController* Other, const FString& NewName, bool bNameChange);

	/** A player gets another controller. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Game",
		meta = (DisplayName = "OnSwapPlayerControllers", ScriptName = "OnSwapPlayerControllers"))
	void K2_OnSwapPlayerControllers(APlayerController* OldPC, APlayerController* NewPC);
};

/** Rules of a game of matches. */
UCLASS()
class ENGINE_API AGameMode : public AGameModeBase
{
	GENERATED_BODY()

public:
	/** Begins the match. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void StartMatch();

	/** Ends the match. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void EndMatch();

	/** Begins the level anew. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void RestartGame();

	/** Ends the match without a result. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void AbortMatch();

	/** State of the match. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	FName GetMatchState() const;

	/** True while a match is played. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	bool IsMatchInProgress() const;

	/** True if the match may begin. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	bool ReadyToStartMatch();

	/** True if the match may end. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Game")
	bool ReadyToEndMatch();

	/** Sends a text to all. */
	UFUNCTION(BlueprintCallable, exec, BlueprintAuthorityOnly, Category = "AI")
	void Say(const FString& Msg);

	/** The match's state changes. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Game", meta = (DisplayName = "OnSetMatchState", ScriptName = "OnSetMatchState"))
	void K2_OnSetMatchState(FName NewState);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "GameMode")
	uint8 bDelayedStart : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "GameMode")
	float MinRespawnDelay = 1.f;

	UPROPERTY(BlueprintReadOnly, Category = "GameMode")
	int32 NumPlayers;

	UPROPERTY(BlueprintReadOnly, Category = "GameMode")
	int32 NumBots;

	UPROPERTY(BlueprintReadOnly, Category = "GameMode")
	int32 NumSpectators;
};

/** Who may join a game. */
UCLASS(config = Game, notplaceable)
class ENGINE_API AGameSession : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Game")
	int32 MaxPlayers = 16;

	UPROPERTY(EditAnywhere, Category = "Game")
	int32 MaxSpectators = 2;
};

/** State of a game that all clients know. */
UCLASS(config = Game, notplaceable, BlueprintType, Blueprintable)
class ENGINE_API AGameStateBase : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	TSubclassOf<AGameModeBase> GameModeClass;

	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	TObjectPtr<AGameModeBase> AuthorityGameMode;

	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	TSubclassOf<ASpectatorPawn> SpectatorClass;

	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	TArray<TObjectPtr<APlayerState>> PlayerArray;

	/** Seconds of the server's world. */
	UFUNCTION(BlueprintCallable, Category = "GameState")
	double GetServerWorldTimeSeconds() const;

	/** True if it has begun play. */
	UFUNCTION(BlueprintCallable, Category = "GameState")
	bool HasBegunPlay() const;

	/** True if it has match started. */
	UFUNCTION(BlueprintCallable, Category = "GameState")
	bool HasMatchStarted() const;

	/** True if it has match ended. */
	UFUNCTION(BlueprintCallable, Category = "GameState")
	bool HasMatchEnded() const;

	/** The player start time. */
	UFUNCTION(BlueprintCallable, Category = "GameState")
	float GetPlayerStartTime(AController* Controller) const;

	/** The player respawn delay. */
	UFUNCTION(BlueprintCallable, Category = "GameState")
	float GetPlayerRespawnDelay(AController* Controller) const;
};

/** State of a match that all clients know. */
UCLASS()
class ENGINE_API AGameState : public AGameStateBase
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	FName MatchState;

	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	FName PreviousMatchState;

	UPROPERTY(BlueprintReadOnly, Category = "GameState")
	int32 ElapsedTime;
};

/** State of a player that all clients know. */
UCLASS(BlueprintType, Blueprintable, notplaceable)
class ENGINE_API APlayerState : public AInfo
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "PlayerState")
	FOnPlayerStatePawnSet OnPawnSet;

	UPROPERTY(BlueprintReadOnly, Category = "PlayerState", meta = (AllowPrivateAccess = "true"))
	float Score;

	UPROPERTY(BlueprintReadOnly, Category = "PlayerState", meta = (AllowPrivateAccess = "true"))
	int32 PlayerId;

	/** The player name. */
	UFUNCTION(BlueprintPure, Category = "PlayerState")
	FString GetPlayerName() const;

	/** The pawn. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState")
	APawn* GetPawn() const;

	/** The player controller. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState")
	APlayerController* GetPlayerController() const;

	/** True if it is only a spectator. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState")
	bool IsOnlyASpectator() const;

	/** The ping in milliseconds. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState")
	float GetPingInMilliseconds() const;

	/** True if it is a bot. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState")
	bool IsABot() const;

	/** The compressed ping. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState")
	uint8 GetCompressedPing() const;

	/** The unique id. */
	UFUNCTION(BlueprintCallable, Category = "PlayerState", meta = (DisplayName = "Get Unique Net Id", ScriptName = "GetUniqueNetId"))
	FUniqueNetIdRepl BP_GetUniqueId() const;

	/** When the player comes back and takes over from the state that was kept of it. */
	UFUNCTION(BlueprintImplementableEvent, Category = "PlayerState", meta = (DisplayName = "OverrideWith"))
	void ReceiveOverrideWith(APlayerState* OldPlayerState);

	/** When what the player has reached is copied into a new state, as at a change of the level. */
	UFUNCTION(BlueprintImplementableEvent, Category = "PlayerState", meta = (DisplayName = "CopyProperties"))
	void ReceiveCopyProperties(APlayerState* NewPlayerState);
};

/** Place where players begin. */
UCLASS(Blueprintable, ClassGroup = Common, hidecategories = Collision)
class ENGINE_API APlayerStart : public ANavigationObjectBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Object")
	FName PlayerStartTag;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;
};

/** A place that navigation knows. */
UCLASS(hidecategories = (Lighting, LightColor, Force), ClassGroup = Navigation, NotBlueprintable, abstract)
class ENGINE_API ANavigationObjectBase : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "NavigationObjectBase", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCapsuleComponent> CapsuleComponent;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> GoodSprite;

	UPROPERTY()
	TObjectPtr<UBillboardComponent> BadSprite;
};

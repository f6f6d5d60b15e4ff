// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "GameFramework.generated.h"

/** An actor that a player or an AI controls. */
UCLASS(config = Game, BlueprintType, Blueprintable, hideCategories = (Navigation), meta = (ShortTooltip = "A Pawn is an actor that can be controlled."))
class ENGINE_API APawn : public AActor
{
	GENERATED_BODY()

public:
	/** Controller of the pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	AController* GetController() const;

	/** True if a person controls the pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsPlayerControlled() const;

	/** True if a controller that is here controls the pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsLocallyControlled() const;

	/** Rotation that the controller wants. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	FRotator GetControlRotation() const;

	/** Asks the movement component to move; a scale of 1 is full speed. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "AddInput"))
	void AddMovementInput(FVector WorldDirection, float ScaleValue = 1.0f, bool bForce = false);

	/** Turns the control rotation left and right. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "up down addpitch"))
	void AddControllerPitchInput(float Val);

	/** Turns the control rotation. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "left right turn addyaw"))
	void AddControllerYawInput(float Val);

	/** Rolls the control rotation. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "left right turn addroll"))
	void AddControllerRollInput(float Val);

	/** Takes the input that was added. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input")
	FVector ConsumeMovementInputVector();

	/** Movement component of the pawn. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	UPawnMovementComponent* GetMovementComponent() const;

	/** Makes an AI controller for the pawn. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void SpawnDefaultController();

	/** Parts the pawn from its controller. */
	UFUNCTION(BlueprintCallable, Category = "Pawn", meta = (Keywords = "Delete"))
	void DetachFromControllerPendingDestroy();

	/** A controller takes the pawn. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "Possessed"))
	void ReceivePossessed(AController* NewController);

	/** A controller leaves the pawn. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "Unpossessed"))
	void ReceiveUnpossessed(AController* OldController);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint32 bUseControllerRotationPitch : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint32 bUseControllerRotationYaw : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint32 bUseControllerRotationRoll : 1;
};

/** A pawn with a mesh, a capsule and a way to walk, jump, swim and fly. */
UCLASS(config = Game, BlueprintType, meta = (ShortTooltip = "A character is a type of Pawn that includes the ability to walk around."))
class ENGINE_API ACharacter : public APawn
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Character", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<USkeletalMeshComponent> Mesh;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Character", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCharacterMovementComponent> CharacterMovement;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Character", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCapsuleComponent> CapsuleComponent;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	uint32 bIsCrouched : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character")
	int32 JumpMaxCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character")
	float JumpMaxHoldTime;

	/** Begins a jump in the next update. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void Jump();

	/** Ends a jump that is held. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void StopJumping();

	/** True if the character can jump now. */
	UFUNCTION(BlueprintPure, Category = "Character")
	bool CanJump() const;

	/** Crouches, if it can. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void Crouch(bool bClientSimulation = false);

	/** Stands up, if it can. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void UnCrouch(bool bClientSimulation = false);

	/** Throws the character; an override replaces the velocity it has. */
	UFUNCTION(BlueprintCallable, Category = "Character", meta = (Keywords = "knockback"))
	void LaunchCharacter(FVector LaunchVelocity, bool bXYOverride, bool bZOverride);

	/** Plays a montage on the mesh and answers its length in seconds, 0 if it cannot. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float PlayAnimMontage(UAnimMontage* AnimMontage, float InPlayRate = 1.f, FName StartSectionName = NAME_None);

	/** Stops a montage, or the one that plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void StopAnimMontage(UAnimMontage* AnimMontage = nullptr);

	/** The character lands. */
	UFUNCTION(BlueprintImplementableEvent)
	void OnLanded(const FHitResult& Hit);

	/** The character jumps. */
	UFUNCTION(BlueprintNativeEvent, Category = "Character")
	void OnJumped();
};

/** Decides what a pawn does. */
UCLASS(abstract, notplaceable, NotBlueprintable)
class ENGINE_API AController : public AActor
{
	GENERATED_BODY()

public:
	/** Takes a pawn under control. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void Possess(APawn* InPawn);

	/** Lets the pawn go. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void UnPossess();

	/** Pawn under control, or null. */
	UFUNCTION(BlueprintPure, Category = "Pawn", meta = (DisplayName = "Get Controlled Pawn", ScriptName = "GetControlledPawn"))
	APawn* K2_GetPawn() const;

	/** Rotation that the controller wants. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FRotator GetControlRotation() const;

	/** Sets the rotation that the controller wants. */
	UFUNCTION(BlueprintCallable, Category = "Pawn", meta = (Tooltip = "Set the control rotation."))
	void SetControlRotation(const FRotator& NewRotation);

	/** True for a controller of this machine's player or AI. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsLocalController() const;

	/** True for a person's controller. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsPlayerController() const;

	/** Stops movement at once. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void StopMovement();

	/** Sets whether input moves the pawn; calls are counted. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void SetIgnoreMoveInput(bool bNewMoveInput);

	/** Sets whether input turns the view; calls are counted. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void SetIgnoreLookInput(bool bNewLookInput);
};

/** Controller of a person. */
UCLASS(config = Game, BlueprintType, Blueprintable, meta = (ShortTooltip = "A Player Controller is an actor responsible for controlling a Pawn used by the player."))
class ENGINE_API APlayerController : public AController
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MouseInterface")
	uint32 bShowMouseCursor : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MouseInterface")
	uint32 bEnableClickEvents : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MouseInterface")
	uint32 bEnableMouseOverEvents : 1;

	UPROPERTY(BlueprintReadOnly, Category = "PlayerController")
	TObjectPtr<APlayerCameraManager> PlayerCameraManager;

	/** Runs a console command and answers what it says. */
	UFUNCTION(BlueprintCallable, Category = "Development")
	FString ConsoleCommand(const FString& Command, bool bWriteToLog = true);

	/** Passes the view to another actor over some seconds. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (Keywords = "Camera"))
	void SetViewTargetWithBlend(AActor* NewViewTarget, float BlendTime = 0, EViewTargetBlendFunction BlendFunc = VTBlend_Linear, float BlendExp = 0, bool bLockOutgoing = false);

	/** Place of the mouse, if there is one. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	bool GetMousePosition(float& LocationX, float& LocationY) const;

	/** Finds what stands below the mouse. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	bool GetHitResultUnderCursorByChannel(ETraceTypeQuery TraceChannel, bool bTraceComplex, FHitResult& HitResult) const;

	/** True while a key is held. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	bool IsInputKeyDown(FKey Key) const;

	/** True in the frame in which a key goes down. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	bool WasInputKeyJustPressed(FKey Key) const;

	/** Seconds that a key is held. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	float GetInputKeyTimeDown(FKey Key) const;

	/** World place of a point of the screen, and the direction into it. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (DisplayName = "Convert Screen Location To World Space", Keywords = "deproject"))
	bool DeprojectScreenPositionToWorld(float ScreenX, float ScreenY, FVector& WorldLocation, FVector& WorldDirection) const;

	/** Screen place of a point of the world. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (DisplayName = "Convert World Location To Screen Location", Keywords = "project"))
	bool ProjectWorldLocationToScreen(FVector WorldLocation, FVector2D& ScreenLocation, bool bPlayerViewportRelative = false) const;
};

/** Rules of a game; it is on the server alone. */
UCLASS(config = Game, notplaceable, BlueprintType, Blueprintable, Transient, hideCategories = (Info, Rendering, MovementReplication, Replication, Actor), meta = (ShortTooltip = "Game Mode Base defines the game being played, its rules, scoring, and other facets of the game type."))
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
};

/** An actor that has no place in the world. */
// Extends native
UCLASS(abstract, hidecategories = (Input, Movement, Collision, Rendering, HLOD, WorldPartition, DataLayers), showcategories = ("Input|MouseInput", "Input|TouchInput"), NotBlueprintable)
class ENGINE_API AInfo : public AActor
{
	GENERATED_BODY()

public:
};

/** Draws on a player's screen. */
UCLASS()
class ENGINE_API AHUD : public AActor
{
	GENERATED_BODY()

public:
	/** Draws a text. */
	UFUNCTION(BlueprintCallable, Category = "HUD", meta = (TextColor = "(R=0,G=0,B=0,A=1)"))
	void DrawText(const FString& Text, FLinearColor TextColor, float ScreenX, float ScreenY, UFont* Font = nullptr, float Scale = 1.f, bool bScalePosition = false);

	/** Draws a filled rectangle. */
	UFUNCTION(BlueprintCallable, Category = "HUD", meta = (RectColor = "(R=0,G=0,B=0,A=1)"))
	void DrawRect(FLinearColor RectColor, float ScreenX, float ScreenY, float ScreenW, float ScreenH);
};

/** Camera of a player. */
UCLASS(notplaceable, transient, BlueprintType, Blueprintable)
class ENGINE_API APlayerCameraManager : public AActor
{
	GENERATED_BODY()

public:
	/** Place of the camera. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	FVector GetCameraLocation() const;

	/** Rotation of the camera. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	FRotator GetCameraRotation() const;

	/** Angle of view in degrees. */
	UFUNCTION(BlueprintPure, Category = "Camera")
	float GetFOVAngle() const;
};

/** Letters to draw. */
UCLASS(BlueprintType)
class ENGINE_API UFont : public UObject
{
	GENERATED_BODY()

public:
};

/** Kind of damage. */
UCLASS(MinimalAPI, const, Blueprintable, BlueprintType)
class ENGINE_API UDamageType : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "DamageType")
	uint32 bCausedByWorld : 1;
};

/** A light that shines to all sides. */
UCLASS(Blueprintable, ClassGroup = (Lights, PointLights))
class ENGINE_API APointLight : public ALight
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Light", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UPointLightComponent> PointLightComponent;
};

/** A light. */
UCLASS(Abstract, ClassGroup = Lights, hideCategories = (Input, Collision, Replication))
class ENGINE_API ALight : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, VisibleAnywhere, Category = "Light", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<ULightComponent> LightComponent;

	/** Brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting", meta = (DeprecatedFunction))
	void SetBrightness(float NewBrightness);
};

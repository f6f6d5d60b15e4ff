// Package: /Script/Engine
#pragma once

#include "Controller.h"
#include "PlayerController.generated.h"

/** What happens to a rumble. */
UENUM(BlueprintType)
namespace EDynamicForceFeedbackAction
{
enum Type : int
{
	Start,
	Update,
	Stop
};
}

/** Space that a shake is in. */
UENUM(BlueprintType)
enum class ECameraShakePlaySpace : uint8
{
	CameraLocal,
	World,
	UserDefined
};

/** Stick of a gamepad. */
UENUM(BlueprintType)
namespace EControllerAnalogStick
{
enum Type : int
{
	CAS_LeftStick,
	CAS_RightStick,
	CAS_MAX
};
}

/** Controller of a person. */
UCLASS(config = Game, BlueprintType, Blueprintable)
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
	void SetViewTargetWithBlend(AActor* NewViewTarget, float BlendTime = 0, EViewTargetBlendFunction BlendFunc = VTBlend_Linear,
		float BlendExp = 0, bool bLockOutgoing = false);

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
	UFUNCTION(BlueprintCallable, Category = "Game|Player",
		meta = (DisplayName = "Convert Screen Location To World Space", Keywords = "deproject"))
	bool DeprojectScreenPositionToWorld(float ScreenX, float ScreenY, FVector& WorldLocation, FVector& WorldDirection) const;

	/** Screen place of a point of the world. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player",
		meta = (DisplayName = "Convert World Location To Screen Location", Keywords = "project"))
	bool ProjectWorldLocationToScreen(FVector WorldLocation, FVector2D& ScreenLocation, bool bPlayerViewportRelative = false) const;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerController")
	TSubclassOf<APlayerCameraManager> PlayerCameraManagerClass;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Cheat Manager")
	TSubclassOf<UCheatManager> CheatClass;

	UPROPERTY(Transient, BlueprintReadOnly, Category = "Cheat Manager")
	TObjectPtr<UCheatManager> CheatManager;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerController")
	uint8 bAutoManageActiveCameraTarget : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	uint8 bEnableTouchEvents : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	uint8 bEnableTouchOverEvents : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game|Feedback")
	uint8 bForceFeedbackEnabled : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	TEnumAsByte<EMouseCursor::Type> DefaultMouseCursor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	TEnumAsByte<EMouseCursor::Type> CurrentMouseCursor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	TEnumAsByte<ECollisionChannel> DefaultClickTraceChannel;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	TEnumAsByte<ECollisionChannel> CurrentClickTraceChannel;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Mouse Interface")
	float HitResultTraceDistance = 100000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlayerController")
	uint8 bShouldPerformFullTickWhenPaused : 1;

	/** What draws on the player's screen. */
	UFUNCTION(BlueprintPure, Category = "HUD")
	AHUD* GetHUD() const;

	/** The focal location. */
	UFUNCTION(BlueprintPure, Category = "PlayerController")
	FVector GetFocalLocation() const;

	/** The spectator pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	ASpectatorPawn* GetSpectatorPawn() const;

	/** Sets what draws on the player's screen. */
	UFUNCTION(BlueprintCallable, Client, Reliable, Category = "HUD")
	void ClientSetHUD(TSubclassOf<AHUD> NewHUDClass);

	/** Sets the virtual joystick visibility. */
	UFUNCTION(BlueprintCallable, Category = "PlayerController")
	void SetVirtualJoystickVisibility(bool bVisible);

	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	void ActivateTouchInterface(UTouchInterface* NewTouchInterface);

	/** Moves the pointer. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	void SetMouseLocation(const int X, const int Y);

	/** Shows a widget as the pointer. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	void SetMouseCursorWidget(EMouseCursor::Type Cursor, UUserWidget* CursorWidget);

	/** Size of the player's view in points. */
	UFUNCTION(BlueprintCallable, Category = "HUD")
	void GetViewportSize(int32& SizeX, int32& SizeY) const;

	/** Sets the audio listener override. */
	UFUNCTION(BlueprintCallable, Category = "Game|Audio")
	void SetAudioListenerOverride(USceneComponent* AttachToComponent, FVector Location, FRotator Rotation);

	UFUNCTION(BlueprintCallable, Category = "Game|Audio")
	void ClearAudioListenerOverride();

	/** Sets the audio listener attenuation override. */
	UFUNCTION(BlueprintCallable, Category = "Game|Audio")
	void SetAudioListenerAttenuationOverride(USceneComponent* AttachToComponent, FVector AttenuationLocationOVerride);

	UFUNCTION(BlueprintCallable, Category = "Game|Audio")
	void ClearAudioListenerAttenuationOverride();

	/** Hides player, display and input for a film. */
	UFUNCTION(BlueprintCallable, Category = "Game")
	void SetCinematicMode(bool bInCinematicMode, bool bHidePlayer, bool bAffectsHUD, bool bAffectsMovement, bool bAffectsTurning);

	/** Sets the disable haptics. */
	UFUNCTION(BlueprintCallable, Category = "Game|Feedback")
	void SetDisableHaptics(bool bNewDisabled);

	/** Makes the gamepad rumble. */
	UFUNCTION(BlueprintCallable, Category = "Game|Feedback",
		meta = (Latent, LatentInfo = "LatentInfo", ExpandEnumAsExecs = "Action", Duration = "-1", bAffectsLeftLarge = "true",
			bAffectsLeftSmall = "true", bAffectsRightLarge = "true", bAffectsRightSmall = "true",
			AdvancedDisplay = "bAffectsLeftLarge,bAffectsLeftSmall,bAffectsRightLarge,bAffectsRightSmall"))
	void PlayDynamicForceFeedback(float Intensity, float Duration, bool bAffectsLeftLarge, bool bAffectsLeftSmall, bool bAffectsRightLarge,
		bool bAffectsRightSmall, TEnumAsByte<EDynamicForceFeedbackAction::Type> Action, FLatentActionInfo LatentInfo);

	/** Makes the gamepad rumble. */
	UFUNCTION(BlueprintCallable, Category = "Game|Feedback",
		meta = (DisplayName = "Client Play Force Feedback", ScriptName = "ClientPlayForceFeedback",
			AdvancedDisplay = "bIgnoreTimeDilation,bPlayWhilePaused"))
	void K2_ClientPlayForceFeedback(
		UForceFeedbackEffect* ForceFeedbackEffect, FName Tag, bool bLooping, bool bIgnoreTimeDilation, bool bPlayWhilePaused);

	/** Ends a rumble. */
	UFUNCTION(BlueprintCallable, Client, Reliable, Category = "Game|Feedback")
	void ClientStopForceFeedback(UForceFeedbackEffect* ForceFeedbackEffect, FName Tag);

	UFUNCTION(BlueprintCallable, Category = "Game|Feedback")
	void PlayHapticEffect(UHapticFeedbackEffect_Base* HapticEffect, EControllerHand Hand, float Scale = 1.f, bool bLoop = false);

	UFUNCTION(BlueprintCallable, Category = "Game|Feedback")
	void StopHapticEffect(EControllerHand Hand);

	/** Sets the haptics by value. */
	UFUNCTION(BlueprintCallable, Category = "Game|Feedback")
	void SetHapticsByValue(const float Frequency, const float Amplitude, EControllerHand Hand);

	/** Sets the controller light color. */
	UFUNCTION(BlueprintCallable, Category = "Game|Feedback")
	void SetControllerLightColor(FColor Color);

	UFUNCTION(BlueprintCallable, Category = "Game|Feedback")
	void ResetControllerLightColor();

	/** Looks up or down. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (Keywords = "up down addpitch"))
	void AddPitchInput(float Val);

	/** Looks left or right. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (Keywords = "left right turn addyaw"))
	void AddYawInput(float Val);

	/** Rolls the view. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player", meta = (Keywords = "roll"))
	void AddRollInput(float Val);

	/** Shakes the player's camera. */
	UFUNCTION(BlueprintCallable, Unreliable, Client, Category = "Game|Feedback")
	void ClientStartCameraShake(TSubclassOf<UCameraShakeBase> Shake, float Scale = 1.f,
		ECameraShakePlaySpace PlaySpace = ECameraShakePlaySpace::CameraLocal, FRotator UserPlaySpaceRot = FRotator::ZeroRotator);

	/** Ends a shake of the player's camera. */
	UFUNCTION(BlueprintCallable, Reliable, Client, Category = "Game|Feedback")
	void ClientStopCameraShake(TSubclassOf<UCameraShakeBase> Shake, bool bImmediately = true);

	UFUNCTION(BlueprintCallable, unreliable, Client, Category = "Game|Feedback")
	void ClientSpawnCameraLensEffect(TSubclassOf<AEmitterCameraLensEffectBase> LensEffectEmitterClass);

	UFUNCTION(BlueprintCallable, reliable, Client, Category = "Game|Feedback")
	void ClientClearCameraLensEffects();

	/** What of some object types is under the pointer. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	bool GetHitResultUnderCursorForObjects(
		const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex, FHitResult& HitResult) const;

	/** What is under a finger. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	bool GetHitResultUnderFingerByChannel(
		ETouchIndex::Type FingerIndex, ETraceTypeQuery TraceChannel, bool bTraceComplex, FHitResult& HitResult) const;

	/** What of some object types is under a finger. */
	UFUNCTION(BlueprintCallable, Category = "Game|Player")
	bool GetHitResultUnderFingerForObjects(ETouchIndex::Type FingerIndex, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes,
		bool bTraceComplex, FHitResult& HitResult) const;

	/** The input touch state. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	void GetInputTouchState(ETouchIndex::Type FingerIndex, float& LocationX, float& LocationY, bool& bIsCurrentlyPressed) const;

	/** The input motion state. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	void GetInputMotionState(FVector& Tilt, FVector& RotationRate, FVector& Gravity, FVector& Acceleration) const;

	/** True in the frame in which a key is let go. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	bool WasInputKeyJustReleased(FKey Key) const;

	/** How far a key is pressed. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	float GetInputAnalogKeyState(FKey Key) const;

	/** The input vector key state. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	FVector GetInputVectorKeyState(FKey Key) const;

	/** How far the mouse moved in this frame. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	void GetInputMouseDelta(float& DeltaX, float& DeltaY) const;

	/** The input analog stick state. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	void GetInputAnalogStickState(EControllerAnalogStick::Type WhichStick, float& StickX, float& StickY) const;

	/** Place and direction in the world of the pointer. */
	UFUNCTION(
		BlueprintPure, Category = "Game|Player", meta = (DisplayName = "Convert Mouse Location To World Space", Keywords = "deproject"))
	bool DeprojectMousePositionToWorld(FVector& WorldLocation, FVector& WorldDirection) const;

	/** The platform user id. */
	UFUNCTION(BlueprintPure, Category = "Game|Player")
	FPlatformUserId GetPlatformUserId() const;

	/** Sets the deprecated input yaw scale. */
	UFUNCTION(BlueprintCallable, Category = "PlayerController")
	void SetDeprecatedInputYawScale(float NewValue);

	/** Sets the deprecated input pitch scale. */
	UFUNCTION(BlueprintCallable, Category = "PlayerController")
	void SetDeprecatedInputPitchScale(float NewValue);

	/** Sets the deprecated input roll scale. */
	UFUNCTION(BlueprintCallable, Category = "PlayerController")
	void SetDeprecatedInputRollScale(float NewValue);
};

/** Commands for testing. */
UCLASS(Blueprintable, Within = PlayerController)
class ENGINE_API UCheatManager : public UObject
{
	GENERATED_BODY()

public:
	/** The commands are ready. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Cheat Manager", meta = (DisplayName = "Init Cheat Manager"))
	void ReceiveInitCheatManager();

	/** Play ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Cheat Manager", meta = (DisplayName = "Shutdown"))
	void ReceiveEndPlay();

	/** Makes the pawn not to be hurt. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void God();

	/** Lets the pawn fly. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void Fly();

	/** Lets the pawn walk. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void Walk();

	/** Lets the pawn go through walls. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void Ghost();

	/** Sets how fast time passes. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void Slomo(float NewTimeDilation);

	/** Moves the pawn to where it looks. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void Teleport();

	/** Destroys what the player looks at. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void DestroyTarget();

	/** Switches a free camera. */
	UFUNCTION(BlueprintCallable, exec, Category = "Cheat Manager")
	void ToggleDebugCamera();
};

/** Sticks on a touch screen. */
UCLASS(Blueprintable, BlueprintType)
class ENGINE_API UTouchInterface : public UObject
{
	GENERATED_BODY()
};

/** Who plays. */
UCLASS(MinimalAPI, transient, config = Engine)
class ENGINE_API UPlayer : public UObject
{
	GENERATED_BODY()
};

/** Who plays at this machine. */
UCLASS(Within = Engine, config = Engine, transient, BlueprintType)
class ENGINE_API ULocalPlayer : public UPlayer
{
	GENERATED_BODY()
};

/** Keys of a player. */
UCLASS(Within = PlayerController, config = Input, transient)
class ENGINE_API UPlayerInput : public UObject
{
	GENERATED_BODY()
};

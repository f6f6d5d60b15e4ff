// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "GameInstance.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnPawnControllerChanged, APawn*, Pawn, AController*, Controller);

/** One run of the game, from begin to end. */
UCLASS(config = Game, transient, BlueprintType, Blueprintable, Within = Engine)
class ENGINE_API UGameInstance : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnPawnControllerChanged OnPawnControllerChangedDelegates;

	/** The game begins. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Init"))
	void ReceiveInit();

	/** The game ends. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Shutdown"))
	void ReceiveShutdown();

	/** The network fails. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "NetworkError"))
	void HandleNetworkError(ENetworkFailure::Type FailureType, bool bIsServer);

	/** A level cannot be gone to. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "TravelError"))
	void HandleTravelError(ETravelFailure::Type FailureType);

	UFUNCTION(BlueprintCallable, exec)
	void DebugCreatePlayer(int32 ControllerId);

	UFUNCTION(BlueprintCallable, exec)
	void DebugRemovePlayer(int32 ControllerId);
};

/** Lives as long as the game. */
UCLASS(Abstract, Within = GameInstance)
class ENGINE_API UGameInstanceSubsystem : public USubsystem
{
	GENERATED_BODY()
};

/** Lives as long as a world. */
UCLASS(Abstract)
class ENGINE_API UWorldSubsystem : public USubsystem
{
	GENERATED_BODY()
};

/** Lives as long as a world and ticks. */
UCLASS(Abstract)
class ENGINE_API UTickableWorldSubsystem : public UWorldSubsystem
{
	GENERATED_BODY()
};

/** Lives as long as a player at this machine. */
UCLASS(Abstract, Within = LocalPlayer)
class ENGINE_API ULocalPlayerSubsystem : public USubsystem
{
	GENERATED_BODY()
};

/** Settings of graphics and sound. */
UCLASS(config = GameUserSettings, configdonotcheckdefaults, Blueprintable)
class ENGINE_API UGameUserSettings : public UObject
{
	GENERATED_BODY()

public:
	/** The game user settings. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	static UGameUserSettings* GetGameUserSettings();

	/** Uses and saves the settings. */
	UFUNCTION(BlueprintCallable, Category = "Settings", meta = (bCheckForCommandLineOverrides = "true"))
	void ApplySettings(bool bCheckForCommandLineOverrides);

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ApplyNonResolutionSettings();

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ApplyResolutionSettings(bool bCheckForCommandLineOverrides);

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void LoadSettings(bool bForceReload = false);

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SaveSettings();

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ResetToCurrentSettings();

	/** Sets the to defaults. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetToDefaults();

	/** Sets the screen resolution. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetScreenResolution(FIntPoint Resolution);

	/** The screen resolution. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	FIntPoint GetScreenResolution() const;

	/** The last confirmed screen resolution. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	FIntPoint GetLastConfirmedScreenResolution() const;

	/** The desktop resolution. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	FIntPoint GetDesktopResolution() const;

	/** Sets the fullscreen mode. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetFullscreenMode(EWindowMode::Type InFullscreenMode);

	/** The fullscreen mode. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	EWindowMode::Type GetFullscreenMode() const;

	/** The last confirmed fullscreen mode. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	EWindowMode::Type GetLastConfirmedFullscreenMode() const;

	/** The preferred fullscreen mode. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	EWindowMode::Type GetPreferredFullscreenMode() const;

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ConfirmVideoMode();

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void RevertVideoMode();

	/** Sets the v sync enabled. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetVSyncEnabled(bool bEnable);

	/** True if it is v sync enabled. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	bool IsVSyncEnabled() const;

	/** Sets the dynamic resolution enabled. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetDynamicResolutionEnabled(bool bEnable);

	/** True if it is dynamic resolution enabled. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	bool IsDynamicResolutionEnabled() const;

	/** Sets the frame rate limit. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetFrameRateLimit(float NewLimit);

	/** The frame rate limit. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	float GetFrameRateLimit() const;

	/** Sets the overall scalability level. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetOverallScalabilityLevel(int32 Value);

	/** The overall scalability level. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetOverallScalabilityLevel() const;

	/** The resolution scale normalized. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	float GetResolutionScaleNormalized() const;

	/** The resolution scale information ex. */
	UFUNCTION(BlueprintCallable, Category = "Settings", meta = (DisplayName = "GetResolutionScaleInformation"))
	void GetResolutionScaleInformationEx(
		float& CurrentScaleNormalized, float& CurrentScaleValue, float& MinScaleValue, float& MaxScaleValue) const;

	/** Sets the resolution scale value ex. */
	UFUNCTION(BlueprintCallable, Category = "Settings", meta = (DisplayName = "SetResolutionScaleValue"))
	void SetResolutionScaleValueEx(float NewScaleValue);

	/** Sets the resolution scale normalized. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetResolutionScaleNormalized(float NewScaleNormalized);

	/** Sets the view distance quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetViewDistanceQuality(int32 Value);

	/** The view distance quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetViewDistanceQuality() const;

	/** Sets the shadow quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetShadowQuality(int32 Value);

	/** The shadow quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetShadowQuality() const;

	/** Sets the global illumination quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetGlobalIlluminationQuality(int32 Value);

	/** The global illumination quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetGlobalIlluminationQuality() const;

	/** Sets the reflection quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetReflectionQuality(int32 Value);

	/** The reflection quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetReflectionQuality() const;

	/** Sets the anti aliasing quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetAntiAliasingQuality(int32 Value);

	/** The anti aliasing quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetAntiAliasingQuality() const;

	/** Sets the texture quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetTextureQuality(int32 Value);

	/** The texture quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetTextureQuality() const;

	/** Sets the visual effect quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetVisualEffectQuality(int32 Value);

	/** The visual effect quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetVisualEffectQuality() const;

	/** Sets the post processing quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetPostProcessingQuality(int32 Value);

	/** The post processing quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetPostProcessingQuality() const;

	/** Sets the foliage quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetFoliageQuality(int32 Value);

	/** The foliage quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetFoliageQuality() const;

	/** Sets the shading quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetShadingQuality(int32 Value);

	/** The shading quality. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetShadingQuality() const;

	/** Sets the audio quality level. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	void SetAudioQualityLevel(int32 QualityLevel);

	/** The audio quality level. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	int32 GetAudioQualityLevel() const;

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void RunHardwareBenchmark(int32 WorkScale = 10, float CPUMultiplier = 1.0f, float GPUMultiplier = 1.0f);

	UFUNCTION(BlueprintCallable, Category = "Settings")
	void ApplyHardwareBenchmarkResults();

	/** True if it is screen resolution dirty. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	bool IsScreenResolutionDirty() const;

	/** True if it is fullscreen mode dirty. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	bool IsFullscreenModeDirty() const;

	/** True if it is v sync dirty. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	bool IsVSyncDirty() const;

	/** True if it is dirty. */
	UFUNCTION(BlueprintCallable, Category = "Settings")
	bool IsDirty() const;

	/** The default resolution. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	static FIntPoint GetDefaultResolution();

	/** The default window position. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	static FIntPoint GetDefaultWindowPosition();

	/** The default window mode. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	static EWindowMode::Type GetDefaultWindowMode();

	/** The default resolution scale. */
	UFUNCTION(BlueprintPure, Category = "Settings")
	static float GetDefaultResolutionScale();
};

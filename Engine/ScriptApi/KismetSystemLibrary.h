// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemLibrary.generated.h"

/** What a trace draws for development. */
UENUM(BlueprintType)
namespace EDrawDebugTrace
{
enum Type : int
{
	None,
	ForOneFrame,
	ForDuration,
	Persistent
};
}

/** What a move of a component does when it is called. */
UENUM(BlueprintType)
namespace EMoveComponentAction
{
enum Type : int
{
	Move,
	Stop,
	Return
};
}

/** How a game ends. */
UENUM(BlueprintType)
namespace EQuitPreference
{
enum Type : int
{
	Quit,
	Background
};
}

// Continues
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Writes a text to the screen and the log. */
	UFUNCTION(BlueprintCallable, Category = "Development",
		meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext, Keywords = "log print", AdvancedDisplay = "2",
			DevelopmentOnly))
	static void PrintString(const UObject* WorldContextObject, const FString& InString = FString(TEXT("Hello")), bool bPrintToScreen = true,
		bool bPrintToLog = true, FLinearColor TextColor = FLinearColor(0.0, 0.66, 1.0), float Duration = 2.f, const FName Key = NAME_None);

	/** Writes a text to the screen and the log. */
	UFUNCTION(BlueprintCallable, Category = "Development",
		meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext, Keywords = "log", AdvancedDisplay = "2", DevelopmentOnly))
	static void PrintText(const UObject* WorldContextObject, const FText InText = INVTEXT("Hello"), bool bPrintToScreen = true,
		bool bPrintToLog = true, FLinearColor TextColor = FLinearColor(0.0, 0.66, 1.0), float Duration = 2.f, const FName Key = NAME_None);

	/** Writes a warning to the log. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (DevelopmentOnly))
	static void PrintWarning(const FString& InString);

	/** True if the object is there and is not being destroyed. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsValid(const UObject* Object);

	/** True if the class is there. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsValidClass(UClass* Class);

	/** Name of the object without its outers. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetObjectName(const UObject* Object);

	/** Path name of the object. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetPathName(const UObject* Object);

	/** Name that people read: an actor's label, another object's name. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetDisplayName(const UObject* Object);

	/** Name of the class that people read. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Class Display Name"))
	static FString GetClassDisplayName(const UClass* Class);

	/** Outer of the object. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Outer Object"))
	static UObject* GetOuterObject(const UObject* Object);

	/** True if the object's class implements the interface. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool DoesImplementInterface(const UObject* TestObject, TSubclassOf<UInterface> Interface);

	/** Seconds since the game began, without pauses. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (WorldContext = "WorldContextObject"))
	static double GetGameTimeInSeconds(const UObject* WorldContextObject);

	/** Number of the frame. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static int64 GetFrameCount();

	/** True on the server or in a game for one. */
	UFUNCTION(BlueprintPure, Category = "Networking", meta = (WorldContext = "WorldContextObject"))
	static bool IsServer(const UObject* WorldContextObject);

	/** True on a server that has no player of its own. */
	UFUNCTION(BlueprintPure, Category = "Networking", meta = (WorldContext = "WorldContextObject"))
	static bool IsDedicatedServer(const UObject* WorldContextObject);

	/** True in a game for one. */
	UFUNCTION(BlueprintPure, Category = "Networking", meta = (WorldContext = "WorldContextObject"))
	static bool IsStandalone(const UObject* WorldContextObject);

	/** True where no editor is part of the program. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static bool IsPackagedForDistribution();

	/** Name of the machine's user. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetPlatformUserName();

	/** Folder of the project. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (Keywords = "game directory"))
	static FString GetProjectDirectory();

	/** Folder of the project's content. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetProjectContentDirectory();

	/** Folder where the project saves. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetProjectSavedDirectory();

	/** Version of the engine. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static FString GetEngineVersion();

	/** Waits, and goes on when the time is over. A call while it waits is ignored. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl",
		meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Duration = "0.2", Keywords = "sleep"))
	static void Delay(const UObject* WorldContextObject, float Duration, struct FLatentActionInfo LatentInfo);

	/** Goes on in the next frame. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl",
		meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Keywords = "sleep"))
	static void DelayUntilNextTick(const UObject* WorldContextObject, struct FLatentActionInfo LatentInfo);

	/** Waits, and begins again with each call. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl",
		meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Duration = "0.2", Keywords = "sleep"))
	static void RetriggerableDelay(const UObject* WorldContextObject, float Duration, FLatentActionInfo LatentInfo);

	/** Moves a component to a place over some time. */
	UFUNCTION(BlueprintCallable, Category = "Components",
		meta = (Latent, LatentInfo = "LatentInfo", ExpandEnumAsExecs = "MoveAction", OverTime = "0.2"))
	static void MoveComponentTo(USceneComponent* Component, FVector TargetRelativeLocation, FRotator TargetRelativeRotation, bool bEaseOut,
		bool bEaseIn, float OverTime, bool bForceShortestRotationPath, TEnumAsByte<EMoveComponentAction::Type> MoveAction,
		FLatentActionInfo LatentInfo);

	/** Runs a console command. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (WorldContext = "WorldContextObject"))
	static void ExecuteConsoleCommand(
		const UObject* WorldContextObject, const FString& Command, APlayerController* SpecificPlayer = nullptr);

	/** Ends the game. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static void QuitGame(const UObject* WorldContextObject, APlayerController* SpecificPlayer,
		TEnumAsByte<EQuitPreference::Type> QuitPreference, bool bIgnorePlatformRestrictions);

	/** Opens an address in the machine's browser. */
	UFUNCTION(BlueprintCallable, Category = "Platform")
	static void LaunchURL(const FString& URL);

	/** True if the machine can open the address. */
	UFUNCTION(BlueprintPure, Category = "Platform")
	static bool CanLaunchURL(const FString& URL);

	/** Frees objects that nothing refers to, at the end of the frame. */
	UFUNCTION(BlueprintCallable, Category = "Platform")
	static void CollectGarbage();

	/** Loads an object now. */
	UFUNCTION(BlueprintCallable, Category = "Utilities", meta = (DisplayName = "Load Asset Blocking", DeterminesOutputType = "Asset"))
	static UObject* LoadAsset_Blocking(TSoftObjectPtr<UObject> Asset);

	/** Loads a class now. */
	UFUNCTION(BlueprintCallable, Category = "Utilities", meta = (DeterminesOutputType = "AssetClass"))
	static UClass* LoadClassAsset_Blocking(TSoftClassPtr<UObject> AssetClass);

	/** Loads an object and goes on when it is there. */
	UFUNCTION(BlueprintCallable, Category = "Utilities",
		meta = (WorldContext = "WorldContextObject", Latent, LatentInfo = "LatentInfo", BlueprintInternalUseOnly = "true"))
	static void LoadAsset(
		const UObject* WorldContextObject, TSoftObjectPtr<UObject> Asset, FOnAssetLoaded OnLoaded, FLatentActionInfo LatentInfo);

	/** Loads a class and goes on when it is there. */
	UFUNCTION(BlueprintCallable, Category = "Utilities",
		meta = (WorldContext = "WorldContextObject", Latent, LatentInfo = "LatentInfo", BlueprintInternalUseOnly = "true"))
	static void LoadAssetClass(
		const UObject* WorldContextObject, TSoftClassPtr<UObject> AssetClass, FOnAssetClassLoaded OnLoaded, FLatentActionInfo LatentInfo);

	/** Value of a console variable. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static int32 GetConsoleVariableIntValue(const FString& VariableName);

	/** Value of a console variable. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static float GetConsoleVariableFloatValue(const FString& VariableName);

	/** Value of a console variable. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool GetConsoleVariableBoolValue(const FString& VariableName);

	/** Value of a console variable. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetConsoleVariableStringValue(const FString& VariableName);

	/** Seconds of the machine's clock. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (BlueprintThreadSafe, DeprecatedFunction))
	static double GetPlatformTime_Seconds();

	/** File of an object's package on disk. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetSystemPath(const UObject* Object);

	/** Package of an object. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Get Package"))
	static UPackage* GetOuterMostPackage(const UObject* Object);

	/** True if nobody is there to answer questions. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool IsUnattended();

	/** Name of the game. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetGameName();

	/** Identifier of the game on the platform. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetGameBundleId();

	/** Version of the build. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetBuildVersion();

	/** Configuration of the build. */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static FString GetBuildConfiguration();

	/** Writes the calls that led here to the log. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (DisplayName = "Stack Trace", DevelopmentOnly))
	static void StackTrace();

	/** Sets the title of the game's window. */
	UFUNCTION(BlueprintCallable, Category = "Development")
	static void SetWindowTitle(const FText& Title);

	/** Closes the editor. */
	UFUNCTION(BlueprintCallable, Category = "Development")
	static void ExitEditor();

	/** Shows the platform's leader board. */
	UFUNCTION(BlueprintCallable, Category = "Development")
	static void ShowPlatformSpecificLeaderboardScreen(const FString& CategoryName);

	/** Identifier of the machine. */
	UFUNCTION(BlueprintPure, Category = "Development", meta = (DeprecatedFunction))
	static FString GetUniqueDeviceId();

	/** Identifier of the machine. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static FString GetDeviceId();

	/** Command line that the game was begun with. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static FString GetCommandLine();

	/** True if a command line has a switch. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static bool ParseParam(const FString& InString, const FString& InParam);

	/** Value of a switch of a command line. */
	UFUNCTION(BlueprintPure, Category = "Development")
	static bool ParseParamValue(const FString& InString, const FString& InParam, FString& OutValue);

	/** Splits a command line. */
	UFUNCTION(BlueprintCallable, Category = "Development")
	static void ParseCommandLine(
		const FString& InCmdLine, TArray<FString>& OutTokens, TArray<FString>& OutSwitches, TMap<FString, FString>& OutParams);

	/** Begins a step that can be undone. */
	UFUNCTION(BlueprintCallable, Category = "Transactions")
	static int32 BeginTransaction(const FString& Context, FText Description, UObject* PrimaryObject);

	/** Ends a step that can be undone. */
	UFUNCTION(BlueprintCallable, Category = "Transactions")
	static int32 EndTransaction();

	/** Gives up a step that can be undone. */
	UFUNCTION(BlueprintCallable, Category = "Transactions")
	static void CancelTransaction(const int32 Index);

	/** Notes an object's state for the step that can be undone. */
	UFUNCTION(BlueprintCallable, Category = "Transactions")
	static void TransactObject(UObject* Object);

	/** Notes an object's state while it is changed. */
	UFUNCTION(BlueprintCallable, Category = "Transactions")
	static void SnapshotObject(UObject* Object);

	/** Folder of the user's documents. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetPlatformUserDir();

	/** A file's path from the engine's folder. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString ConvertToRelativePath(const FString& Filename);

	/** A file's whole path. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString ConvertToAbsolutePath(const FString& Filename);

	/** A file's path with plain slashes. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString NormalizeFilename(const FString& InFilename);

	/** True if players share the screen. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform", meta = (WorldContext = "WorldContextObject"))
	static bool IsSplitScreen(const UObject* WorldContextObject);

	/** Language and country of the user. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetDefaultLocale();

	/** Language of the user. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetDefaultLanguage();

	/** Code of the currency of the user's country. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetLocalCurrencyCode();

	/** Sign of the currency of the user's country. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetLocalCurrencySymbol();

	/** True if the player is logged in to the platform. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool IsLoggedIn(const APlayerController* SpecificPlayer);

	/** True if a player number has a gamepad. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool IsControllerAssignedToGamepad(int32 ControllerId);

	/** Picture name of a gamepad's button. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetGamepadButtonGlyph(const FString& ButtonKey, int32 ControllerIndex);

	/** Name of a gamepad. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static FString GetGamepadControllerName(int32 ControllerId);

	/** Forgets which gamepad is whose. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ResetGamepadAssignments();

	/** Forgets the gamepad of a player number. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ResetGamepadAssignmentToController(int32 ControllerId);

	/** Hides the message of a change of level. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform", meta = (WorldContext = "WorldContextObject"))
	static void SetSuppressViewportTransitionMessage(const UObject* WorldContextObject, bool bState);

	/** Switches rumble of gamepads. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void SetGamepadsBlockDeviceFeedback(bool bBlock);

	/** Whether the volume buttons are the system's. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void SetVolumeButtonsHandledBySystem(bool bEnabled);

	/** True if the volume buttons are the system's. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool GetVolumeButtonsHandledBySystem();

	/** Allows or forbids the screen saver. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ControlScreensaver(bool bAllowScreenSaver);

	/** Closes the advertisement. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ForceCloseAdBanner();

	/** Shows an advertisement. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ShowAdBanner(int32 AdIdIndex, bool bShowOnBottomOfScreen);

	/** Hides the advertisement. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void HideAdBanner();

	/** Number of advertisement identifiers. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static int32 GetAdIDCount();

	/** Loads an advertisement of the whole screen. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void LoadInterstitialAd(int32 AdIdIndex);

	/** True if an advertisement of the whole screen is loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool IsInterstitialAdAvailable();

	/** True if an advertisement of the whole screen is being loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool IsInterstitialAdRequested();

	/** Shows the advertisement of the whole screen. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ShowInterstitialAd();

	/** Asks for messages of the platform. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void RegisterForRemoteNotifications();

	/** Asks for no more messages of the platform. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void UnregisterForRemoteNotifications();

	/** Tells the platform what the player does. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void SetUserActivity(const FUserActivity& UserActivity);

	/** Window sizes that fit the screen. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool GetConvenientWindowedResolutions(TArray<FIntPoint>& Resolutions);

	/** Screen sizes that the machine can show. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static bool GetSupportedFullscreenResolutions(TArray<FIntPoint>& Resolutions);

	/** Fewest lines that the interface is made for. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static int32 GetMinYResolutionForUI();

	/** Fewest lines that the world is drawn with. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static int32 GetMinYResolutionFor3DView();

	/** How much detail is drawn. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static int32 GetRenderingDetailMode();

	/** How good materials are drawn. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Platform")
	static int32 GetRenderingMaterialQualityLevel();

	/** Shows the platform's achievements. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Platform")
	static void ShowPlatformSpecificAchievementsScreen(const APlayerController* SpecificPlayer);
};

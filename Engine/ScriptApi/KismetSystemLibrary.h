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

/** Printing, timers, traces, overlaps and other services for Blueprints. */
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Writes a text to the screen and the log. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext, Keywords = "log print", AdvancedDisplay = "2", DevelopmentOnly))
	static void PrintString(const UObject* WorldContextObject, const FString& InString = FString(TEXT("Hello")), bool bPrintToScreen = true, bool bPrintToLog = true, FLinearColor TextColor = FLinearColor(0.0, 0.66, 1.0), float Duration = 2.f, const FName Key = NAME_None);

	/** Writes a text to the screen and the log. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (WorldContext = "WorldContextObject", CallableWithoutWorldContext, Keywords = "log", AdvancedDisplay = "2", DevelopmentOnly))
	static void PrintText(const UObject* WorldContextObject, const FText InText = INVTEXT("Hello"), bool bPrintToScreen = true, bool bPrintToLog = true, FLinearColor TextColor = FLinearColor(0.0, 0.66, 1.0), float Duration = 2.f, const FName Key = NAME_None);

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
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl", meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Duration = "0.2", Keywords = "sleep"))
	static void Delay(const UObject* WorldContextObject, float Duration, struct FLatentActionInfo LatentInfo);

	/** Goes on in the next frame. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl", meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Keywords = "sleep"))
	static void DelayUntilNextTick(const UObject* WorldContextObject, struct FLatentActionInfo LatentInfo);

	/** Waits, and begins again with each call. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|FlowControl", meta = (Latent, WorldContext = "WorldContextObject", LatentInfo = "LatentInfo", Duration = "0.2", Keywords = "sleep"))
	static void RetriggerableDelay(const UObject* WorldContextObject, float Duration, FLatentActionInfo LatentInfo);

	/** Moves a component to a place over some time. */
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Latent, LatentInfo = "LatentInfo", WorldContext = "WorldContextObject", ExpandEnumAsExecs = "MoveAction", OverTime = "0.2"))
	static void MoveComponentTo(USceneComponent* Component, FVector TargetRelativeLocation, FRotator TargetRelativeRotation, bool bEaseOut, bool bEaseIn, float OverTime, bool bForceShortestRotationPath, TEnumAsByte<EMoveComponentAction::Type> MoveAction, FLatentActionInfo LatentInfo);

	/** Calls an event after some time, once or again and again. Setting the same event again starts its time anew. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Set Timer by Event", ScriptName = "SetTimerDelegate", AdvancedDisplay = "InitialStartDelay, InitialStartDelayVariance"))
	static FTimerHandle K2_SetTimerDelegate(UPARAM(DisplayName = "Event") FTimerDynamicDelegate Delegate, float Time, bool bLooping, bool bMaxOncePerFrame = false, float InitialStartDelay = 0.f, float InitialStartDelayVariance = 0.f);

	/** Calls a function of an object after some time, once or again and again. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Set Timer by Function Name", ScriptName = "SetTimer", DefaultToSelf = "Object", AdvancedDisplay = "InitialStartDelay, InitialStartDelayVariance"))
	static FTimerHandle K2_SetTimer(UObject* Object, FString FunctionName, float Time, bool bLooping, bool bMaxOncePerFrame = false, float InitialStartDelay = 0.f, float InitialStartDelayVariance = 0.f);

	/** Ends the timer of a handle and clears the handle. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Clear and Invalidate Timer by Handle", ScriptName = "ClearAndInvalidateTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_ClearAndInvalidateTimerHandle(const UObject* WorldContextObject, UPARAM(ref) FTimerHandle& Handle);

	/** Ends the timer of a function. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Clear Timer by Function Name", ScriptName = "ClearTimer", DefaultToSelf = "Object"))
	static void K2_ClearTimer(UObject* Object, FString FunctionName);

	/** Ends the timer of a handle. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Clear Timer by Handle", ScriptName = "ClearTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_ClearTimerHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Stops the timer of a handle for a while. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Pause Timer by Handle", ScriptName = "PauseTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_PauseTimerHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Goes on with the timer of a handle. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Unpause Timer by Handle", ScriptName = "UnPauseTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_UnPauseTimerHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** True if the timer of a handle is there and not paused. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Is Timer Active by Handle", ScriptName = "IsTimerActiveHandle", WorldContext = "WorldContextObject"))
	static bool K2_IsTimerActiveHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** True if the handle is set. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Is Valid Timer Handle", ScriptName = "IsValidTimerHandle"))
	static bool K2_IsValidTimerHandle(FTimerHandle Handle);

	/** Finds the first thing that blocks a line. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Line Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds what a line touches, up to the first thing that blocks it. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Multi Line Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceMulti(const UObject* WorldContextObject, const FVector Start, const FVector End, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, TArray<FHitResult>& OutHits, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first object of some types on a line. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Line Trace For Objects", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceSingleForObjects(const UObject* WorldContextObject, const FVector Start, const FVector End, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks a line for a collision profile. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Line Trace By Profile", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "raycast"))
	static bool LineTraceSingleByProfile(const UObject* WorldContextObject, const FVector Start, const FVector End, FName ProfileName, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks a moving sphere. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Sphere Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool SphereTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks a moving capsule. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Capsule Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool CapsuleTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, float Radius, float HalfHeight, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the first thing that blocks a moving box. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (bIgnoreSelf = "true", WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Box Trace By Channel", AdvancedDisplay = "TraceColor,TraceHitColor,DrawTime", Keywords = "sweep"))
	static bool BoxTraceSingle(const UObject* WorldContextObject, const FVector Start, const FVector End, const FVector HalfSize, const FRotator Orientation, ETraceTypeQuery TraceChannel, bool bTraceComplex, const TArray<AActor*>& ActorsToIgnore, EDrawDebugTrace::Type DrawDebugType, FHitResult& OutHit, bool bIgnoreSelf, FLinearColor TraceColor = FLinearColor::Red, FLinearColor TraceHitColor = FLinearColor::Green, float DrawTime = 5.0f);

	/** Finds the actors that a sphere overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Sphere Overlap Actors"))
	static bool SphereOverlapActors(const UObject* WorldContextObject, const FVector SpherePos, float SphereRadius, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ActorClassFilter, const TArray<AActor*>& ActorsToIgnore, TArray<AActor*>& OutActors);

	/** Finds the actors that a box overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (WorldContext = "WorldContextObject", AutoCreateRefTerm = "ActorsToIgnore", DisplayName = "Box Overlap Actors"))
	static bool BoxOverlapActors(const UObject* WorldContextObject, const FVector BoxPos, FVector BoxExtent, const TArray<TEnumAsByte<EObjectTypeQuery>>& ObjectTypes, UClass* ActorClassFilter, const TArray<AActor*>& ActorsToIgnore, TArray<AActor*>& OutActors);

	/** Draws a line for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugLine(const UObject* WorldContextObject, const FVector LineStart, const FVector LineEnd, FLinearColor LineColor, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a sphere for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugSphere(const UObject* WorldContextObject, const FVector Center, float Radius = 100.f, int32 Segments = 12, FLinearColor LineColor = FLinearColor::White, float Duration = 0.f, float Thickness = 0.f);

	/** Draws a box for development. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Debug", meta = (WorldContext = "WorldContextObject", DevelopmentOnly))
	static void DrawDebugBox(const UObject* WorldContextObject, const FVector Center, FVector Extent, FLinearColor LineColor, const FRotator Rotation = FRotator::ZeroRotator, float Duration = 0.f, float Thickness = 0.f);

	/** Runs a console command. */
	UFUNCTION(BlueprintCallable, Category = "Development", meta = (WorldContext = "WorldContextObject"))
	static void ExecuteConsoleCommand(const UObject* WorldContextObject, const FString& Command, APlayerController* SpecificPlayer = nullptr);

	/** Ends the game. */
	UFUNCTION(BlueprintCallable, Category = "Game", meta = (WorldContext = "WorldContextObject"))
	static void QuitGame(const UObject* WorldContextObject, APlayerController* SpecificPlayer, TEnumAsByte<EQuitPreference::Type> QuitPreference, bool bIgnorePlatformRestrictions);

	/** Opens an address in the machine's browser. */
	UFUNCTION(BlueprintCallable, Category = "Platform")
	static void LaunchURL(const FString& URL);

	/** True if the machine can open the address. */
	UFUNCTION(BlueprintPure, Category = "Platform")
	static bool CanLaunchURL(const FString& URL);

	/** Frees objects that nothing refers to, at the end of the frame. */
	UFUNCTION(BlueprintCallable, Category = "Platform")
	static void CollectGarbage();

	/** Object of a reference that does not load it by itself, or null while it is not loaded. */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Resolve Soft Object Reference"))
	static UObject* Conv_SoftObjectReferenceToObject(const TSoftObjectPtr<UObject>& SoftObject);

	/** Loads an object now. */
	UFUNCTION(BlueprintCallable, Category = "Utilities", meta = (DisplayName = "Load Asset Blocking", DeterminesOutputType = "Asset"))
	static UObject* LoadAsset_Blocking(TSoftObjectPtr<UObject> Asset);

	/** Loads a class now. */
	UFUNCTION(BlueprintCallable, Category = "Utilities", meta = (DeterminesOutputType = "AssetClass"))
	static UClass* LoadClassAsset_Blocking(TSoftClassPtr<UObject> AssetClass);
};

// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetSystemTimers.generated.h"

/** Printing, timers, traces, overlaps and other services for Blueprints. */
UCLASS()
class ENGINE_API UKismetSystemLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Calls an event after some time, once or again and again. Setting the same event again starts its time anew. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Set Timer by Event", ScriptName = "SetTimerDelegate",
			AdvancedDisplay = "InitialStartDelay, InitialStartDelayVariance"))
	static FTimerHandle K2_SetTimerDelegate(UPARAM(DisplayName = "Event") FTimerDynamicDelegate Delegate, float Time, bool bLooping,
		bool bMaxOncePerFrame = false, float InitialStartDelay = 0.f, float InitialStartDelayVariance = 0.f);

	/** Calls a function of an object after some time, once or again and again. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Set Timer by Function Name", ScriptName = "SetTimer", DefaultToSelf = "Object",
			AdvancedDisplay = "InitialStartDelay, InitialStartDelayVariance"))
	static FTimerHandle K2_SetTimer(UObject* Object, FString FunctionName, float Time, bool bLooping, bool bMaxOncePerFrame = false,
		float InitialStartDelay = 0.f, float InitialStartDelayVariance = 0.f);

	/** Ends the timer of a handle and clears the handle. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Clear and Invalidate Timer by Handle", ScriptName = "ClearAndInvalidateTimerHandle",
			WorldContext = "WorldContextObject"))
	static void K2_ClearAndInvalidateTimerHandle(const UObject* WorldContextObject, UPARAM(ref) FTimerHandle& Handle);

	/** Ends the timer of a function. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Clear Timer by Function Name", ScriptName = "ClearTimer", DefaultToSelf = "Object"))
	static void K2_ClearTimer(UObject* Object, FString FunctionName);

	/** Ends the timer of a handle. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Clear Timer by Handle", ScriptName = "ClearTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_ClearTimerHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Stops the timer of a handle for a while. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Pause Timer by Handle", ScriptName = "PauseTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_PauseTimerHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Goes on with the timer of a handle. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Unpause Timer by Handle", ScriptName = "UnPauseTimerHandle", WorldContext = "WorldContextObject"))
	static void K2_UnPauseTimerHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** True if the timer of a handle is there and not paused. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Is Timer Active by Handle", ScriptName = "IsTimerActiveHandle", WorldContext = "WorldContextObject"))
	static bool K2_IsTimerActiveHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** True if the handle is set. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Is Valid Timer Handle", ScriptName = "IsValidTimerHandle"))
	static bool K2_IsValidTimerHandle(FTimerHandle Handle);

	/** Ends a timer. */
	UFUNCTION(
		BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Clear Timer by Event", ScriptName = "ClearTimerDelegate"))
	static void K2_ClearTimerDelegate(FTimerDynamicDelegate Delegate);

	/** Calls a function at the next frame. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Set Timer for Next Tick by Function Name", ScriptName = "SetTimerForNextTick", DefaultToSelf = "Object"))
	static FTimerHandle K2_SetTimerForNextTick(UObject* Object, FString FunctionName);

	/** Calls an event at the next frame. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Set Timer for Next Tick by Event", ScriptName = "SetTimerForNextTickDelegate"))
	static FTimerHandle K2_SetTimerForNextTickDelegate(FTimerDynamicDelegate Delegate);

	/** Stops a timer until it goes on. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Pause Timer by Function Name", ScriptName = "PauseTimer", DefaultToSelf = "Object"))
	static void K2_PauseTimer(UObject* Object, FString FunctionName);

	/** Stops a timer until it goes on. */
	UFUNCTION(
		BlueprintCallable, Category = "Utilities|Time", meta = (DisplayName = "Pause Timer by Event", ScriptName = "PauseTimerDelegate"))
	static void K2_PauseTimerDelegate(FTimerDynamicDelegate Delegate);

	/** Lets a timer go on. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Unpause Timer by Function Name", ScriptName = "UnPauseTimer", DefaultToSelf = "Object"))
	static void K2_UnPauseTimer(UObject* Object, FString FunctionName);

	/** Lets a timer go on. */
	UFUNCTION(BlueprintCallable, Category = "Utilities|Time",
		meta = (DisplayName = "Unpause Timer by Event", ScriptName = "UnPauseTimerDelegate"))
	static void K2_UnPauseTimerDelegate(FTimerDynamicDelegate Delegate);

	/** True if a timer runs. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Is Timer Active by Function Name", ScriptName = "IsTimerActive", DefaultToSelf = "Object"))
	static bool K2_IsTimerActive(UObject* Object, FString FunctionName);

	/** True if a timer runs. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Is Timer Active by Event", ScriptName = "IsTimerActiveDelegate"))
	static bool K2_IsTimerActiveDelegate(FTimerDynamicDelegate Delegate);

	/** True if a timer is stopped for a while. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Is Timer Paused by Function Name", ScriptName = "IsTimerPaused", DefaultToSelf = "Object"))
	static bool K2_IsTimerPaused(UObject* Object, FString FunctionName);

	/** True if a timer is stopped for a while. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Is Timer Paused by Event", ScriptName = "IsTimerPausedDelegate"))
	static bool K2_IsTimerPausedDelegate(FTimerDynamicDelegate Delegate);

	/** True if a timer is stopped for a while. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Is Timer Paused by Handle", ScriptName = "IsTimerPausedHandle"))
	static bool K2_IsTimerPausedHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** True if a timer runs or is stopped for a while. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Does Timer Exist by Function Name", ScriptName = "TimerExists", DefaultToSelf = "Object"))
	static bool K2_TimerExists(UObject* Object, FString FunctionName);

	/** True if a timer runs or is stopped for a while. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Does Timer Exist by Event", ScriptName = "TimerExistsDelegate"))
	static bool K2_TimerExistsDelegate(FTimerDynamicDelegate Delegate);

	/** True if a timer runs or is stopped for a while. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Does Timer Exist by Handle", ScriptName = "TimerExistsHandle"))
	static bool K2_TimerExistsHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Seconds since the timer last called. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Get Timer Elapsed Time by Function Name", ScriptName = "GetTimerElapsedTime", DefaultToSelf = "Object"))
	static float K2_GetTimerElapsedTime(UObject* Object, FString FunctionName);

	/** Seconds since the timer last called. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Get Timer Elapsed Time by Event", ScriptName = "GetTimerElapsedTimeDelegate"))
	static float K2_GetTimerElapsedTimeDelegate(FTimerDynamicDelegate Delegate);

	/** Seconds since the timer last called. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Get Timer Elapsed Time by Handle",
			ScriptName = "GetTimerElapsedTimeHandle"))
	static float K2_GetTimerElapsedTimeHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Seconds until the timer calls. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Get Timer Remaining Time by Function Name", ScriptName = "GetTimerRemainingTime", DefaultToSelf = "Object"))
	static float K2_GetTimerRemainingTime(UObject* Object, FString FunctionName);

	/** Seconds until the timer calls. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (DisplayName = "Get Timer Remaining Time by Event", ScriptName = "GetTimerRemainingTimeDelegate"))
	static float K2_GetTimerRemainingTimeDelegate(FTimerDynamicDelegate Delegate);

	/** Seconds until the timer calls. */
	UFUNCTION(BlueprintPure, Category = "Utilities|Time",
		meta = (WorldContext = "WorldContextObject", DisplayName = "Get Timer Remaining Time by Handle",
			ScriptName = "GetTimerRemainingTimeHandle"))
	static float K2_GetTimerRemainingTimeHandle(const UObject* WorldContextObject, FTimerHandle Handle);

	/** Makes a handle name no timer. */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Time", meta = (DisplayName = "Invalidate Timer Handle", ScriptName = "InvalidateTimerHandle"))
	static FTimerHandle K2_InvalidateTimerHandle(UPARAM(ref) FTimerHandle& Handle);
};

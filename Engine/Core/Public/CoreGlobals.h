#pragma once

#include "CoreTypes.h"
#include "Logging/LogMacros.h"

class FOutputDeviceRedirector;

CORE_API FOutputDeviceRedirector* GetGlobalLogSingleton();
#define GLog GetGlobalLogSingleton()

extern CORE_API bool GIsEditor;
extern CORE_API bool GIsClient;
extern CORE_API bool GIsServer;
/** True between the engine's start and its end. */
extern CORE_API bool GIsRunning;
extern CORE_API bool GIsSavingPackage;
extern CORE_API bool GIsTransacting;
extern CORE_API bool GIsGarbageCollecting;
extern CORE_API bool GIsCookerLoadingPackage;
extern CORE_API bool GIsReconstructingBlueprintInstances;
extern CORE_API bool GIsDuplicatingClassForReinstancing;
extern CORE_API bool GCompilingBlueprint;
extern CORE_API bool GIsPlayInEditorWorld;
extern CORE_API bool GIsRunningUnattendedScript;
extern CORE_API bool GIsBuildMachine;
extern CORE_API bool GIsAutomationTesting;
extern CORE_API bool GIsSlowTask;
extern CORE_API double GStartTime;
/** Ticks since the start. Changed on the game thread alone. */
extern CORE_API uint64 GFrameCounter;
/** The id of FPlatformTLS::GetCurrentThreadId() that the game thread has; 0 before engine init. */
extern CORE_API uint32 GGameThreadId;
extern CORE_API bool GIsGameThreadIdInitialized;

/** True on the game thread, and on every thread before there is one. */
CORE_API bool IsInGameThread();
/** True once somebody asked the program to end. */
CORE_API bool IsEngineExitRequested();
/** Asks the main loop to end; safe from any thread. */
CORE_API void RequestEngineExit(const class FString& ReasonString);
CORE_API void RequestEngineExit(const TCHAR* ReasonString);
/** Takes the request back, so that a test can start anew; ours, not the engine's. */
CORE_API void ResetEngineExitRequest();

inline bool IsRunningCommandlet()
{
	return false;
}
inline bool IsRunningDedicatedServer()
{
	return false;
}
inline bool IsRunningGame()
{
	return false;
}

DECLARE_LOG_CATEGORY_EXTERN(LogTemp, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogCore, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogInit, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogExit, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogOutputDevice, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogSerialization, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogText, Log, All);
DECLARE_LOG_CATEGORY_EXTERN(LogConsoleResponse, Log, All);

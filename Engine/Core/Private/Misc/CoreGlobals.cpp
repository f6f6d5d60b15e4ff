#include "CoreGlobals.h"

#include "Containers/UnrealString.h"
#include "HAL/PlatformTLS.h"
#include "Misc/OutputDeviceRedirector.h"

#include <atomic>

bool GIsEditor = true;
bool GIsClient = true;
bool GIsServer = true;
bool GIsRunning = false;
bool GIsSavingPackage = false;
bool GIsTransacting = false;
bool GIsGarbageCollecting = false;
bool GIsCookerLoadingPackage = false;
bool GIsReconstructingBlueprintInstances = false;
bool GIsDuplicatingClassForReinstancing = false;
bool GCompilingBlueprint = false;
bool GIsPlayInEditorWorld = false;
bool GIsRunningUnattendedScript = false;
bool GIsBuildMachine = false;
bool GIsAutomationTesting = false;
bool GIsSlowTask = false;
double GStartTime = 0;
uint64 GFrameCounter = 0;
uint32 GGameThreadId = 0;
bool GIsGameThreadIdInitialized = false;

DEFINE_LOG_CATEGORY(LogTemp);
DEFINE_LOG_CATEGORY(LogCore);
DEFINE_LOG_CATEGORY(LogInit);
DEFINE_LOG_CATEGORY(LogExit);
DEFINE_LOG_CATEGORY(LogOutputDevice);
DEFINE_LOG_CATEGORY(LogSerialization);
DEFINE_LOG_CATEGORY(LogText);
DEFINE_LOG_CATEGORY(LogConsoleResponse);

namespace
{
std::atomic<bool> GExitRequested{false};
}

FOutputDeviceRedirector* GetGlobalLogSingleton()
{
	return FOutputDeviceRedirector::Get();
}

bool IsInGameThread()
{
	return !GIsGameThreadIdInitialized || FPlatformTLS::GetCurrentThreadId() == GGameThreadId;
}

bool IsEngineExitRequested()
{
	return GExitRequested.load(std::memory_order_relaxed);
}

void RequestEngineExit(const TCHAR* ReasonString)
{
	const bool bWasRequested = GExitRequested.exchange(true);
	UE_CLOG(!bWasRequested, LogCore, Log, TEXT("Engine exit requested (reason: %s)"), ReasonString);
}

void RequestEngineExit(const FString& ReasonString)
{
	RequestEngineExit(*ReasonString);
}

void ResetEngineExitRequest()
{
	GExitRequested.store(false);
}

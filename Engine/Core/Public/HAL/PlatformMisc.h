#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"

struct FGuid;

struct CORE_API FPlatformMisc
{
	/** Empty when the variable is not set. */
	static FString GetEnvironmentVariable(const TCHAR* VariableName);
	/** A null or empty value takes the variable away. Not safe while other threads read the environment. */
	static void SetEnvironmentVar(const TCHAR* VariableName, const TCHAR* Value);

	static int32 NumberOfCores();
	static int32 NumberOfCoresIncludingHyperthreads() { return NumberOfCores(); }
	static int32 NumberOfWorkerThreadsToSpawn();

	/** Asks the main loop to end; when forced, the process ends at once without any clean-up. */
	static void RequestExit(bool bForce, const TCHAR* CallSite = nullptr);

	/** A random (version 4) identifier from the system's secure source. */
	static void CreateGuid(FGuid& OutGuid);

	/** "Debian GNU/Linux 12 (bookworm)", "6.1.0". */
	static void GetOSVersions(FString& OutOSVersionLabel, FString& OutOSSubVersionLabel);
	static FString GetOSVersion();
	/** "en-GB", from the environment; "en-US" when it says nothing. */
	static FString GetDefaultLocale();
	static uint32 GetLastError();
	/** The text of an errno value; 0 means the last one. */
	static const TCHAR* GetSystemErrorMessage(TCHAR* OutBuffer, int32 BufferCount, int32 Error);
};

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Templates/SharedPointer.h"

class FEvent;

/** A child process. Copies are the same process. */
class FProcHandle
{
public:
	bool IsValid() const { return State.IsValid(); }
	void Reset() { State.Reset(); }

private:
	friend struct FPlatformProcess;
	struct FState;

	TSharedPtr<FState> State;
};

struct CORE_API FPlatformProcess
{
	static void Sleep(float Seconds);
	static void SleepNoStats(float Seconds) { Sleep(Seconds); }
	static void Yield();

	static uint32 GetCurrentProcessId();
	static const TCHAR* ExecutablePath();
	/** Without folders. */
	static const TCHAR* ExecutableName(bool bRemoveExtension = true);
	/** The folder of the executable, with a slash at its end. */
	static const TCHAR* BaseDir();
	static const TCHAR* ComputerName();
	static const TCHAR* UserName(bool bOnlyAlphaNumeric = true);
	/** Folders of the user, with a slash at their ends. */
	static const TCHAR* UserHomeDir();
	static const TCHAR* UserTempDir();
	static const TCHAR* UserSettingsDir();

	/** Opens a web address in the user's browser. Only http, https and mailto addresses are let through. */
	static void LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error);
	static bool CanLaunchURL(const TCHAR* URL);

	/**
	 * Starts a program without a shell. Parms is split at blanks outside double quotes; a backslash before a quote keeps it.
	 * PipeWriteChild becomes the child's output and error, PipeReadChild its input.
	 */
	static FProcHandle CreateProc(const TCHAR* URL, const TCHAR* Parms, bool bLaunchDetached, bool bLaunchHidden, bool bLaunchReallyHidden,
		uint32* OutProcessID, int32 PriorityModifier, const TCHAR* OptionalWorkingDirectory, void* PipeWriteChild,
		void* PipeReadChild = nullptr);
	static bool IsProcRunning(FProcHandle& Handle);
	static void WaitForProc(FProcHandle& Handle);
	static void TerminateProc(FProcHandle& Handle, bool bKillTree = false);
	/** False while the process runs. A process that a signal ended has 128 and the signal's number. */
	static bool GetProcReturnCode(FProcHandle& Handle, int32* OutReturnCode);
	static void CloseProc(FProcHandle& Handle) { Handle.Reset(); }
	/** Runs a program to its end. OutStdOut receives at most 64 MiB. */
	static bool ExecProcess(const TCHAR* URL, const TCHAR* Params, int32* OutReturnCode, FString* OutStdOut, FString* OutStdErr,
		const TCHAR* OptionalWorkingDirectory = nullptr);

	static bool CreatePipe(void*& OutReadPipe, void*& OutWritePipe, bool bWritePipeLocal = false);
	static void ClosePipe(void* ReadPipe, void* WritePipe);
	/** What the pipe holds now, without waiting. */
	static FString ReadPipe(void* ReadPipe);
	static bool ReadPipeToArray(void* ReadPipe, TArray<uint8>& OutBytes);
	static bool WritePipe(void* WritePipe, const FString& Message, FString* OutWritten = nullptr);

	static FEvent* GetSynchEventFromPool(bool bIsManualReset = false);
	static void ReturnSynchEventToPool(FEvent* Event);
};

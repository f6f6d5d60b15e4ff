#pragma once

#include "CoreMinimal.h"

/** Exit statuses of every command. */
namespace ExitStatus
{
inline constexpr int32 Done = 0;
inline constexpr int32 Failed = 1;
inline constexpr int32 WrongUsage = 2;
}

/** Writes to the user. Escape codes are used only where the stream is a terminal. */
class FConsole
{
public:
	static void Write(FStringView Text);
	static void WriteLine(FStringView Text);
	/** "vexel: TEXT" on standard error. */
	static void WriteError(FStringView Text);

	/** Whether standard output is a terminal. */
	static bool IsTerminal();
	/** Text made faint, on a terminal. */
	static FString Dim(const FString& Text);
};

#pragma once

#include "CoreMinimal.h"

/** Exit statuses of every command. */
namespace ExitStatus
{
inline constexpr int32 Done = 0;
inline constexpr int32 Failed = 1;
inline constexpr int32 WrongUsage = 2;
}

/**
 * Writes to the user. Whatever a text holds, it cannot send a command to the terminal: the only escape codes that go out are this
 * class's own, and those only where standard output is a terminal.
 */
class FConsole
{
public:
	static void Write(FStringView Text);
	static void WriteLine(FStringView Text);
	/** Made faint, on a terminal. */
	static void WriteDim(FStringView Text);
	/** Takes the line back that stands on the terminal; nothing elsewhere. */
	static void EraseLine();
	/** A document for another program: to the letter, but on a terminal as Write(). */
	static void WriteData(FStringView Text);
	/** "vexel: TEXT" on standard error, on one line. */
	static void WriteError(FStringView Text);

	/** Whether standard output is a terminal. */
	static bool IsTerminal();
};

#pragma once

#include "CoreMinimal.h"

class FStyledLine;

/** Exit statuses of every command. */
namespace ExitStatus
{
inline constexpr int32 Done = 0;
inline constexpr int32 Failed = 1;
inline constexpr int32 WrongUsage = 2;
/** Of a tool: some items of the call failed. What the others did stays, and is saved where that was asked for. */
inline constexpr int32 DoneInPart = 3;
}

/**
 * Writes to the user. Whatever a text holds, it cannot send a command to the terminal: the only codes that go out are those of
 * WriteTerminalCodes, and those only where standard output is a terminal.
 */
class FConsole
{
public:
	static void Write(FStringView Text);
	static void WriteLine(FStringView Text);
	/** Lines in their styles; as plain text where there are no styles. */
	static void WriteLines(const TArray<FStyledLine>& Lines);
	/** Codes for the terminal, written as they are; nothing where there is none. Texts in them must have been through a styled line. */
	static void WriteTerminalCodes(FStringView Codes);
	/** A document for another program: to the letter, but on a terminal as Write(). */
	static void WriteData(FStringView Text);
	/** "vexel: TEXT" on standard error, on one line. */
	static void WriteError(FStringView Text);

	/** Whether standard output is a terminal that knows codes. */
	static bool IsTerminal();
	/** Whether texts have colours and weights there: not with NO_COLOR in the environment. */
	static bool UsesStyles();
	/** Columns and rows of the terminal; of a usual one where it does not say. */
	static FIntPoint GetSize();
	/** Whether the terminal's size has changed since the last call. The first call begins to watch. */
	static bool TakeResize();
};

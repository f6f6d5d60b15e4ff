#pragma once

#include "Program.h"
#include "TestScreen.h"

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

/** A vexel that runs on a terminal of its own, as in front of a user. */
class FTerminalProgram
{
public:
	FTerminalProgram(std::vector<std::string> Arguments, const FProgramSurroundings& Surroundings, int Columns = 80, int Rows = 24);
	~FTerminalProgram();
	FTerminalProgram(const FTerminalProgram&) = delete;
	FTerminalProgram& operator=(const FTerminalProgram&) = delete;

	/** Types. "\x03" is Ctrl-C, "\x04" Ctrl-D, "\t" the tabulator. */
	void Type(const std::string& Keys);
	void Resize(int Columns, int Rows);

	/** Waits until the terminal shows Text; false when it never does. */
	bool WaitFor(const std::string& Text);
	/** Waits until the program asks for a line, anew since the last call. */
	bool WaitForPrompt();

	/** Waits for the end of the program; its exit status, or 128 and the signal that ended it. -1 when it does not end. */
	int Finish();

	/** Everything that it wrote, codes and all. */
	const std::string& GetRaw() const { return Raw; }
	/** What the terminal shows and has shown, a line each. */
	std::string GetText() const;

private:
	/** Reads what there is, waiting a little; false at the end. */
	bool ReadMore();
	bool WaitUntil(const std::function<bool()>& Condition);
	int CountPrompts() const;

	int Terminal = -1;
	pid_t Process = -1;
	std::string Raw;
	FTestScreen Screen;
	/** Bytes at the end of Raw that are only the beginning of a character or a code, which the screen waits for. */
	size_t NumHeld = 0;
	int NumPrompts = 0;
	int TimeoutSeconds;
};

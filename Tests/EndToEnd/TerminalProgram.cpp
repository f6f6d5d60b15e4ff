#include "TerminalProgram.h"

#include "Containers/StringConv.h"
#include "StyledText.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
constexpr int ReadMilliseconds = 50;

winsize MakeSize(int Columns, int Rows)
{
	winsize Size = {};
	Size.ws_col = static_cast<unsigned short>(Columns);
	Size.ws_row = static_cast<unsigned short>(Rows);
	return Size;
}

const std::string Prompt = "\u276F";

/** How many bytes at the end of a text may be the beginning of a code or a character. */
size_t CountUnfinished(const std::string& Text)
{
	const size_t Escape = Text.rfind('\x1b');
	if (Escape != std::string::npos && Text.find_first_of("@ABCDGHJKPhlm", Escape + 2) == std::string::npos)
	{
		return Text.size() - Escape;
	}
	for (size_t Length = 1; Length <= std::min<size_t>(3, Text.size()); ++Length)
	{
		const unsigned char Byte = static_cast<unsigned char>(Text[Text.size() - Length]);
		const size_t Needed = Byte >= 0xF0 ? 4 : Byte >= 0xE0 ? 3
			: Byte >= 0xC0                                    ? 2
															  : 1;
		if (Needed > 1)
		{
			return Needed > Length ? Length : 0;
		}
	}
	return 0;
}
}

FTerminalProgram::FTerminalProgram(std::vector<std::string> Arguments, const FProgramSurroundings& Surroundings, int Columns, int Rows)
	: Screen(Columns, Rows)
	, TimeoutSeconds(Surroundings.TimeoutSeconds)
{
	UseUtf8Locale();
	Arguments.insert(Arguments.begin(), VEXEL_PROGRAM);
	std::vector<char*> Words;
	for (std::string& Word : Arguments)
	{
		Words.push_back(Word.data());
	}
	Words.push_back(nullptr);
	int Token[2] = {-1, -1};
	if (Surroundings.ThirdDescriptor && pipe(Token) == 0)
	{
		const std::string& Text = *Surroundings.ThirdDescriptor;
		Raw += write(Token[1], Text.data(), Text.size()) < 0 ? "(the pipe took no token)" : "";
		close(Token[1]);
	}
	const winsize Size = MakeSize(Columns, Rows);
	Process = forkpty(&Terminal, nullptr, nullptr, const_cast<winsize*>(&Size));
	if (Process == 0)
	{
		dup2(Token[0], 3);
		setenv("TERM", "xterm-256color", 1);
		for (const std::string& Entry : Surroundings.Environment)
		{
			putenv(const_cast<char*>(Entry.c_str()));
		}
		execv(Words[0], Words.data());
		_exit(127);
	}
	if (Token[0] >= 0)
	{
		close(Token[0]);
	}
}

FTerminalProgram::~FTerminalProgram()
{
	if (Process > 0)
	{
		kill(Process, SIGKILL);
		waitpid(Process, nullptr, 0);
	}
	if (Terminal >= 0)
	{
		close(Terminal);
	}
}

void FTerminalProgram::Type(const std::string& Keys)
{
	if (write(Terminal, Keys.data(), Keys.size()) != ssize_t(Keys.size()))
	{
		Raw += "(the terminal took no keys)";
	}
}

void FTerminalProgram::Resize(int Columns, int Rows)
{
	const winsize Size = MakeSize(Columns, Rows);
	Screen.Resize(Columns, Rows);
	ioctl(Terminal, TIOCSWINSZ, &Size);
}

bool FTerminalProgram::ReadMore()
{
	pollfd Poll{Terminal, POLLIN, 0};
	if (poll(&Poll, 1, ReadMilliseconds) <= 0)
	{
		return true;
	}
	char Buffer[65536];
	const ssize_t NumRead = read(Terminal, Buffer, sizeof(Buffer));
	if (NumRead <= 0)
	{
		return false;
	}
	Raw.append(Buffer, size_t(NumRead));
	const std::string New = Raw.substr(Raw.size() - size_t(NumRead) - NumHeld);
	NumHeld = CountUnfinished(New);
	Screen.Write(FString(UTF8_TO_TCHAR(New.substr(0, New.size() - NumHeld).c_str())));
	return true;
}

bool FTerminalProgram::WaitUntil(const std::function<bool()>& Condition)
{
	const auto Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(TimeoutSeconds);
	bool bOpen = true;
	while (!Condition())
	{
		if (!bOpen || std::chrono::steady_clock::now() > Deadline)
		{
			return false;
		}
		bOpen = ReadMore();
	}
	return true;
}

bool FTerminalProgram::WaitFor(const std::string& Text)
{
	return WaitUntil([&]
		{ return GetText().find(Text) != std::string::npos; });
}

bool FTerminalProgram::WaitForPrompt()
{
	const bool bFound = WaitUntil([&]
		{
			const std::vector<std::string> Lines = Screen.GetLines();
			return CountPrompts() > NumPrompts && Lines.back() == Prompt; });
	NumPrompts = CountPrompts();
	return bFound;
}

int FTerminalProgram::CountPrompts() const
{
	int Num = 0;
	for (const std::string& Line : Screen.GetLines())
	{
		Num += Line.compare(0, Prompt.size(), Prompt) == 0;
	}
	return Num;
}

int FTerminalProgram::Finish()
{
	const auto Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(TimeoutSeconds);
	while (ReadMore())
	{
		if (std::chrono::steady_clock::now() > Deadline)
		{
			return -1;
		}
	}
	int Status = 0;
	waitpid(Process, &Status, 0);
	Process = -1;
	return WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
}

std::string FTerminalProgram::GetText() const
{
	std::string Text;
	for (const std::string& Line : Screen.GetLines())
	{
		Text += Line + "\n";
	}
	return Text;
}

#include "TerminalProgram.h"

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

/** A text without the codes that act on a terminal. */
std::string WithoutCodes(const std::string& Raw)
{
	std::string Text;
	for (size_t At = 0; At < Raw.size(); ++At)
	{
		if (Raw[At] != '\x1b')
		{
			Text += Raw[At] == '\r' || Raw[At] == '\b' ? "" : std::string(1, Raw[At]);
			continue;
		}
		++At;
		if (At < Raw.size() && Raw[At] == '[')
		{
			while (At + 1 < Raw.size() && (Raw[At + 1] < '@' || Raw[At + 1] > '~'))
			{
				++At;
			}
			++At;
		}
	}
	return Text;
}
}

FTerminalProgram::FTerminalProgram(std::vector<std::string> Arguments, const FProgramSurroundings& Surroundings, int Columns, int Rows)
	: TimeoutSeconds(Surroundings.TimeoutSeconds)
{
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
	return true;
}

bool FTerminalProgram::WaitFor(const std::string& Text)
{
	const auto Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(TimeoutSeconds);
	bool bOpen = true;
	while (true)
	{
		const size_t Found = GetText().find(Text, NumSeen);
		if (Found != std::string::npos)
		{
			NumSeen = Found + Text.size();
			return true;
		}
		if (!bOpen || std::chrono::steady_clock::now() > Deadline)
		{
			return false;
		}
		bOpen = ReadMore();
	}
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
	return WithoutCodes(Raw);
}

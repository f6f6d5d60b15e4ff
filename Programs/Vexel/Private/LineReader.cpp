#include "LineReader.h"

#include "Console.h"
#include "Containers/StringConv.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <editline/readline.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr int32 MaxHistoryLines = 1000;

/** Ctrl-C at the prompt ends the program as it ends any other; while a request runs it is the session's. */
class FDefaultInterrupts
{
public:
	FDefaultInterrupts()
	{
		struct sigaction Default = {};
		Default.sa_handler = SIG_DFL;
		sigaction(SIGINT, &Default, &Previous);
	}
	~FDefaultInterrupts() { sigaction(SIGINT, &Previous, nullptr); }
	UE_NONCOPYABLE(FDefaultInterrupts)

private:
	struct sigaction Previous;
};
}

FLineReader::FLineReader(const FString& InHistoryPath)
	: bTerminal(isatty(STDIN_FILENO) && FConsole::IsTerminal())
	, HistoryPath(InHistoryPath)
{
	if (bTerminal)
	{
		using_history();
		stifle_history(MaxHistoryLines);
		read_history(TCHAR_TO_UTF8(*HistoryPath));
	}
}

FLineReader::~FLineReader()
{
	if (bTerminal)
	{
		IFileManager::Get().MakeDirectory(*FPaths::GetPath(HistoryPath), true);
		const mode_t Mask = umask(0077);
		write_history(TCHAR_TO_UTF8(*HistoryPath));
		umask(Mask);
	}
}

TOptional<FString> FLineReader::ReadLine(const FString& Prompt)
{
	FDefaultInterrupts Interrupts;
	if (bTerminal)
	{
		char* const Raw = readline(TCHAR_TO_UTF8(*Prompt));
		if (!Raw)
		{
			return NullOpt;
		}
		const FString Line = FString(UTF8_TO_TCHAR(Raw));
		if (!Line.TrimStartAndEnd().IsEmpty())
		{
			add_history(Raw);
		}
		free(Raw);
		return Line;
	}
	char* Raw = nullptr;
	size_t Capacity = 0;
	const ssize_t Length = getline(&Raw, &Capacity, stdin);
	TOptional<FString> Line;
	if (Length >= 0)
	{
		Line = FString(UTF8_TO_TCHAR(Raw)).TrimEnd();
	}
	free(Raw);
	return Line;
}

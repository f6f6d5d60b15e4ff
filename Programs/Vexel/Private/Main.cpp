#include "Commands.h"
#include "Console.h"
#include "Containers/StringConv.h"
#include "Logging/LogMacros.h"
#include "Misc/CommandLine.h"
#include "Misc/OutputDeviceRedirector.h"
#include "StyledText.h"

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

namespace
{
/** Keeps the tokens in this program's memory out of a file that it would leave behind when it crashes. */
void KeepMemoryOutOfCoreDumps()
{
	// One byte, because none would still hand the memory to a program that the system has for dumps. Lowering never fails.
	constexpr rlim_t NoDump = 1;
	rlimit Limit = {};
	getrlimit(RLIMIT_CORE, &Limit);
	Limit.rlim_cur = std::min(NoDump, Limit.rlim_max);
	setrlimit(RLIMIT_CORE, &Limit);
}

void WriteHelp()
{
	FConsole::WriteLine(TEXT("Vexel: an assistant for Blueprints.\n"));
	for (const FCommandRow& Command : GetCommands())
	{
		FConsole::WriteLine(FString::Printf(TEXT("  vexel %s %s\n      %s"), Command.Name, Command.Usage, Command.Help));
		for (const FOptionRow& Option : Command.Options)
		{
			const FString Words = Option.ValueName ? FString::Printf(TEXT("%s %s"), Option.Name, Option.ValueName) : FString(Option.Name);
			FConsole::WriteLine(FString::Printf(TEXT("      %-22s %s"), *Words, Option.Help));
		}
	}
	FConsole::WriteLine(TEXT("\nEvery command also takes the engine's -LogCmds=\"CATEGORY VERBOSITY, ...\" for the log in the project's Saved/Logs,\n"
							 "and -ini:FILE:[SECTION]:KEY=VALUE for a setting."));
	FConsole::WriteLine(TEXT("\nExit status: 0 done, 1 the request failed, 2 wrong usage, 3 a tool did only a part."));
}

/** Takes the engine's own switches out of the words: its modules read them from the engine's command line. */
void TakeEngineSwitches(TArray<FString>& Words)
{
	TArray<const TCHAR*> Switches = {TEXT("vexel")};
	const auto IsSwitch = [](const FString& Word)
	{ return Word.StartsWith(TEXT("-LogCmds=")) || Word.StartsWith(TEXT("-ini:")); };
	for (const FString& Word : Words)
	{
		if (IsSwitch(Word))
		{
			Switches.Add(*Word);
		}
	}
	FCommandLine::Set(*FCommandLine::BuildFromArgV(nullptr, Switches.Num(), Switches.GetData(), nullptr));
	Words.RemoveAll(IsSwitch);
}

int32 FailUsage(const FString& Reason)
{
	FConsole::WriteError(Reason + TEXT(" (see: vexel help)"));
	return ExitStatus::WrongUsage;
}
}

int main(int NumWords, char** RawWords)
{
	KeepMemoryOutOfCoreDumps();
	UseUtf8Locale();
	// A pipe that closes is an ordinary end of output, and a connection that closes is an error value.
	signal(SIGPIPE, SIG_IGN);
	// So is a file that may grow no further: the write fails and says so.
	signal(SIGXFSZ, SIG_IGN);

	TArray<FString> Words;
	for (int32 Index = 1; Index < NumWords; ++Index)
	{
		Words.Add(FString(UTF8_TO_TCHAR(RawWords[Index])));
	}
	TakeEngineSwitches(Words);
	const FString Name = Words.IsEmpty() ? FString(TEXT("help")) : Words[0];
	if (Name == TEXT("help") || Name == TEXT("--help") || Name == TEXT("-h"))
	{
		WriteHelp();
		return ExitStatus::Done;
	}
	const FCommandRow* const Command = GetCommands().FindByPredicate([&](const FCommandRow& Row)
		{ return Name.Equals(Row.Name); });
	if (!Command)
	{
		return FailUsage(FString::Printf(TEXT("unknown command '%s'"), *Name));
	}
	FArguments Arguments;
	if (const TOptional<FString> Reason = Arguments.Parse(MakeArrayView(Words).RightChop(1), Command->Options, Command->MaxPositional))
	{
		return FailUsage(FString::Printf(TEXT("%s: %s"), Command->Name, **Reason));
	}
	GLog->SetConsoleVerbosity(Arguments.Has(TEXT("--verbose")) ? ELogVerbosity::Log : ELogVerbosity::Fatal);
	return Command->Run(Arguments);
}

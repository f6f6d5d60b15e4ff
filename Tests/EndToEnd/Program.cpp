#include "Program.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{
struct FPipe
{
	FPipe() { Failed = pipe2(Ends, O_CLOEXEC) != 0; }
	~FPipe()
	{
		CloseEnd(0);
		CloseEnd(1);
	}
	void CloseEnd(int Index)
	{
		if (Ends[Index] >= 0)
		{
			close(Ends[Index]);
			Ends[Index] = -1;
		}
	}

	int Ends[2] = {-1, -1};
	bool Failed = false;
};

/** Reads what is there; closes the end at the end of the stream. */
void Drain(FPipe& Pipe, std::string& Text)
{
	char Buffer[65536];
	const ssize_t NumRead = read(Pipe.Ends[0], Buffer, sizeof(Buffer));
	if (NumRead > 0)
	{
		Text.append(Buffer, size_t(NumRead));
	}
	else
	{
		Pipe.CloseEnd(0);
	}
}
}

struct FStartedProgram::FStreams
{
	FPipe Third;
	FPipe In;
	FPipe Out;
	FPipe Errors;
};

FStartedProgram::FStartedProgram(const std::vector<std::string>& Words, const FProgramSurroundings& Surroundings)
	: Streams(std::make_unique<FStreams>())
	, Name(Words[0])
	, TimeoutSeconds(Surroundings.TimeoutSeconds)
	, Deadline(std::chrono::steady_clock::now() + std::chrono::seconds(TimeoutSeconds))
{
	signal(SIGPIPE, SIG_IGN);
	const std::string& Input = Surroundings.Input;
	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_adddup2(&Actions, Streams->In.Ends[0], STDIN_FILENO);
	posix_spawn_file_actions_adddup2(&Actions, Streams->Out.Ends[1], STDOUT_FILENO);
	posix_spawn_file_actions_adddup2(&Actions, Streams->Errors.Ends[1], STDERR_FILENO);
	if (Surroundings.ThirdDescriptor)
	{
		posix_spawn_file_actions_adddup2(&Actions, Streams->Third.Ends[0], 3);
	}
	for (const auto& [Own, Passed] : Surroundings.PassedDescriptors)
	{
		posix_spawn_file_actions_adddup2(&Actions, Own, Passed);
	}
	std::vector<char*> RawEnvironment;
	for (const std::string& Entry : Surroundings.Environment)
	{
		RawEnvironment.push_back(const_cast<char*>(Entry.c_str()));
	}
	for (char** Entry = environ; *Entry; ++Entry)
	{
		// The first of a name counts.
		RawEnvironment.push_back(*Entry);
	}
	RawEnvironment.push_back(nullptr);
	std::vector<char*> RawWords;
	for (const std::string& Word : Words)
	{
		RawWords.push_back(const_cast<char*>(Word.c_str()));
	}
	RawWords.push_back(nullptr);
	const int Failure = posix_spawn(&Process, RawWords[0], &Actions, nullptr, RawWords.data(), RawEnvironment.data());
	posix_spawn_file_actions_destroy(&Actions);
	if (Failure != 0)
	{
		Process = 0;
		Result.Errors = "the program could not be started: " + Name;
		Streams->Out.CloseEnd(0);
		Streams->Errors.CloseEnd(0);
		return;
	}
	Streams->Third.CloseEnd(0);
	const std::string& Token = Surroundings.ThirdDescriptor.value_or("");
	if (write(Streams->Third.Ends[1], Token.data(), Token.size()) < 0)
	{
		Result.Errors = "the program took nothing from descriptor 3";
	}
	Streams->Third.CloseEnd(1);
	Streams->In.CloseEnd(0);
	Streams->Out.CloseEnd(1);
	Streams->Errors.CloseEnd(1);
	if (!Input.empty() && write(Streams->In.Ends[1], Input.data(), Input.size()) < 0)
	{
		Result.Errors = "the program took no input";
	}
	Streams->In.CloseEnd(1);
}

FStartedProgram::~FStartedProgram()
{
	if (Process > 0)
	{
		kill(Process, SIGKILL);
		waitpid(Process, nullptr, 0);
	}
}

void FStartedProgram::Send(int Signal) const
{
	kill(Process, Signal);
}

bool FStartedProgram::ReadMore()
{
	FPipe& Out = Streams->Out;
	FPipe& Errors = Streams->Errors;
	if (Out.Ends[0] < 0 && Errors.Ends[0] < 0)
	{
		return false;
	}
	const auto Left = std::chrono::duration_cast<std::chrono::milliseconds>(Deadline - std::chrono::steady_clock::now()).count();
	pollfd Polls[2] = {{Out.Ends[0], POLLIN, 0}, {Errors.Ends[0], POLLIN, 0}};
	if (Left <= 0 || poll(Polls, 2, int(Left)) == 0)
	{
		bTimedOut = true;
		return false;
	}
	if (Polls[0].revents)
	{
		Drain(Out, Result.Output);
	}
	if (Polls[1].revents)
	{
		Drain(Errors, Result.Errors);
	}
	return true;
}

const std::string& FStartedProgram::WaitForOutput(const std::string& Text)
{
	while (Result.Output.find(Text) == std::string::npos && ReadMore())
	{
	}
	return Result.Output;
}

FProgramResult FStartedProgram::Finish()
{
	while (ReadMore())
	{
	}
	if (Process <= 0)
	{
		return Result;
	}
	if (bTimedOut)
	{
		kill(Process, SIGKILL);
		Result.Errors += "\nkilled: it took longer than " + std::to_string(TimeoutSeconds) + " s";
	}
	int Status = 0;
	waitpid(Process, &Status, 0);
	Process = 0;
	if (!bTimedOut)
	{
		Result.Status = WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status);
	}
	return Result;
}

FProgramResult RunProgram(const std::vector<std::string>& Words, const FProgramSurroundings& Surroundings)
{
	return FStartedProgram(Words, Surroundings).Finish();
}

FProgramResult RunVexel(std::vector<std::string> Arguments, const FProgramSurroundings& Surroundings)
{
	Arguments.insert(Arguments.begin(), VEXEL_PROGRAM);
	return RunProgram(Arguments, Surroundings);
}

FProgramResult RunVexelWithSmallFiles(const std::vector<std::string>& Arguments, const FProgramSurroundings& Surroundings)
{
	std::vector<std::string> Words = {"/bin/bash", "-c", "ulimit -f 1; exec \"$@\"", "bash", VEXEL_PROGRAM};
	Words.insert(Words.end(), Arguments.begin(), Arguments.end());
	return RunProgram(Words, Surroundings);
}

FSampleProjectCopy::FSampleProjectCopy()
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-project-XXXXXX").string();
	Path = mkdtemp(Pattern.data());
	const std::filesystem::path Source = std::filesystem::path(VEXEL_SOURCE_DIR) / "Samples/Lighthouse";
	for (const auto& Entry : std::filesystem::directory_iterator(Source))
	{
		// Saved state of whoever used the sample is none of the test's.
		if (Entry.path().filename() != "Saved")
		{
			std::filesystem::copy(Entry.path(), Path / Entry.path().filename(), std::filesystem::copy_options::recursive);
		}
	}
}

FSampleProjectCopy::~FSampleProjectCopy()
{
	std::error_code Ignored;
	std::filesystem::remove_all(Path, Ignored);
}

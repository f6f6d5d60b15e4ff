#include "HAL/PlatformProcess.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformMisc.h"
#include "Misc/FileHelper.h"
#include "Misc/ScopeLock.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

extern char** environ;

struct FProcHandle::FState
{
	FCriticalSection Lock;
	pid_t Pid = 0;
	bool bEnded = false;
	int32 ReturnCode = 0;

	/** A process that nobody asked after is still taken from the system's table when it has ended. */
	~FState() { Update(WNOHANG); }

	/** Whether the process has ended by now, or, with no options, once it has. */
	bool Update(int Options)
	{
		const FScopeLock ScopeLock(&Lock);
		int Status = 0;
		pid_t Waited = 0;
		do
		{
			Waited = bEnded ? Pid : waitpid(Pid, &Status, Options);
		} while (Waited < 0 && errno == EINTR);
		if (bEnded || Waited == 0)
		{
			return bEnded;
		}
		bEnded = true;
		ReturnCode = Waited < 0 ? -1 : (WIFEXITED(Status) ? WEXITSTATUS(Status) : 128 + WTERMSIG(Status));
		return true;
	}
};

namespace
{
constexpr int32 MaxCapturedOutput = 64 * 1024 * 1024;

/** A pipe's end is its descriptor and one, so that it is never the null pointer. */
void* ToPipe(int Descriptor)
{
	return reinterpret_cast<void*>(static_cast<intptr_t>(Descriptor) + 1);
}

int ToDescriptor(void* Pipe)
{
	return static_cast<int>(reinterpret_cast<intptr_t>(Pipe)) - 1;
}

std::string ToUtf8(const TCHAR* Text)
{
	return reinterpret_cast<const char*>(TCHAR_TO_UTF8(Text));
}

std::vector<std::string> SplitArguments(const TCHAR* Program, const TCHAR* Parms)
{
	std::vector<std::string> Result{ToUtf8(Program)};
	const std::string Text = Parms != nullptr ? ToUtf8(Parms) : std::string();
	std::string Argument;
	bool bInArgument = false;
	bool bInQuotes = false;
	for (size_t Index = 0; Index < Text.size(); ++Index)
	{
		const char Char = Text[Index];
		if (Char == '\\' && Index + 1 < Text.size() && Text[Index + 1] == '"')
		{
			Argument += Text[++Index];
			bInArgument = true;
		}
		else if (Char == '"')
		{
			bInQuotes = !bInQuotes;
			bInArgument = true;
		}
		else if (!bInQuotes && (Char == ' ' || Char == '\t' || Char == '\n'))
		{
			if (bInArgument)
			{
				Result.push_back(Argument);
			}
			Argument.clear();
			bInArgument = false;
		}
		else
		{
			Argument += Char;
			bInArgument = true;
		}
	}
	if (bInArgument)
	{
		Result.push_back(Argument);
	}
	return Result;
}

struct FSpawnRequest
{
	std::vector<std::string> Arguments;
	std::string WorkingDirectory;
	int Input = -1;
	int Output = -1;
	int ErrorOutput = -1;
	bool bDetached = false;
};

/** Answers an errno value, 0 for success. */
int Spawn(const FSpawnRequest& Request, pid_t& OutPid)
{
	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	if (!Request.WorkingDirectory.empty())
	{
		posix_spawn_file_actions_addchdir_np(&Actions, Request.WorkingDirectory.c_str());
	}
	const int Descriptors[3] = {Request.Input, Request.Output, Request.ErrorOutput};
	for (int Target = 0; Target < 3; ++Target)
	{
		if (Descriptors[Target] >= 0)
		{
			posix_spawn_file_actions_adddup2(&Actions, Descriptors[Target], Target);
		}
	}
	posix_spawnattr_t Attributes;
	posix_spawnattr_init(&Attributes);
	sigset_t NoSignals;
	sigemptyset(&NoSignals);
	posix_spawnattr_setsigmask(&Attributes, &NoSignals);
	short Flags = POSIX_SPAWN_SETSIGMASK;
	if (Request.bDetached)
	{
		Flags |= POSIX_SPAWN_SETSID;
	}
	else
	{
		// A group of its own lets a whole tree be ended.
		Flags |= POSIX_SPAWN_SETPGROUP;
		posix_spawnattr_setpgroup(&Attributes, 0);
	}
	posix_spawnattr_setflags(&Attributes, Flags);

	std::vector<char*> Argv;
	for (const std::string& Argument : Request.Arguments)
	{
		Argv.push_back(const_cast<char*>(Argument.c_str()));
	}
	Argv.push_back(nullptr);
	const int Error = posix_spawnp(&OutPid, Argv[0], &Actions, &Attributes, Argv.data(), environ);
	posix_spawnattr_destroy(&Attributes);
	posix_spawn_file_actions_destroy(&Actions);
	return Error;
}

/** Appends what is readable now; false at the end of the stream. */
bool ReadAvailable(int Descriptor, TArray<uint8>& OutBytes)
{
	uint8 Buffer[16384];
	const ssize_t Num = read(Descriptor, Buffer, sizeof(Buffer));
	if (Num > 0)
	{
		const int32 Room = MaxCapturedOutput - OutBytes.Num();
		OutBytes.Append(Buffer, static_cast<int32>(Num) < Room ? static_cast<int32>(Num) : Room);
	}
	return Num > 0 || (Num < 0 && (errno == EINTR || errno == EAGAIN));
}

FString ToText(const TArray<uint8>& Bytes)
{
	FString Text;
	FFileHelper::BufferToString(Text, Bytes.GetData(), Bytes.Num());
	return Text;
}
}

FProcHandle FPlatformProcess::CreateProc(const TCHAR* URL, const TCHAR* Parms, bool bLaunchDetached, bool bLaunchHidden,
	bool bLaunchReallyHidden, uint32* OutProcessID, int32 PriorityModifier, const TCHAR* OptionalWorkingDirectory, void* PipeWriteChild,
	void* PipeReadChild)
{
	FSpawnRequest Request;
	Request.Arguments = SplitArguments(URL, Parms);
	Request.WorkingDirectory = OptionalWorkingDirectory != nullptr ? ToUtf8(OptionalWorkingDirectory) : std::string();
	Request.Input = ToDescriptor(PipeReadChild);
	Request.Output = ToDescriptor(PipeWriteChild);
	Request.ErrorOutput = Request.Output;
	Request.bDetached = bLaunchDetached;

	FProcHandle Handle;
	pid_t Pid = 0;
	if (Spawn(Request, Pid) == 0)
	{
		Handle.State = MakeShared<FProcHandle::FState>();
		Handle.State->Pid = Pid;
		if (OutProcessID != nullptr)
		{
			*OutProcessID = static_cast<uint32>(Pid);
		}
	}
	return Handle;
}

bool FPlatformProcess::IsProcRunning(FProcHandle& Handle)
{
	return Handle.IsValid() && !Handle.State->Update(WNOHANG);
}

void FPlatformProcess::WaitForProc(FProcHandle& Handle)
{
	if (Handle.IsValid())
	{
		Handle.State->Update(0);
	}
}

void FPlatformProcess::TerminateProc(FProcHandle& Handle, bool bKillTree)
{
	if (IsProcRunning(Handle))
	{
		kill(bKillTree ? -Handle.State->Pid : Handle.State->Pid, SIGTERM);
	}
}

bool FPlatformProcess::GetProcReturnCode(FProcHandle& Handle, int32* OutReturnCode)
{
	if (!Handle.IsValid() || !Handle.State->Update(WNOHANG))
	{
		return false;
	}
	if (OutReturnCode != nullptr)
	{
		*OutReturnCode = Handle.State->ReturnCode;
	}
	return true;
}

bool FPlatformProcess::ExecProcess(const TCHAR* URL, const TCHAR* Params, int32* OutReturnCode, FString* OutStdOut, FString* OutStdErr,
	const TCHAR* OptionalWorkingDirectory)
{
	int Out[2] = {-1, -1};
	int Err[2] = {-1, -1};
	if (pipe2(Out, O_CLOEXEC) != 0)
	{
		return false;
	}
	if (pipe2(Err, O_CLOEXEC) != 0)
	{
		close(Out[0]);
		close(Out[1]);
		return false;
	}
	FSpawnRequest Request;
	Request.Arguments = SplitArguments(URL, Params);
	Request.WorkingDirectory = OptionalWorkingDirectory != nullptr ? ToUtf8(OptionalWorkingDirectory) : std::string();
	Request.Output = Out[1];
	Request.ErrorOutput = Err[1];
	FProcHandle::FState State;
	const bool bStarted = Spawn(Request, State.Pid) == 0;
	State.bEnded = !bStarted;
	close(Out[1]);
	close(Err[1]);

	TArray<uint8> Bytes[2];
	pollfd Polls[2] = {{Out[0], POLLIN, 0}, {Err[0], POLLIN, 0}};
	while (Polls[0].fd >= 0 || Polls[1].fd >= 0)
	{
		if (poll(Polls, 2, -1) < 0 && errno != EINTR)
		{
			break;
		}
		for (int Index = 0; Index < 2; ++Index)
		{
			if (Polls[Index].fd >= 0 && Polls[Index].revents != 0 && !ReadAvailable(Polls[Index].fd, Bytes[Index]))
			{
				Polls[Index].fd = -1;
			}
		}
	}
	close(Out[0]);
	close(Err[0]);
	if (bStarted)
	{
		State.Update(0);
	}
	if (OutReturnCode != nullptr)
	{
		*OutReturnCode = bStarted ? State.ReturnCode : -1;
	}
	if (OutStdOut != nullptr)
	{
		*OutStdOut = ToText(Bytes[0]);
	}
	if (OutStdErr != nullptr)
	{
		*OutStdErr = ToText(Bytes[1]);
	}
	return bStarted;
}

bool FPlatformProcess::CanLaunchURL(const TCHAR* URL)
{
	const FString Address(URL != nullptr ? URL : TEXT(""));
	for (const TCHAR* Scheme : {TEXT("http://"), TEXT("https://"), TEXT("mailto:")})
	{
		if (Address.StartsWith(Scheme))
		{
			return true;
		}
	}
	return false;
}

void FPlatformProcess::LaunchURL(const TCHAR* URL, const TCHAR* Parms, FString* Error)
{
	if (!CanLaunchURL(URL))
	{
		if (Error != nullptr)
		{
			*Error = FString::Printf(TEXT("'%s' is not a web address"), URL != nullptr ? URL : TEXT(""));
		}
		return;
	}
	FSpawnRequest Request;
	Request.Arguments = {"xdg-open", ToUtf8(URL)};
	Request.bDetached = true;
	pid_t Pid = 0;
	const int SpawnError = Spawn(Request, Pid);
	if (SpawnError == 0)
	{
		// xdg-open hands the address over and ends; somebody has to take it from the system's process table.
		std::thread([Pid]
			{ waitpid(Pid, nullptr, 0); })
			.detach();
	}
	if (Error != nullptr)
	{
		TCHAR Message[256];
		*Error = SpawnError == 0
			? FString()
			: FString::Printf(TEXT("Could not open the browser: %s"), FPlatformMisc::GetSystemErrorMessage(Message, 256, SpawnError));
	}
}

bool FPlatformProcess::CreatePipe(void*& OutReadPipe, void*& OutWritePipe, bool bWritePipeLocal)
{
	int Ends[2] = {-1, -1};
	if (pipe2(Ends, O_CLOEXEC) != 0)
	{
		return false;
	}
	if (!bWritePipeLocal)
	{
		fcntl(Ends[0], F_SETFL, O_NONBLOCK);
	}
	OutReadPipe = ToPipe(Ends[0]);
	OutWritePipe = ToPipe(Ends[1]);
	return true;
}

void FPlatformProcess::ClosePipe(void* ReadPipe, void* WritePipe)
{
	for (void* Pipe : {ReadPipe, WritePipe})
	{
		if (Pipe != nullptr)
		{
			close(ToDescriptor(Pipe));
		}
	}
}

bool FPlatformProcess::ReadPipeToArray(void* ReadPipe, TArray<uint8>& OutBytes)
{
	OutBytes.Reset();
	const int Descriptor = ToDescriptor(ReadPipe);
	pollfd Poll{Descriptor, POLLIN, 0};
	while (OutBytes.Num() < MaxCapturedOutput && poll(&Poll, 1, 0) > 0 && (Poll.revents & POLLIN) != 0)
	{
		if (!ReadAvailable(Descriptor, OutBytes))
		{
			break;
		}
	}
	return OutBytes.Num() > 0;
}

FString FPlatformProcess::ReadPipe(void* ReadPipe)
{
	TArray<uint8> Bytes;
	ReadPipeToArray(ReadPipe, Bytes);
	return ToText(Bytes);
}

bool FPlatformProcess::WritePipe(void* WritePipe, const FString& Message, FString* OutWritten)
{
	// The engine ends what it writes with a line break, so that the reader's line is complete.
	const std::string Bytes = ToUtf8(*Message) + "\n";
	size_t Written = 0;
	while (Written < Bytes.size())
	{
		const ssize_t Num = write(ToDescriptor(WritePipe), Bytes.data() + Written, Bytes.size() - Written);
		if (Num < 0 && errno == EINTR)
		{
			continue;
		}
		if (Num <= 0)
		{
			break;
		}
		Written += static_cast<size_t>(Num);
	}
	if (OutWritten != nullptr)
	{
		*OutWritten = UTF8_TO_TCHAR(Bytes.substr(0, Written).c_str());
	}
	return Written == Bytes.size();
}

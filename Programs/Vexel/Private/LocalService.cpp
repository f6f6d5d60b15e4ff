#include "LocalService.h"

#include "Containers/StringConv.h"
#include "VexelCrypto.h"
#include "VexelSecretFields.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{
constexpr int32 StartTimeoutMilliseconds = 20'000;
constexpr int32 MaxGreetingBytes = 16 * 1024;

/** Reads one line, or as much as came before the time was over or the other side closed. */
TArray<uint8> ReadLine(int32 Descriptor)
{
	TArray<uint8> Line;
	// At once: a token is in it, which growth would leave behind.
	Line.Reserve(MaxGreetingBytes);
	pollfd Poll{Descriptor, POLLIN, 0};
	while (Line.Num() < MaxGreetingBytes)
	{
		const int32 Ready = poll(&Poll, 1, StartTimeoutMilliseconds);
		if (Ready < 0 && errno == EINTR)
		{
			continue;
		}
		uint8 Character = 0;
		if (Ready <= 0 || read(Descriptor, &Character, 1) != 1 || Character == '\n')
		{
			break;
		}
		Line.Add(Character);
	}
	return Line;
}
}

FLocalService::~FLocalService()
{
	FVexelCrypto::Wipe(RefreshToken);
	if (InputDescriptor >= 0)
	{
		close(InputDescriptor);
	}
	if (ProcessId > 0)
	{
		kill(ProcessId, SIGTERM);
		waitpid(ProcessId, nullptr, 0);
	}
}

TOptional<FString> FLocalService::Start(const FString& ProgramPath)
{
	int32 Input[2];
	int32 Output[2];
	if (pipe2(Input, O_CLOEXEC) != 0 || pipe2(Output, O_CLOEXEC) != 0)
	{
		return FString::Printf(TEXT("the local service cannot be started: %s"), ANSI_TO_TCHAR(strerror(errno)));
	}
	posix_spawn_file_actions_t Actions;
	posix_spawn_file_actions_init(&Actions);
	posix_spawn_file_actions_adddup2(&Actions, Input[0], STDIN_FILENO);
	posix_spawn_file_actions_adddup2(&Actions, Output[1], STDOUT_FILENO);
	// In a group of its own, so that Ctrl-C in the terminal cancels the request and leaves the service running.
	posix_spawnattr_t Attributes;
	posix_spawnattr_init(&Attributes);
	posix_spawnattr_setflags(&Attributes, POSIX_SPAWN_SETPGROUP);

	const FTCHARToUTF8 Path(*ProgramPath);
	const char* const Words[] = {Path.Get(), "--port", "0", "--exit-with-parent", nullptr};
	const int32 Failure = posix_spawn(&ProcessId, Path.Get(), &Actions, &Attributes, const_cast<char* const*>(Words), environ);
	posix_spawn_file_actions_destroy(&Actions);
	posix_spawnattr_destroy(&Attributes);
	close(Input[0]);
	close(Output[1]);
	InputDescriptor = Input[1];
	if (Failure != 0)
	{
		ProcessId = 0;
		close(Output[0]);
		return FString::Printf(TEXT("the local service '%s' cannot be started: %s"), *ProgramPath, ANSI_TO_TCHAR(strerror(Failure)));
	}

	TArray<uint8> Greeting = ReadLine(Output[0]);
	close(Output[0]);
	const TOptional<FVexelSecretFields> Fields = FVexelSecretFields::FromJson(Greeting);
	FVexelCrypto::Wipe(Greeting);
	if (!Fields || !Fields->TryGetString(TEXT("url"), Url) || !Fields->TryGetString(TEXT("refresh_token"), RefreshToken))
	{
		return FString(TEXT("the local service started but did not say where it listens"));
	}
	return NullOpt;
}

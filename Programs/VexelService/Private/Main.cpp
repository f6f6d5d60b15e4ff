#include "Server/AssistantServer.h"
#include "Support/JsonText.h"

#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>

using namespace VexelService;

namespace
{

constexpr int ExitFailed = 1;
constexpr int ExitUsage = 2;

constexpr const char* Usage =
	"usage: vexel-service [--port N] [--data DIR] [--config FILE] [--verbose] [--exit-with-parent]\n"
	"\n"
	"  --port N            listens on this port of 127.0.0.1; 0, the default, takes a free one\n"
	"  --data DIR          keeps keys and tokens in DIR; without it they last as long as the program\n"
	"  --config FILE       reads settings from a JSON file\n"
	"  --verbose           logs requests on standard error\n"
	"  --exit-with-parent  ends when standard input is closed\n";

struct FCommandLine
{
	FServerOptions Server;
	std::string ConfigFile;
	bool bExitWithParent = false;
};

bool ReadPort(std::string_view Text, int& Port)
{
	const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Port);
	return Error == std::errc() && End == Text.data() + Text.size() && Port >= 0 && Port <= 65535;
}

bool ReadCommandLine(int ArgumentCount, char** Arguments, FCommandLine& CommandLine)
{
	for (int Index = 1; Index < ArgumentCount; ++Index)
	{
		const std::string_view Option = Arguments[Index];
		if (Option == "--verbose")
		{
			CommandLine.Server.bVerbose = true;
			continue;
		}
		if (Option == "--exit-with-parent")
		{
			CommandLine.bExitWithParent = true;
			continue;
		}
		const bool bHasValue = Index + 1 < ArgumentCount;
		if (Option == "--port" && bHasValue && ReadPort(Arguments[Index + 1], CommandLine.Server.Port))
		{
			++Index;
		}
		else if (Option == "--data" && bHasValue && *Arguments[Index + 1])
		{
			CommandLine.Server.DataFolder = Arguments[++Index];
		}
		else if (Option == "--config" && bHasValue && *Arguments[Index + 1])
		{
			CommandLine.ConfigFile = Arguments[++Index];
		}
		else
		{
			return false;
		}
	}
	return true;
}

// Blocked before any thread starts, so that every thread inherits it and the signals wait for the descriptor.
int OpenStopSignals()
{
	sigset_t Signals;
	sigemptyset(&Signals);
	sigaddset(&Signals, SIGINT);
	sigaddset(&Signals, SIGTERM);
	return pthread_sigmask(SIG_BLOCK, &Signals, nullptr) == 0 ? signalfd(-1, &Signals, SFD_CLOEXEC) : -1;
}

bool HasEnded(int Input)
{
	char Ignored[256];
	const ssize_t Count = read(Input, Ignored, sizeof(Ignored));
	return Count == 0 || (Count < 0 && errno != EINTR && errno != EAGAIN);
}

void WaitForStop(int StopSignals, bool bExitWithParent)
{
	pollfd Watched[] = {
		{.fd = StopSignals, .events = POLLIN, .revents = 0}, {.fd = bExitWithParent ? STDIN_FILENO : -1, .events = POLLIN, .revents = 0}};
	while (true)
	{
		if (poll(Watched, std::size(Watched), -1) < 0 && errno != EINTR)
		{
			return;
		}
		if (Watched[0].revents || (Watched[1].revents && HasEnded(STDIN_FILENO)))
		{
			return;
		}
	}
}

// The signing key and the codes in memory must not end up in a file after a crash. A limit of one byte also keeps them from a
// program that the system hands dumps to, which one of zero does not. A limit may always be lowered.
void ForbidCoreDumps()
{
	rlimit Core = {};
	getrlimit(RLIMIT_CORE, &Core);
	Core.rlim_cur = Core.rlim_max == 0 ? 0 : 1;
	setrlimit(RLIMIT_CORE, &Core);
}

int Fail(const std::string& Reason)
{
	std::fprintf(stderr, "vexel-service: %s\n", Reason.c_str());
	return ExitFailed;
}

}

int main(int ArgumentCount, char** Arguments)
{
	ForbidCoreDumps();
	FCommandLine CommandLine;
	if (ArgumentCount == 2 && std::strcmp(Arguments[1], "--help") == 0)
	{
		std::fputs(Usage, stdout);
		return 0;
	}
	if (!ReadCommandLine(ArgumentCount, Arguments, CommandLine))
	{
		std::fputs(Usage, stderr);
		return ExitUsage;
	}
	if (!CommandLine.ConfigFile.empty())
	{
		const TOrRefusal<FServiceConfig> Config = LoadServiceConfig(CommandLine.ConfigFile);
		if (!Config)
		{
			return Fail(Config.Error().Detail);
		}
		CommandLine.Server.Config = *Config;
	}

	const int StopSignals = OpenStopSignals();
	if (StopSignals < 0)
	{
		return Fail("cannot listen for signals");
	}
	TOrRefusal<std::unique_ptr<FAssistantServer>> Server = FAssistantServer::Start(CommandLine.Server);
	if (!Server)
	{
		return Fail(Server.Error().Detail);
	}
	const TOrRefusal<std::string> RefreshToken = (*Server)->MintRefreshToken();
	if (!RefreshToken)
	{
		return Fail(RefreshToken.Error().Detail);
	}
	const FOrderedJson Ready = {{"port", (*Server)->GetPort()}, {"url", (*Server)->GetUrl()}, {"refresh_token", *RefreshToken}};
	std::printf("%s\n", JsonLine(Ready).c_str());
	std::fflush(stdout);

	WaitForStop(StopSignals, CommandLine.bExitWithParent);
	return 0;
}

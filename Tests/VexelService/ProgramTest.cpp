#include "Support/JsonText.h"

#include <httplib.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace VexelService
{

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

constexpr std::chrono::seconds Patience(10);

/** The built program with pipes at its three streams. */
class FProgram
{
public:
	explicit FProgram(std::vector<std::string> Options)
	{
		std::array<int[2], 3> Pipes;
		for (int(&Pipe)[2] : Pipes)
		{
			// Without this the second program would hold the first one's standard input open.
			EXPECT_EQ(pipe2(Pipe, O_CLOEXEC), 0);
		}
		const std::string Path = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "vexel-service";
		Options.insert(Options.begin(), Path);
		std::vector<char*> Arguments;
		for (std::string& Option : Options)
		{
			Arguments.push_back(Option.data());
		}
		Arguments.push_back(nullptr);
		Process = fork();
		if (Process == 0)
		{
			dup2(Pipes[0][0], STDIN_FILENO);
			dup2(Pipes[1][1], STDOUT_FILENO);
			dup2(Pipes[2][1], STDERR_FILENO);
			execv(Path.c_str(), Arguments.data());
			_exit(127);
		}
		close(Pipes[0][0]);
		close(Pipes[1][1]);
		close(Pipes[2][1]);
		Input = Pipes[0][1];
		Output = Pipes[1][0];
		Errors = Pipes[2][0];
	}

	~FProgram()
	{
		if (!bReaped)
		{
			kill(Process, SIGKILL);
			waitpid(Process, nullptr, 0);
		}
		CloseInput();
		close(Output);
		close(Errors);
	}

	/** The first line of standard output. */
	FJson ReadyLine() const
	{
		return FJson::parse(Read(Output, '\n'), nullptr, false);
	}

	std::string AllErrors() const { return Read(Errors, '\0'); }

	void CloseInput()
	{
		if (Input >= 0)
		{
			close(Input);
			Input = -1;
		}
	}

	void Send(int Signal) const { kill(Process, Signal); }

	/** Waits for the end. The exit status, or -1 when the program did not exit by itself in time. */
	int WaitForExit()
	{
		const auto Deadline = std::chrono::steady_clock::now() + Patience;
		int Status = 0;
		while (waitpid(Process, &Status, WNOHANG) == 0)
		{
			if (std::chrono::steady_clock::now() > Deadline)
			{
				return -1;
			}
			std::this_thread::sleep_for(std::chrono::milliseconds(5));
		}
		bReaped = true;
		return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
	}

private:
	// Up to the end mark, the end of the stream, or the end of patience.
	static std::string Read(int Stream, char EndMark)
	{
		std::string Text;
		pollfd Watched{.fd = Stream, .events = POLLIN, .revents = 0};
		while (poll(&Watched, 1, static_cast<int>(std::chrono::milliseconds(Patience).count())) > 0)
		{
			char Character = 0;
			if (read(Stream, &Character, 1) != 1 || Character == EndMark)
			{
				break;
			}
			Text += Character;
		}
		return Text;
	}

	pid_t Process = -1;
	int Input = -1;
	int Output = -1;
	int Errors = -1;
	bool bReaped = false;
};

TEST(Program, TheReadyLineTellsWhereItServes)
{
	FProgram Program({});
	const FJson Ready = Program.ReadyLine();
	ASSERT_TRUE(Ready.is_object());
	const int Port = Ready["port"];
	EXPECT_EQ(Ready["url"], "http://127.0.0.1:" + std::to_string(Port));
	EXPECT_FALSE(Ready["refresh_token"].get<std::string>().empty());
	const httplib::Result Result = httplib::Client("127.0.0.1", Port).Get("/api/auth/plugin-client-id");
	ASSERT_TRUE(Result);
	EXPECT_EQ(Result->status, 200);
}

TEST(Program, ItEndsInOrderOnTheStopSignals)
{
	for (const int Signal : {SIGTERM, SIGINT})
	{
		FProgram Program({});
		ASSERT_TRUE(Program.ReadyLine().is_object());
		Program.Send(Signal);
		EXPECT_EQ(Program.WaitForExit(), 0) << "signal " << Signal;
	}
}

TEST(Program, WithExitWithParentItEndsWhenStandardInputCloses)
{
	FProgram Program({"--exit-with-parent"});
	ASSERT_TRUE(Program.ReadyLine().is_object());
	Program.CloseInput();
	EXPECT_EQ(Program.WaitForExit(), 0);
}

TEST(Program, WithoutExitWithParentAClosedInputMeansNothing)
{
	FProgram Program({});
	const FJson Ready = Program.ReadyLine();
	ASSERT_TRUE(Ready.is_object());
	Program.CloseInput();
	std::this_thread::sleep_for(std::chrono::milliseconds(100));
	EXPECT_TRUE(httplib::Client("127.0.0.1", Ready["port"].get<int>()).Get("/api/auth/plugin-client-id"));
}

TEST(Program, BadOptionsAreUsageErrors)
{
	for (const std::vector<std::string>& Options :
		{std::vector<std::string>{"--no-such-option"}, {"--port"}, {"--port", "65536"}, {"--port", "x"}, {"--data", ""}})
	{
		FProgram Program(Options);
		EXPECT_EQ(Program.WaitForExit(), 2) << Options.front();
		EXPECT_THAT(Program.AllErrors(), StartsWith("usage: vexel-service"));
	}
}

TEST(Program, APortInUseIsSaidInOneLine)
{
	FProgram First({});
	const FJson Ready = First.ReadyLine();
	ASSERT_TRUE(Ready.is_object());
	const std::string Port = std::to_string(Ready["port"].get<int>());
	FProgram Second({"--port", Port});
	EXPECT_EQ(Second.WaitForExit(), 1);
	const std::string Errors = Second.AllErrors();
	EXPECT_THAT(Errors, StartsWith("vexel-service: "));
	EXPECT_THAT(Errors, HasSubstr(Port));
	EXPECT_EQ(std::count(Errors.begin(), Errors.end(), '\n'), 1) << Errors;
}

}

}

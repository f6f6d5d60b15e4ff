#pragma once

#include "CoreMinimal.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

/** Whether a program of one of the packages that tests use is there. */
inline bool IsInstalled(const char* Program)
{
	return std::filesystem::exists(std::filesystem::path("/usr/bin") / Program) ||
		std::filesystem::exists(std::filesystem::path("/usr/sbin") / Program);
}

/** A program that runs beside the test, and the first line that it writes. Ended with the object. */
class FCompanion
{
public:
	/** Waits for the first line where bWaitForLine. */
	FCompanion(std::vector<std::string> Words, const std::string& Input, bool bWaitForLine = true)
	{
		int In[2] = {};
		int Out[2] = {};
		if (pipe2(In, O_CLOEXEC) != 0 || pipe2(Out, O_CLOEXEC) != 0)
		{
			return;
		}
		posix_spawn_file_actions_t Actions;
		posix_spawn_file_actions_init(&Actions);
		posix_spawn_file_actions_adddup2(&Actions, In[0], STDIN_FILENO);
		posix_spawn_file_actions_adddup2(&Actions, Out[1], STDOUT_FILENO);
		posix_spawn_file_actions_addopen(&Actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
		std::vector<char*> RawWords;
		for (std::string& Word : Words)
		{
			RawWords.push_back(Word.data());
		}
		RawWords.push_back(nullptr);
		posix_spawnp(&Process, RawWords[0], &Actions, nullptr, RawWords.data(), environ);
		posix_spawn_file_actions_destroy(&Actions);
		close(In[0]);
		close(Out[1]);
		const ssize_t NumWritten = write(In[1], Input.data(), Input.size());
		EXPECT_EQ(NumWritten, ssize_t(Input.size()));
		close(In[1]);
		for (char Character = 0; bWaitForLine && read(Out[0], &Character, 1) == 1 && Character != '\n';)
		{
			FirstLine += Character;
		}
		close(Out[0]);
	}
	~FCompanion()
	{
		if (Process > 0)
		{
			kill(Process, SIGTERM);
			waitpid(Process, nullptr, 0);
		}
	}

	std::string FirstLine;

private:
	pid_t Process = 0;
};

#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/** What a program left behind. */
struct FProgramResult
{
	/** Exit status; 128 and the signal for a program that a signal ended. */
	int Status = -1;
	std::string Output;
	std::string Errors;
};

/** What a program is given beside its words. */
struct FProgramSurroundings
{
	/** Its standard input. */
	std::string Input = {};
	/** "NAME=value", on top of the test's own environment. */
	std::vector<std::string> Environment = {};
	/** What it can read from file descriptor 3; nothing is open there without it. */
	std::optional<std::string> ThirdDescriptor = {};
	/** Descriptors of this process that it has, as the number beside each; nothing else is passed on. */
	std::vector<std::pair<int, int>> PassedDescriptors = {};
	int TimeoutSeconds = 60;
};

/** A program while it runs. One that still runs when this is destroyed is killed. */
class FStartedProgram
{
public:
	explicit FStartedProgram(const std::vector<std::string>& Words, const FProgramSurroundings& Surroundings = {});
	~FStartedProgram();

	FStartedProgram(const FStartedProgram&) = delete;
	FStartedProgram& operator=(const FStartedProgram&) = delete;

	/** Reads until standard output holds the text, and answers all that it holds by then; the time limit is the surroundings'. */
	const std::string& WaitForOutput(const std::string& Text);
	int GetProcessId() const { return Process; }
	void Send(int Signal) const;
	/** Waits for the end. */
	FProgramResult Finish();

private:
	struct FStreams;

	/** Reads what comes next; false at the end of both streams, or when the time is over. */
	bool ReadMore();

	std::unique_ptr<FStreams> Streams;
	FProgramResult Result;
	std::string Name;
	int Process = 0;
	int TimeoutSeconds;
	std::chrono::steady_clock::time_point Deadline;
	bool bTimedOut = false;
};

/** Runs a program to its end. A program that takes longer than the limit is killed: status -1. */
FProgramResult RunProgram(const std::vector<std::string>& Words, const FProgramSurroundings& Surroundings = {});

/** Runs the vexel that this build made. */
FProgramResult RunVexel(std::vector<std::string> Arguments, const FProgramSurroundings& Surroundings = {});
inline FProgramResult RunVexel(std::vector<std::string> Arguments, const std::string& Input)
{
	return RunVexel(std::move(Arguments), FProgramSurroundings{.Input = Input});
}

/** The same where no file can grow beyond a kilobyte: writing more fails as it does on a full disk. */
FProgramResult RunVexelWithSmallFiles(const std::vector<std::string>& Arguments, const FProgramSurroundings& Surroundings = {});

/** A copy of the sample project in a temporary directory, so that tests may save into it. */
class FSampleProjectCopy
{
public:
	FSampleProjectCopy();
	~FSampleProjectCopy();

	FSampleProjectCopy(const FSampleProjectCopy&) = delete;
	FSampleProjectCopy& operator=(const FSampleProjectCopy&) = delete;

	const std::filesystem::path& GetPath() const { return Path; }

private:
	std::filesystem::path Path;
};

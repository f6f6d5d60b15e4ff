#pragma once

#include <filesystem>
#include <optional>
#include <string>
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
	int TimeoutSeconds = 60;
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

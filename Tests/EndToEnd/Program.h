#pragma once

#include <filesystem>
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

/** Runs a program to its end, with a text as its standard input. A program that takes longer than the limit is killed: status -1. */
FProgramResult RunProgram(const std::vector<std::string>& Words, const std::string& Input = "", int TimeoutSeconds = 60);

/** Runs the vexel that this build made. */
FProgramResult RunVexel(std::vector<std::string> Arguments, const std::string& Input = "", int TimeoutSeconds = 60);

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

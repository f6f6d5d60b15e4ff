#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>

/** A pipe that is full: a program that has it as its standard output stops at the first thing that it writes. */
class FHeldOutput
{
public:
	FHeldOutput();
	~FHeldOutput();

	FHeldOutput(const FHeldOutput&) = delete;
	FHeldOutput& operator=(const FHeldOutput&) = delete;

	/** The program's descriptor, for FProgramSurroundings::PassedDescriptors. */
	std::pair<int, int> GetPassed() const;
	/** Waits until the program's main thread stands there; false after half a minute, or where this may not be seen. */
	static bool WaitUntilHeld(int Process);

private:
	int Ends[2] = {-1, -1};
};

namespace ProcessMemory
{
/** Whether this process may look into the memory of that one. */
bool IsReadable(int Process);

/** The names of the texts that are anywhere in what the process has in memory and could have written, as UTF-8 or as UTF-16. */
std::set<std::string> Find(int Process, const std::map<std::string, std::string>& Texts);
}

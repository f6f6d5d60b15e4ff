#include "ProcessMemory.h"

#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace
{
constexpr std::chrono::seconds Patience(30);
constexpr size_t ChunkBytes = 1 << 20;

std::string GetPath(int Process, const char* File)
{
	return "/proc/" + std::to_string(Process) + "/" + File;
}

/** A descriptor of a process's memory; negative where that may not be read. */
int OpenMemory(int Process)
{
	return open(GetPath(Process, "mem").c_str(), O_RDONLY | O_CLOEXEC);
}

std::string ToUtf16(const std::string& Ascii)
{
	std::string Wide;
	for (const char Character : Ascii)
	{
		Wide += Character;
		Wide += '\0';
	}
	return Wide;
}

struct FNeedle
{
	std::string Name;
	std::string Bytes;
};
}

FHeldOutput::FHeldOutput()
{
	if (pipe2(Ends, O_CLOEXEC | O_NONBLOCK) == 0)
	{
		const std::string Filling(4096, '.');
		while (write(Ends[1], Filling.data(), Filling.size()) > 0)
		{
		}
		// The program shares the flag, and is to wait.
		fcntl(Ends[1], F_SETFL, fcntl(Ends[1], F_GETFL) & ~O_NONBLOCK);
	}
}

FHeldOutput::~FHeldOutput()
{
	close(Ends[0]);
	close(Ends[1]);
}

std::pair<int, int> FHeldOutput::GetPassed() const
{
	return {Ends[1], STDOUT_FILENO};
}

bool FHeldOutput::WaitUntilHeld(int Process)
{
	const auto Deadline = std::chrono::steady_clock::now() + Patience;
	while (std::chrono::steady_clock::now() < Deadline)
	{
		// The number of the call that the thread waits in, then its arguments.
		std::ifstream Stream(GetPath(Process, "syscall"));
		long Call = -1;
		std::string Descriptor;
		Stream >> Call >> Descriptor;
		if (Stream && Call == SYS_write && Descriptor == "0x1")
		{
			return true;
		}
		std::this_thread::sleep_for(std::chrono::milliseconds(5));
	}
	return false;
}

bool ProcessMemory::IsReadable(int Process)
{
	const int Memory = OpenMemory(Process);
	const bool bReadable = Memory >= 0 && std::ifstream(GetPath(Process, "syscall")).get() != EOF;
	close(Memory);
	return bReadable;
}

std::set<std::string> ProcessMemory::Find(int Process, const std::map<std::string, std::string>& Texts)
{
	std::vector<FNeedle> Needles;
	size_t LongestBytes = 1;
	for (const auto& [Name, Text] : Texts)
	{
		Needles.push_back({Name, Text});
		Needles.push_back({Name, ToUtf16(Text)});
		LongestBytes = std::max(LongestBytes, 2 * Text.size());
	}
	std::set<std::string> Found;
	const int Memory = OpenMemory(Process);
	std::ifstream Mappings(GetPath(Process, "maps"));
	std::vector<char> Chunk(ChunkBytes + LongestBytes);
	for (std::string Line; std::getline(Mappings, Line);)
	{
		std::istringstream Fields(Line);
		uint64_t Begin = 0;
		uint64_t End = 0;
		char Dash = 0;
		std::string Rights;
		Fields >> std::hex >> Begin >> Dash >> End >> Rights;
		if (!Rights.starts_with("rw"))
		{
			continue;
		}
		// The chunks overlap, so that a text on the border of two is seen.
		for (uint64_t At = Begin; At < End; At += ChunkBytes)
		{
			const ssize_t Num = pread(Memory, Chunk.data(), std::min<uint64_t>(Chunk.size(), End - At), off_t(At));
			for (const FNeedle& Needle : Needles)
			{
				if (Num > 0 && memmem(Chunk.data(), size_t(Num), Needle.Bytes.data(), Needle.Bytes.size()))
				{
					Found.insert(Needle.Name);
				}
			}
		}
	}
	close(Memory);
	return Found;
}

#include "Http/LoopbackPeer.h"

#include <arpa/inet.h>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <netinet/in.h>
#include <sstream>
#include <unistd.h>

namespace
{
constexpr const char* Established = "01";

using FWords = std::array<uint32_t, 4>;

/** The address as one of IPv6; false when it is none. */
bool ReadAddress(const std::string& Text, FWords& OutWords)
{
	OutWords = {0, 0, htonl(0xffff), 0};
	return inet_pton(AF_INET, Text.c_str(), &OutWords[3]) == 1 || inet_pton(AF_INET6, Text.c_str(), OutWords.data()) == 1;
}

/** An end as the kernel's table writes it: the last words of its address in the machine's own order, and its port. */
std::string ToTableText(const FWords& Words, size_t NumWords, int Port)
{
	std::string Text;
	char Buffer[16];
	for (size_t Index = Words.size() - NumWords; Index < Words.size(); ++Index)
	{
		std::snprintf(Buffer, sizeof(Buffer), "%08X", unsigned(Words[Index]));
		Text += Buffer;
	}
	std::snprintf(Buffer, sizeof(Buffer), ":%04X", unsigned(Port));
	return Text + Buffer;
}

bool IsListedForThisUser(const char* Table, const std::string& Local, const std::string& Remote)
{
	std::ifstream Rows(Table);
	for (std::string Row; std::getline(Rows, Row);)
	{
		std::istringstream Fields(Row);
		std::string Slot, RowLocal, RowRemote, State, Queues, Timer, Retransmits;
		uid_t User = 0;
		Fields >> Slot >> RowLocal >> RowRemote >> State >> Queues >> Timer >> Retransmits >> User;
		if (Fields && RowLocal == Local && RowRemote == Remote)
		{
			// A socket that its program has let go of is listed as root's, whoever's it was; it is in another state then.
			return State == Established && (User == geteuid() || User == 0);
		}
	}
	return false;
}
}

bool LoopbackPeer::IsOfThisUser(const FEnd& Other, const FEnd& Own)
{
	FWords OtherWords;
	FWords OwnWords;
	if (!ReadAddress(Other.Address, OtherWords) || !ReadAddress(Own.Address, OwnWords))
	{
		return false;
	}
	// A program may speak IPv4 through a socket of IPv6, which stands in the other table.
	constexpr std::pair<const char*, size_t> Tables[] = {{"/proc/net/tcp", 1}, {"/proc/net/tcp6", 4}};
	for (const auto& [Table, NumWords] : Tables)
	{
		if (IsListedForThisUser(Table, ToTableText(OtherWords, NumWords, Other.Port), ToTableText(OwnWords, NumWords, Own.Port)))
		{
			return true;
		}
	}
	return false;
}

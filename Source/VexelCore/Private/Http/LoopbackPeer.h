#pragma once

#include <string>

namespace LoopbackPeer
{
/** One end of a TCP connection: a numeric address of either family, and a port. */
struct FEnd
{
	std::string Address;
	int Port = 0;
};

/**
 * Whether a program of this user, or of root, holds the other end of a connection within this machine: the loopback interface is
 * open to all users of it. Only for a connection that is open at both ends; false also where that cannot be told.
 */
bool IsOfThisUser(const FEnd& Other, const FEnd& Own);
}

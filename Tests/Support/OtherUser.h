#pragma once

#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

/** Runs a function on a thread that is another user of the machine; false, without running it, where this process may not be one. */
template <typename FunctionType>
bool RunAsOtherUser(FunctionType&& Function)
{
	bool bOther = false;
	std::thread([&]
		{
			// The system call of this thread alone: the C library's would make the whole process another user.
			constexpr long Nobody = 65534;
			bOther = geteuid() == 0 && syscall(SYS_setresuid, Nobody, Nobody, Nobody) == 0;
			if (bOther)
			{
				Function();
			} })
		.join();
	return bOther;
}

#include "VexelFileLock.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformProcess.h"
#include "HAL/PlatformTime.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace
{
constexpr mode_t OwnerOnlyFile = 0600;
constexpr float PauseSeconds = 0.002f;

FVexelError MakeLockError(const FString& Path, int Number)
{
	TCHAR Reason[256] = {};
	FPlatformMisc::GetSystemErrorMessage(Reason, int32(UE_ARRAY_COUNT(Reason)), Number);
	return VEXEL_ERROR_TITLED(FVexelError, "File not locked", "'%s': %s", *Path, Reason);
}
}

TVexelExpected<FVexelFileLock> FVexelFileLock::Take(const FString& Path, double TimeoutSeconds)
{
	// Each holder opens the file anew, so that the lock also keeps two threads of one process apart.
	const int File = open(TCHAR_TO_UTF8(*Path), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, OwnerOnlyFile);
	if (File < 0)
	{
		return MakeLockError(Path, errno);
	}
	FVexelFileLock Lock(File);
	const double Deadline = FPlatformTime::Seconds() + TimeoutSeconds;
	while (flock(File, LOCK_EX | LOCK_NB) != 0)
	{
		if (errno != EWOULDBLOCK && errno != EINTR)
		{
			return MakeLockError(Path, errno);
		}
		if (FPlatformTime::Seconds() > Deadline)
		{
			return VEXEL_ERROR_TITLED(FVexelError, "File not locked", "Another process has held '%s' for %.0f seconds", *Path, TimeoutSeconds);
		}
		FPlatformProcess::Sleep(PauseSeconds);
	}
	return Lock;
}

FVexelFileLock::FVexelFileLock(FVexelFileLock&& Other)
	: File(Other.File)
{
	Other.File = -1;
}

FVexelFileLock::~FVexelFileLock()
{
	if (File >= 0)
	{
		close(File);
	}
}

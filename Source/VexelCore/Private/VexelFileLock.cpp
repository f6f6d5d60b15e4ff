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

/** Each holder opens the file anew, so that the lock also keeps two threads of one process apart. Negative for a failure. */
int OpenLockFile(const FString& Path)
{
	return open(TCHAR_TO_UTF8(*Path), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, OwnerOnlyFile);
}

/** 0 when the lock is had, EWOULDBLOCK while another has it, or why it cannot be had. */
int TryLock(int File)
{
	int Number = 0;
	do
	{
		Number = flock(File, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
	} while (Number == EINTR);
	return Number;
}
}

TVexelExpected<FVexelFileLock> FVexelFileLock::Take(const FString& Path, double TimeoutSeconds)
{
	const int File = OpenLockFile(Path);
	if (File < 0)
	{
		return MakeLockError(Path, errno);
	}
	FVexelFileLock Lock(File);
	const double Deadline = FPlatformTime::Seconds() + TimeoutSeconds;
	while (const int Number = TryLock(File))
	{
		if (Number != EWOULDBLOCK)
		{
			return MakeLockError(Path, Number);
		}
		if (FPlatformTime::Seconds() > Deadline)
		{
			return VEXEL_ERROR_TITLED(FVexelError, "File not locked", "Another process has held '%s' for %.0f seconds", *Path, TimeoutSeconds);
		}
		FPlatformProcess::Sleep(PauseSeconds);
	}
	return Lock;
}

TVexelExpected<TOptional<FVexelFileLock>> FVexelFileLock::TryTake(const FString& Path)
{
	const int File = OpenLockFile(Path);
	if (File < 0)
	{
		return MakeLockError(Path, errno);
	}
	FVexelFileLock Lock(File);
	const int Number = TryLock(File);
	if (Number == EWOULDBLOCK)
	{
		return TOptional<FVexelFileLock>();
	}
	if (Number != 0)
	{
		return MakeLockError(Path, Number);
	}
	return TOptional<FVexelFileLock>(MoveTemp(Lock));
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

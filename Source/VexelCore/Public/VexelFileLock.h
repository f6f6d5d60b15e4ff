#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "VexelExpected.h"

/**
 * Holds a lock file among processes, and among the threads of one, until it is destroyed. The lock of a process that ends, however
 * it ends, is free again; the file stays.
 */
class VEXELCORE_API FVexelFileLock
{
public:
	/**
	 * Makes the file, not its directory, where it is missing. Waits for another holder at most that long, because one that was
	 * stopped may never let go.
	 */
	static TVexelExpected<FVexelFileLock> Take(const FString& Path, double TimeoutSeconds = 10.0);
	/** The same without waiting: unset while there is another holder. */
	static TVexelExpected<TOptional<FVexelFileLock>> TryTake(const FString& Path);
	~FVexelFileLock();

	FVexelFileLock(FVexelFileLock&& Other);
	FVexelFileLock& operator=(FVexelFileLock&&) = delete;

private:
	explicit FVexelFileLock(int InFile)
		: File(InFile)
	{
	}

	int File;
};

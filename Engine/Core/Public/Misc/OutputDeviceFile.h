#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "Misc/OutputDevice.h"
#include "Templates/UniquePtr.h"

#include <mutex>

class FArchive;

/**
 * Writes lines to a file, as UTF-8, each with its time, category and verbosity. The file is made with the first line; an older one of that
 * name is kept beside it as Name-backup-TIME.ext. Errors are flushed at once.
 */
class CORE_API FOutputDeviceFile final : public FOutputDevice
{
public:
	/** Without a name, the file is the project's log. */
	explicit FOutputDeviceFile(const TCHAR* InFilename = nullptr, bool bDisableBackup = false, bool bAppendIfExists = false);
	virtual ~FOutputDeviceFile() override;

	const TCHAR* GetFilename() const { return *Filename; }
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Flush() override;
	virtual void TearDown() override;
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }
	/** Moves a file that is there to its backup name. */
	static void CreateBackupCopy(const TCHAR* Filename);

private:
	bool Open();
	void Write(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category);
	/** Runs what touches the file, unless it is the file itself that logs: a full disk says so while a line is written. */
	template <typename ActionType>
	void Use(ActionType Action);

	std::recursive_mutex Mutex;
	FString Filename;
	TUniquePtr<FArchive> File;
	bool bDisableBackup;
	bool bAppendIfExists;
	/** A file that cannot be opened or written is not tried again for every line. */
	bool bIsDead = false;
	bool bIsInUse = false;
};

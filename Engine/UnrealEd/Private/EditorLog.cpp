#include "EditorLog.h"

#include "HAL/FileManager.h"
#include "Logging/LogMacros.h"
#include "Logging/LogSuppressionInterface.h"
#include "Misc/App.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/DateTime.h"
#include "Misc/OutputDeviceFile.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/Paths.h"

namespace
{
/** Owned. A program that ends without closing it may still log while it does, so nothing else destroys it. */
FOutputDeviceFile* LogFile = nullptr;

/** Deletes backups that are too old or too many. */
void PurgeBackups(const FString& LogFilename)
{
	constexpr int32 DefaultDays = 5;
	constexpr int32 DefaultMaxFiles = 10;
	const TCHAR* const Section = TEXT("LogFiles");
	const int32 Days = GConfig->GetIntOrDefault(Section, TEXT("PurgeLogsDays"), DefaultDays, GEngineIni);
	const int32 MaxFiles = GConfig->GetIntOrDefault(Section, TEXT("MaxLogFilesOnDisk"), DefaultMaxFiles, GEngineIni);

	struct FBackup
	{
		FString Path;
		FDateTime Time;
	};
	IFileManager& Files = IFileManager::Get();
	const FString Directory = FPaths::GetPath(LogFilename);
	TArray<FString> Names;
	Files.FindFiles(Names, *(FPaths::GetBaseFilename(LogFilename, false) + TEXT("-backup-*.log")), true, false);
	TArray<FBackup> Backups;
	for (const FString& Name : Names)
	{
		const FString Path = Directory / Name;
		Backups.Add({Path, Files.GetTimeStamp(*Path)});
	}
	Backups.StableSort([](const FBackup& Left, const FBackup& Right)
		{ return Left.Time > Right.Time; });
	const FDateTime Oldest = FDateTime::UtcNow() - FTimespan::FromDays(Days);
	for (int32 Index = 0; Index < Backups.Num(); ++Index)
	{
		const bool bTooMany = MaxFiles >= 0 && Index >= MaxFiles;
		const bool bTooOld = Days >= 0 && Backups[Index].Time < Oldest;
		if (bTooMany || bTooOld)
		{
			Files.Delete(*Backups[Index].Path);
		}
	}
}
}

void EditorLog::Open()
{
	FLogSuppressionInterface::Get().ProcessConfigAndCommandLine();
	LogFile = new FOutputDeviceFile;
	GLog->AddOutputDevice(LogFile);
	// The first line makes the file and moves the older one away.
	UE_LOG(LogInit, Display, TEXT("Log of the project %s"), FApp::GetProjectName());
	PurgeBackups(LogFile->GetFilename());
}

void EditorLog::Close()
{
	GLog->RemoveOutputDevice(LogFile);
	delete LogFile;
	LogFile = nullptr;
}

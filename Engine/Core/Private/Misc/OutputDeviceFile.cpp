#include "Misc/OutputDeviceFile.h"

#include "HAL/FileManager.h"
#include "Misc/App.h"
#include "Misc/DateTime.h"
#include "Misc/Paths.h"
#include "Misc/StringBuilder.h"
#include "Serialization/Archive.h"

FOutputDeviceFile::FOutputDeviceFile(const TCHAR* InFilename, bool bInDisableBackup, bool bInAppendIfExists)
	: Filename(InFilename != nullptr ? InFilename : TEXT(""))
	, bDisableBackup(bInDisableBackup)
	, bAppendIfExists(bInAppendIfExists)
{
	if (Filename.IsEmpty())
	{
		const FString Name = FApp::HasProjectName() ? FString(FApp::GetProjectName()) : FString(TEXT("Vexel"));
		Filename = FPaths::ProjectLogDir() + Name + TEXT(".log");
	}
}

FOutputDeviceFile::~FOutputDeviceFile()
{
	TearDown();
}

void FOutputDeviceFile::CreateBackupCopy(const TCHAR* InFilename)
{
	IFileManager& Files = IFileManager::Get();
	if (Files.FileSize(InFilename) > 0)
	{
		const FString Time = Files.GetTimeStamp(InFilename).ToString();
		const FString Backup = FString::Printf(
			TEXT("%s-backup-%s%s"), *FPaths::GetBaseFilename(InFilename, false), *Time, *FPaths::GetExtension(InFilename, true));
		Files.Move(*Backup, InFilename);
	}
}

bool FOutputDeviceFile::Open()
{
	if (File.IsValid() || bIsDead)
	{
		return File.IsValid();
	}
	if (!bDisableBackup && !bAppendIfExists)
	{
		CreateBackupCopy(*Filename);
	}
	const uint32 Flags = FILEWRITE_Silent | FILEWRITE_AllowRead | (bAppendIfExists ? FILEWRITE_Append : FILEWRITE_None);
	File.Reset(IFileManager::Get().CreateFileWriter(*Filename, Flags));
	bIsDead = !File.IsValid();
	return !bIsDead;
}

template <typename ActionType>
void FOutputDeviceFile::Use(ActionType Action)
{
	const std::lock_guard Lock(Mutex);
	if (bIsInUse)
	{
		return;
	}
	bIsInUse = true;
	Action();
	if (File.IsValid() && File->IsError())
	{
		File.Reset();
		bIsDead = true;
	}
	bIsInUse = false;
}

void FOutputDeviceFile::Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	Use([&]
		{
			if (Open())
			{
				Write(V, Verbosity, Category);
			} });
}

void FOutputDeviceFile::Write(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category)
{
	TStringBuilder<512> Line;
	if (!bSuppressEventTag)
	{
		Line << TEXT("[") << FDateTime::UtcNow().ToString(TEXT("%Y.%m.%d-%H.%M.%S:%s")) << TEXT("]");
		if (!Category.IsNone())
		{
			Line << Category << TEXT(": ");
		}
		const uint8 Level = Verbosity & ELogVerbosity::VerbosityMask;
		if (Level != ELogVerbosity::Log && Level != ELogVerbosity::NoLogging)
		{
			Line << ToString(Verbosity) << TEXT(": ");
		}
	}
	Line << V;
	if (bAutoEmitLineTerminator)
	{
		Line << LINE_TERMINATOR;
	}
	const FTCHARToUTF8 Utf8(Line);
	File->Serialize(const_cast<ANSICHAR*>(reinterpret_cast<const ANSICHAR*>(Utf8.Get())), Utf8.Length());
	if ((Verbosity & ELogVerbosity::VerbosityMask) <= ELogVerbosity::Error)
	{
		File->Flush();
	}
}

void FOutputDeviceFile::Flush()
{
	Use([this]
		{
			if (File.IsValid())
			{
				File->Flush();
			} });
}

void FOutputDeviceFile::TearDown()
{
	Use([this]
		{
			File.Reset();
			bIsDead = true; });
}

#include "HAL/PlatformProcess.h"

#include "Containers/StringConv.h"
#include "HAL/PlatformMisc.h"
#include "Misc/Char.h"
#include "Misc/Paths.h"

#include <chrono>
#include <climits>
#include <pwd.h>
#include <sched.h>
#include <thread>
#include <unistd.h>

namespace
{
FString ReadExecutablePath()
{
	char Path[PATH_MAX] = {};
	const ssize_t Length = readlink("/proc/self/exe", Path, sizeof(Path) - 1);
	return Length > 0 ? FString(UTF8_TO_TCHAR(Path)) : FString();
}

/** The user's entry in the system's database. The function is not safe on several threads, so callers keep what they read. */
FString ReadUserField(char* passwd::*Field, const TCHAR* EnvironmentVariable)
{
	FString Value = FPlatformMisc::GetEnvironmentVariable(EnvironmentVariable);
	if (Value.IsEmpty())
	{
		const passwd* const Entry = getpwuid(getuid());
		Value = Entry != nullptr && Entry->*Field != nullptr ? FString(UTF8_TO_TCHAR(Entry->*Field)) : FString();
	}
	return Value;
}

FString WithSlash(FString Folder)
{
	if (!Folder.EndsWith(TEXT("/")))
	{
		Folder += TEXT("/");
	}
	return Folder;
}

FString OnlyAlphaNumeric(const FString& Text)
{
	FString Result;
	for (const TCHAR Char : Text)
	{
		if (FChar::IsAlnum(Char))
		{
			Result += Char;
		}
	}
	return Result;
}
}

void FPlatformProcess::Sleep(float Seconds)
{
	if (Seconds > 0.0f)
	{
		std::this_thread::sleep_for(std::chrono::duration<float>(Seconds));
	}
	else
	{
		sched_yield();
	}
}

void FPlatformProcess::Yield()
{
	sched_yield();
}

uint32 FPlatformProcess::GetCurrentProcessId()
{
	return static_cast<uint32>(getpid());
}

const TCHAR* FPlatformProcess::ExecutablePath()
{
	static const FString Path = ReadExecutablePath();
	return *Path;
}

const TCHAR* FPlatformProcess::ExecutableName(bool bRemoveExtension)
{
	static const FString Name = FPaths::GetCleanFilename(ReadExecutablePath());
	static const FString BaseName = FPaths::GetBaseFilename(ReadExecutablePath());
	return bRemoveExtension ? *BaseName : *Name;
}

const TCHAR* FPlatformProcess::BaseDir()
{
	static const FString Dir = WithSlash(FPaths::GetPath(ReadExecutablePath()));
	return *Dir;
}

const TCHAR* FPlatformProcess::ComputerName()
{
	static const FString Name = []
	{
		char Text[HOST_NAME_MAX + 1] = {};
		return gethostname(Text, sizeof(Text) - 1) == 0 ? FString(UTF8_TO_TCHAR(Text)) : FString();
	}();
	return *Name;
}

const TCHAR* FPlatformProcess::UserName(bool bOnlyAlphaNumeric)
{
	static const FString Name = ReadUserField(&passwd::pw_name, TEXT("USER"));
	static const FString PlainName = OnlyAlphaNumeric(Name);
	return bOnlyAlphaNumeric ? *PlainName : *Name;
}

const TCHAR* FPlatformProcess::UserHomeDir()
{
	static const FString Dir = WithSlash(ReadUserField(&passwd::pw_dir, TEXT("HOME")));
	return *Dir;
}

const TCHAR* FPlatformProcess::UserTempDir()
{
	static const FString Dir = []
	{
		const FString FromEnvironment = FPlatformMisc::GetEnvironmentVariable(TEXT("TMPDIR"));
		return WithSlash(FromEnvironment.IsEmpty() ? FString(TEXT("/tmp")) : FromEnvironment);
	}();
	return *Dir;
}

const TCHAR* FPlatformProcess::UserSettingsDir()
{
	static const FString Dir = []
	{
		const FString FromEnvironment = FPlatformMisc::GetEnvironmentVariable(TEXT("XDG_CONFIG_HOME"));
		return WithSlash(FromEnvironment.IsEmpty() ? FString(UserHomeDir()) + TEXT(".config") : FromEnvironment);
	}();
	return *Dir;
}

#include "HAL/PlatformMisc.h"

#include "Containers/StringConv.h"
#include "CoreGlobals.h"
#include "Misc/CString.h"
#include "Misc/Guid.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/random.h>
#include <sys/utsname.h>
#include <thread>
#include <unistd.h>

FString FPlatformMisc::GetEnvironmentVariable(const TCHAR* VariableName)
{
	const char* const Value = std::getenv(TCHAR_TO_UTF8(VariableName));
	return Value != nullptr ? FString(UTF8_TO_TCHAR(Value)) : FString();
}

void FPlatformMisc::SetEnvironmentVar(const TCHAR* VariableName, const TCHAR* Value)
{
	if (Value == nullptr || *Value == 0)
	{
		unsetenv(TCHAR_TO_UTF8(VariableName));
	}
	else
	{
		setenv(TCHAR_TO_UTF8(VariableName), TCHAR_TO_UTF8(Value), 1);
	}
}

int32 FPlatformMisc::NumberOfCores()
{
	return std::max(1, static_cast<int32>(std::thread::hardware_concurrency()));
}

int32 FPlatformMisc::NumberOfWorkerThreadsToSpawn()
{
	return std::max(2, NumberOfCores());
}

void FPlatformMisc::RequestExit(bool bForce, const TCHAR* CallSite)
{
	if (bForce)
	{
		_exit(1);
	}
	RequestEngineExit(CallSite != nullptr ? CallSite : TEXT("RequestExit"));
}

void FPlatformMisc::CreateGuid(FGuid& OutGuid)
{
	uint32 Words[4] = {};
	const int Result = getentropy(Words, sizeof(Words));
	checkf(Result == 0, TEXT("The system has no random numbers"));
	Words[1] = (Words[1] & 0xffff0fffu) | 0x00004000u;
	Words[2] = (Words[2] & 0x3fffffffu) | 0x80000000u;
	OutGuid = FGuid(Words[0], Words[1], Words[2], Words[3]);
}

void FPlatformMisc::GetOSVersions(FString& OutOSVersionLabel, FString& OutOSSubVersionLabel)
{
	utsname Names{};
	uname(&Names);
	OutOSVersionLabel = UTF8_TO_TCHAR(Names.sysname);
	OutOSSubVersionLabel = UTF8_TO_TCHAR(Names.release);
	std::FILE* const File = std::fopen("/etc/os-release", "re");
	if (File == nullptr)
	{
		return;
	}
	char Line[512];
	constexpr char Key[] = "PRETTY_NAME=";
	while (std::fgets(Line, sizeof(Line), File) != nullptr)
	{
		if (std::strncmp(Line, Key, sizeof(Key) - 1) == 0)
		{
			OutOSVersionLabel = FString(UTF8_TO_TCHAR(Line + sizeof(Key) - 1)).TrimStartAndEnd().TrimQuotes();
		}
	}
	std::fclose(File);
}

FString FPlatformMisc::GetOSVersion()
{
	FString Version;
	FString SubVersion;
	GetOSVersions(Version, SubVersion);
	return SubVersion;
}

FString FPlatformMisc::GetDefaultLocale()
{
	for (const TCHAR* Variable : {TEXT("LC_ALL"), TEXT("LC_MESSAGES"), TEXT("LANG")})
	{
		FString Locale = GetEnvironmentVariable(Variable);
		int32 End = INDEX_NONE;
		if (Locale.FindChar(TEXT('.'), End) || Locale.FindChar(TEXT('@'), End))
		{
			Locale.LeftInline(End);
		}
		if (!Locale.IsEmpty() && Locale != TEXT("C") && Locale != TEXT("POSIX"))
		{
			return Locale.Replace(TEXT("_"), TEXT("-"));
		}
	}
	return TEXT("en-US");
}

uint32 FPlatformMisc::GetLastError()
{
	return static_cast<uint32>(errno);
}

const TCHAR* FPlatformMisc::GetSystemErrorMessage(TCHAR* OutBuffer, int32 BufferCount, int32 Error)
{
	char Text[256] = {};
	const char* const Message = strerror_r(Error != 0 ? Error : errno, Text, sizeof(Text));
	FCString::Strncpy(OutBuffer, UTF8_TO_TCHAR(Message), BufferCount);
	return OutBuffer;
}

#pragma once

#include "Containers/Array.h"
#include "Containers/UnrealString.h"
#include "CoreTypes.h"

/** The program's command line without the program's name. Set once, before other threads ask. */
struct CORE_API FCommandLine
{
	static const TCHAR* Get();
	static bool IsInitialized();
	static bool Set(const TCHAR* NewCommandLine);
	/** As given: a blank between is the caller's. */
	static void Append(const TCHAR* AppendString);
	/** Arguments with blanks are put in quotes; of "-Key=a value" only the value is. */
	static FString BuildFromArgV(const TCHAR* Prefix, int32 ArgC, const TCHAR* const ArgV[], const TCHAR* Suffix);
	/** Words, and those with a '-' or '/' in front as switches, without it. */
	static void Parse(const TCHAR* CmdLine, TArray<FString>& Tokens, TArray<FString>& Switches);
};

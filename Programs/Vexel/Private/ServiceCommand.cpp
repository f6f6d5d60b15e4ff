#include "Commands.h"
#include "Console.h"
#include "Containers/StringConv.h"
#include "HAL/PlatformProcess.h"
#include "Misc/Paths.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

/** Becomes the service: the same process, so that signals and exit status are the service's own. */
int32 RunServiceCommand(const FArguments& Arguments)
{
	const FString Program = FPaths::GetPath(FString(FPlatformProcess::ExecutablePath())) / TEXT("vexel-service");
	TArray<FString> Words = {Program, TEXT("--port"), Arguments.Has(TEXT("--port")) ? Arguments.Get(TEXT("--port")) : FString(TEXT("0"))};
	if (Arguments.Has(TEXT("--data")))
	{
		Words.Append({TEXT("--data"), Arguments.Get(TEXT("--data"))});
	}
	if (Arguments.Has(TEXT("--verbose")))
	{
		Words.Add(TEXT("--verbose"));
	}
	TArray<TArray<ANSICHAR>> Storage;
	TArray<char*> RawWords;
	for (const FString& Word : Words)
	{
		const FTCHARToUTF8 Utf8(*Word);
		Storage.Emplace(Utf8.Get(), Utf8.Length() + 1);
	}
	for (TArray<ANSICHAR>& Word : Storage)
	{
		RawWords.Add(Word.GetData());
	}
	RawWords.Add(nullptr);
	execv(RawWords[0], RawWords.GetData());
	FConsole::WriteError(FString::Printf(TEXT("the service '%s' cannot be started: %s"), *Program, ANSI_TO_TCHAR(strerror(errno))));
	return ExitStatus::Failed;
}

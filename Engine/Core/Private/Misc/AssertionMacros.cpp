#include "Misc/AssertionMacros.h"

#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/StringBuilder.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>

namespace
{
struct FHandlerSlot
{
	std::mutex Mutex;
	FDebug::FAssertHandler Handler = nullptr;
	void* Context = nullptr;
};

FHandlerSlot& GetHandlerSlot()
{
	static FHandlerSlot Slot;
	return Slot;
}

std::atomic<SIZE_T> GNumEnsureFailures{0};

/** True when a handler took the failure. */
bool TellHandler(const FAssertionFailure& Failure)
{
	FDebug::FAssertHandler Handler;
	void* Context;
	{
		FHandlerSlot& Slot = GetHandlerSlot();
		const std::lock_guard Lock(Slot.Mutex);
		Handler = Slot.Handler;
		Context = Slot.Context;
	}
	return Handler != nullptr && Handler(Failure, Context);
}

void Report(const FAssertionFailure& Failure)
{
	if (TellHandler(Failure))
	{
		return;
	}
	TStringBuilder<512> Line;
	Line.Append(Failure.bIsFatal ? TEXT("Assertion failed: ") : TEXT("Ensure condition failed: "));
	Line.AppendAnsi(Failure.Expression).Append(TEXT(" [File:")).AppendAnsi(Failure.File).Append(TEXT("] "));
	Line.Appendf(TEXT("[Line: %d]"), Failure.Line);
	if (Failure.Message[0] != 0)
	{
		Line.Append(TEXT(" ")).Append(Failure.Message);
	}
	if (GLog->GetConsoleVerbosity() < ELogVerbosity::Error)
	{
		const FTCHARToUTF8 Utf8(Line.ToString());
		std::fprintf(stderr, "%s\n", Utf8.Get());
	}
	GLog->Serialize(Line.ToString(), ELogVerbosity::Error, LogCore.GetCategoryName());
	GLog->Flush();
}

void FormatAndReport(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, bool bIsFatal, const TCHAR* Format,
	const UE::Core::FFormatArgument* Arguments, int32 NumArguments)
{
	TStringBuilder<512> Message;
	UE::Core::FormatTo(Message, Format, Arguments, NumArguments);
	Report({Expression, File, Line, Message.ToString(), bIsFatal});
}
}

void FDebug::SetAssertHandler(FAssertHandler Handler, void* Context)
{
	FHandlerSlot& Slot = GetHandlerSlot();
	const std::lock_guard Lock(Slot.Mutex);
	Slot.Handler = Handler;
	Slot.Context = Context;
}

SIZE_T FDebug::GetNumEnsureFailures()
{
	return GNumEnsureFailures.load();
}

void FDebug::CheckVerifyFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
{
	Report({Expression, File, Line, TEXT(""), true});
	std::abort();
}

void FDebug::CheckFailedWithMessage(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format,
	const UE::Core::FFormatArgument* Arguments, int32 NumArguments)
{
	FormatAndReport(Expression, File, Line, true, Format, Arguments, NumArguments);
	std::abort();
}

bool FDebug::EnsureFailed(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line)
{
	++GNumEnsureFailures;
	Report({Expression, File, Line, TEXT(""), false});
	return false;
}

bool FDebug::EnsureFailedWithMessage(const ANSICHAR* Expression, const ANSICHAR* File, int32 Line, const TCHAR* Format,
	const UE::Core::FFormatArgument* Arguments, int32 NumArguments)
{
	++GNumEnsureFailures;
	FormatAndReport(Expression, File, Line, false, Format, Arguments, NumArguments);
	return false;
}

#include "Logging/LogMacros.h"

#include "Containers/UnrealString.h"
#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"

namespace
{
constexpr const TCHAR* VerbosityNames[] = {
	TEXT("NoLogging"), TEXT("Fatal"), TEXT("Error"), TEXT("Warning"), TEXT("Display"), TEXT("Log"), TEXT("Verbose"), TEXT("VeryVerbose")};
}

const TCHAR* ToString(ELogVerbosity::Type Verbosity)
{
	const uint32 Index = Verbosity & ELogVerbosity::VerbosityMask;
	return Index < UE_ARRAY_COUNT(VerbosityNames) ? VerbosityNames[Index] : TEXT("UnknownVerbosity");
}

ELogVerbosity::Type ParseLogVerbosityFromString(const FString& VerbosityString)
{
	if (VerbosityString == TEXT("All"))
	{
		return ELogVerbosity::All;
	}
	for (uint32 Index = 0; Index < UE_ARRAY_COUNT(VerbosityNames); ++Index)
	{
		if (VerbosityString == VerbosityNames[Index])
		{
			return static_cast<ELogVerbosity::Type>(Index);
		}
	}
	return ELogVerbosity::Log;
}

void FMsg::LogfImpl(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Format,
	const UE::Core::FFormatArgument* Arguments, int32 NumArguments)
{
	TStringBuilder<512> Message;
	UE::Core::FormatTo(Message, Format, Arguments, NumArguments);
	if (Verbosity == ELogVerbosity::Fatal)
	{
		FDebug::CheckVerifyFailed("Fatal error", File, Line, TEXT("%s"), Message.ToString());
	}
	GLog->Serialize(Message.ToString(), Verbosity, Category);
}

#pragma once

#include "CoreMinimal.h"
#include "Logging/LogMacros.h"
#include "VexelSecrets.h"

/** The plug-in's log channel. */
VEXELCORE_API DECLARE_LOG_CATEGORY_EXTERN(Client, Log, All);

namespace VexelInternal
{
/** "VexelClient" of "Source/VexelClient/Private/VexelClient.cpp". */
VEXELCORE_API FString GetBareFileName(const ANSICHAR* File);
}

/**
 * Logs a line on the plug-in's channel behind the source file's bare name and the line: "[VexelClient:42] ...". Secrets that the
 * process knows are cut out.
 */
#define VEXEL_LOG(Verbosity, Format, ...) VEXEL_LOG_AT(Verbosity, __FILE__, __LINE__, FString::Printf(TEXT(Format) __VA_OPT__(, ) __VA_ARGS__))

/** The same for a text that is there already, and for another place than the line that logs it. */
#define VEXEL_LOG_AT(Verbosity, File, Line, Text) \
	UE_LOG(Client, Verbosity, TEXT("[%s:%d] %s"), *VexelInternal::GetBareFileName(File), Line, *FVexelSecrets::Redact(Text))

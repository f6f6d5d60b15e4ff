#pragma once

#include "CoreMinimal.h"
#include "Logging/LogMacros.h"

/** The plug-in's log channel. */
VEXELCORE_API DECLARE_LOG_CATEGORY_EXTERN(Client, Log, All);

namespace VexelInternal
{
/** "VexelClient" of "Source/VexelClient/Private/VexelClient.cpp". */
VEXELCORE_API FString GetBareFileName(const ANSICHAR* File);
}

/** Logs a line on the plug-in's channel behind the source file's bare name and the line: "[VexelClient:42] ...". */
#define VEXEL_LOG(Verbosity, Format, ...) \
	UE_LOG(Client, Verbosity, TEXT("[%s:%d] " Format), *VexelInternal::GetBareFileName(__FILE__), __LINE__ __VA_OPT__(, ) __VA_ARGS__)

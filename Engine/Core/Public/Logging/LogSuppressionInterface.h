#pragma once

#include "CoreTypes.h"

class FOutputDevice;

/** Changes verbosities at run time. From any thread. */
class FLogSuppressionInterface
{
public:
	CORE_API static FLogSuppressionInterface& Get();
	virtual ~FLogSuppressionInterface() = default;

	/** Applies the [Core.Log] section of the engine's configuration and then -LogCmds="..." of the command line. */
	virtual void ProcessConfigAndCommandLine() = 0;

	/**
	 * Commands with commas between them: "LogTemp Verbose", "LogTemp off" (or "on", "toggle", "reset"), "global Warning", "list [PART]",
	 * "reset". "Log" in front is allowed. What is not understood is told to the device.
	 */
	virtual void ProcessCommands(const TCHAR* Commands, FOutputDevice& Ar) = 0;
};

#pragma once

#include "CoreMinimal.h"
#include "Logging/LogVerbosity.h"
#include "VexelError.h"

/** Whom reports are about. Nobody with an empty id. */
struct FVexelSentryUser
{
	FString Id;
};

/**
 * Takes the errors that no caller handles: logs them, and reports them to the error-reporting service that the setting
 * "SentryDsn" names. Without one nothing leaves the machine. A report holds the error's kind, title, message and place, those of
 * its causes, the context scopes, the last log lines, the release and the user's id; secrets that went through this process are
 * cut out. Reports that cannot be sent wait on disk, a hundred at the most, for the next one that can. At most ten a minute are
 * made, and one of the same kind and place. Any thread.
 */
class VEXELCORE_API FVexelSentry
{
public:
	/** Begins to report. What an earlier process left in the directory is sent. Without this call, errors are only logged. */
	static void Start(const FString& SpoolDirectory);
	/** Ends reporting. What was not sent stays on disk for the next start. */
	static void Stop();

	/** Logs an error with its chain, its context scopes and the place that gave it up, and reports it. */
	static void CaptureError(FVexelError&& Error, const FVexelErrorPlace& Place);

	/** The same for a failure that the user need not hear of: a warning. */
	static void CaptureErrorSoft(FVexelError&& Error, const FVexelErrorPlace& Place);

	/** Sets whom later reports are about, or clears it. */
	static void User(const FVexelSentryUser& User);

	/** Remembers a log line for later reports. While errors are reported, the plug-in's own lines come by themselves. */
	static void Log(ELogVerbosity::Type Verbosity, const FString& Line);

	/** Logs how long something took, and remembers it as Log() does. */
	static void PerfLog(const FString& Name, double Seconds);
};

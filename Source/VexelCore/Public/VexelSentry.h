#pragma once

#include "CoreMinimal.h"
#include "VexelError.h"

/** Takes the errors that no caller handles. */
class VEXELCORE_API FVexelSentry
{
public:
	/** Logs an error with its chain, its context scopes and the place that gave it up. Any thread. */
	static void CaptureError(FVexelError&& Error, const FVexelErrorPlace& Place);

	/** The same for a failure that the user need not hear of: logged as a warning. */
	static void CaptureErrorSoft(FVexelError&& Error, const FVexelErrorPlace& Place);
};

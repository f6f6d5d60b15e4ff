#include "VexelSentry.h"

#include "VexelLog.h"

void FVexelSentry::CaptureError(FVexelError&& Error, const FVexelErrorPlace& Place)
{
	UE_LOG(Client, Error, TEXT("[%s:%d] %s"), *VexelInternal::GetBareFileName(Place.File), Place.Line, *Error.ToString());
}

void FVexelSentry::CaptureErrorSoft(FVexelError&& Error, const FVexelErrorPlace& Place)
{
	UE_LOG(Client, Warning, TEXT("[%s:%d] %s"), *VexelInternal::GetBareFileName(Place.File), Place.Line, *Error.ToString());
}

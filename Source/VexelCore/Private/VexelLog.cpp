#include "VexelLog.h"

#include "Misc/Paths.h"

DEFINE_LOG_CATEGORY(Client);

FString VexelInternal::GetBareFileName(const ANSICHAR* File)
{
	return FPaths::GetBaseFilename(FString(File));
}

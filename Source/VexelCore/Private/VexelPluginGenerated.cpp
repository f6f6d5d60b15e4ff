#include "VexelPluginGenerated.h"

FString FVexelPluginGenerated::GetVersionString()
{
	return TEXT(VEXEL_VERSION);
}

#pragma once

#include "CoreMinimal.h"

/** What the build knows of the plug-in. */
class VEXELCORE_API FVexelPluginGenerated
{
public:
	/** "1.2.3" */
	static FString GetVersionString();
};

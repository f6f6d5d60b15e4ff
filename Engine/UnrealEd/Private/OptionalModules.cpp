#include "OptionalModules.h"

#include "Containers/StringConv.h"
#include "CoreMinimal.h"

#include <dlfcn.h>

DEFINE_LOG_CATEGORY_STATIC(LogOptionalModules, Log, All);

namespace
{
const TCHAR* const ModuleNames[] = {
#include "OptionalModuleNames.inl"
};
}

void LoadOptionalModules()
{
	for (const TCHAR* const Name : ModuleNames)
	{
		// Its classes register themselves. It stays loaded: objects of them may live as long as the program.
		if (!dlopen(TCHAR_TO_UTF8(*FString::Printf(TEXT("lib%s.so"), Name)), RTLD_NOW | RTLD_GLOBAL | RTLD_NODELETE))
		{
			UE_LOG(LogOptionalModules, Verbose, TEXT("%s is not there: %s"), Name, UTF8_TO_TCHAR(dlerror()));
		}
	}
}

#include "OptionalModules.h"

#include "Containers/StringConv.h"
#include "CoreMinimal.h"
#include "Misc/Paths.h"

#include <dlfcn.h>

DEFINE_LOG_CATEGORY_STATIC(LogOptionalModules, Log, All);

namespace
{
const TCHAR* const ModuleNames[] = {
#include "OptionalModuleNames.inl"
};

/** Where this library lies, and the optional ones with it; with its last slash. Empty where the loader cannot tell. */
FString GetLibraryDirectory()
{
	Dl_info Info;
	if (!dladdr(reinterpret_cast<const void*>(&LoadOptionalModules), &Info) || !Info.dli_fname)
	{
		return FString();
	}
	return FPaths::GetPath(UTF8_TO_TCHAR(Info.dli_fname)) / FString();
}
}

void LoadOptionalModules()
{
	// A bare name would be looked up for whoever calls dlopen: under a sanitizer that is its own library.
	const FString Directory = GetLibraryDirectory();
	for (const TCHAR* const Name : ModuleNames)
	{
		// Its classes register themselves. It stays loaded: objects of them may live as long as the program.
		if (!dlopen(TCHAR_TO_UTF8(*FString::Printf(TEXT("%slib%s.so"), *Directory, Name)), RTLD_NOW | RTLD_GLOBAL | RTLD_NODELETE))
		{
			UE_LOG(LogOptionalModules, Verbose, TEXT("%s is not there: %s"), Name, UTF8_TO_TCHAR(dlerror()));
		}
	}
}

#include "Framework/Application/SlateApplication.h"

FSlateApplication& FSlateApplication::Get()
{
	checkf(IsInitialized(), TEXT("FSlateApplication::Get() before the application was made"));
	static FSlateApplication Application;
	return Application;
}

#include "Failure.h"

#include "Containers/StringConv.h"

#include <cstdio>
#include <cstdlib>

void Fail(const FString& Reason)
{
	std::fprintf(stderr, "SampleMaker: %s\n", TCHAR_TO_UTF8(*Reason));
	std::fflush(nullptr);
	// The editor is in the middle of something, so nothing of it is taken down.
	std::_Exit(1);
}

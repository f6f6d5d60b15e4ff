#pragma once

#include "Containers/StringConv.h"
#include "CoreMinimal.h"
#include "Misc/OutputDeviceRedirector.h"
#include "VexelJson.h"

#include <cstdio>
#include <cstdlib>

/** What the chat's fuzz targets share. */
namespace ChatFuzzing
{
inline void BeQuiet()
{
	static const bool bQuiet = (GLog->SetConsoleVerbosity(ELogVerbosity::NoLogging), true);
	static_cast<void>(bQuiet);
}

inline FString ToText(const IVexelJsonable& Record)
{
	return Record.ToJsonString();
}

/** Ends the run with both texts where they differ. */
inline void ExpectSame(const char* What, const FString& A, const FString& B)
{
	if (!A.Equals(B, ESearchCase::CaseSensitive))
	{
		std::fprintf(stderr, "%s\n  %s\n  %s\n", What, TCHAR_TO_UTF8(*A), TCHAR_TO_UTF8(*B));
		std::abort();
	}
}

/** A record that was read from its stored form is stored just so again. */
template <typename RecordType>
void ExpectStable(const RecordType& Record)
{
	const FString Text = ToText(Record);
	RecordType Again;
	if (!Again.FromJsonString(Text))
	{
		std::fprintf(stderr, "the stored form is not read\n  %s\n", TCHAR_TO_UTF8(*Text));
		std::abort();
	}
	ExpectSame("the stored form changes when it is read", Text, ToText(Again));
}
}

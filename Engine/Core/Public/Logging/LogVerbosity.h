#pragma once

#include "CoreTypes.h"

/** How important a line is: a lower number is more important. */
namespace ELogVerbosity
{
enum Type : uint8
{
	NoLogging = 0,
	/** Always written; the program ends after it. */
	Fatal,
	Error,
	Warning,
	Display,
	Log,
	Verbose,
	VeryVerbose,

	All = VeryVerbose,
	NumVerbosity,
	VerbosityMask = 0xf,
	SetColor = 0x40,
	BreakOnLog = 0x80
};
}

/** "Warning", or "UnknownVerbosity". */
CORE_API const TCHAR* ToString(ELogVerbosity::Type Verbosity);
/** The verbosity of a name in any case; Log for an unknown name. */
CORE_API ELogVerbosity::Type ParseLogVerbosityFromString(const class FString& VerbosityString);

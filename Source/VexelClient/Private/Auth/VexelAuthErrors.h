#pragma once

#include "VexelError.h"

namespace VexelAuthErrors
{
/** The error of the kind that Cause led to, with what was being done: a clause that begins with "while". */
template <typename ErrorKind>
FVexelError Wrap(const FVexelErrorPlace& Place, const FVexelError& Cause, const TCHAR* While)
{
	FVexelError Error = ErrorKind(Place, Cause.ToShortString(), &Cause);
	Error.AppendContext(While);
	return Error;
}
}

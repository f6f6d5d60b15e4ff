#pragma once

#include "CoreTypes.h"

class FOutputDevice;
class UWorld;

/** Something that carries out console commands. */
class FExec
{
public:
	virtual ~FExec() = default;
	/** Whether the command was one of its own. */
	virtual bool Exec(UWorld* InWorld, const TCHAR* Cmd, FOutputDevice& Ar) = 0;
};

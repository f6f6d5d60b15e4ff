#pragma once

#include "CoreTypes.h"

/** What a thread of its own does. Init, Run and Exit are called on that thread, in this order. */
class FRunnable
{
public:
	virtual ~FRunnable() = default;
	/** Answering false ends the thread without Run and Exit. */
	virtual bool Init() { return true; }
	virtual uint32 Run() = 0;
	/** Asks Run to return soon. Called on another thread. */
	virtual void Stop() {}
	virtual void Exit() {}
};

#pragma once

#include "HAL/ThreadSafeCounter.h"

class FThreadSafeCounter64 : public TThreadSafeCounter<int64>
{
public:
	using TThreadSafeCounter::TThreadSafeCounter;
};

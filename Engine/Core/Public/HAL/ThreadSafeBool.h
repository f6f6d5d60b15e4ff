#pragma once

#include "CoreTypes.h"

#include <atomic>

class FThreadSafeBool
{
public:
	FThreadSafeBool(bool bInValue = false)
		: bValue(bInValue)
	{
	}
	FThreadSafeBool(const FThreadSafeBool& Other)
		: bValue(Other.bValue.load())
	{
	}
	FThreadSafeBool& operator=(const FThreadSafeBool& Other) { return *this = static_cast<bool>(Other); }
	FThreadSafeBool& operator=(bool bInValue)
	{
		bValue = bInValue;
		return *this;
	}
	operator bool() const { return bValue; }
	/** Sets the value and answers the one before. */
	bool AtomicSet(bool bInValue) { return bValue.exchange(bInValue); }

private:
	std::atomic<bool> bValue;
};

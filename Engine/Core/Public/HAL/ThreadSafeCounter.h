#pragma once

#include "CoreTypes.h"

#include <atomic>

/** Each operation answers the value after it for Increment and Decrement, and the value before it for the others. */
template <class IntType>
class TThreadSafeCounter
{
public:
	explicit TThreadSafeCounter(IntType InValue = 0)
		: Value(InValue)
	{
	}
	TThreadSafeCounter(const TThreadSafeCounter& Other)
		: Value(Other.GetValue())
	{
	}
	TThreadSafeCounter& operator=(const TThreadSafeCounter&) = delete;

	IntType Increment() { return ++Value; }
	IntType Decrement() { return --Value; }
	IntType Add(IntType Amount) { return Value.fetch_add(Amount); }
	IntType Subtract(IntType Amount) { return Value.fetch_sub(Amount); }
	IntType Set(IntType InValue) { return Value.exchange(InValue); }
	IntType Reset() { return Value.exchange(0); }
	IntType GetValue() const { return Value.load(); }

private:
	std::atomic<IntType> Value;
};

class FThreadSafeCounter : public TThreadSafeCounter<int32>
{
public:
	using TThreadSafeCounter::TThreadSafeCounter;
};

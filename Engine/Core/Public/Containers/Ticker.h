#pragma once

#include "Containers/Array.h"
#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "HAL/CriticalSection.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

#include <atomic>

/** Answers whether it wants to be called again after its delay. The argument is the tick's time in seconds. */
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

/**
 * Calls delegates at intervals. Time is what Tick is given and nothing else, so that a test moves it at will. Tickers are added and
 * removed on any thread, during a tick too, and are called on the thread that ticks.
 */
class FTSTicker
{
	struct FElement;

public:
	using FDelegateHandle = TWeakPtr<FElement>;

	CORE_API static FTSTicker& GetCoreTicker();

	/** First called by the first tick that ends at or after Delay seconds from now; a delay of 0 means each tick. */
	CORE_API FDelegateHandle AddTicker(const FTickerDelegate& Delegate, float Delay = 0.0f);
	CORE_API FDelegateHandle AddTicker(const TCHAR* Name, float Delay, TFunction<bool(float)> Function);

	/** On another thread than the ticking one it waits for a call that is under way, so that none comes after it. */
	CORE_API static void RemoveTicker(FDelegateHandle Handle);

	/** In seconds. Tickers that a tick adds wait for the next one. */
	CORE_API void Tick(float DeltaTime);
	CORE_API void Reset();

private:
	struct FElement
	{
		FTickerDelegate Delegate;
		double FireTime = 0.0;
		float Delay = 0.0f;
		/** Held during a call. */
		FCriticalSection CallLock;
		std::atomic<bool> bRemoved = false;
	};

	FCriticalSection Lock;
	TArray<TSharedRef<FElement>> Elements;
	/** The sum of all ticks. */
	double CurrentTime = 0.0;
};

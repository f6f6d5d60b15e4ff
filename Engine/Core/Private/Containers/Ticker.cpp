#include "Containers/Ticker.h"

#include "Misc/ScopeLock.h"

#include <limits>

FTSTicker& FTSTicker::GetCoreTicker()
{
	// Never destroyed: statics of other modules remove their tickers when the program ends.
	static FTSTicker* const Ticker = new FTSTicker;
	return *Ticker;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& Delegate, float Delay)
{
	const TSharedRef<FElement> Element = MakeShared<FElement>();
	Element->Delegate = Delegate;
	Element->Delay = Delay;
	const FScopeLock ScopeLock(&Lock);
	Element->FireTime = CurrentTime + Delay;
	Elements.Add(Element);
	return Element;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const TCHAR* Name, float Delay, TFunction<bool(float)> Function)
{
	return AddTicker(FTickerDelegate::CreateLambda(MoveTemp(Function)), Delay);
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (const TSharedPtr<FElement> Element = Handle.Pin())
	{
		const FScopeLock ScopeLock(&Element->CallLock);
		Element->bRemoved = true;
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	TArray<TSharedRef<FElement>> Due;
	double Now = 0.0;
	{
		const FScopeLock ScopeLock(&Lock);
		CurrentTime += DeltaTime;
		Now = CurrentTime;
		for (const TSharedRef<FElement>& Element : Elements)
		{
			if (Element->FireTime <= Now)
			{
				Due.Add(Element);
			}
		}
	}
	for (const TSharedRef<FElement>& Element : Due)
	{
		const FScopeLock CallLock(&Element->CallLock);
		if (!Element->bRemoved)
		{
			{
				// A delegate that waits may tick by itself, and must not be called again inside its own call.
				const FScopeLock ScopeLock(&Lock);
				Element->FireTime = std::numeric_limits<double>::infinity();
			}
			const bool bAgain = Element->Delegate.IsBound() && Element->Delegate.Execute(DeltaTime);
			if (!bAgain)
			{
				Element->bRemoved = true;
			}
			const FScopeLock ScopeLock(&Lock);
			Element->FireTime = Now + Element->Delay;
		}
	}
	// Removed elements are freed after the lock: what their delegates hold may come back to the ticker.
	TArray<TSharedRef<FElement>> Removed;
	const FScopeLock ScopeLock(&Lock);
	for (int32 Index = Elements.Num() - 1; Index >= 0; --Index)
	{
		if (Elements[Index]->bRemoved)
		{
			Removed.Add(Elements[Index]);
			Elements.RemoveAt(Index);
		}
	}
}

void FTSTicker::Reset()
{
	TArray<TSharedRef<FElement>> Removed;
	{
		const FScopeLock ScopeLock(&Lock);
		Removed = MoveTemp(Elements);
		Elements.Reset();
	}
	for (const TSharedRef<FElement>& Element : Removed)
	{
		RemoveTicker(Element);
	}
}

#pragma once

#include "HAL/CriticalSection.h"
#include "Misc/AssertionMacros.h"

/** Holds a lock for a scope. */
class [[nodiscard]] FScopeLock
{
public:
	explicit FScopeLock(FCriticalSection* InSection)
		: Section(InSection)
	{
		check(Section != nullptr);
		Section->Lock();
	}
	~FScopeLock() { Unlock(); }
	FScopeLock(const FScopeLock&) = delete;
	FScopeLock& operator=(const FScopeLock&) = delete;

	/** Gives the lock up before the scope ends. */
	void Unlock()
	{
		if (Section != nullptr)
		{
			Section->Unlock();
			Section = nullptr;
		}
	}

private:
	FCriticalSection* Section;
};

/** Gives a held lock up for a scope. */
class [[nodiscard]] FScopeUnlock
{
public:
	explicit FScopeUnlock(FCriticalSection* InSection)
		: Section(InSection)
	{
		check(Section != nullptr);
		Section->Unlock();
	}
	~FScopeUnlock() { Section->Lock(); }
	FScopeUnlock(const FScopeUnlock&) = delete;
	FScopeUnlock& operator=(const FScopeUnlock&) = delete;

private:
	FCriticalSection* Section;
};

#pragma once

#include "CoreGlobals.h"
#include "Misc/OutputDevice.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

/**
 * GLog: hands every line to the devices that were added, from any thread, one line at a time. Lines of Warning and worse also go to
 * standard error; SetConsoleVerbosity() changes that. A device must not add or remove devices while it takes a line.
 */
class CORE_API FOutputDeviceRedirector final : public FOutputDevice
{
public:
	static FOutputDeviceRedirector* Get();

	/** The device stays the caller's, who removes it before it dies. Adding it twice has no effect. */
	void AddOutputDevice(FOutputDevice* OutputDevice);
	/** When this returns, no thread is inside the device. */
	void RemoveOutputDevice(FOutputDevice* OutputDevice);
	bool IsRedirectingTo(FOutputDevice* OutputDevice);

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override;
	virtual void Flush() override;
	virtual void TearDown() override;
	virtual bool CanBeUsedOnAnyThread() const override { return true; }
	virtual bool CanBeUsedOnMultipleThreads() const override { return true; }

	/** The least important lines that reach standard error; NoLogging for none. Ours, not the engine's. */
	void SetConsoleVerbosity(ELogVerbosity::Type Verbosity) { ConsoleVerbosity.store(Verbosity, std::memory_order_relaxed); }
	ELogVerbosity::Type GetConsoleVerbosity() const
	{
		return static_cast<ELogVerbosity::Type>(ConsoleVerbosity.load(std::memory_order_relaxed));
	}

private:
	std::recursive_mutex Mutex;
	std::vector<FOutputDevice*> Devices;
	std::atomic<uint8> ConsoleVerbosity{ELogVerbosity::Warning};
};

#pragma once

#include "CoreTypes.h"

/** What a module does when it comes and goes. Game thread. */
class IModuleInterface
{
public:
	virtual ~IModuleInterface() = default;
	/** After the module's code is there and its dependencies have been started. */
	virtual void StartupModule() {}
	/** Modules are shut down in the reverse order of their loading, so that dependencies are still there. */
	virtual void ShutdownModule() {}
	virtual bool SupportsDynamicReloading() { return true; }
	virtual bool SupportsAutomaticShutdown() { return true; }
	virtual bool IsGameModule() const { return false; }
};

class FDefaultModuleImpl : public IModuleInterface
{
};

class FDefaultGameModuleImpl : public FDefaultModuleImpl
{
	bool IsGameModule() const override { return true; }
};

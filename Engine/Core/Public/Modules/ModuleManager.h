#pragma once

#include "Containers/Array.h"
#include "Containers/Map.h"
#include "CoreTypes.h"
#include "Delegates/Delegate.h"
#include "Misc/AssertionMacros.h"
#include "Modules/ModuleInterface.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

enum class EModuleLoadResult
{
	Success,
	FileNotFound,
	CouldNotBeLoadedByOS,
	FailedToInitialize
};

enum class EModuleChangeReason
{
	ModuleLoaded,
	ModuleUnloaded,
	PluginDirectoryChanged
};

DECLARE_DELEGATE_RetVal(IModuleInterface*, FInitializeStaticallyLinkedModule);

/** Starts and ends modules by name. The code of a module is linked in; loading makes its interface object. Game thread. */
class FModuleManager
{
public:
	DECLARE_EVENT_TwoParams(FModuleManager, FModulesChangedEvent, FName, EModuleChangeReason);

	CORE_API static FModuleManager& Get();

	/** The module, started by now; null when none of that name is linked in. */
	CORE_API IModuleInterface* LoadModule(const FName InModuleName);
	CORE_API IModuleInterface* LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason);
	CORE_API IModuleInterface& LoadModuleChecked(const FName InModuleName);
	CORE_API bool UnloadModule(const FName InModuleName, bool bIsShutdown = false);
	/** In the reverse order of loading. */
	CORE_API void UnloadModulesAtShutdown();
	CORE_API IModuleInterface* GetModule(const FName InModuleName);
	CORE_API bool IsModuleLoaded(const FName InModuleName) const;
	CORE_API bool ModuleExists(const TCHAR* ModuleName) const;
	FModulesChangedEvent& OnModulesChanged() { return ModulesChangedEvent; }

	/** Called by IMPLEMENT_MODULE before main. */
	CORE_API void RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& Initializer);

	template <class ModuleInterfaceType>
	static ModuleInterfaceType* LoadModulePtr(const FName InModuleName)
	{
		return static_cast<ModuleInterfaceType*>(Get().LoadModule(InModuleName));
	}
	template <class ModuleInterfaceType>
	static ModuleInterfaceType& LoadModuleChecked(const FName InModuleName)
	{
		return static_cast<ModuleInterfaceType&>(Get().LoadModuleChecked(InModuleName));
	}
	template <class ModuleInterfaceType>
	static ModuleInterfaceType* GetModulePtr(const FName InModuleName)
	{
		return static_cast<ModuleInterfaceType*>(Get().GetModule(InModuleName));
	}
	template <class ModuleInterfaceType>
	static ModuleInterfaceType& GetModuleChecked(const FName InModuleName)
	{
		IModuleInterface* const Module = Get().GetModule(InModuleName);
		checkf(Module != nullptr, TEXT("Tried to get module interface for unloaded module: '%s'"), *InModuleName.ToString());
		return static_cast<ModuleInterfaceType&>(*Module);
	}

private:
	struct FLoadedModule
	{
		FName Name;
		TUniquePtr<IModuleInterface> Module;
	};

	TMap<FName, FInitializeStaticallyLinkedModule> Initializers;
	/** In the order in which their loading was asked for. */
	TArray<FLoadedModule> LoadedModules;
	FModulesChangedEvent ModulesChangedEvent;
};

template <class ModuleClass>
class FStaticallyLinkedModuleRegistrant
{
public:
	explicit FStaticallyLinkedModuleRegistrant(const TCHAR* ModuleName)
	{
		FModuleManager::Get().RegisterStaticallyLinkedModule(
			FName(ModuleName), FInitializeStaticallyLinkedModule::CreateLambda([]() -> IModuleInterface*
								   { return new ModuleClass; }));
	}
};

#define IMPLEMENT_MODULE(ModuleImplClass, ModuleName) \
	static FStaticallyLinkedModuleRegistrant<ModuleImplClass> ModuleRegistrant##ModuleName(TEXT(#ModuleName));
#define IMPLEMENT_GAME_MODULE(ModuleImplClass, ModuleName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)
#define IMPLEMENT_PRIMARY_GAME_MODULE(ModuleImplClass, ModuleName, GameName) IMPLEMENT_MODULE(ModuleImplClass, ModuleName)

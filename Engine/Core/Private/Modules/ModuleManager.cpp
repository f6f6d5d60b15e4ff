#include "Modules/ModuleManager.h"

#include "CoreGlobals.h"

FModuleManager& FModuleManager::Get()
{
	// Modules register themselves from static objects of any library, before main and in any order.
	static FModuleManager* const Manager = new FModuleManager;
	return *Manager;
}

void FModuleManager::RegisterStaticallyLinkedModule(const FName InModuleName, const FInitializeStaticallyLinkedModule& Initializer)
{
	checkf(!Initializers.Contains(InModuleName), TEXT("Two modules are named '%s'"), *InModuleName.ToString());
	Initializers.Add(InModuleName, Initializer);
}

IModuleInterface* FModuleManager::LoadModuleWithFailureReason(const FName InModuleName, EModuleLoadResult& OutFailureReason)
{
	check(IsInGameThread());
	OutFailureReason = EModuleLoadResult::Success;
	if (IModuleInterface* const Loaded = GetModule(InModuleName))
	{
		return Loaded;
	}
	const FInitializeStaticallyLinkedModule* const Initializer = Initializers.Find(InModuleName);
	if (Initializer == nullptr)
	{
		OutFailureReason = EModuleLoadResult::FileNotFound;
		UE_LOG(LogCore, Warning, TEXT("Module '%s' could not be found"), *InModuleName.ToString());
		return nullptr;
	}
	IModuleInterface* const Module = Initializer->Execute();
	if (Module == nullptr)
	{
		OutFailureReason = EModuleLoadResult::FailedToInitialize;
		return nullptr;
	}
	// In the list before its start, so that modules that it loads meanwhile and that ask for it find it; but a module that its start
	// loads is one that it stands on, so that it takes its place in the order of unloading only when its start is over.
	LoadedModules.Add(FLoadedModule{InModuleName, TUniquePtr<IModuleInterface>(Module)});
	Module->StartupModule();
	const int32 Index = LoadedModules.IndexOfByPredicate([&](const FLoadedModule& Loaded)
		{ return Loaded.Name == InModuleName; });
	FLoadedModule Started = MoveTemp(LoadedModules[Index]);
	LoadedModules.RemoveAt(Index);
	LoadedModules.Add(MoveTemp(Started));
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleLoaded);
	return Module;
}

IModuleInterface* FModuleManager::LoadModule(const FName InModuleName)
{
	EModuleLoadResult Result = EModuleLoadResult::Success;
	return LoadModuleWithFailureReason(InModuleName, Result);
}

IModuleInterface& FModuleManager::LoadModuleChecked(const FName InModuleName)
{
	IModuleInterface* const Module = LoadModule(InModuleName);
	checkf(Module != nullptr, TEXT("Module '%s' could not be loaded"), *InModuleName.ToString());
	return *Module;
}

bool FModuleManager::UnloadModule(const FName InModuleName, bool bIsShutdown)
{
	const int32 Index = LoadedModules.IndexOfByPredicate([&](const FLoadedModule& Loaded)
		{ return Loaded.Name == InModuleName; });
	if (Index == INDEX_NONE)
	{
		return false;
	}
	LoadedModules[Index].Module->ShutdownModule();
	// Its shutdown may have changed the list.
	const int32 NewIndex = LoadedModules.IndexOfByPredicate([&](const FLoadedModule& Loaded)
		{ return Loaded.Name == InModuleName; });
	if (NewIndex != INDEX_NONE)
	{
		LoadedModules.RemoveAt(NewIndex);
	}
	ModulesChangedEvent.Broadcast(InModuleName, EModuleChangeReason::ModuleUnloaded);
	return true;
}

void FModuleManager::UnloadModulesAtShutdown()
{
	while (!LoadedModules.IsEmpty())
	{
		UnloadModule(LoadedModules.Last().Name, true);
	}
}

IModuleInterface* FModuleManager::GetModule(const FName InModuleName)
{
	const FLoadedModule* const Found = LoadedModules.FindByPredicate([&](const FLoadedModule& Loaded)
		{ return Loaded.Name == InModuleName; });
	return Found != nullptr ? Found->Module.Get() : nullptr;
}

bool FModuleManager::IsModuleLoaded(const FName InModuleName) const
{
	return LoadedModules.ContainsByPredicate([&](const FLoadedModule& Loaded)
		{ return Loaded.Name == InModuleName; });
}

bool FModuleManager::ModuleExists(const TCHAR* ModuleName) const
{
	return Initializers.Contains(FName(ModuleName));
}

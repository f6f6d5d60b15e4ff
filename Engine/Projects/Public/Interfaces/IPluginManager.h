#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

struct FPluginDescriptor;

/** Where a plug-in was found. */
enum class EPluginLoadedFrom
{
	Engine,
	Project
};

/** A plug-in that was found, enabled or not. */
class IPlugin
{
public:
	virtual ~IPlugin() = default;

	/** The name of its .uplugin file. */
	virtual const FString& GetName() const = 0;
	virtual const FString& GetFriendlyName() const = 0;
	virtual const FString& GetDescriptorFileName() const = 0;
	/** The folder of its .uplugin file. */
	virtual FString GetBaseDir() const = 0;
	virtual FString GetContentDir() const = 0;
	/** What the open project says, else its own descriptor; a project's plug-in is on when neither does. */
	virtual bool IsEnabled() const = 0;
	virtual bool CanContainContent() const = 0;
	virtual EPluginLoadedFrom GetLoadedFrom() const = 0;
	virtual const FPluginDescriptor& GetDescriptor() const = 0;
};

/** Knows the plug-ins below the open project's Plugins folder; this engine has none of its own. Game thread. */
class PROJECTS_API IPluginManager
{
public:
	virtual ~IPluginManager() = default;

	static IPluginManager& Get();

	/** Null when there is none. */
	virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) = 0;
	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() = 0;
	/** In the order of their paths. One whose file is broken is left out, with the reason in the log. */
	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() = 0;
	/** Looks into the folder again. Plug-ins that were given out stay as they were. */
	virtual bool RefreshPluginsList() = 0;
};

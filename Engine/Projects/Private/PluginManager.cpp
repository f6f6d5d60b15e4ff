#include "Interfaces/IPluginManager.h"

#include "HAL/FileManager.h"
#include "HAL/PlatformFileManager.h"
#include "Interfaces/IProjectManager.h"
#include "Misc/Optional.h"
#include "Misc/Paths.h"
#include "PluginDescriptor.h"
#include "ProjectDescriptor.h"

DEFINE_LOG_CATEGORY_STATIC(LogPluginManager, Log, All);

namespace
{
/** Plug-ins may lie in folders of folders. What is deeper than that is something else. */
constexpr int32 MaxDepth = 8;

class FPlugin final : public IPlugin
{
public:
	FPlugin(const FString& InFileName, FPluginDescriptor&& InDescriptor)
		: FileName(InFileName)
		, Name(FPaths::GetBaseFilename(InFileName))
		, Descriptor(MoveTemp(InDescriptor))
	{
	}

	virtual const FString& GetName() const override { return Name; }
	virtual const FString& GetFriendlyName() const override { return Descriptor.FriendlyName.IsEmpty() ? Name : Descriptor.FriendlyName; }
	virtual const FString& GetDescriptorFileName() const override { return FileName; }
	virtual FString GetBaseDir() const override { return FPaths::GetPath(FileName); }
	virtual FString GetContentDir() const override { return GetBaseDir() / TEXT("Content"); }
	virtual bool CanContainContent() const override { return Descriptor.bCanContainContent; }
	virtual EPluginLoadedFrom GetLoadedFrom() const override { return EPluginLoadedFrom::Project; }
	virtual const FPluginDescriptor& GetDescriptor() const override { return Descriptor; }

	virtual bool IsEnabled() const override
	{
		const FProjectDescriptor* const Project = IProjectManager::Get().GetCurrentProject();
		const FPluginReferenceDescriptor* const Reference = Project
			? Project->Plugins.FindByPredicate([this](const FPluginReferenceDescriptor& Plugin)
				  { return Plugin.Name == Name; })
			: nullptr;
		return Reference ? Reference->bEnabled : Descriptor.EnabledByDefault != EPluginEnabledByDefault::Disabled;
	}

private:
	const FString FileName;
	const FString Name;
	const FPluginDescriptor Descriptor;
};

class FPluginManager final : public IPluginManager
{
public:
	virtual TSharedPtr<IPlugin> FindPlugin(const FStringView Name) override
	{
		const TArray<TSharedRef<IPlugin>>& Plugins = Discover();
		const TSharedRef<IPlugin>* const Found = Plugins.FindByPredicate([Name](const TSharedRef<IPlugin>& Plugin)
			{ return Name.Equals(Plugin->GetName(), ESearchCase::IgnoreCase); });
		return Found ? *Found : TSharedPtr<IPlugin>();
	}

	virtual TArray<TSharedRef<IPlugin>> GetEnabledPlugins() override
	{
		return Discover().FilterByPredicate([](const TSharedRef<IPlugin>& Plugin)
			{ return Plugin->IsEnabled(); });
	}

	virtual TArray<TSharedRef<IPlugin>> GetDiscoveredPlugins() override { return Discover(); }

	virtual bool RefreshPluginsList() override
	{
		SearchedDir.Reset();
		Discover();
		return true;
	}

private:
	const TArray<TSharedRef<IPlugin>>& Discover()
	{
		const FString PluginsDir = FPaths::ProjectPluginsDir();
		if (SearchedDir != PluginsDir)
		{
			Plugins.Reset();
			Search(PluginsDir, MaxDepth);
			SearchedDir = PluginsDir;
		}
		return Plugins;
	}

	/** A plug-in's own folders hold no further ones. */
	void Search(const FString& Folder, int32 Depth)
	{
		TArray<FString> Names;
		IFileManager::Get().FindFiles(Names, *(Folder / TEXT("*.uplugin")), true, false);
		if (!Names.IsEmpty())
		{
			Names.Sort();
			Load(Folder / Names[0]);
			return;
		}
		TArray<FString> Subfolders;
		if (Depth > 0)
		{
			IFileManager::Get().FindFiles(Subfolders, *(Folder / TEXT("*")), false, true);
		}
		Subfolders.Sort();
		for (const FString& Subfolder : Subfolders)
		{
			// A link may lead in a circle.
			if (FPlatformFileManager::Get().GetPlatformFile().IsSymlink(*(Folder / Subfolder)) != ESymlinkResult::Symlink)
			{
				Search(Folder / Subfolder, Depth - 1);
			}
		}
	}

	void Load(const FString& FileName)
	{
		FPluginDescriptor Descriptor;
		FText FailReason;
		if (!Descriptor.Load(FileName, &FailReason))
		{
			UE_LOG(LogPluginManager, Warning, TEXT("%s"), *FailReason.ToString());
			return;
		}
		Plugins.Add(MakeShared<FPlugin>(FileName, MoveTemp(Descriptor)));
	}

	TArray<TSharedRef<IPlugin>> Plugins;
	TOptional<FString> SearchedDir;
};
}

IPluginManager& IPluginManager::Get()
{
	static FPluginManager Manager;
	return Manager;
}

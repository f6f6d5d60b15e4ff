#include "AssetRegistry/IAssetRegistry.h"
#include "Engine/World.h"
#include "Interfaces/IPluginManager.h"
#include "Interfaces/IProjectManager.h"
#include "Misc/App.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/EngineVersion.h"
#include "Misc/Paths.h"
#include "PluginDescriptor.h"
#include "ProjectDescriptor.h"
#include "Tools/VexelAssetIndexSubsystem.h"
#include "Tools/VexelProjectFiles.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolJson.h"
#include "Tools/VexelToolSchema.h"

namespace
{
constexpr int32 MaxMaps = 200;
constexpr int32 MaxFiles = 500;
constexpr int32 MaxDescriptors = 500;

struct FGetProjectInput
{
	static const TVexelToolSchema<FGetProjectInput>& GetSchema()
	{
		static const TVexelToolSchema<FGetProjectInput> Schema;
		return Schema;
	}
};

void SetModules(FJsonObject& Object, const TArray<FModuleDescriptor>& Modules)
{
	VexelToolJson::SetList<FModuleDescriptor>(
		Object, TEXT("modules"), Modules, MaxDescriptors, [](const FModuleDescriptor& Module) -> TSharedRef<FJsonValue>
		{
			const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
			Row->SetStringField(TEXT("name"), Module.Name.ToString());
			Row->SetStringField(TEXT("type"), EHostType::ToString(Module.Type));
			Row->SetStringField(TEXT("loading_phase"), ELoadingPhase::ToString(Module.LoadingPhase));
			return MakeShared<FJsonValueObject>(Row); });
}

TSharedRef<FJsonObject> DescribePlugin(const FString& Name, bool bEnabled, bool bInProject)
{
	const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
	Row->SetStringField(TEXT("name"), Name);
	Row->SetBoolField(TEXT("enabled"), bEnabled);
	Row->SetBoolField(TEXT("in_project"), bInProject);
	return Row;
}

/** Those that the project switches, and those of its own that it does not mention. */
TArray<TSharedRef<FJsonObject>> DescribePlugins(const FProjectDescriptor& Project)
{
	TArray<TSharedRef<FJsonObject>> Rows;
	TSet<FString> Own;
	for (const TSharedRef<IPlugin>& Plugin : IPluginManager::Get().GetDiscoveredPlugins())
	{
		const FPluginDescriptor& Descriptor = Plugin->GetDescriptor();
		const TSharedRef<FJsonObject> Row = DescribePlugin(Plugin->GetName(), Plugin->IsEnabled(), true);
		VexelToolJson::SetStringUnlessEmpty(*Row, TEXT("version_name"), Descriptor.VersionName);
		VexelToolJson::SetStringUnlessEmpty(*Row, TEXT("description"), Descriptor.Description);
		SetModules(*Row, Descriptor.Modules);
		Rows.Add(Row);
		Own.Add(Plugin->GetName());
	}
	for (const FPluginReferenceDescriptor& Reference : Project.Plugins)
	{
		if (!Own.Contains(Reference.Name))
		{
			Rows.Add(DescribePlugin(Reference.Name, Reference.bEnabled, false));
		}
	}
	return Rows;
}

void SetMaps(FJsonObject& Object)
{
	TArray<FAssetData> Assets;
	IAssetRegistry::GetChecked().GetAssetsByClass(UWorld::StaticClass()->GetClassPathName(), Assets);
	TArray<FString> Maps;
	for (const FAssetData& Asset : Assets)
	{
		Maps.Add(Asset.GetObjectPathString());
	}
	VexelToolJson::SetStrings(Object, TEXT("maps"), Maps, MaxMaps);
}

void SetContent(FJsonObject& Object)
{
	TMap<FString, int32> NumOfClass;
	int32 Total = 0;
	for (const TPair<FTopLevelAssetPath, int32>& Pair : UVexelAssetIndexSubsystem::Get().GetNumOfClass())
	{
		NumOfClass.FindOrAdd(Pair.Key.GetAssetName().ToString()) += Pair.Value;
		Total += Pair.Value;
	}
	NumOfClass.KeySort(TLess<FString>());
	const TSharedRef<FJsonObject> ByClass = MakeShared<FJsonObject>();
	for (const TPair<FString, int32>& Pair : NumOfClass)
	{
		if (Pair.Value > 0)
		{
			ByClass->SetNumberField(Pair.Key, Pair.Value);
		}
	}
	const TSharedRef<FJsonObject> Content = MakeShared<FJsonObject>();
	Content->SetNumberField(TEXT("total"), Total);
	Content->SetObjectField(TEXT("by_class"), ByClass);
	Object.SetObjectField(TEXT("content"), Content);
}

void SetMapOf(FJsonObject& Object, const TCHAR* Name, const TCHAR* Key)
{
	FString Map;
	if (GConfig && GConfig->GetString(TEXT("/Script/EngineSettings.GameMapsSettings"), Key, Map, GEngineIni))
	{
		VexelToolJson::SetStringUnlessEmpty(Object, Name, Map);
	}
}
}

/** "get_project": what the open project is. */
class FVexelToolGetProject : public TVexelTool<FGetProjectInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FGetProjectInput& Input) const override
	{
		const FProjectDescriptor* const Project = IProjectManager::Get().GetCurrentProject();
		if (!Project)
		{
			return VEXEL_ERROR(FVexelError_ToolCallFailed, "No project is open");
		}
		const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
		Answer->SetStringField(TEXT("name"), FApp::GetProjectName());
		Answer->SetStringField(TEXT("file"), FPaths::GetCleanFilename(FPaths::GetProjectFilePath()));
		Answer->SetStringField(TEXT("engine_association"), Project->EngineAssociation);
		Answer->SetStringField(TEXT("engine_version"), FEngineVersion::Current().ToString(EVersionComponent::Minor));
		Answer->SetStringField(TEXT("category"), Project->Category);
		Answer->SetStringField(TEXT("description"), Project->Description);
		SetModules(*Answer, Project->Modules);
		VexelToolJson::SetList<TSharedRef<FJsonObject>>(*Answer, TEXT("plugins"), DescribePlugins(*Project), MaxDescriptors,
			[](const TSharedRef<FJsonObject>& Row) -> TSharedRef<FJsonValue>
			{ return MakeShared<FJsonValueObject>(Row); });
		TArray<FString> Platforms;
		for (const FName Platform : Project->TargetPlatforms)
		{
			Platforms.Add(Platform.ToString());
		}
		VexelToolJson::SetStrings(*Answer, TEXT("target_platforms"), Platforms, MaxDescriptors);
		SetMapOf(*Answer, TEXT("game_default_map"), TEXT("GameDefaultMap"));
		SetMapOf(*Answer, TEXT("editor_startup_map"), TEXT("EditorStartupMap"));
		const FVexelProjectFiles Files;
		VexelToolJson::SetStrings(*Answer, TEXT("config_files"), Files.List(TEXT("Config")), MaxFiles);
		VexelToolJson::SetStrings(*Answer, TEXT("source_files"), Files.List(TEXT("Source")), MaxFiles);
		SetMaps(*Answer);
		SetContent(*Answer);
		return Answer;
	}
};

VEXEL_DEFINE_TOOL(FVexelToolGetProject)

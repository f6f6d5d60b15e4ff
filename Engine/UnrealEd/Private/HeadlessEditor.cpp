#include "HeadlessEditor.h"

#include "Async/TaskGraphInterfaces.h"
#include "Containers/Ticker.h"
#include "Editor/EditorEngine.h"
#include "EditorLog.h"
#include "EditorWindow/EditorWindow.h"
#include "HAL/FileManager.h"
#include "HAL/PlatformTime.h"
#include "Interfaces/IProjectManager.h"
#include "Misc/App.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Modules/ModuleManager.h"
#include "OptionalModules.h"
#include "ProjectDescriptor.h"
#include "StandardMacros.h"
#include "UObject/ScriptHeaderLoader.h"
#include "UObject/UObjectGlobals.h"

DEFINE_LOG_CATEGORY_STATIC(LogHeadlessEditor, Log, All);

namespace
{
bool bIsRunning = false;
bool bStartedTaskGraph = false;

/** The project's file of a folder or file that the user named; empty, with the reason, when there is none. */
FString FindProjectFile(const FString& Project, FString& OutError)
{
	const FString Path = FPaths::ConvertRelativePathToFull(Project);
	if (FPaths::FileExists(Path))
	{
		if (FPaths::GetExtension(Path) != TEXT("uproject"))
		{
			OutError = FString::Printf(TEXT("'%s' is no project: its name does not end in .uproject"), *Project);
			return FString();
		}
		return Path;
	}
	if (!FPaths::DirectoryExists(Path))
	{
		OutError = FString::Printf(TEXT("There is no project '%s'"), *Project);
		return FString();
	}
	TArray<FString> Files;
	IFileManager::Get().FindFiles(Files, *(Path / TEXT("*.uproject")), true, false);
	if (Files.Num() != 1)
	{
		OutError = Files.Num() == 0 ? FString::Printf(TEXT("The folder '%s' has no .uproject file"), *Project)
									: FString::Printf(TEXT("The folder '%s' has more than one .uproject file; name one of them"), *Project);
		return FString();
	}
	return Path / Files[0];
}

void LoadScriptApi()
{
	const FString Directory = FPaths::EngineDir() / TEXT("ScriptApi");
	const UE::CoreUObject::FScriptHeaderReport Report = UE::CoreUObject::LoadScriptHeaders(Directory);
	for (const FString& Error : Report.Errors)
	{
		UE_LOG(LogHeadlessEditor, Error, TEXT("%s"), *Error);
	}
	UE_LOG(LogHeadlessEditor, Verbose, TEXT("%d script headers: %d classes, %d structs, %d enums, %d functions"), Report.NumHeaders,
		Report.NumClasses, Report.NumStructs, Report.NumEnums, Report.NumFunctions);
}

void CreateEditor()
{
	GEditor = NewObject<UEditorEngine>(GetTransientPackageAsObject(), TEXT("EditorEngine"), RF_Transient);
	GEditor->AddToRoot();
	GEngine = GEditor;
}
}

FString FHeadlessEditor::Start(const FHeadlessEditorOptions& Options)
{
	check(!bIsRunning);
	FString Error;
	const FString ProjectFile = FindProjectFile(Options.Project, Error);
	if (!Error.IsEmpty())
	{
		return Error;
	}
	if (!FPaths::DirectoryExists(Options.EngineDir))
	{
		return FString::Printf(TEXT("There is no engine folder '%s'"), *Options.EngineDir);
	}

	// Read here first for the reason of a failure, which the manager only logs.
	FText Reason;
	if (!FProjectDescriptor().Load(ProjectFile, Reason) || !IProjectManager::Get().LoadProjectFile(ProjectFile))
	{
		return Reason.ToString();
	}

	FPaths::SetEngineDir(Options.EngineDir);
	FPaths::SetProjectFilePath(ProjectFile);
	FPaths::SetProjectSavedDir(Options.SavedDir);
	FApp::SetProjectName(*FPaths::GetBaseFilename(ProjectFile));
	FConfigCacheIni::InitializeConfigSystem();
	EditorLog::Open();
	bStartedTaskGraph = !FTaskGraphInterface::IsRunning();
	if (bStartedTaskGraph)
	{
		FTaskGraphInterface::Startup();
	}
	FPackageName::RegisterMountPoint(TEXT("/Engine/"), FPaths::EngineContentDir());
	FPackageName::RegisterMountPoint(TEXT("/Game/"), FPaths::ProjectContentDir());
	LoadOptionalModules();
	// Before native classes get their default objects: after that a class takes no more properties.
	LoadScriptApi();
	ProcessNewlyLoadedUObjects();
	FStandardMacros::Create();
	CreateEditor();
	for (const FName Module : Options.Modules)
	{
		if (!FModuleManager::Get().LoadModule(Module))
		{
			UE_LOG(LogHeadlessEditor, Error, TEXT("The module %s is not linked into this program"), *Module.ToString());
		}
	}
	ProcessNewlyLoadedUObjects();
	GEditor->InitializeEditor();
	EditorWindow::Open();
	bIsRunning = true;
	return FString();
}

void FHeadlessEditor::Tick(float DeltaSeconds)
{
	FApp::UpdateLastTime();
	FApp::SetCurrentTime(FApp::GetCurrentTime() + DeltaSeconds);
	FApp::SetDeltaTime(DeltaSeconds);
	FTaskGraphInterface::Get().ProcessThreadUntilIdle(ENamedThreads::GameThread);
	FTSTicker::GetCoreTicker().Tick(DeltaSeconds);
	if (GEditor)
	{
		GEditor->Tick(DeltaSeconds, false);
	}
}

void FHeadlessEditor::WaitAndTick(float Seconds)
{
	const double Start = FPlatformTime::Seconds();
	FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::FromSeconds(Seconds));
	Tick(static_cast<float>(FPlatformTime::Seconds() - Start));
}

void FHeadlessEditor::Stop()
{
	if (!bIsRunning)
	{
		return;
	}
	bIsRunning = false;
	EditorWindow::Close();
	GEditor->ShutdownEditor();
	FModuleManager::Get().UnloadModulesAtShutdown();
	GEditor->RemoveFromRoot();
	GEditor->MarkAsGarbage();
	GEditor = nullptr;
	GEngine = nullptr;
	CollectGarbage(RF_NoFlags);
	FPackageName::UnRegisterMountPoint(TEXT("/Game/"), FPaths::ProjectContentDir());
	FPackageName::UnRegisterMountPoint(TEXT("/Engine/"), FPaths::EngineContentDir());
	if (bStartedTaskGraph)
	{
		FTaskGraphInterface::Shutdown();
	}
	EditorLog::Close();
	FConfigCacheIni::ShutdownConfigSystem();
}

bool FHeadlessEditor::IsRunning()
{
	return bIsRunning;
}

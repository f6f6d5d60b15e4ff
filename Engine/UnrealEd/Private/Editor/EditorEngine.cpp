#include "Editor/EditorEngine.h"

#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/Level.h"
#include "Engine/LevelScriptActor.h"
#include "Engine/LevelScriptBlueprint.h"
#include "Engine/World.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "LevelEditor/LevelViewport.h"
#include "Misc/ConfigCacheIni.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/UObjectGlobals.h"

UEditorEngine* GEditor = nullptr;

DEFINE_LOG_CATEGORY_STATIC(LogEditor, Log, All);

namespace
{
ULevelScriptBlueprint* MakeLevelScript(ULevel* Level, FName Name)
{
	UBlueprint* const Blueprint = FKismetEditorUtilities::CreateBlueprint(ALevelScriptActor::StaticClass(), Level, Name, BPTYPE_LevelScript,
		ULevelScriptBlueprint::StaticClass(), UBlueprintGeneratedClass::StaticClass());
	ULevelScriptBlueprint* const Script = CastChecked<ULevelScriptBlueprint>(Blueprint);
	// It lives as long as its level, and is no asset of its own.
	Script->ClearFlags(RF_Standalone);
	Script->FriendlyName = Name.ToString();
	return Script;
}

/** The package of the map that the project opens with; empty when it names none that exists. */
FString FindStartupMap()
{
	FConfigFile Config;
	Config.Combine(FPaths::ProjectDir() / TEXT("Config/DefaultEngine.ini"));
	const FConfigSection* const Maps = Config.FindSection(TEXT("/Script/EngineSettings.GameMapsSettings"));
	for (const TCHAR* const Key : {TEXT("EditorStartupMap"), TEXT("GameDefaultMap")})
	{
		const FString* const Map = Maps ? Maps->Find(Key) : nullptr;
		const FString Package = Map ? FPackageName::ObjectPathToPackageName(*Map) : FString();
		if (FPackageName::IsValidLongPackageName(Package) && FPackageName::DoesPackageExist(Package))
		{
			return Package;
		}
	}
	return FString();
}
}

void UEditorEngine::InitializeEditor()
{
	ULevel::MakeLevelScriptBlueprint.BindStatic(&MakeLevelScript);
	EditorContext = &CreateNewWorldContext(EWorldType::Editor);
	EditorContext->SetCurrentWorld(UWorld::CreateWorld(EWorldType::Editor, false));
	InitializeTransactions();
	EditorSubsystemCollection.Initialize(this);
}

void UEditorEngine::OpenStartupMap()
{
	bOpenedStartupMap = true;
	const FString Map = FindStartupMap();
	if (Map.IsEmpty())
	{
		return;
	}
	UWorld* const World = LoadObject<UWorld>(
		nullptr, *(Map + TEXT(".") + FPackageName::GetShortName(Map)), nullptr, LOAD_NoWarn | LOAD_Quiet);
	if (!World || !World->PersistentLevel)
	{
		UE_LOG(LogEditor, Warning, TEXT("The map %s cannot be opened"), *Map);
		return;
	}
	ResetTransaction(NSLOCTEXT("UnrealEd", "LoadMap", "Load Map"));
	EditorContext->World()->DestroyWorld(false);
	World->WorldType = EWorldType::Editor;
	EditorContext->SetCurrentWorld(World);
}

void UEditorEngine::ShutdownEditor()
{
	ULevel::MakeLevelScriptBlueprint.Unbind();
	EditorSubsystemCollection.Deinitialize();
	ShutdownTransactions();
	if (EditorContext && EditorContext->World())
	{
		EditorContext->World()->DestroyWorld(false);
		EditorContext->SetCurrentWorld(nullptr);
	}
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool bEnsureIsGWorld)
{
	check(EditorContext);
	if (!bOpenedStartupMap)
	{
		OpenStartupMap();
	}
	return *EditorContext;
}

FViewport* UEditorEngine::GetActiveViewport()
{
	return &FLevelViewport::Get();
}

void UEditorEngine::Tick(float DeltaSeconds, bool bIdleMode)
{
	Super::Tick(DeltaSeconds, bIdleMode);
	TimerManager->Tick(DeltaSeconds);
}

#include "Chat/VexelEditorContext.h"

#include "Dom/JsonObject.h"
#include "Editor.h"
#include "Engine/World.h"
#include "Framework/Application/SlateApplication.h"
#include "Misc/App.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "Widgets/SWindow.h"

namespace
{
/** A service reads no more of them. Who has as many open works on none of the last ones. */
constexpr int32 MaxOpenAssets = 1000;

FString FindWindowTitle()
{
	if (FSlateApplication::IsInitialized())
	{
		if (const TSharedPtr<SWindow> Window = FSlateApplication::Get().GetActiveTopLevelWindow())
		{
			return Window->GetTitle().ToString();
		}
	}
	// A host without windows.
	return FApp::GetProjectName();
}
}

FVexelEditorContext FVexelEditorContext::Capture()
{
	FVexelEditorContext Context;
	Context.EditorWindowName = FindWindowTitle();
	if (!GEditor)
	{
		return Context;
	}
	if (const UWorld* const World = GEditor->GetEditorWorldContext().World())
	{
		Context.CurrentWorld = World->GetPathName();
	}
	if (UAssetEditorSubsystem* const AssetEditors = GEditor->GetEditorSubsystem<UAssetEditorSubsystem>())
	{
		for (const UObject* const Asset : AssetEditors->GetAllEditedAssets())
		{
			if (Context.OpenAssets.Num() < MaxOpenAssets)
			{
				Context.OpenAssets.Add(Asset->GetPathName());
			}
		}
	}
	return Context;
}

TSharedRef<FJsonObject> FVexelEditorContext::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("editor_window_name"), EditorWindowName);
	Object->SetStringField(TEXT("current_world"), CurrentWorld);
	TArray<TSharedPtr<FJsonValue>> Assets;
	for (const FString& Asset : OpenAssets)
	{
		Assets.Add(MakeShared<FJsonValueString>(Asset));
	}
	Object->SetArrayField(TEXT("open_assets"), Assets);
	return Object;
}

#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelChatConversation.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumContext.h"

#include "EdGraph/EdGraph.h"
#include "Editor.h"
#include "Engine/Blueprint.h"
#include "Subsystems/AssetEditorSubsystem.h"

FVexelBlueprintRequestHelper::FVexelBlueprintRequestHelper(UBlueprint& InBlueprint, const TSharedRef<FVexelBlueprintMapping>& InMapping)
	: Blueprint(&InBlueprint)
	, Mapping(InMapping)
{
}

TVexelExpected<TSharedRef<FVexelBlueprintMapping>> FVexelBlueprintRequestHelper::FindMapping(
	const FVexelToolContext& Context, const TCHAR* TextOfNone)
{
	if (!Context.Conversation)
	{
		return FVexelError_ToolCallFailed(VEXEL_HERE, FString(TextOfNone));
	}
	return Context.Conversation->GetMapping();
}

TVexelExpected<FVexelBlueprintRequestHelper> FVexelBlueprintRequestHelper::Find(
	const TSharedRef<FVexelBlueprintMapping>& Mapping, const FString& BlueprintId)
{
	UBlueprint* Blueprint = nullptr;
	if (!Mapping->ResolveBlueprint(TVexelBlueprintId(BlueprintId), Blueprint))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Blueprint not found: %s", *BlueprintId);
	}
	return FVexelBlueprintRequestHelper(*Blueprint, Mapping);
}

TArray<UBlueprint*> FVexelBlueprintRequestHelper::GetOpenedBlueprints()
{
	TArray<UBlueprint*> Opened;
	UAssetEditorSubsystem* const AssetEditors = GEditor ? GEditor->GetEditorSubsystem<UAssetEditorSubsystem>() : nullptr;
	for (UObject* const Asset : AssetEditors ? AssetEditors->GetAllEditedAssets() : TArray<UObject*>())
	{
		if (UBlueprint* const Blueprint = Cast<UBlueprint>(Asset))
		{
			Opened.Add(Blueprint);
		}
	}
	return Opened;
}

UEdGraph* FVexelBlueprintRequestHelper::FindGraph(const FString& GraphId) const
{
	UEdGraph* Graph = nullptr;
	Mapping->ResolveGraphInBlueprint(TVexelGraphId(GraphId), *Blueprint, Graph);
	return Graph;
}

TVexelExpected<TSharedRef<FJsonObject>> FVexelBlueprintRequestHelper::Export() const
{
	const FLumContext Context(Mapping);
	TVexelExpected<TSharedRef<FJsonObject>> Exported = MakeShared<FLumBlueprintCompound>(*Blueprint)->JsonExportObject(Context);
	if (Exported.HasError())
	{
		return MakeToolError(MoveTemp(Exported).GetError(), TEXT("while exporting blueprint to JSON"));
	}
	return Exported;
}

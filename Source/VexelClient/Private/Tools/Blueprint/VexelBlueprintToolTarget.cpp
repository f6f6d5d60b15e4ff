#include "Tools/Blueprint/VexelBlueprintToolTarget.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelChatConversation.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumContext.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"

FVexelBlueprintToolTarget::FVexelBlueprintToolTarget(UBlueprint& InBlueprint, const TSharedRef<FVexelBlueprintMapping>& InMapping)
	: Blueprint(&InBlueprint)
	, Mapping(InMapping)
{
}

TVexelExpected<TSharedRef<FVexelBlueprintMapping>> FVexelBlueprintToolTarget::FindMapping(
	const FVexelToolContext& Context, const TCHAR* TextOfNone)
{
	if (!Context.Conversation)
	{
		return FVexelError_ToolCallFailed(VEXEL_HERE, FString(TextOfNone));
	}
	return Context.Conversation->GetMapping();
}

TVexelExpected<FVexelBlueprintToolTarget> FVexelBlueprintToolTarget::Find(
	const TSharedRef<FVexelBlueprintMapping>& Mapping, const FString& BlueprintId)
{
	UBlueprint* Blueprint = nullptr;
	if (!Mapping->ResolveBlueprint(TVexelBlueprintId(BlueprintId), Blueprint))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Blueprint not found: %s", *BlueprintId);
	}
	return FVexelBlueprintToolTarget(*Blueprint, Mapping);
}

UEdGraph* FVexelBlueprintToolTarget::FindGraph(const FString& GraphId) const
{
	UEdGraph* Graph = nullptr;
	Mapping->ResolveGraphInBlueprint(TVexelGraphId(GraphId), *Blueprint, Graph);
	return Graph;
}

TVexelExpected<TSharedRef<FJsonObject>> FVexelBlueprintToolTarget::Export() const
{
	const FLumContext Context(Mapping);
	TVexelExpected<TSharedRef<FJsonObject>> Exported = MakeShared<FLumBlueprintCompound>(*Blueprint)->JsonExportObject(Context);
	if (Exported.HasError())
	{
		return MakeToolError(MoveTemp(Exported).GetError(), TEXT("while exporting blueprint to JSON"));
	}
	return Exported;
}

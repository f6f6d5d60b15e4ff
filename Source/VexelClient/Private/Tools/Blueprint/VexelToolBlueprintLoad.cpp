#include "Tools/Blueprint/VexelToolBlueprintLoad.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelChatConversation.h"
#include "Engine/Blueprint.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumContext.h"

namespace
{
TVexelExpected<TSharedRef<FJsonObject>> ReadBlueprint(const TSharedRef<FVexelBlueprintMapping>& Mapping, const FVexelToolInput& Input)
{
	VEXEL_TRY(const FString Path, Input.GetString(TEXT("blueprint")));
	UBlueprint* Blueprint = nullptr;
	if (!Mapping->ResolveBlueprint(TVexelBlueprintId(Path), Blueprint))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Blueprint not found: `%s`", *Path);
	}
	const FLumContext LumContext(Mapping);
	return MakeShared<FLumBlueprintCompound>(*Blueprint)->JsonExportObject(LumContext);
}
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolBlueprintLoad::Call(
	const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	// Outside a conversation nothing remembers node names, so a mapping for this call alone serves.
	const TSharedRef<FVexelBlueprintMapping> Mapping =
		Context.Conversation ? Context.Conversation->GetMapping() : MakeShared<FVexelBlueprintMapping>();
	TVexelExpected<TSharedRef<FJsonObject>> Export = ReadBlueprint(Mapping, Input);
	if (Export.HasError() && !Export.GetError().IsA<FVexelError_ToolInvalidInput>())
	{
		return VEXEL_ERROR_CAUSED(FVexelError_ToolCallFailed, Export.GetError(), "while exporting blueprint to JSON");
	}
	return Export;
}

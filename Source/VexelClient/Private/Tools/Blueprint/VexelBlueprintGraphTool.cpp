#include "Tools/Blueprint/VexelBlueprintGraphTool.h"

const TVexelToolSchema<FParsedAddRemoveGraphInput>& FParsedAddRemoveGraphInput::GetSchema()
{
	static const TVexelToolSchema<FParsedAddRemoveGraphInput> Schema =
		TVexelToolSchema<FParsedAddRemoveGraphInput>()
			.Required(TEXT("blueprint"), &FParsedAddRemoveGraphInput::Blueprint, {.Complaint = TEXT("Missing `blueprint`")})
			.Required(TEXT("graph"), &FParsedAddRemoveGraphInput::Graph, {.Complaint = TEXT("Missing `graph`")});
	return Schema;
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelBlueprintGraphTool::Run(
	const FVexelToolContext& Context, const FParsedAddRemoveGraphInput& Input) const
{
	return EditAndExport(Context, Input);
}

TVexelExpected<TSharedRef<FJsonObject>> FVexelBlueprintGraphTool::EditAndExport(
	const FVexelToolContext& Context, const FParsedAddRemoveGraphInput& Input) const
{
	VEXEL_TRY(const TSharedRef<FVexelBlueprintMapping> Mapping,
		FVexelBlueprintRequestHelper::FindMapping(Context, TEXT("Conversation not found.")));
	VEXEL_TRY(const FVexelBlueprintRequestHelper Target, FVexelBlueprintRequestHelper::Find(Mapping, Input.Blueprint));
	VEXEL_TRY_VOID(EditGraph(Target, Input.Graph));
	VEXEL_TRY(const TSharedRef<FJsonObject> Exported, Target.Export());
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetObjectField(TEXT("blueprint"), Exported);
	return Answer;
}

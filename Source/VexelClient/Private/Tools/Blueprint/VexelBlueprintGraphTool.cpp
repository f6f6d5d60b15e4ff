#include "Tools/Blueprint/VexelBlueprintGraphTool.h"

TVexelExpected<FParsedAddRemoveGraphInput> FParsedAddRemoveGraphInput::Parse(const FVexelToolInput& Input)
{
	VEXEL_TRY(FString BlueprintId, Input.GetString(TEXT("blueprint")));
	VEXEL_TRY(FString GraphId, Input.GetString(TEXT("graph")));
	return FParsedAddRemoveGraphInput{MoveTemp(BlueprintId), MoveTemp(GraphId)};
}

TVexelExpected<TSharedRef<FJsonObject>> FParsedAddRemoveGraphInput::Run(const FVexelToolContext& Context, FApply Apply) const
{
	VEXEL_TRY(const TSharedRef<FVexelBlueprintMapping> Mapping,
		FVexelBlueprintToolTarget::FindMapping(Context, TEXT("Conversation not found.")));
	VEXEL_TRY(const FVexelBlueprintToolTarget Target, FVexelBlueprintToolTarget::Find(Mapping, Blueprint));
	VEXEL_TRY_VOID(Apply(Target));
	VEXEL_TRY(const TSharedRef<FJsonObject> Exported, Target.Export());
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetObjectField(TEXT("blueprint"), Exported);
	return Answer;
}

#include "Tools/Blueprint/VexelBlueprintNodeTool.h"

#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintToolTarget.h"

TVexelExpected<FVexelNodeToolInput> FVexelNodeToolInput::Parse(const FVexelToolInput& Input)
{
	VEXEL_TRY(FString BlueprintId, Input.GetString(TEXT("blueprint")));
	VEXEL_TRY(FString GraphId, Input.GetString(TEXT("graph")));
	return FVexelNodeToolInput{TVexelBlueprintId(MoveTemp(BlueprintId)), TVexelGraphId(MoveTemp(GraphId))};
}

TVexelExpected<TSharedRef<FJsonObject>> FVexelNodeToolInput::Run(
	const FVexelToolContext& Context, const TCHAR* GraphMissing, FApply Apply) const
{
	VEXEL_TRY(const TSharedRef<FVexelBlueprintMapping> Mapping,
		FVexelBlueprintToolTarget::FindMapping(Context, TEXT("Failed to find the conversation.")));
	VEXEL_TRY(const FVexelBlueprintToolTarget Target, FVexelBlueprintToolTarget::Find(Mapping, Blueprint.ToString()));
	if (!Target.FindGraph(Graph.ToString()))
	{
		return FVexelError_ToolInvalidInput(VEXEL_HERE, FString(GraphMissing).Replace(TEXT("%s"), *Graph, ESearchCase::CaseSensitive));
	}
	FErrors Errors;
	{
		const FVexelBlueprintManipulator Manipulator(Target.GetBlueprint(), *Mapping);
		const FVexelBlueprintManipulator::FBatch Batch(Manipulator);
		Apply(Manipulator, Errors);
	}
	VEXEL_TRY(const TSharedRef<FJsonObject> Exported, Target.Export());
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetObjectField(TEXT("blueprint"), Exported);
	TArray<TSharedPtr<FJsonValue>> ErrorValues;
	for (const FString& Error : Errors)
	{
		ErrorValues.Add(MakeShared<FJsonValueString>(Error));
	}
	Answer->SetArrayField(TEXT("errors"), MoveTemp(ErrorValues));
	return Answer;
}

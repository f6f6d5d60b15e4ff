#include "Tools/Blueprint/VexelBlueprintNodeTool.h"

#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintRequestHelper.h"

TVexelExpected<TSharedRef<FJsonObject>> VexelBlueprintNodeTool::Run(const FVexelToolContext& Context, const FString& BlueprintId,
	const FString& GraphId, const TCHAR* GraphMissing, FApply Apply)
{
	VEXEL_TRY(const TSharedRef<FVexelBlueprintMapping> Mapping,
		FVexelBlueprintRequestHelper::FindMapping(Context, TEXT("Failed to find the conversation.")));
	VEXEL_TRY(const FVexelBlueprintRequestHelper Target, FVexelBlueprintRequestHelper::Find(Mapping, BlueprintId));
	if (!Target.FindGraph(GraphId))
	{
		return FVexelError_ToolInvalidInput(VEXEL_HERE, FString(GraphMissing).Replace(TEXT("%s"), *GraphId, ESearchCase::CaseSensitive));
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

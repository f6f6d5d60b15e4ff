#include "Engine/TimelineTemplate.h"

namespace
{
const TCHAR* const TemplateSuffix = TEXT("_Template");
}

FString UTimelineTemplate::TimelineVariableNameToTemplateName(FName Name)
{
	return Name.ToString() + TemplateSuffix;
}

void UTimelineTemplate::UpdateCachedNames()
{
	FString TimelineName = GetName();
	TimelineName.RemoveFromEnd(TemplateSuffix, ESearchCase::CaseSensitive);
	VariableName = FName(*TimelineName);
	DirectionPropertyName = FName(*FString::Printf(TEXT("%s__Direction_%s"), *TimelineName, *TimelineGuid.ToString()));
	UpdateFunctionName = FName(*FString::Printf(TEXT("%s__UpdateFunc"), *TimelineName));
	FinishedFunctionName = FName(*FString::Printf(TEXT("%s__FinishedFunc"), *TimelineName));
}

void UTimelineTemplate::PostLoad()
{
	Super::PostLoad();
	if (VariableName.IsNone())
	{
		UpdateCachedNames();
	}
}

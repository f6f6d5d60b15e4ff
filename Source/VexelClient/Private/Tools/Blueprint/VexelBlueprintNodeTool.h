#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "Tools/VexelTool.h"

class FVexelBlueprintManipulator;

/** What all tools that edit the nodes of one graph have in common. */
namespace VexelBlueprintNodeTool
{
/** Takes what an edit that fails has to say; the edits after it are still made. */
using FErrors = TArray<FString>;
using FApply = TFunctionRef<void(const FVexelBlueprintManipulator& Manipulator, FErrors& OutErrors)>;

/**
 * Finds the Blueprint and the graph in the conversation's ids, has the edits made and answers the Blueprint as it is then, with an array
 * of the errors. GraphMissing is the text, with "%s" for the id, where there is no such graph.
 */
TVexelExpected<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FString& BlueprintId, const FString& GraphId,
	const TCHAR* GraphMissing, FApply Apply);
}

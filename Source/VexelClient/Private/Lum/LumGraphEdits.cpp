#include "Lum/LumHelper.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "ScopedTransaction.h"

TVexelExpected<UEdGraph*> FLumHelper::AddGraphToBlueprint(UBlueprint& Blueprint, const FString& Name, EGraphType Type)
{
	if (Type != GT_Function)
	{
		return VEXEL_ERROR(FLumError_Write, "Only function graphs are supported");
	}
	const EValidatorResult Validity = FKismetNameValidator(&Blueprint).IsValid(Name);
	if (Validity != EValidatorResult::Ok)
	{
		return VEXEL_ERROR(
			FLumError_Write, "Failed to create graph '%s': %s", *Name, *INameValidatorInterface::GetErrorString(Name, Validity));
	}
	FScopedTransaction Transaction(INVTEXT("(Vexel) Add Function Graph"));
	Blueprint.Modify();
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(&Blueprint, FName(*Name), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	if (!Graph)
	{
		Transaction.Cancel();
		return VEXEL_ERROR(FLumError_Write, "Failed to create graph '%s'", *Name);
	}
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(&Blueprint, Graph, true, nullptr);
	return Graph;
}

TVexelExpected<void> FLumHelper::RemoveGraphFromBlueprint(UEdGraph& Graph)
{
	UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	if (!Blueprint)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph does not belong to a valid blueprint");
	}
	if (!Graph.bAllowDeletion)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph '%s' cannot be removed: the blueprint needs it", *Graph.GetName());
	}
	const FScopedTransaction Transaction(INVTEXT("(Vexel) Remove Function Graph"));
	Blueprint->Modify();
	FBlueprintEditorUtils::RemoveGraph(Blueprint, &Graph, EGraphRemoveFlags::Recompile);
	return {};
}

#include "Lum/LumHelper.h"

#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariableRules.h"

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

TVexelExpected<void> FLumHelper::RenameGraph(UEdGraph& Graph, const FString& NewName)
{
	UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	if (!Blueprint)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph does not belong to a valid blueprint");
	}
	const FString OldName = Graph.GetName();
	if (OldName.Equals(NewName, ESearchCase::CaseSensitive))
	{
		return {};
	}
	if (!Graph.bAllowRenaming)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph '%s' cannot be renamed: the blueprint needs its name", *OldName);
	}
	VEXEL_TRY_VOID(LumVariableRules::CheckMemberName(*Blueprint, NewName, Graph.GetFName()), "while renaming graph '%s' to '%s'", *OldName, *NewName);
	FLumEditBatch::BringUpToDate(*Blueprint);
	FLumStructureEdit Edit(INVTEXT("(Vexel) Rename Graph"), *Blueprint, ELumSkeleton::AtOnce);
	Edit.LetEngineMark();
	FBlueprintEditorUtils::RenameGraph(&Graph, NewName);
	if (Graph.GetName() != NewName)
	{
		Edit.Cancel();
		return VEXEL_ERROR(FLumError_Write, "Failed to rename graph '%s' to '%s'", *OldName, *NewName);
	}
	return {};
}

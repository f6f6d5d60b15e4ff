#include "Lum/LumHelper.h"

#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariableRules.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_CustomEvent.h"
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

namespace
{
TVexelExpected<UBlueprint*> CheckNewName(const UObject& Named, const FString& OldName, const FString& NewName)
{
	UBlueprint* const Blueprint = Named.GetTypedOuter<UBlueprint>();
	if (!Blueprint)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph does not belong to a valid blueprint");
	}
	const TVexelExpected<void> Checked = LumVariableRules::CheckMemberName(*Blueprint, NewName, FName(*OldName));
	if (Checked.HasError())
	{
		return VEXEL_ERROR(FLumError_Write, "Failed to rename '%s' to '%s': %s", *OldName, *NewName, *Checked.GetError().GetMessage());
	}
	return Blueprint;
}
}

TVexelExpected<void> FLumHelper::RenameGraph(UEdGraph& Graph, const FString& NewName)
{
	const EGraphType Type = FBlueprintEditorUtils::GetGraphType(&Graph);
	if (Type != GT_Function && Type != GT_Macro)
	{
		return VEXEL_ERROR(FLumError_Write, "Editable name is only supported for function/macro graphs");
	}
	const FString OldName = Graph.GetName();
	if (OldName.Equals(NewName, ESearchCase::CaseSensitive))
	{
		return {};
	}
	if (!Graph.bAllowRenaming)
	{
		return VEXEL_ERROR(FLumError_Write, "Failed to rename '%s' to '%s': what the graph overrides gives it its name", *OldName, *NewName);
	}
	VEXEL_TRY(UBlueprint* const Blueprint, CheckNewName(Graph, OldName, NewName));
	FLumEditBatch::BringUpToDate(*Blueprint);
	FLumStructureEdit Edit(INVTEXT("(Vexel) Rename Graph"), *Blueprint, ELumSkeleton::AtOnce);
	Edit.LetEngineMark();
	FBlueprintEditorUtils::RenameGraph(&Graph, NewName);
	if (Graph.GetName() != NewName)
	{
		Edit.Cancel();
		return VEXEL_ERROR(FLumError_Write, "Failed to rename '%s' to '%s'", *OldName, *NewName);
	}
	return {};
}

TVexelExpected<void> FLumHelper::RenameNode(UEdGraphNode& Node, const FString& NewName)
{
	UK2Node_CustomEvent* const Event = Cast<UK2Node_CustomEvent>(&Node);
	if (!Event)
	{
		return VEXEL_ERROR(FLumError_Write, "Editable name is only supported for Custom Event nodes");
	}
	const FString OldName = Event->CustomFunctionName.ToString();
	if (OldName.Equals(NewName, ESearchCase::CaseSensitive))
	{
		return {};
	}
	if (Event->IsOverride())
	{
		return VEXEL_ERROR(FLumError_Write, "Failed to rename '%s' to '%s': what the event overrides gives it its name", *OldName, *NewName);
	}
	VEXEL_TRY(UBlueprint* const Blueprint, CheckNewName(Node, OldName, NewName));
	FLumEditBatch::BringUpToDate(*Blueprint);
	FLumStructureEdit Edit(INVTEXT("(Vexel) Rename Event"), *Blueprint, ELumSkeleton::AtOnce);
	Event->OnRenameNode(NewName);
	if (!Event->CustomFunctionName.ToString().Equals(NewName, ESearchCase::CaseSensitive))
	{
		Edit.Cancel();
		return VEXEL_ERROR(FLumError_Write, "Failed to rename '%s' to '%s'", *OldName, *NewName);
	}
	return {};
}

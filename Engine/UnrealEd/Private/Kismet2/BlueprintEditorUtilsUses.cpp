#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_BaseMCDelegate.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_Variable.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "MemberUses.h"
#include "UObject/UnrealType.h"

void FBlueprintEditorUtils::RemoveVariableNodes(
	UBlueprint* Blueprint, const FName& VarName, bool const bForSelfOnly, UEdGraph* LocalGraphScope)
{
	TArray<FMemberUse> Uses = LocalGraphScope ? FMemberUses::FindOfLocalVariable(*Blueprint, LocalGraphScope->GetName(), VarName)
											  : FMemberUses::FindOfVariable(*Blueprint, VarName);
	for (const FMemberUse& Use : Uses)
	{
		const bool bIsSelf = Use.Reference->IsSelfContext() || LocalGraphScope;
		if (Use.Node->GetBlueprint() == Blueprint && (bIsSelf || !bForSelfOnly))
		{
			RemoveNode(Blueprint, Use.Node, true);
		}
	}
}

void FBlueprintEditorUtils::ReplaceVariableReferences(UBlueprint* Blueprint, const FName OldName, const FName NewName)
{
	FMemberUses::Rename(FMemberUses::FindOfVariable(*Blueprint, OldName), OldName, NewName);
}

void FBlueprintEditorUtils::ReplaceFunctionReferences(UBlueprint* Blueprint, const FName OldName, const FName NewName)
{
	FMemberUses::Rename(FMemberUses::FindOfFunction(*Blueprint, OldName), OldName, NewName);
}

bool FBlueprintEditorUtils::IsVariableUsed(const UBlueprint* Blueprint, const FName& VariableName, const UEdGraph* LocalGraphScope)
{
	const TArray<FMemberUse> Uses = LocalGraphScope ? FMemberUses::FindOfLocalVariable(*Blueprint, LocalGraphScope->GetName(), VariableName)
													: FMemberUses::FindOfVariable(*Blueprint, VariableName);
	return Uses.ContainsByPredicate([Blueprint](const FMemberUse& Use)
		{ return Use.Node->GetBlueprint() == Blueprint; });
}

void FBlueprintEditorUtils::GetUsedAndUnusedVariables(
	UBlueprint* Blueprint, TArray<FProperty*>& OutUsedVariables, TArray<FProperty*>& OutUnusedVariables)
{
	// One walk over the nodes for all variables.
	const TSet<FName> Used = FMemberUses::FindVariablesUsedIn(*Blueprint);
	for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
	{
		FProperty* const Property = Blueprint->SkeletonGeneratedClass
			? FindFProperty<FProperty>(Blueprint->SkeletonGeneratedClass.Get(), Variable.VarName)
			: nullptr;
		if (Property)
		{
			(Used.Contains(Variable.VarName) ? OutUsedVariables : OutUnusedVariables).Add(Property);
		}
	}
}

FName FBlueprintEditorUtils::FindUniqueTimelineName(const UBlueprint* Blueprint)
{
	return FindUniqueKismetName(Blueprint, TEXT("Timeline"));
}

FName FBlueprintEditorUtils::FindUniqueCustomEventName(const UBlueprint* Blueprint)
{
	return FindUniqueKismetName(Blueprint, TEXT("CustomEvent"));
}

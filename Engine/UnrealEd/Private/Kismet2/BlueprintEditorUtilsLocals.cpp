#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "MemberUses.h"

namespace
{
FBPVariableDescription* FindIn(UK2Node_FunctionEntry* Entry, FName Name)
{
	return Entry
		? Entry->LocalVariables.FindByPredicate([Name](const FBPVariableDescription& Variable)
			  { return Variable.VarName == Name; })
		: nullptr;
}

UFunction* FindFunctionOf(const UBlueprint& Blueprint, const UEdGraph& Graph)
{
	return Blueprint.SkeletonGeneratedClass
		? Blueprint.SkeletonGeneratedClass->FindFunctionByName(Graph.GetFName(), EIncludeSuperFlag::ExcludeSuper)
		: nullptr;
}

bool IsNameTaken(const UBlueprint& Blueprint, UEdGraph& Graph, const UK2Node_FunctionEntry& Entry, FName Name)
{
	return Name.IsNone() || FindIn(const_cast<UK2Node_FunctionEntry*>(&Entry), Name) || Entry.FindPin(Name) ||
		FKismetNameValidator(&Blueprint, NAME_None, FindFunctionOf(Blueprint, Graph)).IsValid(Name) == EValidatorResult::LocallyInUse;
}
}

UEdGraph* FBlueprintEditorUtils::FindScopeGraph(const UBlueprint* InBlueprint, const UStruct* InScope)
{
	TArray<UEdGraph*> Graphs;
	InBlueprint->GetAllGraphs(Graphs);
	UEdGraph* const* const Found =
		Graphs.FindByPredicate([InScope](const UEdGraph* Graph)
			{ return InScope && Graph->GetFName() == InScope->GetFName(); });
	return Found ? *Found : nullptr;
}

bool FBlueprintEditorUtils::DoesSupportLocalVariables(const UEdGraph* InGraph)
{
	const UBlueprint* const Blueprint = FindBlueprintForGraph(InGraph);
	const UEdGraph* const Top = InGraph ? GetTopLevelGraph(InGraph) : nullptr;
	return Blueprint && Blueprint->SupportsLocalVariables() && GetGraphType(Top) == GT_Function && !IsDelegateSignatureGraph(Top) &&
		GetEntryNode(Top);
}

FBPVariableDescription* FBlueprintEditorUtils::FindLocalVariable(
	const UBlueprint* InBlueprint, const UEdGraph* InScopeGraph, const FName InVariableName, UK2Node_FunctionEntry** OutFunctionEntry)
{
	UK2Node_FunctionEntry* const Entry = InScopeGraph ? Cast<UK2Node_FunctionEntry>(GetEntryNode(GetTopLevelGraph(InScopeGraph))) : nullptr;
	FBPVariableDescription* const Variable = FindIn(Entry, InVariableName);
	if (OutFunctionEntry && Variable)
	{
		*OutFunctionEntry = Entry;
	}
	return Variable;
}

FBPVariableDescription* FBlueprintEditorUtils::FindLocalVariable(
	UBlueprint* InBlueprint, const UStruct* InScope, const FName InVariableName, UK2Node_FunctionEntry** OutFunctionEntry)
{
	return FindLocalVariable(InBlueprint, FindScopeGraph(InBlueprint, InScope), InVariableName, OutFunctionEntry);
}

bool FBlueprintEditorUtils::AddLocalVariable(UBlueprint* Blueprint, UEdGraph* InTargetGraph, const FName InNewVarName,
	const FEdGraphPinType& InNewVarType, const FString& DefaultValue)
{
	if (!DoesSupportLocalVariables(InTargetGraph))
	{
		return false;
	}
	UEdGraph* const Top = GetTopLevelGraph(InTargetGraph);
	UK2Node_FunctionEntry* const Entry = Cast<UK2Node_FunctionEntry>(GetEntryNode(Top));
	if (!Entry || IsNameTaken(*Blueprint, *Top, *Entry, InNewVarName))
	{
		return false;
	}
	Entry->Modify();
	FBPVariableDescription Variable;
	Variable.VarName = InNewVarName;
	Variable.VarGuid = FGuid::NewGuid();
	Variable.VarType = InNewVarType;
	Variable.PropertyFlags |= CPF_BlueprintVisible;
	Variable.FriendlyName = FName::NameToDisplayString(InNewVarName.ToString(), InNewVarType.PinCategory == UEdGraphSchema_K2::PC_Boolean);
	Variable.Category = UEdGraphSchema_K2::VR_DefaultCategory;
	Variable.DefaultValue = DefaultValue;
	Entry->LocalVariables.Add(Variable);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

void FBlueprintEditorUtils::RemoveLocalVariable(UBlueprint* InBlueprint, const UStruct* InScope, const FName InVarName)
{
	UK2Node_FunctionEntry* Entry = nullptr;
	if (!FindLocalVariable(InBlueprint, InScope, InVarName, &Entry))
	{
		return;
	}
	Entry->Modify();
	Entry->LocalVariables.RemoveAll([InVarName](const FBPVariableDescription& Variable)
		{ return Variable.VarName == InVarName; });
	RemoveVariableNodes(InBlueprint, InVarName, true, Entry->GetGraph());
	MarkBlueprintAsStructurallyModified(InBlueprint);
}

void FBlueprintEditorUtils::RenameLocalVariable(
	UBlueprint* InBlueprint, const UStruct* InScope, const FName InOldName, const FName InNewName)
{
	UK2Node_FunctionEntry* Entry = nullptr;
	FBPVariableDescription* const Variable = FindLocalVariable(InBlueprint, InScope, InOldName, &Entry);
	if (!Variable || (InOldName != InNewName && IsNameTaken(*InBlueprint, *Entry->GetGraph(), *Entry, InNewName)))
	{
		return;
	}
	const TArray<FMemberUse> Uses = FMemberUses::FindOfLocalVariable(*InBlueprint, Entry->GetGraph()->GetName(), InOldName);
	Entry->Modify();
	Variable->VarName = InNewName;
	Variable->FriendlyName =
		FName::NameToDisplayString(InNewName.ToString(), Variable->VarType.PinCategory == UEdGraphSchema_K2::PC_Boolean);
	FMemberUses::Rename(Uses, InOldName, InNewName);
	MarkBlueprintAsStructurallyModified(InBlueprint);
}

void FBlueprintEditorUtils::ChangeLocalVariableType(
	UBlueprint* InBlueprint, const UStruct* InScope, const FName InVariableName, const FEdGraphPinType& InNewPinType)
{
	UK2Node_FunctionEntry* Entry = nullptr;
	FBPVariableDescription* const Variable = FindLocalVariable(InBlueprint, InScope, InVariableName, &Entry);
	if (!Variable || Variable->VarType == InNewPinType)
	{
		return;
	}
	Entry->Modify();
	Variable->VarType = InNewPinType;
	Variable->DefaultValue.Empty();
	MarkBlueprintAsStructurallyModified(InBlueprint);
	FMemberUses::Reconstruct(FMemberUses::FindOfLocalVariable(*InBlueprint, Entry->GetGraph()->GetName(), InVariableName));
}

FName FBlueprintEditorUtils::FindLocalVariableNameByGuid(UBlueprint* InBlueprint, const FGuid& InVariableGuid)
{
	TArray<UK2Node_FunctionEntry*> Entries;
	GetAllNodesOfClass(InBlueprint, Entries);
	for (const UK2Node_FunctionEntry* const Entry : Entries)
	{
		const FBPVariableDescription* const Variable = Entry->LocalVariables.FindByPredicate(
			[&InVariableGuid](const FBPVariableDescription& Candidate)
			{ return Candidate.VarGuid == InVariableGuid; });
		if (Variable)
		{
			return Variable->VarName;
		}
	}
	return NAME_None;
}

FGuid FBlueprintEditorUtils::FindLocalVariableGuidByName(UBlueprint* InBlueprint, const UStruct* InScope, const FName InVariableName)
{
	const FBPVariableDescription* const Variable = FindLocalVariable(InBlueprint, InScope, InVariableName);
	return Variable ? Variable->VarGuid : FGuid();
}

#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_ComponentBoundEvent.h"
#include "K2Node_Timeline.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "MemberUses.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** Events bound to a component know it by its variable's name. */
void RenameBoundEvents(UBlueprint& Blueprint, FName OldName, FName NewName)
{
	TArray<UK2Node_ComponentBoundEvent*> Events;
	FBlueprintEditorUtils::GetAllNodesOfClass(&Blueprint, Events);
	for (UK2Node_ComponentBoundEvent* const Event : Events)
	{
		if (Event->ComponentPropertyName == OldName)
		{
			Event->Modify();
			Event->ComponentPropertyName = NewName;
		}
	}
}

UK2Node_Timeline* FindTimelineNode(const UBlueprint& Blueprint, FName Name)
{
	TArray<UK2Node_Timeline*> Nodes;
	FBlueprintEditorUtils::GetAllNodesOfClass(&Blueprint, Nodes);
	UK2Node_Timeline* const* const Found =
		Nodes.FindByPredicate([Name](const UK2Node_Timeline* Node)
			{ return Node->TimelineName == Name; });
	return Found ? *Found : nullptr;
}
}

bool FBlueprintEditorUtils::DoesSupportTimelines(const UBlueprint* Blueprint)
{
	return Blueprint && IsActorBased(Blueprint) && DoesSupportEventGraphs(Blueprint);
}

bool FBlueprintEditorUtils::DoesSupportComponents(UBlueprint const* Blueprint)
{
	return Blueprint && Blueprint->SimpleConstructionScript && IsActorBased(Blueprint) && Blueprint->BlueprintType != BPTYPE_MacroLibrary &&
		Blueprint->BlueprintType != BPTYPE_FunctionLibrary;
}

void FBlueprintEditorUtils::RenameComponentMemberVariable(UBlueprint* Blueprint, USCS_Node* Node, const FName NewName)
{
	const FName OldName = Node->GetVariableName();
	if (NewName.IsNone() || (OldName != NewName && FKismetNameValidator(Blueprint).IsValid(NewName) != EValidatorResult::Ok))
	{
		return;
	}
	const TArray<FMemberUse> Uses = FMemberUses::FindOfVariable(*Blueprint, OldName);
	Blueprint->Modify();
	Node->Modify();
	if (Node->ComponentTemplate)
	{
		Node->ComponentTemplate->Modify();
	}
	Node->SetVariableName(NewName);
	FMemberUses::Rename(Uses, OldName, NewName);
	RenameBoundEvents(*Blueprint, OldName, NewName);
	// Nodes of derived Blueprints hang below this one by its name.
	TArray<UBlueprint*> Dependents;
	GetDependentBlueprints(Blueprint, Dependents);
	for (UBlueprint* const Dependent : Dependents)
	{
		for (USCS_Node* const Child :
			Dependent->SimpleConstructionScript ? Dependent->SimpleConstructionScript->GetAllNodes() : TArray<USCS_Node*>())
		{
			if (Child && Child->ParentComponentOrVariableName == OldName && !Child->bIsParentComponentNative)
			{
				Child->Modify();
				Child->ParentComponentOrVariableName = NewName;
				MarkBlueprintAsModified(Dependent);
			}
		}
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

UTimelineTemplate* FBlueprintEditorUtils::AddNewTimeline(UBlueprint* Blueprint, const FName& TimelineVarName)
{
	if (!DoesSupportTimelines(Blueprint) || TimelineVarName.IsNone() || Blueprint->FindTimelineIndex(TimelineVarName) != INDEX_NONE)
	{
		return nullptr;
	}
	Blueprint->Modify();
	UObject* const Outer = Blueprint->GeneratedClass.Get();
	UTimelineTemplate* const Template = NewObject<UTimelineTemplate>(
		Outer, FName(*UTimelineTemplate::TimelineVariableNameToTemplateName(TimelineVarName)), RF_Transactional);
	Template->TimelineGuid = FGuid::NewGuid();
	Template->UpdateCachedNames();
	Blueprint->Timelines.Add(Template);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return Template;
}

void FBlueprintEditorUtils::RemoveTimeline(UBlueprint* Blueprint, UTimelineTemplate* Timeline, bool bDontRecompile)
{
	if (!Timeline || !Blueprint->Timelines.Contains(Timeline))
	{
		return;
	}
	Blueprint->Modify();
	Timeline->Modify();
	Blueprint->Timelines.Remove(Timeline);
	// Its name is free for a new timeline while an undo may still bring it back.
	Timeline->Rename(nullptr, GetTransientPackageAsObject(), REN_ForceGlobalUnique | REN_DontCreateRedirectors);
	if (bDontRecompile)
	{
		MarkBlueprintAsModified(Blueprint);
	}
	else
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

bool FBlueprintEditorUtils::RenameTimeline(UBlueprint* Blueprint, const FName OldVarName, const FName NewVarName)
{
	UTimelineTemplate* const Template = Blueprint->FindTimelineTemplateByVariableName(OldVarName);
	const FString NewTemplateName = UTimelineTemplate::TimelineVariableNameToTemplateName(NewVarName);
	const bool bIsFree = OldVarName == NewVarName ||
		(FKismetNameValidator(Blueprint).IsValid(NewVarName.ToString()) == EValidatorResult::Ok && Template &&
			!StaticFindObjectFast(nullptr, Template->GetOuter(), FName(*NewTemplateName)));
	if (!Template || NewVarName.IsNone() || !bIsFree)
	{
		return false;
	}
	const TArray<FMemberUse> Uses = FMemberUses::FindOfVariable(*Blueprint, OldVarName);
	UK2Node_Timeline* const Node = FindTimelineNode(*Blueprint, OldVarName);
	Blueprint->Modify();
	Template->Modify();
	Template->Rename(*NewTemplateName, nullptr, REN_DontCreateRedirectors);
	Template->UpdateCachedNames();
	if (Node)
	{
		Node->Modify();
		Node->TimelineName = NewVarName;
	}
	FMemberUses::Rename(Uses, OldVarName, NewVarName);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

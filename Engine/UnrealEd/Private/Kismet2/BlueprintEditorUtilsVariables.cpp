#include "Kismet2/BlueprintEditorUtils.h"

#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_Variable.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
/** The variable of the Blueprint, or the local variable of the function that Scope is. */
FBPVariableDescription* FindVariable(const UBlueprint* Blueprint, const FName& VarName, const UStruct* Scope)
{
	if (!Scope || Scope->IsA<UClass>())
	{
		const int32 Index = FBlueprintEditorUtils::FindNewVariableIndex(Blueprint, VarName);
		return Index == INDEX_NONE ? nullptr : const_cast<FBPVariableDescription*>(&Blueprint->NewVariables[Index]);
	}
	TArray<UK2Node_FunctionEntry*> Entries;
	FBlueprintEditorUtils::GetAllNodesOfClass(Blueprint, Entries);
	for (UK2Node_FunctionEntry* const Entry : Entries)
	{
		if (Entry->GetGraph()->GetFName() == Scope->GetFName())
		{
			return Entry->LocalVariables.FindByPredicate([&VarName](const FBPVariableDescription& Variable)
				{ return Variable.VarName == VarName; });
		}
	}
	return nullptr;
}

FString MakeFriendlyName(const FName& Name, const FEdGraphPinType& Type)
{
	return FName::NameToDisplayString(Name.ToString(), Type.PinCategory == UEdGraphSchema_K2::PC_Boolean);
}

bool IsMemberNameTaken(const UBlueprint* Blueprint, const FName& Name)
{
	TSet<FName> Names;
	FBlueprintEditorUtils::GetClassVariableList(Blueprint, Names, true);
	return Names.Contains(Name) || !FBlueprintEditorUtils::IsGraphNameUnique(Blueprint, Name);
}
}

int32 FBlueprintEditorUtils::FindNewVariableIndex(const UBlueprint* Blueprint, const FName& InName)
{
	return InName.IsNone() ? INDEX_NONE : Blueprint->NewVariables.IndexOfByPredicate([&InName](const FBPVariableDescription& Variable)
											  { return Variable.VarName == InName; });
}

bool FBlueprintEditorUtils::AddMemberVariable(UBlueprint* Blueprint, const FName& NewVarName, const FEdGraphPinType& NewVarType, const FString& DefaultValue)
{
	if (NewVarName.IsNone() || IsMemberNameTaken(Blueprint, NewVarName))
	{
		return false;
	}
	Blueprint->Modify();
	FBPVariableDescription Variable;
	Variable.VarName = NewVarName;
	Variable.VarGuid = FGuid::NewGuid();
	Variable.FriendlyName = MakeFriendlyName(NewVarName, NewVarType);
	Variable.VarType = NewVarType;
	Variable.PropertyFlags |= CPF_Edit | CPF_BlueprintVisible | CPF_DisableEditOnInstance;
	if (NewVarType.PinCategory == UEdGraphSchema_K2::PC_MCDelegate)
	{
		Variable.PropertyFlags |= CPF_BlueprintAssignable | CPF_BlueprintCallable;
	}
	Variable.Category = UEdGraphSchema_K2::VR_DefaultCategory;
	Variable.DefaultValue = DefaultValue;
	Blueprint->NewVariables.Add(Variable);
	MarkBlueprintAsStructurallyModified(Blueprint);
	return true;
}

void FBlueprintEditorUtils::RemoveMemberVariable(UBlueprint* Blueprint, const FName VarName)
{
	const int32 Index = FindNewVariableIndex(Blueprint, VarName);
	if (Index != INDEX_NONE)
	{
		Blueprint->Modify();
		Blueprint->NewVariables.RemoveAt(Index);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::RenameMemberVariable(UBlueprint* Blueprint, const FName OldName, const FName NewName)
{
	const int32 Index = FindNewVariableIndex(Blueprint, OldName);
	const bool bOnlyCaseChanges = OldName == NewName;
	if (Index == INDEX_NONE || NewName.IsNone() || (!bOnlyCaseChanges && IsMemberNameTaken(Blueprint, NewName)))
	{
		return;
	}
	Blueprint->Modify();
	FBPVariableDescription& Variable = Blueprint->NewVariables[Index];
	Variable.VarName = NewName;
	Variable.FriendlyName = MakeFriendlyName(NewName, Variable.VarType);

	TArray<UK2Node_Variable*> Nodes;
	GetAllNodesOfClass(Blueprint, Nodes);
	for (UK2Node_Variable* const Node : Nodes)
	{
		const bool bRefersToVariable = Node->VariableReference.IsSelfContext() && Node->VariableReference.GetMemberName() == OldName;
		if (!bRefersToVariable)
		{
			continue;
		}
		Node->Modify();
		Node->VariableReference.SetSelfMember(NewName, Variable.VarGuid);
		if (UEdGraphPin* const Pin = Node->FindPin(OldName))
		{
			Pin->Modify();
			Pin->PinName = NewName;
		}
	}
	UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(Blueprint->GeneratedClass.Get());
	if (Class && Class->FindPropertyByName(OldName))
	{
		// The next compile moves the value from the old property to the new one by the id that both have.
		Class->PropertyGuids.Add(OldName, Variable.VarGuid);
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

void FBlueprintEditorUtils::ChangeMemberVariableType(UBlueprint* Blueprint, const FName VariableName, const FEdGraphPinType& NewPinType)
{
	const int32 Index = FindNewVariableIndex(Blueprint, VariableName);
	if (Index == INDEX_NONE || Blueprint->NewVariables[Index].VarType == NewPinType)
	{
		return;
	}
	Blueprint->Modify();
	FBPVariableDescription& Variable = Blueprint->NewVariables[Index];
	Variable.VarType = NewPinType;
	Variable.DefaultValue.Empty();
	MarkBlueprintAsStructurallyModified(Blueprint);

	TArray<UK2Node_Variable*> Nodes;
	GetAllNodesOfClass(Blueprint, Nodes);
	for (UK2Node_Variable* const Node : Nodes)
	{
		if (Node->VariableReference.IsSelfContext() && Node->VariableReference.GetMemberName() == VariableName)
		{
			Node->ReconstructNode();
		}
	}
}

FGuid FBlueprintEditorUtils::FindMemberVariableGuidByName(UBlueprint* InBlueprint, const FName InVariableName)
{
	const int32 Index = FindNewVariableIndex(InBlueprint, InVariableName);
	return Index == INDEX_NONE ? FGuid() : InBlueprint->NewVariables[Index].VarGuid;
}

FName FBlueprintEditorUtils::FindMemberVariableNameByGuid(UBlueprint* InBlueprint, const FGuid& InVariableGuid)
{
	const FBPVariableDescription* const Variable = InBlueprint->NewVariables.FindByPredicate([&InVariableGuid](const FBPVariableDescription& Candidate)
		{ return Candidate.VarGuid == InVariableGuid; });
	return Variable ? Variable->VarName : NAME_None;
}

uint64* FBlueprintEditorUtils::GetBlueprintVariablePropertyFlags(UBlueprint* Blueprint, const FName& VarName)
{
	const int32 Index = FindNewVariableIndex(Blueprint, VarName);
	return Index == INDEX_NONE ? nullptr : &Blueprint->NewVariables[Index].PropertyFlags;
}

void FBlueprintEditorUtils::SetBlueprintVariableMetaData(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, const FString& MetaDataValue)
{
	if (FBPVariableDescription* const Variable = FindVariable(Blueprint, VarName, InLocalVarScope))
	{
		Blueprint->Modify();
		Variable->SetMetaData(MetaDataKey, MetaDataValue);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

bool FBlueprintEditorUtils::GetBlueprintVariableMetaData(const UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, FString& OutMetaDataValue)
{
	const FBPVariableDescription* const Variable = FindVariable(Blueprint, VarName, InLocalVarScope);
	if (!Variable || !Variable->HasMetaData(MetaDataKey))
	{
		OutMetaDataValue.Empty();
		return false;
	}
	OutMetaDataValue = Variable->GetMetaData(MetaDataKey);
	return true;
}

void FBlueprintEditorUtils::RemoveBlueprintVariableMetaData(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey)
{
	if (FBPVariableDescription* const Variable = FindVariable(Blueprint, VarName, InLocalVarScope))
	{
		Blueprint->Modify();
		Variable->RemoveMetaData(MetaDataKey);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::SetBlueprintVariableCategory(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FText& NewCategory, bool bDontRecompile)
{
	FBPVariableDescription* const Variable = FindVariable(Blueprint, VarName, InLocalVarScope);
	if (!Variable || Variable->Category.EqualTo(NewCategory))
	{
		return;
	}
	Blueprint->Modify();
	Variable->Category = NewCategory.IsEmpty() ? UEdGraphSchema_K2::VR_DefaultCategory : NewCategory;
	if (bDontRecompile)
	{
		MarkBlueprintAsModified(Blueprint);
	}
	else
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::GetClassVariableList(const UBlueprint* Blueprint, TSet<FName>& VisibleVariables, bool bIncludePrivateVars)
{
	const UClass* const Class = Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : Blueprint->ParentClass.Get();
	for (TFieldIterator<FProperty> It(Class); Class && It; ++It)
	{
		if (bIncludePrivateVars || It->HasAnyPropertyFlags(CPF_BlueprintVisible))
		{
			VisibleVariables.Add(It->GetFName());
		}
	}
	for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
	{
		VisibleVariables.Add(Variable.VarName);
	}
	for (const UTimelineTemplate* const Timeline : Blueprint->Timelines)
	{
		if (Timeline)
		{
			VisibleVariables.Add(Timeline->GetVariableName());
		}
	}
	if (Blueprint->SimpleConstructionScript)
	{
		for (const USCS_Node* const Node : Blueprint->SimpleConstructionScript->GetAllNodes())
		{
			VisibleVariables.Add(Node->GetVariableName());
		}
	}
}

TArray<FName> FBlueprintEditorUtils::GetBlueprintVariablesNamesList(const UBlueprint* Blueprint)
{
	TArray<FName> Names;
	for (const FBPVariableDescription& Variable : Blueprint->NewVariables)
	{
		Names.Add(Variable.VarName);
	}
	return Names;
}

FName FBlueprintEditorUtils::FindUniqueKismetName(const UBlueprint* InBlueprint, const FString& InBaseName, UStruct* InScope)
{
	FName Name(*InBaseName);
	for (int32 Suffix = 0; IsMemberNameTaken(InBlueprint, Name) || (InScope && InScope->FindPropertyByName(Name)); ++Suffix)
	{
		Name = FName(*FString::Printf(TEXT("%s_%d"), *InBaseName, Suffix));
	}
	return Name;
}

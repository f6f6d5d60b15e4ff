#include "Kismet2/BlueprintEditorUtils.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "Engine/TimelineTemplate.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "MemberUses.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

namespace
{
FString MakeFriendlyName(const FName& Name, const FEdGraphPinType& Type)
{
	return FName::NameToDisplayString(Name.ToString(), Type.PinCategory == UEdGraphSchema_K2::PC_Boolean);
}

bool IsMemberNameTaken(const UBlueprint* Blueprint, const FName& Name)
{
	return FKismetNameValidator(Blueprint).IsValid(Name) != EValidatorResult::Ok;
}

bool IsDispatcher(const FBPVariableDescription& Variable)
{
	return Variable.VarType.PinCategory == UEdGraphSchema_K2::PC_MCDelegate;
}

/** Has the class's default object take part in the transaction: it holds the value that goes with the variable. */
void ModifyDefaults(const UBlueprint& Blueprint)
{
	UObject* const Defaults = Blueprint.GeneratedClass ? Blueprint.GeneratedClass->GetDefaultObject(false) : nullptr;
	if (Defaults)
	{
		Defaults->Modify();
	}
}

/** A type's containers and flags that cannot be replicated lose their replication. */
void ClearImpossibleReplication(FBPVariableDescription& Variable)
{
	if (Variable.VarType.IsSet() || Variable.VarType.IsMap())
	{
		Variable.PropertyFlags &= ~static_cast<uint64>(CPF_Net | CPF_RepNotify);
		Variable.RepNotifyFunc = NAME_None;
	}
}
}

int32 FBlueprintEditorUtils::FindNewVariableIndex(const UBlueprint* Blueprint, const FName& InName)
{
	return InName.IsNone() ? INDEX_NONE : Blueprint->NewVariables.IndexOfByPredicate([&InName](const FBPVariableDescription& Variable)
											  { return Variable.VarName == InName; });
}

bool FBlueprintEditorUtils::AddMemberVariable(
	UBlueprint* Blueprint, const FName& NewVarName, const FEdGraphPinType& NewVarType, const FString& DefaultValue)
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
	BulkRemoveMemberVariables(Blueprint, {VarName});
}

void FBlueprintEditorUtils::BulkRemoveMemberVariables(UBlueprint* Blueprint, const TArray<FName>& VarNames)
{
	bool bRemovedAny = false;
	for (const FName VarName : VarNames)
	{
		const int32 Index = FindNewVariableIndex(Blueprint, VarName);
		if (Index == INDEX_NONE)
		{
			continue;
		}
		bRemovedAny = true;
		Blueprint->Modify();
		ModifyDefaults(*Blueprint);
		UEdGraph* const Signature = IsDispatcher(Blueprint->NewVariables[Index]) ? Blueprint->GetDelegateSignatureGraphByName(VarName)
																				 : nullptr;
		Blueprint->NewVariables.RemoveAt(Index);
		RemoveVariableNodes(Blueprint, VarName);
		if (Signature)
		{
			RemoveGraph(Blueprint, Signature, EGraphRemoveFlags::MarkTransient);
		}
	}
	if (bRemovedAny)
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
		// A name that is free now may be what an interface waits for.
		ConformImplementedInterfaces(Blueprint);
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
	ModifyDefaults(*Blueprint);
	FBPVariableDescription& Variable = Blueprint->NewVariables[Index];
	const TArray<FMemberUse> Uses = FMemberUses::FindOfVariable(*Blueprint, OldName);
	const TArray<FVariableNameUse> NameUses = FMemberUses::FindNamesOfVariable(*Blueprint, OldName);
	Variable.VarName = NewName;
	Variable.FriendlyName = MakeFriendlyName(NewName, Variable.VarType);
	FMemberUses::Rename(Uses, OldName, NewName);
	FMemberUses::RenameNames(NameUses, OldName, NewName);
	UEdGraph* const Signature = IsDispatcher(Variable) ? Blueprint->GetDelegateSignatureGraphByName(OldName) : nullptr;
	if (Signature)
	{
		Signature->Rename(*NewName.ToString(), Blueprint, REN_DontCreateRedirectors);
	}
	UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(Blueprint->GeneratedClass.Get());
	if (Class && Class->FindPropertyByName(OldName))
	{
		// The next compile moves the value from the old property to the new one by the id that both have.
		Class->PropertyGuids.Add(OldName, Variable.VarGuid);
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
	ConformImplementedInterfaces(Blueprint);
}

FName FBlueprintEditorUtils::DuplicateVariable(UBlueprint* InBlueprint, const UStruct* InScope, FName InVariableToDuplicate)
{
	UK2Node_FunctionEntry* Entry = nullptr;
	FBPVariableDescription* const Local = InScope ? FindLocalVariable(InBlueprint, InScope, InVariableToDuplicate, &Entry) : nullptr;
	const int32 Index = FindNewVariableIndex(InBlueprint, InVariableToDuplicate);
	if (!Local && Index == INDEX_NONE)
	{
		return NAME_None;
	}
	FBPVariableDescription Copy = Local ? *Local : InBlueprint->NewVariables[Index];
	Copy.VarName = FindUniqueKismetName(InBlueprint, InVariableToDuplicate.GetPlainNameString(), const_cast<UStruct*>(InScope));
	Copy.VarGuid = FGuid::NewGuid();
	Copy.FriendlyName = MakeFriendlyName(Copy.VarName, Copy.VarType);
	if (Local)
	{
		Entry->Modify();
		Entry->LocalVariables.Add(Copy);
	}
	else
	{
		InBlueprint->Modify();
		InBlueprint->NewVariables.Add(Copy);
	}
	MarkBlueprintAsStructurallyModified(InBlueprint);
	return Copy.VarName;
}

bool FBlueprintEditorUtils::MoveVariableBeforeVariable(
	UBlueprint* Blueprint, UStruct* VariableScope, FName VarNameToMove, FName TargetVarName, bool bDontRecompile)
{
	UK2Node_FunctionEntry* Entry = nullptr;
	const bool bIsLocal = VariableScope && FindLocalVariable(Blueprint, VariableScope, VarNameToMove, &Entry);
	TArray<FBPVariableDescription>& Variables = bIsLocal ? Entry->LocalVariables : Blueprint->NewVariables;
	const auto Find = [&Variables](FName Name)
	{ return Variables.IndexOfByPredicate([Name](const FBPVariableDescription& Variable)
		  { return Variable.VarName == Name; }); };
	const int32 From = Find(VarNameToMove);
	const int32 Target = Find(TargetVarName);
	if (From == INDEX_NONE || Target == INDEX_NONE || From == Target)
	{
		return false;
	}
	UObject* const Owner = bIsLocal ? static_cast<UObject*>(Entry) : Blueprint;
	Owner->Modify();
	const FBPVariableDescription Moved = Variables[From];
	Variables.RemoveAt(From);
	Variables.Insert(Moved, Find(TargetVarName));
	if (bDontRecompile)
	{
		MarkBlueprintAsModified(Blueprint);
	}
	else
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
	return true;
}

void FBlueprintEditorUtils::ChangeMemberVariableType(UBlueprint* Blueprint, const FName VariableName, const FEdGraphPinType& NewPinType)
{
	const int32 Index = FindNewVariableIndex(Blueprint, VariableName);
	if (Index == INDEX_NONE || Blueprint->NewVariables[Index].VarType == NewPinType)
	{
		return;
	}
	Blueprint->Modify();
	ModifyDefaults(*Blueprint);
	FBPVariableDescription& Variable = Blueprint->NewVariables[Index];
	Variable.VarType = NewPinType;
	Variable.DefaultValue.Empty();
	ClearImpossibleReplication(Variable);
	MarkBlueprintAsStructurallyModified(Blueprint);
	FMemberUses::Reconstruct(FMemberUses::FindOfVariable(*Blueprint, VariableName));
}

FGuid FBlueprintEditorUtils::FindMemberVariableGuidByName(UBlueprint* InBlueprint, const FName InVariableName)
{
	const int32 Index = FindNewVariableIndex(InBlueprint, InVariableName);
	return Index == INDEX_NONE ? FGuid() : InBlueprint->NewVariables[Index].VarGuid;
}

FName FBlueprintEditorUtils::FindMemberVariableNameByGuid(UBlueprint* InBlueprint, const FGuid& InVariableGuid)
{
	const FBPVariableDescription* const Variable = InBlueprint->NewVariables.FindByPredicate(
		[&InVariableGuid](const FBPVariableDescription& Candidate)
		{ return Candidate.VarGuid == InVariableGuid; });
	return Variable ? Variable->VarName : NAME_None;
}

uint64* FBlueprintEditorUtils::GetBlueprintVariablePropertyFlags(UBlueprint* Blueprint, const FName& VarName)
{
	const int32 Index = FindNewVariableIndex(Blueprint, VarName);
	return Index == INDEX_NONE ? nullptr : &Blueprint->NewVariables[Index].PropertyFlags;
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
	FKismetNameValidator Validator(InBlueprint, NAME_None, InScope);
	FString Name = InBaseName;
	for (int32 Suffix = 0; Validator.IsValid(Name) != EValidatorResult::Ok; ++Suffix)
	{
		const FString Number = FString::Printf(TEXT("_%d"), Suffix);
		Name = InBaseName.Left(FKismetNameValidator::GetMaximumNameLength() - Number.Len() - 1) + Number;
	}
	return FName(*Name);
}

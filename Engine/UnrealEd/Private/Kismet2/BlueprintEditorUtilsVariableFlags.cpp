#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
/** A variable of the Blueprint, or of a function, with what must be modified when it changes. */
struct FVariableAccess
{
	FBPVariableDescription* Variable = nullptr;
	UObject* Owner = nullptr;

	explicit operator bool() const { return Variable != nullptr; }
};

FVariableAccess Find(const UBlueprint* Blueprint, const FName& VarName, const UStruct* Scope)
{
	UBlueprint* const Mutable = const_cast<UBlueprint*>(Blueprint);
	if (!Scope || Scope->IsA<UClass>())
	{
		const int32 Index = FBlueprintEditorUtils::FindNewVariableIndex(Blueprint, VarName);
		return Index == INDEX_NONE ? FVariableAccess() : FVariableAccess{&Mutable->NewVariables[Index], Mutable};
	}
	UK2Node_FunctionEntry* Entry = nullptr;
	FBPVariableDescription* const Local = FBlueprintEditorUtils::FindLocalVariable(Mutable, Scope, VarName, &Entry);
	return {Local, Entry};
}

/** Sets or clears flags of a member variable, when that changes anything. */
void SetFlags(UBlueprint* Blueprint, const FName& VarName, uint64 Flags, bool bSet)
{
	const FVariableAccess Access = Find(Blueprint, VarName, nullptr);
	const uint64 Wanted = !Access ? 0 : bSet ? Access.Variable->PropertyFlags | Flags
											 : Access.Variable->PropertyFlags & ~Flags;
	if (Access && Wanted != Access.Variable->PropertyFlags)
	{
		Access.Owner->Modify();
		Access.Variable->PropertyFlags = Wanted;
		FBlueprintEditorUtils::MarkBlueprintAsStructurallyModified(Blueprint);
	}
}
}

void FBlueprintEditorUtils::SetBlueprintVariableMetaData(
	UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, const FString& MetaDataValue)
{
	if (const FVariableAccess Access = Find(Blueprint, VarName, InLocalVarScope))
	{
		Access.Owner->Modify();
		Access.Variable->SetMetaData(MetaDataKey, MetaDataValue);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

bool FBlueprintEditorUtils::GetBlueprintVariableMetaData(
	const UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey, FString& OutMetaDataValue)
{
	const FBPVariableDescription* const Variable = Find(Blueprint, VarName, InLocalVarScope).Variable;
	if (!Variable || !Variable->HasMetaData(MetaDataKey))
	{
		OutMetaDataValue.Empty();
		return false;
	}
	OutMetaDataValue = Variable->GetMetaData(MetaDataKey);
	return true;
}

void FBlueprintEditorUtils::RemoveBlueprintVariableMetaData(
	UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FName& MetaDataKey)
{
	if (const FVariableAccess Access = Find(Blueprint, VarName, InLocalVarScope))
	{
		Access.Owner->Modify();
		Access.Variable->RemoveMetaData(MetaDataKey);
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

void FBlueprintEditorUtils::SetBlueprintVariableCategory(
	UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope, const FText& NewCategory, bool bDontRecompile)
{
	const FVariableAccess Access = Find(Blueprint, VarName, InLocalVarScope);
	if (!Access || Access.Variable->Category.EqualTo(NewCategory))
	{
		return;
	}
	Access.Owner->Modify();
	Access.Variable->Category = NewCategory.IsEmpty() ? UEdGraphSchema_K2::VR_DefaultCategory : NewCategory;
	if (bDontRecompile)
	{
		MarkBlueprintAsModified(Blueprint);
	}
	else
	{
		MarkBlueprintAsStructurallyModified(Blueprint);
	}
}

FText FBlueprintEditorUtils::GetBlueprintVariableCategory(UBlueprint* Blueprint, const FName& VarName, const UStruct* InLocalVarScope)
{
	const FVariableAccess Access = Find(Blueprint, VarName, InLocalVarScope);
	return Access ? Access.Variable->Category : FText::GetEmpty();
}

void FBlueprintEditorUtils::SetBlueprintVariableRepNotifyFunc(UBlueprint* Blueprint, const FName& VarName, const FName& RepNotifyFunc)
{
	const FVariableAccess Access = Find(Blueprint, VarName, nullptr);
	if (!Access)
	{
		return;
	}
	Access.Owner->Modify();
	Access.Variable->RepNotifyFunc = RepNotifyFunc;
	Access.Variable->PropertyFlags |= CPF_Net;
	if (RepNotifyFunc.IsNone())
	{
		Access.Variable->PropertyFlags &= ~static_cast<uint64>(CPF_RepNotify);
	}
	else
	{
		Access.Variable->PropertyFlags |= CPF_RepNotify;
	}
	MarkBlueprintAsStructurallyModified(Blueprint);
}

FName FBlueprintEditorUtils::GetBlueprintVariableRepNotifyFunc(UBlueprint* Blueprint, const FName& VarName)
{
	const FVariableAccess Access = Find(Blueprint, VarName, nullptr);
	return Access ? Access.Variable->RepNotifyFunc : FName();
}

void FBlueprintEditorUtils::SetBlueprintOnlyEditableFlag(UBlueprint* Blueprint, const FName& VarName, const bool bNewBlueprintOnly)
{
	SetFlags(Blueprint, VarName, CPF_DisableEditOnInstance, bNewBlueprintOnly);
}

void FBlueprintEditorUtils::SetBlueprintPropertyReadOnlyFlag(UBlueprint* Blueprint, const FName& VarName, const bool bVariableReadOnly)
{
	SetFlags(Blueprint, VarName, CPF_BlueprintReadOnly, bVariableReadOnly);
}

void FBlueprintEditorUtils::SetInterpFlag(UBlueprint* Blueprint, const FName& VarName, const bool bInterp)
{
	SetFlags(Blueprint, VarName, CPF_Interp, bInterp);
}

void FBlueprintEditorUtils::SetVariableTransientFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsTransient)
{
	SetFlags(InBlueprint, InVarName, CPF_Transient, bInIsTransient);
}

void FBlueprintEditorUtils::SetVariableSaveGameFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsSaveGame)
{
	SetFlags(InBlueprint, InVarName, CPF_SaveGame, bInIsSaveGame);
}

void FBlueprintEditorUtils::SetVariableAdvancedDisplayFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsAdvancedDisplay)
{
	SetFlags(InBlueprint, InVarName, CPF_AdvancedDisplay, bInIsAdvancedDisplay);
}

void FBlueprintEditorUtils::SetVariableDeprecatedFlag(UBlueprint* InBlueprint, const FName& InVarName, const bool bInIsDeprecated)
{
	SetFlags(InBlueprint, InVarName, CPF_Deprecated, bInIsDeprecated);
}

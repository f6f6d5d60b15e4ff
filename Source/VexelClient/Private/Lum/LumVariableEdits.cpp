#include "Lum/LumVariableEdits.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumLinkMending.h"
#include "Lum/LumNodeUses.h"
#include "Lum/LumRetypedValue.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariable.h"
#include "Lum/LumVariableFlags.h"
#include "Lum/LumVariableRules.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
using LumVariableRules::EUse;

FLumError_Write MakeAddError(const FLumVarDesc& Desc, const FString& Reason)
{
	return VEXEL_ERROR(FLumError_Write, "Failed to add variable '%s' of type '%s'%s%s", *Desc.PropId, *Desc.TypeId,
		Reason.IsEmpty() ? TEXT("") : TEXT(": "), *Reason);
}

FLumError_Write MakeChangeError(FName Name, const FString& Reason)
{
	return VEXEL_ERROR(FLumError_Write, "Failed to edit variable '%s': %s", *Name.ToString(), *Reason);
}

/** Blueprints of these kinds have no object that could hold a value. */
bool DeclaresVariables(const UBlueprint& Blueprint)
{
	return Blueprint.BlueprintType != BPTYPE_Interface && Blueprint.BlueprintType != BPTYPE_MacroLibrary &&
		Blueprint.BlueprintType != BPTYPE_FunctionLibrary;
}

bool IsDispatcher(const FEdGraphPinType& Type) { return Type.PinCategory == UEdGraphSchema_K2::PC_MCDelegate; }

void AddSignature(UBlueprint& Blueprint, FName Name)
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(&Blueprint, Name, UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	Graph->bEditable = false;
	const UEdGraphSchema_K2* const Schema = GetDefault<UEdGraphSchema_K2>();
	Schema->CreateDefaultNodesForGraph(*Graph);
	Schema->CreateFunctionGraphTerminators(*Graph, static_cast<UClass*>(nullptr));
	Schema->AddExtraFunctionFlags(Graph, FUNC_BlueprintCallable | FUNC_BlueprintEvent | FUNC_Public);
	Schema->MarkFunctionEntryAsEditable(Graph, true);
	Blueprint.DelegateSignatureGraphs.Add(Graph);
}

/** What a change of a variable comes to, checked: what is unset stays. */
struct FChange
{
	explicit FChange(FName InName)
		: Name(InName)
	{
	}

	FName Name;
	bool bRenamed = false;
	TOptional<FEdGraphPinType> Type;
	TOptional<FText> Category;
};

void CheckCategoryChange(const FBPVariableDescription& Variable, const FLumVarDesc& Desc, FChange& OutChange)
{
	if (!Desc.Category.IsEmpty() && Variable.Category.ToString() != Desc.Category)
	{
		OutChange.Category = FText::FromString(Desc.Category);
	}
}

TVexelExpected<void> CheckTypeChange(const FBPVariableDescription& Variable, const FLumVarDesc& Desc, EUse Use, FChange& OutChange)
{
	if (Desc.TypeId.IsEmpty())
	{
		return {};
	}
	VEXEL_TRY(FEdGraphPinType Type, LumVariableRules::ParseType(Desc.TypeId, Use));
	if (IsDispatcher(Type) != IsDispatcher(Variable.VarType))
	{
		return VEXEL_ERROR(FLumError_Write, "a variable does not become an event dispatcher, nor the reverse");
	}
	if (Type != Variable.VarType && !IsDispatcher(Type))
	{
		OutChange.Type = MoveTemp(Type);
	}
	return {};
}

TVexelExpected<void> CheckScopeStays(const FLumVarDesc& Desc, const TVexelVarScopeId& ScopeId)
{
	if (!Desc.ScopeId.IsEmpty() && Desc.ScopeId != ScopeId)
	{
		return VEXEL_ERROR(FLumError_Write, "it cannot leave its scope '%s'", *ScopeId);
	}
	return {};
}

bool IsRenamed(FName Name, const FLumVarDesc& Desc)
{
	return !Desc.PropId.IsEmpty() && !Desc.PropId.ToString().Equals(Name.ToString(), ESearchCase::CaseSensitive);
}

TVexelExpected<FChange> CheckMemberChange(UBlueprint& Blueprint, const FBPVariableDescription& Variable, const FLumVarDesc& Desc)
{
	FChange Change(Variable.VarName);
	VEXEL_TRY_VOID(CheckScopeStays(Desc, LumScope::Member()));
	if (IsRenamed(Variable.VarName, Desc))
	{
		VEXEL_TRY_VOID(LumVariableRules::CheckMemberName(Blueprint, Desc.PropId.ToString(), Variable.VarName));
		Change.Name = FName(*Desc.PropId.ToString());
		Change.bRenamed = true;
	}
	VEXEL_TRY_VOID(CheckTypeChange(Variable, Desc, EUse::Member, Change));
	VEXEL_TRY_VOID(LumVariableFlags::Check(Desc, Change.Type.Get(Variable.VarType)));
	CheckCategoryChange(Variable, Desc, Change);
	return Change;
}

/** The default that the variable had, as far as its new type can hold it. */
void KeepDefault(FBPVariableDescription& Variable, const UStruct* Owner, const FString& OldDefault)
{
	const FProperty* const Property = Owner ? Owner->FindPropertyByName(Variable.VarName) : nullptr;
	const TOptional<FString> Converted = Property && !OldDefault.IsEmpty() ? LumRetypedValue::Convert(OldDefault, *Property)
																		   : TOptional<FString>();
	Variable.DefaultValue = Converted.Get(Variable.DefaultValue);
}

/** A local variable with where it is declared. */
struct FLocal
{
	UBlueprint* Blueprint = nullptr;
	UK2Node_FunctionEntry* Entry = nullptr;
	UFunction* Function = nullptr;
	FBPVariableDescription* Variable = nullptr;
};

TVexelExpected<FLocal> FindScope(UEdGraph& Graph)
{
	FLocal Local;
	Local.Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	if (!Local.Blueprint)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph is not part of a blueprint");
	}
	if (!FBlueprintEditorUtils::DoesSupportLocalVariables(&Graph))
	{
		return VEXEL_ERROR(FLumError_Write, "Graph does not support local variables");
	}
	Local.Entry = Cast<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(FBlueprintEditorUtils::GetTopLevelGraph(&Graph)));
	Local.Function = LumVariableEdits::FindFunction(Graph);
	if (!Local.Entry || !Local.Function)
	{
		return VEXEL_ERROR(FLumError_Write, "Graph does not have a valid function scope");
	}
	return Local;
}

TVexelExpected<FLocal> FindLocal(UEdGraph& Graph, FName Name)
{
	VEXEL_TRY(FLocal Local, FindScope(Graph));
	if (Local.Entry->LocalVariables.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "Graph does not have local variables");
	}
	Local.Variable = FBlueprintEditorUtils::FindLocalVariable(Local.Blueprint, &Graph, Name);
	if (!Local.Variable)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' not found", *Name.ToString());
	}
	return Local;
}

TVexelExpected<FChange> CheckLocalChange(const FLocal& Local, const FLumVarDesc& Desc)
{
	FChange Change(Local.Variable->VarName);
	VEXEL_TRY_VOID(CheckScopeStays(Desc, LumScope::Local()));
	VEXEL_TRY_VOID(LumVariableFlags::CheckNone(Desc));
	if (IsRenamed(Change.Name, Desc))
	{
		VEXEL_TRY_VOID(
			LumVariableRules::CheckLocalName(*Local.Blueprint, *Local.Entry, Local.Function, Desc.PropId.ToString(), Change.Name));
		Change.Name = FName(*Desc.PropId.ToString());
		Change.bRenamed = true;
	}
	VEXEL_TRY_VOID(CheckTypeChange(*Local.Variable, Desc, EUse::Local, Change));
	CheckCategoryChange(*Local.Variable, Desc, Change);
	return Change;
}
}

const FProperty* LumVariableEdits::FindCompiled(const UBlueprint& Blueprint, const FBPVariableDescription& Variable)
{
	const UBlueprintGeneratedClass* const Class = Cast<UBlueprintGeneratedClass>(Blueprint.GeneratedClass.Get());
	// Since it was compiled the variable may have got another name.
	const FName FormerName = Class ? Class->FindPropertyNameFromGuid(Variable.VarGuid) : NAME_None;
	const FProperty* const Property = Class ? Class->FindPropertyByName(FormerName.IsNone() ? Variable.VarName : FormerName) : nullptr;
	FEdGraphPinType Type;
	const bool bIsAsDeclared = Property && GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(Property, Type) &&
		FVexelBlueprintPropTypeBuilder::MakeId(Type) == FVexelBlueprintPropTypeBuilder::MakeId(Variable.VarType);
	return bIsAsDeclared && Class->GetDefaultObject(false) ? Property : nullptr;
}

FString LumVariableEdits::GetDefaultText(const UBlueprint& Blueprint, const FBPVariableDescription& Variable)
{
	FString Text = Variable.DefaultValue;
	if (const FProperty* const Property = FindCompiled(Blueprint, Variable))
	{
		Text.Empty();
		Property->ExportTextItem_InContainer(Text, Blueprint.GeneratedClass->GetDefaultObject(false), nullptr, nullptr, PPF_None);
	}
	return Text;
}

UFunction* LumVariableEdits::FindFunction(const UEdGraph& Graph)
{
	UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
	if (!Blueprint)
	{
		return nullptr;
	}
	const FName Name = FBlueprintEditorUtils::GetTopLevelGraph(&Graph)->GetFName();
	const UClass* const Class = Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass : Blueprint->GeneratedClass;
	if (UFunction* const Function = Class ? Class->FindFunctionByName(Name) : nullptr)
	{
		return Function;
	}
	const UClass* const Skeleton = LumSkeleton::Get(*Blueprint);
	return Skeleton ? Skeleton->FindFunctionByName(Name) : nullptr;
}

TVexelExpected<void> LumVariableEdits::AddMember(UBlueprint& Blueprint, const FLumVarDesc& Desc)
{
	if (!DeclaresVariables(Blueprint))
	{
		return MakeAddError(Desc, TEXT("blueprints of this kind declare no variables"));
	}
	const FString& NameText = Desc.PropId.ToString();
	if (NameText.Len() < NAME_SIZE && FBlueprintEditorUtils::FindNewVariableIndex(&Blueprint, FName(*NameText)) != INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' already exists", *NameText);
	}
	const TVexelExpected<FEdGraphPinType> Type = LumVariableRules::ParseType(Desc.TypeId, EUse::Member);
	if (Type.HasError())
	{
		return MakeAddError(Desc, Type.GetError().GetMessage());
	}
	const TVexelExpected<void> Named = LumVariableRules::CheckMemberName(Blueprint, NameText, NAME_None);
	if (Named.HasError())
	{
		return MakeAddError(Desc, Named.GetError().GetMessage());
	}
	const TVexelExpected<void> Flagged = LumVariableFlags::Check(Desc, Type.GetValue());
	if (Flagged.HasError())
	{
		return MakeAddError(Desc, Flagged.GetError().GetMessage());
	}

	const FName Name(*NameText);
	FLumStructureEdit Edit(INVTEXT("(Vexel) Add Variable"), Blueprint, ELumSkeleton::Later);
	if (!FBlueprintEditorUtils::AddMemberVariable(&Blueprint, Name, Type.GetValue()))
	{
		Edit.Cancel();
		return MakeAddError(Desc, FString());
	}
	if (!Desc.Category.IsEmpty())
	{
		FBlueprintEditorUtils::SetBlueprintVariableCategory(&Blueprint, Name, nullptr, FText::FromString(Desc.Category), true);
	}
	LumVariableFlags::Apply(Blueprint, Name, Desc);
	if (IsDispatcher(Type.GetValue()))
	{
		AddSignature(Blueprint, Name);
	}
	return {};
}

TVexelExpected<void> LumVariableEdits::RemoveMember(UBlueprint& Blueprint, FName Name)
{
	const int32 Index = FBlueprintEditorUtils::FindNewVariableIndex(&Blueprint, Name);
	if (Index == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' not found", *Name.ToString());
	}
	// What waits for the name, a function of an interface, must find it free within the edit.
	const ELumSkeleton Skeleton = Blueprint.ImplementedInterfaces.IsEmpty() ? ELumSkeleton::Later : ELumSkeleton::AtOnce;
	FLumStructureEdit Edit(INVTEXT("(Vexel) Remove Variable"), Blueprint, Skeleton);
	if (Skeleton == ELumSkeleton::AtOnce)
	{
		Edit.LetEngineMark();
	}
	FBlueprintEditorUtils::RemoveMemberVariable(&Blueprint, Name);
	Edit.FreeName(Name);
	return {};
}

TVexelExpected<void> LumVariableEdits::ChangeMember(UBlueprint& Blueprint, FName Name, const FLumVarDesc& Desc)
{
	const int32 Index = FBlueprintEditorUtils::FindNewVariableIndex(&Blueprint, Name);
	if (Index == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' not found", *Name.ToString());
	}
	const TVexelExpected<FChange> Checked = CheckMemberChange(Blueprint, Blueprint.NewVariables[Index], Desc);
	if (Checked.HasError())
	{
		return MakeChangeError(Name, Checked.GetError().GetMessage());
	}
	const FChange& Change = Checked.GetValue();

	FLumStructureEdit Edit(INVTEXT("(Vexel) Edit Variable"), Blueprint, Change.Type ? ELumSkeleton::AtOnce : ELumSkeleton::Later);
	if (Change.bRenamed)
	{
		FBlueprintEditorUtils::RenameMemberVariable(&Blueprint, Name, Change.Name);
		Edit.FreeName(Name);
	}
	if (Change.Category)
	{
		FBlueprintEditorUtils::SetBlueprintVariableCategory(&Blueprint, Change.Name, nullptr, *Change.Category, true);
	}
	LumVariableFlags::Apply(Blueprint, Change.Name, Desc);
	if (Change.Type)
	{
		const FString OldDefault = GetDefaultText(Blueprint, Blueprint.NewVariables[Index]);
		Edit.LetEngineMark();
		FBlueprintEditorUtils::ChangeMemberVariableType(&Blueprint, Change.Name, *Change.Type);
		KeepDefault(Blueprint.NewVariables[Index], Blueprint.SkeletonGeneratedClass, OldDefault);
		LumLinkMending::Mend(LumNodeUses::FindOfVariable(Blueprint, Change.Name));
	}
	return {};
}

TVexelExpected<void> LumVariableEdits::AddLocal(UEdGraph& Graph, const FLumVarDesc& Desc)
{
	VEXEL_TRY(const FLocal Scope, FindScope(Graph));
	const FString& NameText = Desc.PropId.ToString();
	if (NameText.Len() < NAME_SIZE && FBlueprintEditorUtils::FindLocalVariable(Scope.Blueprint, &Graph, FName(*NameText)))
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' already exists", *NameText);
	}
	const TVexelExpected<FEdGraphPinType> Type = LumVariableRules::ParseType(Desc.TypeId, EUse::Local);
	if (Type.HasError())
	{
		return MakeAddError(Desc, Type.GetError().GetMessage());
	}
	const TVexelExpected<void> Named =
		LumVariableRules::CheckLocalName(*Scope.Blueprint, *Scope.Entry, Scope.Function, NameText, NAME_None);
	if (Named.HasError())
	{
		return MakeAddError(Desc, Named.GetError().GetMessage());
	}
	const TVexelExpected<void> Flagged = LumVariableFlags::CheckNone(Desc);
	if (Flagged.HasError())
	{
		return MakeAddError(Desc, Flagged.GetError().GetMessage());
	}

	FLumStructureEdit Edit(INVTEXT("(Vexel) Add Variable"), *Scope.Blueprint, ELumSkeleton::Later);
	const FName Name(*NameText);
	if (!FBlueprintEditorUtils::AddLocalVariable(Scope.Blueprint, &Graph, Name, Type.GetValue()))
	{
		Edit.Cancel();
		return MakeAddError(Desc, FString());
	}
	if (!Desc.Category.IsEmpty())
	{
		FBlueprintEditorUtils::FindLocalVariable(Scope.Blueprint, &Graph, Name)->Category = FText::FromString(Desc.Category);
	}
	return {};
}

TVexelExpected<void> LumVariableEdits::RemoveLocal(UEdGraph& Graph, FName Name)
{
	VEXEL_TRY(const FLocal Local, FindLocal(Graph, Name));
	FLumStructureEdit Edit(INVTEXT("(Vexel) Remove Variable"), *Local.Blueprint, ELumSkeleton::Later);
	FBlueprintEditorUtils::RemoveLocalVariable(Local.Blueprint, Local.Function, Name);
	Edit.FreeName(Name);
	return {};
}

TVexelExpected<void> LumVariableEdits::ChangeLocal(UEdGraph& Graph, FName Name, const FLumVarDesc& Desc)
{
	VEXEL_TRY(FLocal Local, FindLocal(Graph, Name));
	const TVexelExpected<FChange> Checked = CheckLocalChange(Local, Desc);
	if (Checked.HasError())
	{
		return MakeChangeError(Name, Checked.GetError().GetMessage());
	}
	const FChange& Change = Checked.GetValue();

	FLumStructureEdit Edit(INVTEXT("(Vexel) Edit Variable"), *Local.Blueprint, Change.Type ? ELumSkeleton::AtOnce : ELumSkeleton::Later);
	Local.Entry->Modify();
	if (Change.bRenamed)
	{
		FBlueprintEditorUtils::RenameLocalVariable(Local.Blueprint, Local.Function, Name, Change.Name);
		Edit.FreeName(Name);
	}
	if (Change.Category)
	{
		Local.Variable->Category = *Change.Category;
	}
	if (Change.Type)
	{
		const FString OldDefault = Local.Variable->DefaultValue;
		Edit.LetEngineMark();
		FBlueprintEditorUtils::ChangeLocalVariableType(Local.Blueprint, Local.Function, Change.Name, *Change.Type);
		KeepDefault(*Local.Variable, FindFunction(Graph), OldDefault);
		LumLinkMending::Mend(LumNodeUses::FindOfVariable(*Local.Blueprint, Change.Name, Local.Entry->GetGraph()->GetName()));
	}
	return {};
}

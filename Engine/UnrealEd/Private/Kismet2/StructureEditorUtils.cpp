#include "Kismet2/StructureEditorUtils.h"

#include "BlueprintActionDatabase.h"
#include "EdGraphSchema_K2.h"
#include "Engine/UserDefinedStruct.h"
#include "ScopedTransaction.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "UserDefinedStructCompiler.h"

#define LOCTEXT_NAMESPACE "Structure"

namespace
{
constexpr int32 MaxNameLength = 100;

bool Refuse(FString* OutMessage, const FText& Reason)
{
	if (OutMessage)
	{
		*OutMessage = Reason.ToString();
	}
	return false;
}

UUserDefinedStructEditorData* GetData(const UUserDefinedStruct* Struct)
{
	return Struct ? Cast<UUserDefinedStructEditorData>(Struct->EditorData.Get()) : nullptr;
}

/** "Health_12_0F3A...": no other member's property has the name, whatever the user calls it. */
FName MakePropertyName(UUserDefinedStructEditorData& Data, const FString& FriendlyName, const FGuid& Guid)
{
	FString Base;
	for (const TCHAR Character : FriendlyName)
	{
		Base.AppendChar(FChar::IsAlnum(Character) || Character == TEXT('_') ? Character : TEXT('_'));
	}
	return FName(
		*FString::Printf(TEXT("%s_%u_%s"), *Base, Data.GenerateUniqueNameIdForMemberVariable(), *Guid.ToString(EGuidFormats::Digits)));
}

void AddDescription(UUserDefinedStructEditorData& Data, const FEdGraphPinType& Type)
{
	FStructVariableDescription Variable;
	Variable.VarGuid = FGuid::NewGuid();
	int32 Number = Data.VariablesDescriptions.Num();
	do
	{
		Variable.FriendlyName = FString::Printf(TEXT("MemberVar_%d"), Number++);
	} while (Data.VariablesDescriptions.ContainsByPredicate(
		[&Variable](const FStructVariableDescription& Other)
		{ return Other.FriendlyName == Variable.FriendlyName; }));
	Variable.VarName = MakePropertyName(Data, Variable.FriendlyName, Variable.VarGuid);
	Variable.SetPinType(Type);
	Data.VariablesDescriptions.Add(Variable);
}

bool Contains(const UScriptStruct* Struct, const UScriptStruct* Wanted);

/** Whether a value of the property, or an element of it, has a value of Wanted in it. */
bool HoldsStruct(const FProperty* Property, const UScriptStruct* Wanted)
{
	if (const FStructProperty* const Member = CastField<FStructProperty>(Property))
	{
		return Contains(Member->Struct, Wanted);
	}
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		return HoldsStruct(Array->Inner, Wanted);
	}
	if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
	{
		return HoldsStruct(Set->ElementProp, Wanted);
	}
	const FMapProperty* const Map = CastField<FMapProperty>(Property);
	return Map && (HoldsStruct(Map->KeyProp, Wanted) || HoldsStruct(Map->ValueProp, Wanted));
}

/** Whether a value of the struct has one of Wanted in it. */
bool Contains(const UScriptStruct* Struct, const UScriptStruct* Wanted)
{
	if (Struct == Wanted)
	{
		return true;
	}
	for (TFieldIterator<FProperty> It(Struct); Struct && It; ++It)
	{
		if (HoldsStruct(*It, Wanted))
		{
			return true;
		}
	}
	return false;
}
}

bool FStructVariableDescription::SetPinType(const FEdGraphPinType& VarType)
{
	Category = VarType.PinCategory;
	SubCategory = VarType.PinSubCategory;
	SubCategoryObject = VarType.PinSubCategoryObject.Get();
	PinValueType = VarType.PinValueType;
	ContainerType = VarType.ContainerType;
	return !VarType.bIsReference && !VarType.bIsWeakPointer;
}

FEdGraphPinType FStructVariableDescription::ToPinType() const
{
	return FEdGraphPinType(Category, SubCategory, SubCategoryObject.LoadSynchronous(), ContainerType, false, PinValueType);
}

UUserDefinedStruct* UUserDefinedStructEditorData::GetOwnerStruct() const { return Cast<UUserDefinedStruct>(GetOuter()); }

uint32 UUserDefinedStructEditorData::GenerateUniqueNameIdForMemberVariable() { return UniqueNameId++; }

void UUserDefinedStructEditorData::PostEditUndo()
{
	Super::PostEditUndo();
	UUserDefinedStruct* const Struct = GetOwnerStruct();
	if (Struct && IsValid(this) && IsValid(Struct))
	{
		FStructureEditorUtils::OnStructureChanged(Struct);
	}
}

UUserDefinedStruct* FStructureEditorUtils::CreateUserDefinedStruct(UObject* InParent, FName Name, EObjectFlags Flags)
{
	UUserDefinedStruct* const Struct = NewObject<UUserDefinedStruct>(InParent, Name, Flags);
	Struct->Guid = FGuid::NewGuid();
	Struct->SetMetaData(TEXT("BlueprintType"), TEXT("true"));
	UUserDefinedStructEditorData* const Data = NewObject<UUserDefinedStructEditorData>(Struct, NAME_None, RF_Transactional);
	Struct->EditorData = Data;
	FEdGraphPinType Boolean;
	Boolean.PinCategory = UEdGraphSchema_K2::PC_Boolean;
	AddDescription(*Data, Boolean);
	OnStructureChanged(Struct);
	return Struct;
}

bool FStructureEditorUtils::CanHaveAMemberVariableOfType(const UUserDefinedStruct* Struct, const FEdGraphPinType& VarType, FString* OutMsg)
{
	const auto IsBad = [Struct](FName Category, const UObject* Object)
	{ return Category == UEdGraphSchema_K2::PC_Struct && Contains(Cast<UScriptStruct>(Object), Struct); };
	if (VarType.PinCategory == UEdGraphSchema_K2::PC_Struct && !Cast<UScriptStruct>(VarType.PinSubCategoryObject.Get()))
	{
		return Refuse(OutMsg, LOCTEXT("IncorrectStructType", "Incorrect struct type in a structure member variable."));
	}
	if (IsBad(VarType.PinCategory, VarType.PinSubCategoryObject.Get()) ||
		(VarType.IsMap() && IsBad(VarType.PinValueType.TerminalCategory, VarType.PinValueType.TerminalSubCategoryObject.Get())))
	{
		return Refuse(OutMsg, LOCTEXT("StructRecursion", "Struct recursion is not allowed."));
	}
	const bool bIsNoValue = VarType.PinCategory == UEdGraphSchema_K2::PC_Exec || VarType.PinCategory == UEdGraphSchema_K2::PC_Wildcard ||
		VarType.PinCategory == UEdGraphSchema_K2::PC_MCDelegate || VarType.PinCategory == UEdGraphSchema_K2::PC_Delegate;
	return !bIsNoValue || Refuse(OutMsg, LOCTEXT("IncorrectType", "Incorrect type for a structure member variable."));
}

bool FStructureEditorUtils::AddVariable(UUserDefinedStruct* Struct, const FEdGraphPinType& VarType)
{
	UUserDefinedStructEditorData* const Data = GetData(Struct);
	if (!Data || !CanHaveAMemberVariableOfType(Struct, VarType))
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("AddVariable", "Add Variable"));
	Data->Modify();
	AddDescription(*Data, VarType);
	OnStructureChanged(Struct);
	return true;
}

bool FStructureEditorUtils::RemoveVariable(UUserDefinedStruct* Struct, FGuid VarGuid)
{
	UUserDefinedStructEditorData* const Data = GetData(Struct);
	if (!GetVarDescByGuid(Struct, VarGuid) || Data->VariablesDescriptions.Num() < 2)
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("RemoveVariable", "Remove Variable"));
	Data->Modify();
	Data->VariablesDescriptions.RemoveAll([&VarGuid](const FStructVariableDescription& Variable)
		{ return Variable.VarGuid == VarGuid; });
	OnStructureChanged(Struct);
	return true;
}

bool FStructureEditorUtils::RenameVariable(UUserDefinedStruct* Struct, FGuid VarGuid, const FString& NewDisplayNameStr)
{
	UUserDefinedStructEditorData* const Data = GetData(Struct);
	FStructVariableDescription* const Variable = GetVarDescByGuid(Struct, VarGuid);
	const bool bIsName = !NewDisplayNameStr.TrimStartAndEnd().IsEmpty() && NewDisplayNameStr.Len() < MaxNameLength &&
		IsUniqueVariableFriendlyName(Struct, NewDisplayNameStr);
	if (!Variable || !bIsName)
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("RenameVariable", "Rename Variable"));
	Data->Modify();
	Variable->FriendlyName = NewDisplayNameStr;
	Variable->VarName = MakePropertyName(*Data, NewDisplayNameStr, VarGuid);
	OnStructureChanged(Struct);
	return true;
}

bool FStructureEditorUtils::ChangeVariableType(UUserDefinedStruct* Struct, FGuid VarGuid, const FEdGraphPinType& NewType)
{
	FStructVariableDescription* const Variable = GetVarDescByGuid(Struct, VarGuid);
	if (!Variable || Variable->ToPinType() == NewType || !CanHaveAMemberVariableOfType(Struct, NewType))
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("ChangeVariableType", "Change Variable Type"));
	GetData(Struct)->Modify();
	// A property of another type is another property: its name is made anew, its id stays.
	Variable->VarName = MakePropertyName(*GetData(Struct), Variable->FriendlyName, VarGuid);
	Variable->DefaultValue.Empty();
	Variable->SetPinType(NewType);
	OnStructureChanged(Struct);
	return true;
}

bool FStructureEditorUtils::ChangeVariableDefaultValue(UUserDefinedStruct* Struct, FGuid VarGuid, const FString& NewDefaultValue)
{
	FStructVariableDescription* const Variable = GetVarDescByGuid(Struct, VarGuid);
	const FProperty* const Property = Variable ? FindFProperty<FProperty>(Struct, Variable->VarName) : nullptr;
	if (!Property || Variable->DefaultValue.Equals(NewDefaultValue, ESearchCase::CaseSensitive))
	{
		return false;
	}
	void* const Value = FMemory::Malloc(static_cast<SIZE_T>(Property->GetSize()), static_cast<uint32>(Property->GetMinAlignment()));
	Property->InitializeValue(Value);
	const bool bIsValue = NewDefaultValue.IsEmpty() || Property->ImportText_Direct(*NewDefaultValue, Value, Struct, PPF_None);
	Property->DestroyValue(Value);
	FMemory::Free(Value);
	if (!bIsValue)
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("ChangeVariableDefaultValue", "Change Variable Default Value"));
	GetData(Struct)->Modify();
	Variable->DefaultValue = NewDefaultValue;
	OnStructureChanged(Struct);
	return true;
}

bool FStructureEditorUtils::ChangeVariableTooltip(UUserDefinedStruct* Struct, FGuid VarGuid, const FString& InTooltip)
{
	FStructVariableDescription* const Variable = GetVarDescByGuid(Struct, VarGuid);
	if (!Variable || Variable->ToolTip == InTooltip)
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("ChangeVariableTooltip", "Change UDS Variable Tooltip"));
	GetData(Struct)->Modify();
	Variable->ToolTip = InTooltip;
	FindFProperty<FProperty>(Struct, Variable->VarName)->SetMetaData(TEXT("ToolTip"), *InTooltip);
	Struct->MarkPackageDirty();
	return true;
}

bool FStructureEditorUtils::ChangeTooltip(UUserDefinedStruct* Struct, const FString& InTooltip)
{
	UUserDefinedStructEditorData* const Data = GetData(Struct);
	if (!Data || Data->ToolTip == InTooltip)
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("ChangeTooltip", "Change UDS Tooltip"));
	Data->Modify();
	Data->ToolTip = InTooltip;
	Struct->SetMetaData(TEXT("ToolTip"), *InTooltip);
	Struct->MarkPackageDirty();
	return true;
}

bool FStructureEditorUtils::MoveVariable(UUserDefinedStruct* Struct, FGuid VarGuid, EMoveDirection MoveDirection)
{
	if (!GetVarDescByGuid(Struct, VarGuid))
	{
		return false;
	}
	TArray<FStructVariableDescription>& Variables = GetVarDesc(Struct);
	const int32 Index =
		Variables.IndexOfByPredicate([&VarGuid](const FStructVariableDescription& Variable)
			{ return Variable.VarGuid == VarGuid; });
	const int32 Target = MoveDirection == MD_Up ? Index - 1 : Index + 1;
	if (!Variables.IsValidIndex(Target))
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("ReorderVariables", "Variables reordered"));
	GetData(Struct)->Modify();
	Variables.Swap(Index, Target);
	OnStructureChanged(Struct);
	return true;
}

TArray<FStructVariableDescription>& FStructureEditorUtils::GetVarDesc(UUserDefinedStruct* Struct)
{
	return CastChecked<UUserDefinedStructEditorData>(Struct->EditorData.Get())->VariablesDescriptions;
}

const TArray<FStructVariableDescription>& FStructureEditorUtils::GetVarDesc(const UUserDefinedStruct* Struct)
{
	return GetVarDesc(const_cast<UUserDefinedStruct*>(Struct));
}

FStructVariableDescription* FStructureEditorUtils::GetVarDescByGuid(UUserDefinedStruct* Struct, FGuid VarGuid)
{
	UUserDefinedStructEditorData* const Data = GetData(Struct);
	return Data ? Data->VariablesDescriptions.FindByPredicate(
					  [&VarGuid](const FStructVariableDescription& Variable)
					  { return Variable.VarGuid == VarGuid; })
				: nullptr;
}

FString FStructureEditorUtils::GetVariableFriendlyName(const UUserDefinedStruct* Struct, FGuid VarGuid)
{
	const FStructVariableDescription* const Variable = GetVarDescByGuid(const_cast<UUserDefinedStruct*>(Struct), VarGuid);
	return Variable ? Variable->FriendlyName : FString();
}

FGuid FStructureEditorUtils::GetGuidForProperty(const FProperty* Property)
{
	return Property ? UUserDefinedStruct::GetMemberGuid(Property->GetFName()) : FGuid();
}

FProperty* FStructureEditorUtils::GetPropertyByFriendlyName(const UUserDefinedStruct* Struct, FString DisplayName)
{
	const UUserDefinedStructEditorData* const Data = GetData(Struct);
	const FStructVariableDescription* const Variable = Data
		? Data->VariablesDescriptions.FindByPredicate(
			  [&DisplayName](const FStructVariableDescription& Candidate)
			  { return Candidate.FriendlyName == DisplayName; })
		: nullptr;
	return Variable ? FindFProperty<FProperty>(Struct, Variable->VarName) : nullptr;
}

bool FStructureEditorUtils::IsUniqueVariableFriendlyName(const UUserDefinedStruct* Struct, const FString& DisplayName)
{
	return !GetVarDesc(Struct).ContainsByPredicate(
		[&DisplayName](const FStructVariableDescription& Variable)
		{ return Variable.FriendlyName == DisplayName; });
}

void FStructureEditorUtils::OnStructureChanged(UUserDefinedStruct* Struct)
{
	if (GetData(Struct))
	{
		FUserDefinedStructCompiler(*Struct).Compile();
		if (FBlueprintActionDatabase* const Actions = FBlueprintActionDatabase::TryGet())
		{
			Actions->RefreshAssetActions(Struct);
		}
	}
}

#undef LOCTEXT_NAMESPACE

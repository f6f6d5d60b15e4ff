#include "Kismet2/EnumEditorUtils.h"

#include "BlueprintActionDatabase.h"
#include "EdGraph/EdGraphPin.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/UserDefinedEnum.h"
#include "K2Node.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "MemberUses.h"
#include "ScopedTransaction.h"
#include "UObject/EnumProperty.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "Enum"

namespace
{
using FEnumerators = TArray<TPair<FName, int64>>;

FEnumerators GetEnumerators(const UEnum& Enum)
{
	FEnumerators Names;
	const int32 Count = Enum.NumEnums() - (Enum.ContainsExistingMax() ? 1 : 0);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Names.Emplace(Enum.GetNameByIndex(Index), Enum.GetValueByIndex(Index));
	}
	return Names;
}

/** What each value becomes; one that has lost its enumerator becomes the first. */
TMap<int64, int64> MapValues(const FEnumerators& Old, const UEnum& Enum)
{
	TMap<int64, int64> Values;
	for (const TPair<FName, int64>& Enumerator : Old)
	{
		const int64 Value = Enum.GetValueByName(Enumerator.Key);
		Values.Add(Enumerator.Value, Value == INDEX_NONE ? 0 : Value);
	}
	return Values;
}

/** The number of an enum value of this property itself; null for a property of another kind or enum. */
const FNumericProperty* FindNumber(const FProperty* Property, const UEnum& Enum)
{
	const FByteProperty* const Byte = CastField<FByteProperty>(Property);
	const FEnumProperty* const EnumProperty = CastField<FEnumProperty>(Property);
	return Byte && Byte->Enum == &Enum                     ? Byte
		: EnumProperty && EnumProperty->GetEnum() == &Enum ? EnumProperty->GetUnderlyingProperty()
														   : nullptr;
}

void ChangeValues(const FProperty& Property, void* Value, const UEnum& Enum, const TMap<int64, int64>& Values);

void ChangeValuesIn(const UStruct& Struct, void* Container, const UEnum& Enum, const TMap<int64, int64>& Values)
{
	for (TFieldIterator<FProperty> It(&Struct); It; ++It)
	{
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			ChangeValues(**It, It->ContainerPtrToValuePtr<void>(Container, Index), Enum, Values);
		}
	}
}

void ChangeValues(const FProperty& Property, void* Value, const UEnum& Enum, const TMap<int64, int64>& Values)
{
	if (const FNumericProperty* const Number = FindNumber(&Property, Enum))
	{
		const int64* const NewValue = Values.Find(Number->GetSignedIntPropertyValue(Value));
		Number->SetIntPropertyValue(Value, NewValue ? *NewValue : static_cast<int64>(0));
	}
	else if (const FStructProperty* const Struct = CastField<FStructProperty>(&Property))
	{
		ChangeValuesIn(*Struct->Struct, Value, Enum, Values);
	}
	else if (const FArrayProperty* const Array = CastField<FArrayProperty>(&Property))
	{
		FScriptArrayHelper Helper(Array, Value);
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			ChangeValues(*Array->Inner, Helper.GetRawPtr(Index), Enum, Values);
		}
	}
	else if (const FMapProperty* const Map = CastField<FMapProperty>(&Property))
	{
		FScriptMapHelper Helper(Map, Value);
		for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
		{
			if (Helper.IsValidIndex(Index))
			{
				ChangeValues(*Map->KeyProp, Helper.GetKeyPtr(Index), Enum, Values);
				ChangeValues(*Map->ValueProp, Helper.GetValuePtr(Index), Enum, Values);
			}
		}
		Helper.Rehash();
	}
	else if (const FSetProperty* const Set = CastField<FSetProperty>(&Property))
	{
		FScriptSetHelper Helper(Set, Value);
		for (int32 Index = 0; Index < Helper.GetMaxIndex(); ++Index)
		{
			if (Helper.IsValidIndex(Index))
			{
				ChangeValues(*Set->ElementProp, Helper.GetElementPtr(Index), Enum, Values);
			}
		}
		Helper.Rehash();
	}
}

void ChangeValuesOfBlueprints(const UEnum& Enum, const TMap<int64, int64>& Values)
{
	TArray<UObject*> Classes;
	GetObjectsOfClass(UBlueprintGeneratedClass::StaticClass(), Classes, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	for (UObject* const Object : Classes)
	{
		UClass* const Class = CastChecked<UClass>(Object);
		TArray<UObject*> Instances;
		GetObjectsOfClass(Class, Instances, false, RF_NoFlags, EInternalObjectFlags::Garbage);
		for (UObject* const Instance : Instances)
		{
			ChangeValuesIn(*Class, Instance, Enum, Values);
		}
	}
}

void ReconstructNodesOf(const UEnum& Enum)
{
	TArray<UObject*> Nodes;
	GetObjectsOfClass(UK2Node::StaticClass(), Nodes, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	FStandingNodes Standing;
	TSet<UBlueprint*> Blueprints;
	for (UObject* const Object : Nodes)
	{
		UK2Node* const Node = CastChecked<UK2Node>(Object);
		const bool bHasPin =
			Node->Pins.ContainsByPredicate([&Enum](const UEdGraphPin* Pin)
				{ return Pin->PinType.PinSubCategoryObject.Get() == &Enum; });
		TArray<UObject*> References;
		if (!bHasPin)
		{
			FReferenceFinder(References).FindReferences(Node);
		}
		if ((bHasPin || References.Contains(&Enum)) && Standing.Contains(*Node))
		{
			Node->ReconstructNode();
			Blueprints.Add(Node->GetBlueprint());
		}
	}
	for (UBlueprint* const Blueprint : Blueprints)
	{
		FBlueprintEditorUtils::MarkBlueprintAsModified(Blueprint);
	}
}

void Follow(const UEnum& Enum, const FEnumerators& Old)
{
	const TMap<int64, int64> Values = MapValues(Old, Enum);
	bool bAnyMoved = false;
	for (const TPair<int64, int64>& Value : Values)
	{
		bAnyMoved = bAnyMoved || Value.Key != Value.Value;
	}
	if (bAnyMoved)
	{
		ChangeValuesOfBlueprints(Enum, Values);
	}
	ReconstructNodesOf(Enum);
}

/** Sets the enumerators in this order, numbered from 0. */
void SetEnumerators(UUserDefinedEnum& Enum, FEnumerators Names)
{
	const FEnumerators Old = GetEnumerators(Enum);
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		Names[Index].Value = Index;
	}
	Enum.SetEnums(Names, UEnum::ECppForm::Namespaced);
	Enum.MarkPackageDirty();
	Follow(Enum, Old);
}
}

UEnum* FEnumEditorUtils::CreateUserDefinedEnum(UObject* InParent, FName EnumName, EObjectFlags Flags)
{
	UUserDefinedEnum* const Enum = NewObject<UUserDefinedEnum>(InParent, EnumName, Flags);
	Enum->SetEnums({}, UEnum::ECppForm::Namespaced);
	Enum->SetMetaData(TEXT("BlueprintType"), TEXT("true"));
	if (FBlueprintActionDatabase* const Actions = FBlueprintActionDatabase::TryGet())
	{
		Actions->RefreshAssetActions(Enum);
	}
	return Enum;
}

void FEnumEditorUtils::AddNewEnumeratorForUserDefinedEnum(UUserDefinedEnum* Enum)
{
	const FScopedTransaction Transaction(LOCTEXT("AddEnumerator", "Add Enumerator"));
	Enum->Modify();
	FEnumerators Names = GetEnumerators(*Enum);
	const FString Name = Enum->GenerateNewEnumeratorName();
	Names.Emplace(FName(*Enum->GenerateFullEnumName(*Name)), Names.Num());
	Enum->DisplayNameMap.Add(FName(*Name), FText::FromString(Name));
	SetEnumerators(*Enum, Names);
}

void FEnumEditorUtils::RemoveEnumeratorFromUserDefinedEnum(UUserDefinedEnum* Enum, int32 EnumeratorIndex)
{
	FEnumerators Names = GetEnumerators(*Enum);
	if (!Names.IsValidIndex(EnumeratorIndex))
	{
		return;
	}
	const FScopedTransaction Transaction(LOCTEXT("RemoveEnumerator", "Remove Enumerator"));
	Enum->Modify();
	Enum->DisplayNameMap.Remove(FName(*Enum->GetNameStringByIndex(EnumeratorIndex)));
	Names.RemoveAt(EnumeratorIndex);
	SetEnumerators(*Enum, Names);
}

void FEnumEditorUtils::MoveEnumeratorInUserDefinedEnum(UUserDefinedEnum* Enum, int32 InitialEnumeratorIndex, int32 TargetIndex)
{
	FEnumerators Names = GetEnumerators(*Enum);
	if (!Names.IsValidIndex(InitialEnumeratorIndex) || !Names.IsValidIndex(TargetIndex) || InitialEnumeratorIndex == TargetIndex)
	{
		return;
	}
	const FScopedTransaction Transaction(LOCTEXT("MoveEnumeratorInUserDefinedEnum", "Reorder Enumerator"));
	Enum->Modify();
	const TPair<FName, int64> Moved = Names[InitialEnumeratorIndex];
	Names.RemoveAt(InitialEnumeratorIndex);
	Names.Insert(Moved, TargetIndex);
	SetEnumerators(*Enum, Names);
}

bool FEnumEditorUtils::IsEnumeratorDisplayNameValid(const UUserDefinedEnum* Enum, int32 EnumeratorIndex, const FText NewDisplayName)
{
	const FEnumerators Names = GetEnumerators(*Enum);
	if (!Names.IsValidIndex(EnumeratorIndex) || NewDisplayName.IsEmptyOrWhitespace() || NewDisplayName.ToString() == TEXT("(INVALID)"))
	{
		return false;
	}
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Index != EnumeratorIndex && Enum->GetDisplayNameTextByIndex(Index).ToString() == NewDisplayName.ToString())
		{
			return false;
		}
	}
	return true;
}

bool FEnumEditorUtils::SetEnumeratorDisplayName(UUserDefinedEnum* Enum, int32 EnumeratorIndex, FText NewDisplayName)
{
	if (!IsEnumeratorDisplayNameValid(Enum, EnumeratorIndex, NewDisplayName))
	{
		return false;
	}
	const FScopedTransaction Transaction(LOCTEXT("SetDisplayName", "Set Display Name"));
	Enum->Modify();
	Enum->DisplayNameMap.Add(FName(*Enum->GetNameStringByIndex(EnumeratorIndex)), NewDisplayName);
	Enum->MarkPackageDirty();
	ReconstructNodesOf(*Enum);
	return true;
}

bool FEnumEditorUtils::IsProperNameForUserDefinedEnumerator(const UEnum* Enum, FString NewName)
{
	FText Reason;
	const bool bIsObjectName = !NewName.IsEmpty() && FName(*NewName).IsValidObjectName(Reason);
	return bIsObjectName && !Enum->IsValidEnumName(FName(*Enum->GenerateFullEnumName(*NewName)));
}

void FEnumEditorUtils::UpdateAfterUndo(UUserDefinedEnum* Enum)
{
	// The nodes stand in the transaction themselves.
	const TMap<int64, int64> Values = MapValues(Enum->TakeEnumeratorsBeforeUndo(), *Enum);
	ChangeValuesOfBlueprints(*Enum, Values);
}

#undef LOCTEXT_NAMESPACE

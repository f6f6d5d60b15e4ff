#include "Lum/LumVariableRules.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumTypeSuggestions.h"
#include "Lum/LumVariable.h"

#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

namespace
{
const TCHAR* const ReferencePrefix = TEXT("ref|");

bool CanBeKey(const FName& Category, const UObject* Object)
{
	const UScriptStruct* const Struct = Cast<UScriptStruct>(Object);
	const bool bIsHashedStruct = Struct && Struct->GetCppStructOps() && Struct->GetCppStructOps()->HasGetTypeHash();
	return Category != UEdGraphSchema_K2::PC_Boolean && Category != UEdGraphSchema_K2::PC_Text && (!Struct || bIsHashedStruct);
}

/** What keeps one value from being declared; empty for a good one. */
FString FindFault(const FName& Category, const UObject* Object, LumVariableRules::EUse Use)
{
	const bool bIsPin = Use == LumVariableRules::EUse::Pin;
	const bool bOnlyOnPins = Category == UEdGraphSchema_K2::PC_Exec || Category == UEdGraphSchema_K2::PC_Wildcard;
	if (bOnlyOnPins && !bIsPin)
	{
		return TEXT("only pins have that type");
	}
	if (Category == UEdGraphSchema_K2::PC_Delegate || (Category == UEdGraphSchema_K2::PC_MCDelegate && Use != LumVariableRules::EUse::Member))
	{
		return TEXT("a type id tells no signature");
	}
	const FName NeedObject[] = {UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PC_Class, UEdGraphSchema_K2::PC_SoftObject,
		UEdGraphSchema_K2::PC_SoftClass, UEdGraphSchema_K2::PC_Interface, UEdGraphSchema_K2::PC_Struct};
	if (!Object && MakeArrayView(NeedObject).Contains(Category))
	{
		return TEXT("the id must name what it is of, as 'object.Actor' does");
	}
	const UClass* const Class = Cast<UClass>(Object);
	const UScriptStruct* const Struct = Cast<UScriptStruct>(Object);
	const bool bIsAllowed = (!Class || UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Class, true)) &&
		(!Struct || UEdGraphSchema_K2::IsAllowableBlueprintVariableType(Struct, true));
	return bIsAllowed ? FString() : FString(TEXT("Blueprints cannot hold values of it"));
}

FString FindFault(const FEdGraphPinType& Type, LumVariableRules::EUse Use)
{
	const UObject* const Object = Type.PinSubCategoryObject.Get();
	FString Fault = FindFault(Type.PinCategory, Object, Use);
	if (Fault.IsEmpty() && Type.IsMap())
	{
		Fault = FindFault(Type.PinValueType.TerminalCategory, Type.PinValueType.TerminalSubCategoryObject.Get(), Use);
	}
	const bool bIsSingle = Type.PinCategory == UEdGraphSchema_K2::PC_Exec || Type.PinCategory == UEdGraphSchema_K2::PC_MCDelegate;
	if (Fault.IsEmpty() && Type.IsContainer() && bIsSingle)
	{
		return TEXT("no container holds it");
	}
	if (Fault.IsEmpty() && (Type.IsSet() || Type.IsMap()) && !CanBeKey(Type.PinCategory, Object))
	{
		return TEXT("sets and maps need elements and keys that can be hashed");
	}
	return Fault;
}

/** Whether the text can be an engine name at all, of which a null character would be the end. */
EValidatorResult CheckText(const FString& Name)
{
	if (Name.Len() >= NAME_SIZE)
	{
		return EValidatorResult::TooLong;
	}
	return FCString::Strlen(*Name) < Name.Len() ? EValidatorResult::ContainsInvalidCharacters : EValidatorResult::Ok;
}

FLumError_Write MakeNameError(const FString& Name, EValidatorResult Result)
{
	// What an error tells ends at a null character, too.
	return CheckText(Name) == EValidatorResult::ContainsInvalidCharacters
		? VEXEL_ERROR(FLumError_Write, "Name %s cannot contain a character of the code 0.", *Name)
		: FLumError_Write(VEXEL_HERE, INameValidatorInterface::GetErrorString(Name, Result));
}

EValidatorResult Validate(INameValidatorInterface& Validator, const FString& Name)
{
	const EValidatorResult Result = CheckText(Name);
	return Result == EValidatorResult::Ok ? Validator.IsValid(Name) : Result;
}

TVexelExpected<void> CheckName(INameValidatorInterface& Validator, const FString& Name)
{
	const EValidatorResult Result = Validate(Validator, Name);
	if (Result != EValidatorResult::Ok)
	{
		return MakeNameError(Name, Result);
	}
	return {};
}

/** The Blueprint below this one that declares a member of the name already; null where none does. */
const UBlueprint* FindChildWithMember(const UBlueprint& Blueprint, FName Name)
{
	TArray<UClass*> Children;
	if (Blueprint.GeneratedClass)
	{
		GetDerivedClasses(Blueprint.GeneratedClass, Children);
	}
	for (const UClass* const Class : Children)
	{
		const UBlueprint* const Child = Class->HasAnyClassFlags(CLASS_NewerVersionExists) ? nullptr : UBlueprint::GetBlueprintFromClass(Class);
		if (Child && Child->GeneratedClass == Class && FKismetNameValidator(Child).IsValid(Name) != EValidatorResult::Ok)
		{
			return Child;
		}
	}
	return nullptr;
}
}

TVexelExpected<void> LumVariableRules::CheckComplete(const FLumVarDesc& Desc)
{
	if (Desc.PropId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "Variable name (prop_id) is required");
	}
	if (Desc.TypeId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Write, "Variable type_id is required");
	}
	return {};
}

TVexelExpected<FName> LumVariableRules::MakeName(const TVexelPropId& PropId)
{
	const EValidatorResult Result = CheckText(PropId.ToString());
	if (Result != EValidatorResult::Ok)
	{
		return MakeNameError(PropId.ToString(), Result);
	}
	return FName(*PropId.ToString());
}

TVexelExpected<FEdGraphPinType> LumVariableRules::ParseType(const TVexelPropTypeId& TypeId, EUse Use)
{
	FString Text = TypeId.ToString();
	const bool bIsReference = Text.RemoveFromStart(ReferencePrefix, ESearchCase::IgnoreCase);
	TVexelExpected<FEdGraphPinType> Parsed = FVexelBlueprintPropTypeBuilder::ParseId(TVexelPropTypeId(Text));
	if (Parsed.HasError())
	{
		return FLumError_Write(VEXEL_HERE, Parsed.GetError().GetMessage() + LumTypeSuggestions::Describe(TVexelPropTypeId(Text)));
	}
	FEdGraphPinType Type = MoveTemp(Parsed).GetValue();
	Type.bIsReference = bIsReference && Use == EUse::Pin;
	const FString Fault = FindFault(Type, Use);
	if (!Fault.IsEmpty())
	{
		return FLumError_Write(VEXEL_HERE, Fault);
	}
	return Type;
}

TVexelExpected<void> LumVariableRules::CheckMemberName(UBlueprint& Blueprint, const FString& Name, FName ExistingName)
{
	// Letter case does not tell names apart.
	if (!ExistingName.IsNone() && Name == ExistingName.ToString())
	{
		return {};
	}
	if (Name.Len() < NAME_SIZE)
	{
		FLumEditBatch::BringUpToDateForName(Blueprint, FName(*Name));
	}
	FKismetNameValidator Validator(&Blueprint);
	VEXEL_TRY_VOID(CheckName(Validator, Name));
	if (const UBlueprint* const Child = FindChildWithMember(Blueprint, FName(*Name)))
	{
		return VEXEL_ERROR(FLumError_Write, "Name is already in use in '%s', which derives from the blueprint.", *Child->GetName());
	}
	return {};
}

TVexelExpected<void> LumVariableRules::CheckLocalName(
	UBlueprint& Blueprint, const UK2Node_FunctionEntry& Entry, UStruct* Function, const FString& Name, FName ExistingName)
{
	if (!ExistingName.IsNone() && Name == ExistingName.ToString())
	{
		return {};
	}
	if (Name.Len() < NAME_SIZE)
	{
		FLumEditBatch::BringUpToDateForName(Blueprint, FName(*Name));
	}
	FKismetNameValidator Validator(&Blueprint, NAME_None, Function);
	VEXEL_TRY_VOID(CheckName(Validator, Name));
	if (Entry.FindPin(FName(*Name)))
	{
		return FLumError_Write(VEXEL_HERE, INameValidatorInterface::GetErrorString(Name, EValidatorResult::LocallyInUse));
	}
	return {};
}

TVexelExpected<void> LumVariableRules::CheckPinName(const UBlueprint& Blueprint, const FString& Name)
{
	const FName Reserved[] = {UEdGraphSchema_K2::PN_Self, UEdGraphSchema_K2::PN_Execute, UEdGraphSchema_K2::PN_Then};
	FKismetNameValidator Validator(&Blueprint);
	const EValidatorResult Result = Validate(Validator, Name);
	const bool bIsReserved = Name.Len() < NAME_SIZE && MakeArrayView(Reserved).Contains(FName(*Name));
	if (bIsReserved)
	{
		return VEXEL_ERROR(FLumError_Write, "Every node has a pin of the name '%s' of its own.", *Name);
	}
	if (Result != EValidatorResult::Ok && Result != EValidatorResult::AlreadyInUse)
	{
		return MakeNameError(Name, Result);
	}
	return {};
}

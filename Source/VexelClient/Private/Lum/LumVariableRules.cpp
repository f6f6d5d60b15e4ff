#include "Lum/LumVariableRules.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumStructureEdit.h"
#include "Lum/LumVariable.h"
#include "VexelFuzzySearch.h"

#include "Algo/Sort.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/Kismet2NameValidators.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"

namespace
{
constexpr int32 MaxNearestTypes = 5;
const TCHAR* const ReferencePrefix = TEXT("ref|");

/** What a name is compared with: the words of types, and the classes, structures and enumerations that are loaded. */
TArray<FString> ListTypeIds()
{
	TArray<FString> Ids = {TEXT("bool"), TEXT("byte"), TEXT("int"), TEXT("int64"), TEXT("real"), TEXT("name"), TEXT("string"), TEXT("text")};
	for (TObjectIterator<UStruct> It; It; ++It)
	{
		const UClass* const Class = Cast<UClass>(*It);
		const bool bIsOutdated = Class && Class->HasAnyClassFlags(CLASS_NewerVersionExists);
		if ((Class || It->IsA<UScriptStruct>()) && !bIsOutdated && !It->GetName().StartsWith(TEXT("SKEL_")))
		{
			Ids.Add(FVexelBlueprintPropTypeBuilder::MakeStructId(**It).ToString());
		}
	}
	for (TObjectIterator<UEnum> It; It; ++It)
	{
		Ids.Add(TEXT("enum.") + It->GetName());
	}
	return Ids;
}

/** The id of the element that the type id is about, without containers. */
FString GetElementText(const TVexelPropTypeId& TypeId)
{
	FString Text = TypeId.ToString();
	int32 Place = INDEX_NONE;
	if (Text.FindLastChar(TEXT('|'), Place))
	{
		Text.RightChopInline(Place + 1);
	}
	return Text;
}

FString ListNearestTypes(const TVexelPropTypeId& TypeId)
{
	struct FRated
	{
		double Rating;
		FString Id;
	};
	constexpr double LeastAlike = 60;
	const FString Wanted = GetElementText(TypeId);
	// Nothing is like a text that is longer than any name.
	if (Wanted.Len() > FKismetNameValidator::GetMaximumNameLength() || !FLumEditBatch::TakeSuggestion())
	{
		return FString();
	}
	const FVexelFuzzySearch::FScorer Score = FVexelFuzzySearch::ScorerPartialRatio(Wanted);
	TArray<FRated> Rated;
	for (const FString& Id : ListTypeIds())
	{
		const double Rating = Score(Id) * 2 * FMath::Min(Wanted.Len(), Id.Len()) / FMath::Max(1, Wanted.Len() + Id.Len());
		if (Rating >= LeastAlike)
		{
			Rated.Add({Rating, Id});
		}
	}
	Algo::Sort(Rated, [](const FRated& A, const FRated& B)
		{ return A.Rating != B.Rating ? A.Rating > B.Rating : A.Id.Compare(B.Id) < 0; });
	TArray<FString> Names;
	for (const FRated& Near : Rated)
	{
		if (Names.Num() < MaxNearestTypes)
		{
			Names.AddUnique(FString::Printf(TEXT("'%s'"), *Near.Id));
		}
	}
	return Names.IsEmpty() ? FString() : TEXT(". Nearest: ") + FString::Join(Names, TEXT(", "));
}

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

TVexelExpected<void> CheckName(INameValidatorInterface& Validator, const FString& Name)
{
	// No engine name is that long, so the validator could not be asked.
	const EValidatorResult Result = Name.Len() >= NAME_SIZE ? EValidatorResult::TooLong : Validator.IsValid(Name);
	if (Result != EValidatorResult::Ok)
	{
		return FLumError_Write(VEXEL_HERE, INameValidatorInterface::GetErrorString(Name, Result));
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
	if (PropId.ToString().Len() >= NAME_SIZE)
	{
		return FLumError_Write(VEXEL_HERE, INameValidatorInterface::GetErrorString(PropId.ToString(), EValidatorResult::TooLong));
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
		return FLumError_Write(VEXEL_HERE, Parsed.GetError().GetMessage() + ListNearestTypes(TypeId));
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
	const EValidatorResult Result = Name.Len() >= NAME_SIZE ? EValidatorResult::TooLong : FKismetNameValidator(&Blueprint).IsValid(Name);
	const bool bIsReserved = Name.Len() < NAME_SIZE && MakeArrayView(Reserved).Contains(FName(*Name));
	if (bIsReserved)
	{
		return VEXEL_ERROR(FLumError_Write, "Every node has a pin of the name '%s' of its own.", *Name);
	}
	if (Result != EValidatorResult::Ok && Result != EValidatorResult::AlreadyInUse)
	{
		return FLumError_Write(VEXEL_HERE, INameValidatorInterface::GetErrorString(Name, Result));
	}
	return {};
}

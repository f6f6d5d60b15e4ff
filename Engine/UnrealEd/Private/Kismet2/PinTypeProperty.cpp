#include "PinTypeProperty.h"

#include "EdGraph/EdGraphPin.h"
#include "EdGraphSchema_K2.h"
#include "Engine/MemberReference.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/UnrealType.h"

using EKind = UECodeGen_Private::EPropertyGenKind;

namespace
{
/** Categories whose properties need nothing but their kind. */
bool FindSimpleKind(const FEdGraphPinType& Type, EKind& OutKind)
{
	static const TMap<FName, EKind> Kinds = {
		{UEdGraphSchema_K2::PC_Boolean, EKind::Bool},
		{UEdGraphSchema_K2::PC_Int, EKind::Int},
		{UEdGraphSchema_K2::PC_Int64, EKind::Int64},
		{UEdGraphSchema_K2::PC_Name, EKind::Name},
		{UEdGraphSchema_K2::PC_String, EKind::Str},
		{UEdGraphSchema_K2::PC_Text, EKind::Text},
		{UEdGraphSchema_K2::PC_FieldPath, EKind::FieldPath},
	};
	if (Type.PinCategory == UEdGraphSchema_K2::PC_Real)
	{
		OutKind = Type.PinSubCategory == UEdGraphSchema_K2::PC_Float ? EKind::Float : EKind::Double;
		return true;
	}
	if (const EKind* const Kind = Kinds.Find(Type.PinCategory))
	{
		OutKind = *Kind;
		return true;
	}
	return false;
}

bool DescribeTerminal(const FEdGraphPinType& Type, UClass* SelfClass, FPropertyDescription& OutDescription)
{
	if (FindSimpleKind(Type, OutDescription.Kind))
	{
		return true;
	}
	UObject* const TypeObject = Type.PinSubCategory == UEdGraphSchema_K2::PSC_Self ? SelfClass : Type.PinSubCategoryObject.Get();
	const FName Category = Type.PinCategory;
	if (Category == UEdGraphSchema_K2::PC_Byte || Category == UEdGraphSchema_K2::PC_Enum)
	{
		UEnum* const Enum = Cast<UEnum>(TypeObject);
		OutDescription.Kind = Enum && Enum->GetCppForm() == UEnum::ECppForm::EnumClass ? EKind::Enum : EKind::Byte;
		OutDescription.Type = Enum;
		return true;
	}
	if (Category == UEdGraphSchema_K2::PC_Struct)
	{
		OutDescription.Kind = EKind::Struct;
		OutDescription.Type = Cast<UScriptStruct>(TypeObject);
		return OutDescription.Type != nullptr;
	}
	if (Category == UEdGraphSchema_K2::PC_Delegate || Category == UEdGraphSchema_K2::PC_MCDelegate)
	{
		OutDescription.Kind = Category == UEdGraphSchema_K2::PC_Delegate ? EKind::Delegate : EKind::MulticastInlineDelegate;
		OutDescription.Type = FMemberReference::ResolveSimpleMemberReference<UFunction>(Type.PinSubCategoryMemberReference, SelfClass);
		return OutDescription.Type != nullptr;
	}

	UClass* const ObjectClass = Cast<UClass>(TypeObject);
	const bool bIsClassKind = Category == UEdGraphSchema_K2::PC_Class || Category == UEdGraphSchema_K2::PC_SoftClass;
	if (Category == UEdGraphSchema_K2::PC_Object)
	{
		OutDescription.Kind = Type.bIsWeakPointer ? EKind::WeakObject : EKind::Object;
	}
	else if (Category == UEdGraphSchema_K2::PC_SoftObject)
	{
		OutDescription.Kind = EKind::SoftObject;
	}
	else if (Category == UEdGraphSchema_K2::PC_Interface)
	{
		OutDescription.Kind = EKind::Interface;
	}
	else if (bIsClassKind)
	{
		OutDescription.Kind = Category == UEdGraphSchema_K2::PC_Class ? EKind::Class : EKind::SoftClass;
	}
	else
	{
		return false;
	}
	OutDescription.Type = bIsClassKind ? UClass::StaticClass() : ObjectClass;
	OutDescription.MetaClass = bIsClassKind ? ObjectClass : nullptr;
	return ObjectClass != nullptr;
}

}

bool DescribePinType(FName Name, const FEdGraphPinType& Type, UClass* SelfClass, FPropertyDescription& OutDescription)
{
	OutDescription.Name = Name;
	if (!Type.IsContainer())
	{
		return DescribeTerminal(Type, SelfClass, OutDescription);
	}
	OutDescription.Kind = Type.IsArray() ? EKind::Array : Type.IsSet() ? EKind::Set
																	   : EKind::Map;
	OutDescription.Inner = MakeShared<FPropertyDescription>();
	// A map's key is named apart from the map, as its saved definition has it.
	OutDescription.Inner->Name = Type.IsMap() ? FName(*(Name.ToString() + TEXT("_Key"))) : Name;
	if (!DescribeTerminal(Type, SelfClass, *OutDescription.Inner))
	{
		return false;
	}
	if (Type.IsMap())
	{
		OutDescription.Value = MakeShared<FPropertyDescription>();
		OutDescription.Value->Name = Name;
		return DescribeTerminal(FEdGraphPinType::GetPinTypeForTerminalType(Type.PinValueType), SelfClass, *OutDescription.Value);
	}
	return true;
}

#include "EdGraphSchema_K2.h"

#include "Engine/Blueprint.h"
#include "Engine/MemberReference.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/FieldPathProperty.h"
#include "UObject/TextProperty.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "KismetSchema"

namespace
{
struct FCategoryOfKind
{
	bool (*Matches)(const FProperty* Property);
	FName Category;
	FName SubCategory;
};

template <class PropertyType>
bool IsOfKind(const FProperty* Property)
{
	return CastField<PropertyType>(Property) != nullptr;
}

/** Kinds of property that have one category and no type object. */
const TArray<FCategoryOfKind>& GetPlainKinds()
{
	using Schema = UEdGraphSchema_K2;
	static const TArray<FCategoryOfKind> Kinds = {
		{&IsOfKind<FBoolProperty>, Schema::PC_Boolean, NAME_None},
		{&IsOfKind<FIntProperty>, Schema::PC_Int, NAME_None},
		{&IsOfKind<FInt64Property>, Schema::PC_Int64, NAME_None},
		{&IsOfKind<FFloatProperty>, Schema::PC_Real, Schema::PC_Float},
		{&IsOfKind<FDoubleProperty>, Schema::PC_Real, Schema::PC_Double},
		{&IsOfKind<FNameProperty>, Schema::PC_Name, NAME_None},
		{&IsOfKind<FStrProperty>, Schema::PC_String, NAME_None},
		{&IsOfKind<FTextProperty>, Schema::PC_Text, NAME_None},
		{&IsOfKind<FFieldPathProperty>, Schema::PC_FieldPath, NAME_None},
	};
	return Kinds;
}

/** Categories whose object is a class. */
bool IsObjectLike(const FName Category)
{
	using Schema = UEdGraphSchema_K2;
	return Category == Schema::PC_Object || Category == Schema::PC_Interface || Category == Schema::PC_Class ||
		Category == Schema::PC_SoftObject || Category == Schema::PC_SoftClass;
}

FText GetTypeName(const FEdGraphPinType& Type)
{
	using Schema = UEdGraphSchema_K2;
	UObject* const Object = Type.PinSubCategoryObject.Get();
	if (const UScriptStruct* const Struct = Cast<UScriptStruct>(Object))
	{
		static const TSet<FName> BuiltInStructs = {TEXT("Vector"), TEXT("Rotator"), TEXT("Transform")};
		const FText Name = Struct->GetDisplayNameText();
		return BuiltInStructs.Contains(Struct->GetFName()) ? Name : FText::Format(LOCTEXT("StructAsText", "{0} Structure"), Name);
	}
	if (const UEnum* const Enum = Cast<UEnum>(Object))
	{
		return FText::Format(LOCTEXT("EnumAsText", "{0} Enum"), Enum->GetDisplayNameText());
	}
	const FText CategoryName = Schema::GetCategoryText(Type.PinCategory, Type.PinSubCategory, false);
	if (Type.PinSubCategory == Schema::PSC_Self)
	{
		return FText::Format(LOCTEXT("SelfReference", "Self {0}"), CategoryName);
	}
	const UClass* const Class = Cast<UClass>(Object);
	if (!IsObjectLike(Type.PinCategory) || !Class || Class == UObject::StaticClass())
	{
		return CategoryName;
	}
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(Class);
	const FText ClassName = Blueprint ? FText::FromString(FName::NameToDisplayString(Blueprint->GetName(), false))
									  : Class->GetDisplayNameText();
	return FText::Format(LOCTEXT("ObjectAsText", "{0} {1}"), ClassName, CategoryName);
}

FString Plural(const FText& Text)
{
	return Text.ToString() + TEXT("s");
}
}

bool UEdGraphSchema_K2::GetPropertyCategoryInfo(
	const FProperty* TestProperty, FName& OutCategory, FName& OutSubCategory, UObject*& OutSubCategoryObject, bool& bOutIsWeakPointer)
{
	OutSubCategory = NAME_None;
	OutSubCategoryObject = nullptr;
	bOutIsWeakPointer = false;
	if (const FInterfaceProperty* const Interface = CastField<FInterfaceProperty>(TestProperty))
	{
		OutCategory = PC_Interface;
		OutSubCategoryObject = Interface->InterfaceClass;
		return true;
	}
	if (const FClassProperty* const Class = CastField<FClassProperty>(TestProperty))
	{
		OutCategory = PC_Class;
		OutSubCategoryObject = Class->MetaClass;
		return true;
	}
	if (const FSoftClassProperty* const SoftClass = CastField<FSoftClassProperty>(TestProperty))
	{
		OutCategory = PC_SoftClass;
		OutSubCategoryObject = SoftClass->MetaClass;
		return true;
	}
	if (const FObjectPropertyBase* const Object = CastField<FObjectPropertyBase>(TestProperty))
	{
		OutCategory = TestProperty->IsA<FSoftObjectProperty>() ? PC_SoftObject : PC_Object;
		OutSubCategoryObject = Object->PropertyClass;
		bOutIsWeakPointer = TestProperty->IsA<FWeakObjectProperty>();
		return true;
	}
	if (const FStructProperty* const Struct = CastField<FStructProperty>(TestProperty))
	{
		OutCategory = PC_Struct;
		OutSubCategoryObject = Struct->Struct;
		return true;
	}
	if (const FEnumProperty* const Enum = CastField<FEnumProperty>(TestProperty))
	{
		OutCategory = PC_Byte;
		OutSubCategoryObject = Enum->GetEnum();
		return true;
	}
	const bool bIsBitmask = TestProperty->HasMetaData(FBlueprintMetadata::MD_Bitmask);
	if (const FByteProperty* const Byte = CastField<FByteProperty>(TestProperty))
	{
		OutCategory = PC_Byte;
		OutSubCategory = bIsBitmask ? PSC_Bitmask : FName();
		OutSubCategoryObject = Byte->Enum;
		return true;
	}
	if (bIsBitmask && TestProperty->IsA<FIntProperty>())
	{
		OutCategory = PC_Int;
		OutSubCategory = PSC_Bitmask;
		return true;
	}
	for (const FCategoryOfKind& Kind : GetPlainKinds())
	{
		if (Kind.Matches(TestProperty))
		{
			OutCategory = Kind.Category;
			OutSubCategory = Kind.SubCategory;
			return true;
		}
	}
	OutCategory = TEXT("bad_type");
	return false;
}

bool UEdGraphSchema_K2::ConvertPropertyToPinType(const FProperty* Property, FEdGraphPinType& TypeOut) const
{
	TypeOut.ResetToDefaults();
	if (!Property)
	{
		TypeOut.PinCategory = TEXT("bad_type");
		return false;
	}
	const FProperty* ValueProperty = Property;
	if (const FMapProperty* const Map = CastField<FMapProperty>(Property))
	{
		ValueProperty = Map->KeyProp;
		UObject* Object = nullptr;
		bool bIsWeak = false;
		if (!GetPropertyCategoryInfo(
				Map->ValueProp, TypeOut.PinValueType.TerminalCategory, TypeOut.PinValueType.TerminalSubCategory, Object, bIsWeak))
		{
			return false;
		}
		TypeOut.PinValueType.TerminalSubCategoryObject = Object;
		TypeOut.PinValueType.bTerminalIsWeakPointer = bIsWeak;
		TypeOut.ContainerType = EPinContainerType::Map;
	}
	else if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
	{
		ValueProperty = Set->ElementProp;
		TypeOut.ContainerType = EPinContainerType::Set;
	}
	else if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		ValueProperty = Array->Inner;
		TypeOut.ContainerType = EPinContainerType::Array;
	}
	TypeOut.bIsReference = Property->HasAllPropertyFlags(CPF_OutParm | CPF_ReferenceParm);
	TypeOut.bIsConst = Property->HasAnyPropertyFlags(CPF_ConstParm);

	if (const FMulticastDelegateProperty* const Multicast = CastField<FMulticastDelegateProperty>(Property))
	{
		TypeOut.PinCategory = PC_MCDelegate;
		FMemberReference::FillSimpleMemberReference<UFunction>(Multicast->SignatureFunction, TypeOut.PinSubCategoryMemberReference);
		return true;
	}
	if (const FDelegateProperty* const Delegate = CastField<FDelegateProperty>(Property))
	{
		TypeOut.PinCategory = PC_Delegate;
		FMemberReference::FillSimpleMemberReference<UFunction>(Delegate->SignatureFunction, TypeOut.PinSubCategoryMemberReference);
		return true;
	}

	UObject* Object = nullptr;
	bool bIsWeak = false;
	if (!GetPropertyCategoryInfo(ValueProperty, TypeOut.PinCategory, TypeOut.PinSubCategory, Object, bIsWeak))
	{
		return false;
	}
	TypeOut.PinSubCategoryObject = Object;
	TypeOut.bIsWeakPointer = bIsWeak;
	TypeOut.bIsUObjectWrapper = ValueProperty->HasAllPropertyFlags(CPF_UObjectWrapper);
	return true;
}

FText UEdGraphSchema_K2::GetCategoryText(const FName Category, const FName SubCategory, const bool bForMenu)
{
	if (Category == PC_Real && SubCategory == PC_Float)
	{
		return LOCTEXT("RealFloat", "Float (single-precision)");
	}
	if (Category == PC_Real && SubCategory == PC_Double)
	{
		return bForMenu ? LOCTEXT("RealMenu", "Float") : LOCTEXT("RealDouble", "Float (double-precision)");
	}
	static const TMap<FName, FText> Texts = {
		{PC_Exec, LOCTEXT("Exec", "Exec")},
		{PC_Boolean, LOCTEXT("BoolCategory", "Boolean")},
		{PC_Byte, LOCTEXT("ByteCategory", "Byte")},
		{PC_Class, LOCTEXT("ClassCategory", "Class Reference")},
		{PC_Int, LOCTEXT("IntCategory", "Integer")},
		{PC_Int64, LOCTEXT("Int64Category", "Integer64")},
		{PC_Real, LOCTEXT("RealCategory", "Real")},
		{PC_Name, LOCTEXT("NameCategory", "Name")},
		{PC_Delegate, LOCTEXT("DelegateCategory", "Delegate")},
		{PC_MCDelegate, LOCTEXT("MulticastDelegateCategory", "Event Dispatcher")},
		{PC_Object, LOCTEXT("ObjectCategory", "Object Reference")},
		{PC_Interface, LOCTEXT("InterfaceCategory", "Interface")},
		{PC_SoftObject, LOCTEXT("SoftObjectReferenceCategory", "Soft Object Reference")},
		{PC_SoftClass, LOCTEXT("SoftClassReferenceCategory", "Soft Class Reference")},
		{PC_String, LOCTEXT("StringCategory", "String")},
		{PC_Text, LOCTEXT("TextCategory", "Text")},
		{PC_Struct, LOCTEXT("StructCategory", "Structure")},
		{PC_Wildcard, LOCTEXT("WildcardCategory", "Wildcard")},
		{PC_Enum, LOCTEXT("EnumCategory", "Enum")},
		{PC_FieldPath, LOCTEXT("FieldPathCategory", "Field Path")},
	};
	const FText* const Text = Texts.Find(Category);
	return Text ? *Text : FText::FromName(Category);
}

FText UEdGraphSchema_K2::TypeToText(const FProperty* const Property)
{
	FEdGraphPinType Type;
	return GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(Property, Type)
		? TypeToText(Type)
		: FText::FromString(Property ? Property->GetCPPType() : FString());
}

FText UEdGraphSchema_K2::TypeToText(const FEdGraphPinType& Type)
{
	const FText Name = GetTypeName(Type);
	FText Result = Name;
	switch (Type.ContainerType)
	{
		case EPinContainerType::Array:
			Result = FText::Format(LOCTEXT("ArrayAsText", "Array of {0}"), FText::FromString(Plural(Name)));
			break;
		case EPinContainerType::Set:
			Result = FText::Format(LOCTEXT("SetAsText", "Set of {0}"), FText::FromString(Plural(Name)));
			break;
		case EPinContainerType::Map:
			Result = FText::Format(LOCTEXT("MapAsText", "Map of {0} to {1}"), FText::FromString(Plural(Name)),
				FText::FromString(Plural(GetTypeName(FEdGraphPinType::GetPinTypeForTerminalType(Type.PinValueType)))));
			break;
		case EPinContainerType::None:
			break;
	}
	const bool bMarkReference = Type.bIsReference && !Type.IsContainer();
	return bMarkReference ? FText::Format(LOCTEXT("ReferenceAsText", "{0} (by ref)"), Result) : Result;
}

#undef LOCTEXT_NAMESPACE

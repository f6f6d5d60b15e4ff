#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"

#include "Blueprint/VexelBlueprintEnums.h"
#include "Blueprint/VexelBlueprintPropType.h"
#include "Blueprint/VexelNamedObjects.h"
#include "VexelErrorKinds.h"
#include "VexelLog.h"

#include "AssetRegistry/AssetData.h"
#include "EdGraphSchema_K2.h"
#include "Misc/StringBuilder.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

namespace
{
const TCHAR* const TooltipKeys[] = {TEXT("ShortTooltip"), TEXT("Tooltip")};

/** The pseudo-category of a pin that takes references of every kind. */
const FName& GetAllObjectTypesCategory()
{
	static const FName Category(TEXT("AllObjectTypes"));
	return Category;
}

/** A category that says what it is by an object, and the kind of that object. */
struct FObjectCategory
{
	FName Name;
	UClass* ObjectClass;
};

const TArray<FObjectCategory>& GetObjectCategories()
{
	static const TArray<FObjectCategory> Categories = {
		{GetAllObjectTypesCategory(), UClass::StaticClass()},
		{UEdGraphSchema_K2::PC_Object, UClass::StaticClass()},
		{UEdGraphSchema_K2::PC_SoftObject, UClass::StaticClass()},
		{UEdGraphSchema_K2::PC_Class, UClass::StaticClass()},
		{UEdGraphSchema_K2::PC_SoftClass, UClass::StaticClass()},
		{UEdGraphSchema_K2::PC_Interface, UClass::StaticClass()},
		{UEdGraphSchema_K2::PC_Byte, UEnum::StaticClass()},
		{UEdGraphSchema_K2::PC_Enum, UEnum::StaticClass()},
		{UEdGraphSchema_K2::PC_Struct, UScriptStruct::StaticClass()},
	};
	return Categories;
}

const FObjectCategory* FindObjectCategory(FName Name)
{
	return GetObjectCategories().FindByPredicate([Name](const FObjectCategory& Category)
		{ return Category.Name == Name; });
}

/** A type that is named by one word: what a user reads in the editor, and the exact widths that properties report. */
struct FWordType
{
	const TCHAR* Word;
	const FName& Category;
	const FName& SubCategory;
};

const FWordType* FindWordType(const FString& Word)
{
	static const FName None;
	static const FWordType Types[] = {
		{TEXT("bool"), UEdGraphSchema_K2::PC_Boolean, None},
		{TEXT("byte"), UEdGraphSchema_K2::PC_Byte, None},
		{TEXT("uint8"), UEdGraphSchema_K2::PC_Byte, None},
		{TEXT("int"), UEdGraphSchema_K2::PC_Int, None},
		{TEXT("int32"), UEdGraphSchema_K2::PC_Int, None},
		{TEXT("int64"), UEdGraphSchema_K2::PC_Int64, None},
		{TEXT("real"), UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double},
		{TEXT("double"), UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double},
		{TEXT("float"), UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Float},
		{TEXT("name"), UEdGraphSchema_K2::PC_Name, None},
		{TEXT("string"), UEdGraphSchema_K2::PC_String, None},
		{TEXT("text"), UEdGraphSchema_K2::PC_Text, None},
		{TEXT("object"), UEdGraphSchema_K2::PC_Object, None},
		{TEXT("softobject"), UEdGraphSchema_K2::PC_SoftObject, None},
		{TEXT("class"), UEdGraphSchema_K2::PC_Class, None},
		{TEXT("softclass"), UEdGraphSchema_K2::PC_SoftClass, None},
		{TEXT("exec"), UEdGraphSchema_K2::PC_Exec, None},
		{TEXT("wildcard"), UEdGraphSchema_K2::PC_Wildcard, None},
		{TEXT("delegate"), UEdGraphSchema_K2::PC_Delegate, None},
		{TEXT("mcdelegate"), UEdGraphSchema_K2::PC_MCDelegate, None},
		{TEXT("fieldpath"), UEdGraphSchema_K2::PC_FieldPath, None},
	};
	for (const FWordType& Type : Types)
	{
		if (Word == Type.Word)
		{
			return &Type;
		}
	}
	return nullptr;
}

FString MakeBaseText(FName Category, const UObject* Object, const FAssetData* Asset)
{
	if (!FindObjectCategory(Category))
	{
		return Category.ToString();
	}
	TStringBuilder<NAME_SIZE> Text;
	const bool bEnum = Category == UEdGraphSchema_K2::PC_Byte && Object && Object->IsA<UEnum>();
	Text << (bEnum ? UEdGraphSchema_K2::PC_Enum : Category) << TEXT('.');
	const int32 CategoryLen = Text.Len();
	if (Object || (Asset && Asset->IsValid()))
	{
		Text << (Object ? Object->GetFName() : Asset->AssetName);
	}
	if (FStringView(Text).RightChop(CategoryLen).EndsWith(TEXT("_C"), ESearchCase::IgnoreCase))
	{
		Text.RemoveSuffix(2);
	}
	if (Text.Len() == CategoryLen)
	{
		if (Category == UEdGraphSchema_K2::PC_Interface)
		{
			VEXEL_LOG(Warning, "Pin type '%s' is missing subcategory object!", *Category.ToString());
			return FString();
		}
		return Category.ToString();
	}
	return FString(Text);
}

FString MakeContainerText(const FEdGraphPinType& PinType, const FString& Element)
{
	switch (PinType.ContainerType)
	{
		case EPinContainerType::Array:
			return FString::Printf(TEXT("array|%s"), *Element);
		case EPinContainerType::Set:
			return FString::Printf(TEXT("set|%s"), *Element);
		case EPinContainerType::Map:
		{
			const FEdGraphTerminalType& ValueType = PinType.PinValueType;
			if (ValueType.TerminalCategory.IsNone())
			{
				VEXEL_LOG(Warning, "Map type '%s' is missing value type!", *Element);
				return FString();
			}
			const FString Value = MakeBaseText(ValueType.TerminalCategory, ValueType.TerminalSubCategoryObject.Get(), nullptr);
			if (Value.IsEmpty())
			{
				VEXEL_LOG(Warning, "Failed to resolve value type for map type '%s'!", *Element);
				return FString();
			}
			return FString::Printf(TEXT("map|%s,%s"), *Element, *Value);
		}
		default:
			return Element;
	}
}

FVexelError LogAndFail(FString Message)
{
	VEXEL_LOG(Warning, "%s", *Message);
	return FVexelError(VEXEL_HERE, FString(), MoveTemp(Message));
}

TVexelExpected<FEdGraphPinType> ParseBase(const FString& Text)
{
	FEdGraphPinType Type;
	FString CategoryText;
	FString ObjectName;
	if (!Text.Split(TEXT("."), &CategoryText, &ObjectName))
	{
		const FWordType* const WordType = FindWordType(Text);
		if (!WordType)
		{
			return LogAndFail(FString::Printf(TEXT("Unknown pin type '%s'"), *Text));
		}
		Type.PinCategory = WordType->Category;
		Type.PinSubCategory = WordType->SubCategory;
		return Type;
	}

	// A name that no FName can hold names nothing.
	const FObjectCategory* const Category = CategoryText.Len() < NAME_SIZE ? FindObjectCategory(FName(*CategoryText)) : nullptr;
	UObject* const Object = Category ? VexelNamedObjects::Find(*Category->ObjectClass, ObjectName) : nullptr;
	if (!Object)
	{
		return LogAndFail(FString::Printf(TEXT("Failed to load subcategory object '%s' for pin type '%s'!"), *ObjectName, *Text));
	}
	Type.PinCategory = Category->Name == UEdGraphSchema_K2::PC_Enum ? UEdGraphSchema_K2::PC_Byte : Category->Name;
	Type.PinSubCategoryObject = Object;
	return Type;
}

/** Splits "key,value"; also "key|value", as the property model writes maps. */
bool SplitKeyAndValue(const FString& Text, FString& OutKey, FString& OutValue)
{
	const TCHAR* const Separator = Text.Contains(TEXT(",")) ? TEXT(",") : TEXT("|");
	return Text.Split(Separator, &OutKey, &OutValue, ESearchCase::CaseSensitive, ESearchDir::FromEnd) && !OutValue.IsEmpty();
}

TVexelExpected<FEdGraphPinType> ParseMap(const FString& Inner, const FString& Whole, FVexelBlueprintPropTypeBuilder::ECaller Caller)
{
	FString KeyText;
	FString ValueText;
	if (!SplitKeyAndValue(Inner, KeyText, ValueText))
	{
		return LogAndFail(FString::Printf(TEXT("Map pin type '%s' is missing value type!"), *Whole));
	}
	TVexelExpected<FEdGraphPinType> Key = ParseBase(KeyText);
	if (Key.HasError())
	{
		return LogAndFail(FString::Printf(TEXT("Failed to resolve pin key type '%s' from `%s`"), *KeyText, *Whole));
	}
	const TVexelExpected<FEdGraphPinType> Value = ParseBase(ValueText);
	if (Value.HasError())
	{
		return LogAndFail(Caller == FVexelBlueprintPropTypeBuilder::ECaller::Mapping
				? FString::Printf(TEXT("Failed to resolve map value type '%s' in pin type '%s'"), *ValueText, *Whole)
				: FString::Printf(TEXT("Failed to resolve pin value type '%s' from `%s`"), *ValueText, *Whole));
	}
	FEdGraphPinType Type = MoveTemp(Key).GetValue();
	Type.ContainerType = EPinContainerType::Map;
	Type.PinValueType = FEdGraphTerminalType::FromPinType(Value.GetValue());
	return Type;
}

FString GetTypeDescription(const UObject* Type)
{
	const UField* const Field = Cast<UField>(Type);
	for (const TCHAR* const Key : TooltipKeys)
	{
		if (Field && Field->HasMetaData(Key))
		{
			return Field->GetMetaData(Key);
		}
	}
	return FString();
}
}

TVexelPropTypeId FVexelBlueprintPropTypeBuilder::MakeId(const FEdGraphPinType& PinType, const FAssetData* SubCategoryAsset)
{
	const FString Base = MakeBaseText(PinType.PinCategory, PinType.PinSubCategoryObject.Get(), SubCategoryAsset);
	const FString Text = Base.IsEmpty() ? Base : MakeContainerText(PinType, Base);
	return TVexelPropTypeId(PinType.bIsReference && !Text.IsEmpty() ? FString::Printf(TEXT("ref|%s"), *Text) : Text);
}

TVexelPropTypeId FVexelBlueprintPropTypeBuilder::MakeStructId(const UStruct& Struct)
{
	const FName Category = Struct.IsA<UClass>() ? UEdGraphSchema_K2::PC_Object : UEdGraphSchema_K2::PC_Struct;
	return TVexelPropTypeId(FString::Printf(TEXT("%s.%s"), *Category.ToString(), *GetTypeName(Struct)));
}

FString FVexelBlueprintPropTypeBuilder::GetTypeName(const UObject& Type)
{
	FString Name = Type.GetName();
	Name.RemoveFromEnd(TEXT("_C"));
	return Name;
}

TVexelExpected<FEdGraphPinType> FVexelBlueprintPropTypeBuilder::ParseId(const TVexelPropTypeId& Id, ECaller Caller)
{
	const FString& Whole = Id.ToString();
	FString Collection;
	FString Inner;
	if (!Whole.Split(TEXT("|"), &Collection, &Inner))
	{
		return ParseBase(Whole);
	}
	EPinContainerType Container = EPinContainerType::None;
	if (!VexelBlueprintWords::FindByWord(Collection, Container) || Container == EPinContainerType::None)
	{
		return LogAndFail(Caller == ECaller::Mapping ? FString::Printf(TEXT("Unknown collection type '%s' in pin type '%s'"), *Collection, *Whole)
													 : FString::Printf(TEXT("Unknown collection type '%s' in pin type reference '%s'"), *Collection, *Whole));
	}
	if (Container == EPinContainerType::Map)
	{
		return ParseMap(Inner, Whole, Caller);
	}
	VEXEL_TRY(FEdGraphPinType Type, ParseBase(Inner));
	Type.ContainerType = Container;
	return Type;
}

TSharedRef<FVexelBlueprintPropType> FVexelBlueprintPropTypeBuilder::MakePropType(
	const FEdGraphPinType& PinType, const FAssetData* SubCategoryAsset)
{
	const TSharedRef<FVexelBlueprintPropType> PropType = MakeShared<FVexelBlueprintPropType>(FVexelBlueprintPropType::FPrivateToken());
	const UObject* const Type = PinType.PinSubCategoryObject.Get();
	PropType->Id = MakeId(PinType, SubCategoryAsset);
	PropType->Category = PinType.PinCategory.ToString();
	PropType->Container = PinType.ContainerType;
	PropType->Keywords = UEdGraphSchema_K2::TypeToText(PinType).ToString();
	PropType->Description = GetTypeDescription(Type);
	return PropType;
}

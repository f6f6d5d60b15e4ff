#include "Lum/LumHelper.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/LumProperty.h"
#include "Lum/LumPropertyCollector.h"
#include "Lum/LumPropertyRoom.h"
#include "Lum/Value/LumTemporaryValue.h"
#include "Lum/Value/LumValueText.h"

#include "EdGraphSchema_K2.h"
#include "UObject/EnumProperty.h"
#include "UObject/UnrealType.h"

namespace
{
FVexelError MakeNotFound(const FString& Segment)
{
	return VEXEL_ERROR(FLumError_Traverse, "Property '%s' not found in compound", *Segment);
}

TVexelExpected<TSharedRef<ILumProperty>> FindLastSegment(const ILumCompound& Compound, FStringView Segment)
{
	const TVexelPropId Id{FString(Segment)};
	VEXEL_TRY(const TSharedPtr<ILumProperty> Property, Compound.FindProperty(Id));
	if (!Property)
	{
		return MakeNotFound(Id.ToString());
	}
	return Property.ToSharedRef();
}

/** A segment on the way, whose property nobody keeps. */
TVexelExpected<void> FindSegment(const ILumCompound& Compound, FStringView Segment, FLumPropertyRoom& OutProperty)
{
	VEXEL_TRY_VOID(Compound.FindProperty(Segment, OutProperty));
	if (!OutProperty.Get())
	{
		return MakeNotFound(FString(Segment));
	}
	return {};
}

/** Takes what stands before the first point off the text; the point goes, too. */
FStringView TakeSegment(FStringView& Rest)
{
	int32 Point = INDEX_NONE;
	const bool bHasPoint = Rest.FindChar(TEXT('.'), Point);
	const FStringView Segment = bHasPoint ? Rest.Left(Point) : Rest;
	Rest = bHasPoint ? Rest.RightChop(Point + 1) : FStringView();
	return Segment;
}

TVexelExpected<TSharedRef<ILumProperty>> ResolvePath(TSharedPtr<ILumCompound> Compound, const FString& Path)
{
	FStringView Rest = Path;
	for (int32 NumSegments = 0; NumSegments < FLumHelper::MaxPathSegments; ++NumSegments)
	{
		const FStringView Segment = TakeSegment(Rest);
		if (Rest.IsEmpty())
		{
			VEXEL_TRY(const TSharedRef<ILumProperty> Last, FindLastSegment(*Compound, Segment), "while resolving segment '%s'", *FString(Segment));
			return Last;
		}
		FLumPropertyRoom Property;
		VEXEL_TRY_VOID(FindSegment(*Compound, Segment, Property), "while resolving segment '%s'", *FString(Segment));
		const ILumCompoundProperty* const CompoundProperty = Property.Get()->AsCompoundProperty();
		if (!CompoundProperty)
		{
			return VEXEL_ERROR(FLumError_Traverse, "Property '%s' is not a compound property", *FString(Segment));
		}
		VEXEL_TRY(Compound, CompoundProperty->GetCompound(), "while getting compound for property '%s'", *FString(Segment));
		if (!Compound)
		{
			return VEXEL_ERROR(FLumError_Traverse, "Property '%s' does not contain a valid compound", *FString(Segment));
		}
	}
	return VEXEL_ERROR(FLumError_Traverse, "Exceeded maximum segments (%d) while resolving path '%s'", FLumHelper::MaxPathSegments, *Path);
}

/** Number types by their exact width, which pin types do not tell. */
const TCHAR* FindIntegerTypeId(const FProperty& Property)
{
	struct FIntegerType
	{
		const FFieldClass* Class;
		const TCHAR* Id;
	};
	static const FIntegerType Types[] = {
		{FInt8Property::StaticClass(), TEXT("int8")},
		{FInt16Property::StaticClass(), TEXT("int16")},
		{FIntProperty::StaticClass(), TEXT("int32")},
		{FInt64Property::StaticClass(), TEXT("int64")},
		{FUInt16Property::StaticClass(), TEXT("uint16")},
		{FUInt32Property::StaticClass(), TEXT("uint32")},
		{FUInt64Property::StaticClass(), TEXT("uint64")},
	};
	for (const FIntegerType& Type : Types)
	{
		if (Property.IsA(Type.Class))
		{
			return Type.Id;
		}
	}
	return nullptr;
}

/** The type id of one value, which is no container's. */
TVexelExpected<TVexelPropTypeId> GetTerminalTypeId(const FProperty& Property)
{
	if (const TCHAR* const IntegerType = FindIntegerTypeId(Property))
	{
		return TVexelPropTypeId(IntegerType);
	}
	FEdGraphPinType PinType;
	if (!GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(&Property, PinType))
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	// What a parameter's flags say of passing it is told by the property's flags, not by its type.
	PinType.bIsReference = false;
	return FVexelBlueprintPropTypeBuilder::MakeId(PinType);
}

/** Whether GetTerminalTypeId answers an id of one value, without making it. */
bool HasTerminalTypeId(const FProperty& Property)
{
	constexpr uint64 Containers = CASTCLASS_FArrayProperty | CASTCLASS_FSetProperty | CASTCLASS_FMapProperty;
	// Most values are of these kinds, and to make a pin's type only to forget it costs much.
	constexpr uint64 Usual = CASTCLASS_FNumericProperty | CASTCLASS_FBoolProperty | CASTCLASS_FNameProperty | CASTCLASS_FStrProperty |
		CASTCLASS_FTextProperty | CASTCLASS_FStructProperty | CASTCLASS_FEnumProperty | CASTCLASS_FObjectPropertyBase;
	const uint64 Kind = Property.GetClass()->GetCastFlags();
	if ((Kind & (Containers | Usual)) != 0)
	{
		return (Kind & Containers) == 0;
	}
	FEdGraphPinType PinType;
	return GetDefault<UEdGraphSchema_K2>()->ConvertPropertyToPinType(&Property, PinType);
}

TVexelExpected<TVexelPropTypeId> GetMapTypeId(const FMapProperty& Map)
{
	if (Map.ValueProp->IsA<FWeakObjectProperty>())
	{
		return VEXEL_ERROR(FLumError_Read, "Map properties with weak pointer values are not supported!");
	}
	VEXEL_TRY(const TVexelPropTypeId Key, GetTerminalTypeId(*Map.KeyProp));
	const TVexelExpected<TVexelPropTypeId> Value = GetTerminalTypeId(*Map.ValueProp);
	if (Value.HasError())
	{
		return VEXEL_ERROR_CAUSED(FLumError_Read, Value.GetError(), "Failed to get map value property category info!");
	}
	return FLumHelper::CreateContainerType(EPinContainerType::Map, Key, Value.GetValue());
}

TVexelExpected<void> CheckTerminalType(const TVexelPropTypeId& TypeId)
{
	if (TypeId.IsEmpty())
	{
		return VEXEL_ERROR(FLumError_Read, "Property type is not valid");
	}
	if (TypeId.ToString().Contains(TEXT("|")))
	{
		return VEXEL_ERROR(FLumError_Read, "Property type cannot be a container type");
	}
	return {};
}
}

const TVexelVarScopeId& LumScope::Member()
{
	static const TVexelVarScopeId Id(TEXT("member"));
	return Id;
}

const TVexelVarScopeId& LumScope::Local()
{
	static const TVexelVarScopeId Id(TEXT("local"));
	return Id;
}

const TVexelVarScopeId& LumScope::In()
{
	static const TVexelVarScopeId Id(TEXT("in"));
	return Id;
}

const TVexelVarScopeId& LumScope::Out()
{
	static const TVexelVarScopeId Id(TEXT("out"));
	return Id;
}

TVexelExpected<TSharedRef<ILumProperty>> FLumHelper::CompoundPathResolve(const TSharedRef<ILumCompound>& Compound, const FString& Path)
{
	VEXEL_TRY(TSharedRef<ILumProperty> Property, ResolvePath(Compound, Path), "while resolving path '%s'", *Path);
	return Property;
}

TVexelExpected<TSharedRef<ILumProperty>> FLumHelper::CompoundPathResolveSegment(
	const TSharedRef<ILumCompound>& Compound, FString& Rest, FString& Segment)
{
	FStringView Remaining = Rest;
	Segment = FString(TakeSegment(Remaining));
	Rest = FString(Remaining);
	return FindLastSegment(*Compound, Segment);
}

TVexelExpected<void> FLumHelper::ImportStringToProperty(const FProperty& Property, void* Data, const FString& Text)
{
	const FLumTemporaryValue Value(Property, Data);
	VEXEL_TRY_VOID(LumValueText::Read(Property, Value.Get(), Text, nullptr, LumValueText::ESource::Kept));
	Property.CopyCompleteValue(Data, Value.Get());
	return {};
}

FString FLumHelper::ListEnumerators(const UEnum& Enum)
{
	const int32 NumNames = Enum.NumEnums() - (Enum.ContainsExistingMax() ? 1 : 0);
	TArray<FString> Names;
	for (int32 Index = 0; Index < NumNames; ++Index)
	{
		Names.Add(Enum.GetNameStringByIndex(Index));
	}
	return TEXT("Valid names: ") + FString::Join(Names, TEXT(", "));
}

bool FLumHelper::ParseIndex(FStringView Text, int32& OutIndex)
{
	int64 Number = 0;
	for (const TCHAR Character : Text)
	{
		if (!FChar::IsDigit(Character) || Number > MAX_int32)
		{
			return false;
		}
		Number = Number * 10 + (Character - TEXT('0'));
	}
	OutIndex = static_cast<int32>(Number);
	const bool bHasLeadingZero = Text.Len() > 1 && Text[0] == TEXT('0');
	return !Text.IsEmpty() && !bHasLeadingZero && Number <= MAX_int32;
}

TVexelExpected<TArray<int32>> FLumHelper::GetSortedNumericKeys(const TSharedRef<FJsonObject>& Object)
{
	VEXEL_TRY(const auto Elements, GetSortedElements(*Object));
	TArray<int32> Keys;
	Keys.Reserve(Elements.Num());
	for (const auto& [Index, Value] : Elements)
	{
		Keys.Add(Index);
	}
	return Keys;
}

TVexelExpected<TArray<TPair<int32, TSharedPtr<FJsonValue>>>> FLumHelper::GetSortedElements(const FJsonObject& Object)
{
	using FElement = TPair<int32, TSharedPtr<FJsonValue>>;
	TArray<FElement> Elements;
	Elements.Reserve(Object.Values.Num());
	for (const auto& [Key, Value] : Object.Values)
	{
		int32 Index = 0;
		if (!ParseIndex(Key, Index))
		{
			return VEXEL_ERROR(FLumError_Read, "Invalid numeric key: '%s'", *Key);
		}
		Elements.Emplace(Index, Value);
	}
	Elements.Sort([](const FElement& Left, const FElement& Right)
		{ return Left.Key < Right.Key; });
	return Elements;
}

TVexelExpected<void> FLumHelper::CollectIndexedItems(ILumPropertyCollector& Collector, const TArray<TSharedRef<ILumProperty>>& Items)
{
	for (int32 Index = 0; Index < Items.Num(); ++Index)
	{
		VEXEL_TRY_VOID(Collector.Property(Items[Index]), "while collecting item at index %d", Index);
	}
	return {};
}

TVexelExpected<TVexelPropTypeId> FLumHelper::CreateContainerType(
	EPinContainerType Container, const TVexelPropTypeId& ElementOrKeyTypeId, const TVexelPropTypeId& ValueTypeId)
{
	VEXEL_TRY_VOID(CheckTerminalType(ElementOrKeyTypeId));
	switch (Container)
	{
		case EPinContainerType::Array:
			return TVexelPropTypeId(FString::Printf(TEXT("array|%s"), *ElementOrKeyTypeId));
		case EPinContainerType::Set:
			return TVexelPropTypeId(FString::Printf(TEXT("set|%s"), *ElementOrKeyTypeId));
		case EPinContainerType::Map:
			if (CheckTerminalType(ValueTypeId).HasError())
			{
				return VEXEL_ERROR(FLumError_Read, "Terminal property type is not valid for map");
			}
			return TVexelPropTypeId(FString::Printf(TEXT("map|%s|%s"), *ElementOrKeyTypeId, *ValueTypeId));
		default:
			return ElementOrKeyTypeId;
	}
}

TVexelExpected<EEdGraphPinDirection> FLumHelper::CreatePinDirectionFromScopeId(const TVexelVarScopeId& ScopeId)
{
	if (ScopeId == LumScope::In())
	{
		return EGPD_Input;
	}
	if (ScopeId == LumScope::Out())
	{
		return EGPD_Output;
	}
	return VEXEL_ERROR(FLumError_Read, "Scope '%s' has no pin direction", *ScopeId);
}

bool FLumHelper::HasPropertyTypeId(const FProperty& Property)
{
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(&Property))
	{
		return HasTerminalTypeId(*Array->Inner);
	}
	if (const FSetProperty* const Set = CastField<FSetProperty>(&Property))
	{
		return HasTerminalTypeId(*Set->ElementProp);
	}
	if (const FMapProperty* const Map = CastField<FMapProperty>(&Property))
	{
		return !Map->ValueProp->IsA<FWeakObjectProperty>() && HasTerminalTypeId(*Map->KeyProp) && HasTerminalTypeId(*Map->ValueProp);
	}
	return HasTerminalTypeId(Property);
}

TVexelExpected<TVexelPropTypeId> FLumHelper::GetPropertyTypeId(const FProperty& Property)
{
	if (const FArrayProperty* const Array = CastField<FArrayProperty>(&Property))
	{
		VEXEL_TRY(const TVexelPropTypeId Element, GetTerminalTypeId(*Array->Inner));
		return CreateContainerType(EPinContainerType::Array, Element, TVexelPropTypeId());
	}
	if (const FSetProperty* const Set = CastField<FSetProperty>(&Property))
	{
		VEXEL_TRY(const TVexelPropTypeId Element, GetTerminalTypeId(*Set->ElementProp));
		return CreateContainerType(EPinContainerType::Set, Element, TVexelPropTypeId());
	}
	if (const FMapProperty* const Map = CastField<FMapProperty>(&Property))
	{
		return GetMapTypeId(*Map);
	}
	return GetTerminalTypeId(Property);
}

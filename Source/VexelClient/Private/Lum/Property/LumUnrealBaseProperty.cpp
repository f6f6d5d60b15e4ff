#include "Lum/Property/LumUnrealBaseProperty.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumPropertyRoom.h"
#include "Lum/Property/LumUnrealContainerProperty.h"
#include "Lum/Property/LumUnrealLeafProperty.h"
#include "Lum/Property/LumUnrealObjectProperty.h"
#include "Lum/Property/LumUnrealStructProperty.h"
#include "Lum/Value/LumTemporaryValue.h"
#include "Lum/Value/LumValueText.h"

#include "UObject/EnumProperty.h"
#include "UObject/UnrealType.h"

namespace
{
TVexelExpected<TVexelPropTypeId> MakeOwnerTypeId(const FProperty& Property)
{
	const UStruct* const Owner = Property.GetOwnerStruct();
	if (!Owner)
	{
		return VEXEL_ERROR(FLumError_Read, "Property does not have a valid owner struct!");
	}
	return FVexelBlueprintPropTypeBuilder::MakeStructId(*Owner);
}

bool IsInstanced(const FProperty& Property)
{
	return Property.HasAnyPropertyFlags(CPF_InstancedReference) && !Property.IsA<FClassProperty>();
}

/** What Make answers when it is called for the kind of Lum property that fits; a default result where none does. */
template <typename ResultType, typename MakeType>
ResultType Choose(const FProperty& Property, MakeType Make)
{
	if (!FLumUnrealPropertyFactory::CanCreate(Property))
	{
		return ResultType();
	}
	const uint64 Kind = Property.GetClass()->GetCastFlags();
	// Most values are numbers.
	if (Kind & CASTCLASS_FNumericProperty)
	{
		return Make.template operator()<FLumUnrealLeafProperty>();
	}
	if (Kind & CASTCLASS_FArrayProperty)
	{
		return Make.template operator()<FLumUnrealArrayProperty>();
	}
	if (Kind & CASTCLASS_FSetProperty)
	{
		return Make.template operator()<FLumUnrealSetProperty>();
	}
	if (Kind & CASTCLASS_FMapProperty)
	{
		return Make.template operator()<FLumUnrealMapProperty>();
	}
	if (Kind & CASTCLASS_FStructProperty)
	{
		return Make.template operator()<FLumUnrealStructProperty>();
	}
	if ((Kind & CASTCLASS_FObjectProperty) && IsInstanced(Property))
	{
		return Make.template operator()<FLumUnrealObjectInstanceProperty>();
	}
	if (Kind & (CASTCLASS_FObjectPropertyBase | CASTCLASS_FInterfaceProperty))
	{
		return Make.template operator()<FLumUnrealObjectReferenceProperty>();
	}
	if (Kind & CASTCLASS_FEnumProperty)
	{
		return Make.template operator()<FLumUnrealEnumProperty>();
	}
	return Make.template operator()<FLumUnrealLeafProperty>();
}

template <typename AboveType>
void EmplaceMember(const TSharedRef<AboveType>& Above, const FProperty& Member, FLumPropertyRoom& OutProperty)
{
	Choose<void>(Member, [&]<typename PropertyType>()
		{ OutProperty.EmplaceMember<PropertyType>(Above, Member); });
}
}

TVexelExpected<void> FLumUnrealBaseProperty::CheckProperty() const
{
	if (!GetData())
	{
		return VEXEL_ERROR(FLumError_Read, "Property is not valid!");
	}
	return {};
}

TVexelExpected<TVexelPropId> FLumUnrealBaseProperty::ReadPropId() const
{
	VEXEL_TRY_VOID(CheckProperty(), "while getting property id");
	return TVexelPropId(Property->GetName());
}

TVexelExpected<TVexelPropTypeId> FLumUnrealBaseProperty::ReadOwnerTypeIdOf(const FProperty& Property)
{
	VEXEL_TRY(TVexelPropTypeId Id, MakeOwnerTypeId(Property), "while getting owner type id");
	return Id;
}

TVexelExpected<TVexelPropTypeId> FLumUnrealBaseProperty::ReadValueTypeId() const
{
	VEXEL_TRY_VOID(CheckProperty(), "while getting value type id");
	VEXEL_TRY(TVexelPropTypeId Id, FLumHelper::GetPropertyTypeId(*Property), "while getting value type id");
	return Id;
}

TVexelExpected<EPropertyFlags> FLumUnrealBaseProperty::ReadFlags() const
{
	VEXEL_TRY_VOID(CheckProperty(), "while getting property flags");
	return Property->GetPropertyFlags();
}

TVexelExpected<FString> FLumUnrealBaseProperty::ReadCategory() const
{
	VEXEL_TRY_VOID(CheckProperty(), "while getting property category");
	return Property->GetMetaData(TEXT("Category"));
}

bool FLumUnrealBaseProperty::ExportText(FString& OutText) const
{
	// The value as its own default: no member counts as unchanged and is left out.
	const void* const Data = GetData();
	return Property->ExportText_Direct(OutText, Data, Data, nullptr, PPF_None);
}

TVexelExpected<void> FLumUnrealBaseProperty::ImportText(const FString& Text) const
{
	const void* const Data = GetData();
	if (!Data)
	{
		return CheckProperty();
	}
	const FLumTemporaryValue Value(*Property, Data);
	VEXEL_TRY_VOID(LumValueText::Read(*Property, Value.Get(), Text, Place->GetOwner()->GetReferrer(), LumValueText::ESource::Given));
	return Place->Assign(Value.Get());
}

const FProperty* FLumUnrealPropertyFactory::FindMember(const UStruct& Struct, FStringView Name)
{
	// A longer text is no engine name.
	return Name.Len() < NAME_SIZE ? Struct.FindPropertyByName(FName(Name, FNAME_Find)) : nullptr;
}

bool FLumUnrealPropertyFactory::CanCreate(const FProperty& Property)
{
	constexpr uint64 Delegates = CASTCLASS_FDelegateProperty | CASTCLASS_FMulticastDelegateProperty;
	return Property.ArrayDim == 1 && !Property.HasAnyCastFlags(Delegates) && FLumHelper::HasPropertyTypeId(Property);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealPropertyFactory::CreateMember(
	const TSharedRef<ILumValueOwner>& Owner, const FProperty& Property)
{
	const UObject* const Object = Owner->GetObject();
	if (!Object)
	{
		return VEXEL_ERROR(FLumError_Read, "Invalid object");
	}
	const UClass* const Class = Property.GetOwnerClass();
	if (!Class || !Object->IsA(Class))
	{
		return VEXEL_ERROR(FLumError_Read, "Property '%s' does not belong to object of type '%s'", *Property.GetName(),
			*Object->GetClass()->GetName());
	}
	return CreateSubProperty(MakeShared<FLumValuePlace>(Owner, FLumValuePlace::EPart::Member, Property));
}

TSharedPtr<ILumProperty> FLumUnrealPropertyFactory::CreateSubProperty(const FLumValuePlaceRef& Place)
{
	return Choose<TSharedPtr<ILumProperty>>(Place->GetProperty(), [&Place]<typename PropertyType>()
		{ return TSharedPtr<ILumProperty>(MakeShared<PropertyType>(Place)); });
}

void FLumUnrealPropertyFactory::CreateSubProperty(const FLumValuePlaceRef& Place, FLumPropertyRoom& OutProperty)
{
	Choose<void>(Place->GetProperty(), [&Place, &OutProperty]<typename PropertyType>()
		{ OutProperty.Emplace<PropertyType>(Place); });
}

void FLumUnrealPropertyFactory::CreateMember(
	const TSharedRef<ILumValueOwner>& Owner, const FProperty& Member, FLumPropertyRoom& OutProperty)
{
	EmplaceMember(Owner, Member, OutProperty);
}

void FLumUnrealPropertyFactory::CreateMember(const FLumValuePlaceRef& Above, const FProperty& Member, FLumPropertyRoom& OutProperty)
{
	EmplaceMember(Above, Member, OutProperty);
}

#include "Lum/Property/LumUnrealBaseProperty.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealContainerProperty.h"
#include "Lum/Property/LumUnrealLeafProperty.h"
#include "Lum/Property/LumUnrealObjectProperty.h"
#include "Lum/Property/LumUnrealStructProperty.h"
#include "Lum/Value/LumObjectOwner.h"
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

bool IsReference(const FProperty& Property)
{
	return Property.IsA<FObjectPropertyBase>() || Property.IsA<FInterfaceProperty>();
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
	VEXEL_TRY_VOID(CheckProperty());
	const FLumTemporaryValue Value(*Property, GetData());
	VEXEL_TRY_VOID(LumValueText::Read(*Property, Value.Get(), Text, Place->GetOwner()->GetObject()));
	return Place->Assign(Value.Get());
}

bool FLumUnrealPropertyFactory::CanCreate(const FProperty& Property)
{
	if (Property.ArrayDim != 1 || Property.IsA<FNumericProperty>())
	{
		return Property.ArrayDim == 1;
	}
	return !Property.IsA<FDelegateProperty>() && !Property.IsA<FMulticastDelegateProperty>() && FLumHelper::HasPropertyTypeId(Property);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealPropertyFactory::CreateMember(UObject& Object, const FProperty& Property)
{
	const UClass* const Owner = Property.GetOwnerClass();
	if (!Owner || !Object.IsA(Owner))
	{
		return VEXEL_ERROR(FLumError_Read, "Property '%s' does not belong to object of type '%s'", *Property.GetName(),
			*Object.GetClass()->GetName());
	}
	return CreateSubProperty(
		MakeShared<FLumValuePlace>(MakeShared<FLumObjectOwner>(Object), FLumValuePlace::EPart::Member, Property));
}

TSharedPtr<ILumProperty> FLumUnrealPropertyFactory::CreateSubProperty(const FLumValuePlaceRef& Place)
{
	const FProperty& Property = Place->GetProperty();
	if (!CanCreate(Property))
	{
		return nullptr;
	}
	// Most values are numbers, and each question costs.
	if (Property.IsA<FNumericProperty>())
	{
		return MakeShared<FLumUnrealLeafProperty>(Place);
	}
	if (Property.IsA<FArrayProperty>())
	{
		return MakeShared<FLumUnrealArrayProperty>(Place);
	}
	if (Property.IsA<FSetProperty>())
	{
		return MakeShared<FLumUnrealSetProperty>(Place);
	}
	if (Property.IsA<FMapProperty>())
	{
		return MakeShared<FLumUnrealMapProperty>(Place);
	}
	if (Property.IsA<FStructProperty>())
	{
		return MakeShared<FLumUnrealStructProperty>(Place);
	}
	if (Property.IsA<FObjectProperty>() && IsInstanced(Property))
	{
		return MakeShared<FLumUnrealObjectInstanceProperty>(Place);
	}
	if (IsReference(Property))
	{
		return MakeShared<FLumUnrealObjectReferenceProperty>(Place);
	}
	if (Property.IsA<FEnumProperty>())
	{
		return MakeShared<FLumUnrealEnumProperty>(Place);
	}
	return MakeShared<FLumUnrealLeafProperty>(Place);
}

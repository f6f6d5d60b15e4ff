#include "Lum/Property/LumUnrealBaseProperty.h"

#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealContainerProperty.h"
#include "Lum/Property/LumUnrealLeafProperty.h"
#include "Lum/Property/LumUnrealObjectProperty.h"
#include "Lum/Property/LumUnrealStructProperty.h"

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
	if (!Property || !Data)
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

TVexelExpected<TVexelPropTypeId> FLumUnrealBaseProperty::ReadOwnerTypeId() const
{
	VEXEL_TRY_VOID(CheckProperty(), "while getting owner type id");
	VEXEL_TRY(TVexelPropTypeId Id, MakeOwnerTypeId(*Property), "while getting owner type id");
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
	return Property->ExportText_Direct(OutText, Data, Data, nullptr, PPF_None);
}

bool FLumUnrealPropertyFactory::CanCreate(const FProperty& Property)
{
	return Property.ArrayDim == 1 && FLumHelper::GetPropertyTypeId(Property).HasValue() && !Property.IsA<FDelegateProperty>() &&
		!Property.IsA<FMulticastDelegateProperty>();
}

TSharedPtr<ILumProperty> FLumUnrealPropertyFactory::CreateSubProperty(const FProperty& Property, void* Data)
{
	if (!CanCreate(Property))
	{
		return nullptr;
	}
	if (Property.IsA<FArrayProperty>())
	{
		return MakeShared<FLumUnrealArrayProperty>(&Property, Data);
	}
	if (Property.IsA<FSetProperty>())
	{
		return MakeShared<FLumUnrealSetProperty>(&Property, Data);
	}
	if (Property.IsA<FMapProperty>())
	{
		return MakeShared<FLumUnrealMapProperty>(&Property, Data);
	}
	if (Property.IsA<FStructProperty>())
	{
		return MakeShared<FLumUnrealStructProperty>(&Property, Data);
	}
	if (Property.IsA<FObjectProperty>() && IsInstanced(Property))
	{
		return MakeShared<FLumUnrealObjectInstanceProperty>(&Property, Data);
	}
	if (IsReference(Property))
	{
		return MakeShared<FLumUnrealObjectReferenceProperty>(&Property, Data);
	}
	if (Property.IsA<FEnumProperty>())
	{
		return MakeShared<FLumUnrealEnumProperty>(&Property, Data);
	}
	return MakeShared<FLumUnrealLeafProperty>(&Property, Data);
}

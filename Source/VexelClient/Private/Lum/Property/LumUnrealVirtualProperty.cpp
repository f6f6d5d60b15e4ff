#include "Lum/Property/LumUnrealVirtualProperty.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

TVexelExpected<TSharedRef<ILumProperty>> FLumUnrealVirtualProperty::Create(const FProperty& Property, const FString& Text)
{
	void* const Data = Property.AllocateAndInitializeValue();
	const TSharedPtr<ILumProperty> Inner = FLumUnrealPropertyFactory::CreateSubProperty(Property, Data);
	if (!Inner)
	{
		Property.DestroyAndFreeValue(Data);
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	const TSharedRef<ILumProperty> Virtual = MakeShared<FLumUnrealVirtualProperty>(Property, Data, Inner.ToSharedRef());
	if (!Text.IsEmpty())
	{
		VEXEL_TRY_VOID(FLumHelper::ImportStringToProperty(Property, Data, Text));
	}
	return Virtual;
}

FLumUnrealVirtualProperty::FLumUnrealVirtualProperty(const FProperty& InProperty, void* InData, const TSharedRef<ILumProperty>& InInner)
	: FLumForwardingProperty(InInner)
	, Property(InProperty)
	, Data(InData)
{
}

FLumUnrealVirtualProperty::~FLumUnrealVirtualProperty()
{
	Property.DestroyAndFreeValue(Data);
}

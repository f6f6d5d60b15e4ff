#include "Lum/Property/LumUnrealVirtualProperty.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

TVexelExpected<FLumUnrealVirtualProperty::FValue> FLumUnrealVirtualProperty::MakeValue(const FProperty& Property, const FString& Text)
{
	const TSharedRef<uint8> Data = MakeShareable(static_cast<uint8*>(Property.AllocateAndInitializeValue()), [&Property](uint8* Memory)
		{ Property.DestroyAndFreeValue(Memory); });
	const TSharedPtr<ILumProperty> Inner = FLumUnrealPropertyFactory::CreateSubProperty(Property, &*Data);
	if (!Inner)
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	if (!Text.IsEmpty())
	{
		VEXEL_TRY_VOID(FLumHelper::ImportStringToProperty(Property, &*Data, Text));
	}
	return FValue{&Property, Data, Inner.ToSharedRef()};
}

FLumUnrealVirtualProperty::FLumUnrealVirtualProperty(const FValue& InValue)
	: FLumForwardingProperty(InValue.Inner)
	, Value(InValue)
{
}

TVexelExpected<void> FLumUnrealVirtualProperty::JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& NewValue)
{
	TVexelExpected<void> Imported = Value.Inner->JsonImportValue(Context, NewValue);
	VEXEL_TRY_VOID(OnImport());
	return Imported;
}

FString FLumUnrealVirtualProperty::ExportText() const
{
	FString Text;
	Value.Property->ExportText_Direct(Text, &*Value.Data, &*Value.Data, nullptr, PPF_None);
	return Text;
}

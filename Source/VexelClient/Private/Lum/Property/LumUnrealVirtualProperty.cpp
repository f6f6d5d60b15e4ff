#include "Lum/Property/LumUnrealVirtualProperty.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

TVexelExpected<FLumUnrealVirtualProperty::FValue> FLumUnrealVirtualProperty::MakeValue(const FProperty& Property, const FString& Text)
{
	// What declares the property, such as a class of a Blueprint, lies in the package that the value will be saved in.
	const TSharedRef<ILumValueOwner> Owner = MakeShared<FLumLooseOwner>(Property, Property.GetOwnerUObject());
	const TSharedPtr<ILumProperty> Inner =
		FLumUnrealPropertyFactory::CreateSubProperty(MakeShared<FLumValuePlace>(Owner, FLumValuePlace::EPart::Whole, Property));
	if (!Inner)
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	if (!Text.IsEmpty())
	{
		VEXEL_TRY_VOID(FLumHelper::ImportStringToProperty(Property, Owner->GetMemory(), Text));
	}
	return FValue{&Property, Owner, Inner.ToSharedRef()};
}

FLumUnrealVirtualProperty::FLumUnrealVirtualProperty(const FValue& InValue)
	: FLumForwardingProperty(InValue.Inner)
	, Value(InValue)
{
}

TVexelExpected<void> FLumUnrealVirtualProperty::JsonImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& NewValue)
{
	const FString Before = ExportText();
	TVexelExpected<void> Imported = Value.Inner->JsonImportValue(Context, NewValue);
	// The text that the value was made from may be another for the same value: a refusal must not rewrite it.
	if (Imported.HasValue() || !ExportText().Equals(Before, ESearchCase::CaseSensitive))
	{
		VEXEL_TRY_VOID(OnImport());
	}
	return Imported;
}

FString FLumUnrealVirtualProperty::ExportText() const
{
	FString Text;
	const void* const Data = Value.Owner->GetMemory();
	Value.Property->ExportText_Direct(Text, Data, Data, nullptr, PPF_None);
	return Text;
}

#include "Lum/Property/LumUnrealStructProperty.h"

#include "Lum/Compound/LumUnrealStructCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"

#include "UObject/UnrealType.h"

TVexelExpected<TSharedPtr<ILumCompound>> FLumUnrealStructProperty::GetCompound() const
{
	const FStructProperty* const StructProperty = CastField<FStructProperty>(Property);
	if (!StructProperty || !StructProperty->Struct)
	{
		return VEXEL_ERROR(FLumError_Read, "Struct property is not valid!");
	}
	if (!GetData())
	{
		return VEXEL_ERROR(FLumError_Read, "Struct data is not valid!");
	}
	return MakeShared<FLumUnrealStructCompound>(StructProperty->Struct, Place);
}

TVexelExpected<TSharedRef<FJsonValue>> FLumUnrealStructProperty::JsonExportValue(const FLumContext& Context) const
{
	if (Context.CanOpenStruct())
	{
		const FLumContext::FStructScope Scope(Context);
		return ILumCompoundProperty::JsonExportValue(Context);
	}
	VEXEL_TRY_VOID(CheckProperty());
	FString Text;
	if (!ExportText(Text))
	{
		return VEXEL_ERROR(FLumError_Export, "Failed to export struct as text");
	}
	return MakeShared<FJsonValueString>(Text);
}

TVexelExpected<void> FLumUnrealStructProperty::ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value)
{
	return Value->Type == EJson::String ? ImportText(Value->AsString()) : ILumCompoundProperty::JsonImportValue(Context, Value);
}

#include "Lum/Property/LumUnrealStructProperty.h"

#include "Lum/Compound/LumUnrealStructCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"

#include "UObject/UnrealType.h"

TVexelExpected<TSharedPtr<ILumCompound>> FLumUnrealStructProperty::GetCompound() const
{
	const FStructProperty* const StructProperty = CastField<FStructProperty>(Property);
	if (!StructProperty)
	{
		return VEXEL_ERROR(FLumError_Read, "Struct property is not valid!");
	}
	if (!Data)
	{
		return VEXEL_ERROR(FLumError_Read, "Struct data is not valid!");
	}
	return MakeShared<FLumUnrealStructCompound>(StructProperty->Struct, Data);
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

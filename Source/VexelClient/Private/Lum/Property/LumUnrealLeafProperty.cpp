#include "Lum/Property/LumUnrealLeafProperty.h"

#include "Lum/LumContext.h"
#include "Lum/LumErrors.h"

#include "EdGraphSchema_K2.h"
#include "UObject/EnumProperty.h"
#include "UObject/UnrealType.h"

TVexelExpected<TSharedRef<FJsonValue>> FLumUnrealLeafProperty::JsonExportValue(const FLumContext&) const
{
	VEXEL_TRY_VOID(CheckProperty());
	VEXEL_TRY(const FString Text, ExportString(), "while exporting property '%s' to string", *Property->GetName());
	return MakeShared<FJsonValueString>(Text);
}

TVexelExpected<FString> FLumUnrealLeafProperty::ExportString() const
{
	FString Text;
	if (!ExportText(Text))
	{
		return VEXEL_ERROR(FLumError_Export, "Failed to export property '%s' to string", *Property->GetName());
	}
	return Text;
}

TVexelExpected<void> FLumUnrealLeafProperty::ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value)
{
	FString& Text = Context.GetTextBuffer();
	if (Value->Type != EJson::String || !Value->TryGetString(Text))
	{
		return VEXEL_ERROR(FLumError_Import, "Expected string value for property '%s'", *Property->GetName());
	}
	return ImportText(Text);
}

TVexelExpected<TVexelPropTypeId> FLumUnrealEnumProperty::GetValueTypeId() const
{
	VEXEL_TRY_VOID(CheckProperty(), "while getting value type id");
	const UEnum* const Enum = CastFieldChecked<FEnumProperty>(Property)->GetEnum();
	if (!Enum)
	{
		return ReadValueTypeId();
	}
	return TVexelPropTypeId(FString::Printf(TEXT("%s.%s"), *UEdGraphSchema_K2::PC_Enum.ToString(), *Enum->GetName()));
}

#include "Lum/LumRetypedValue.h"

#include "Lum/Value/LumTemporaryValue.h"
#include "Lum/Value/LumValueText.h"

#include "Internationalization/Text.h"
#include "Misc/CString.h"
#include "UObject/UnrealType.h"

namespace
{
bool IsNumber(const FProperty& Property)
{
	const FNumericProperty* const Number = CastField<FNumericProperty>(&Property);
	return Number && !Number->IsEnum();
}

/** The same text where nothing is known of another. */
FString MakeForm(const FString& Text, const FProperty& NewProperty)
{
	FText Localized;
	const bool bIsText = NewProperty.IsA<FStrProperty>() || NewProperty.IsA<FNameProperty>();
	if (bIsText && FTextStringHelper::IsComplexText(*Text) && FTextStringHelper::ReadFromBuffer(*Text, Localized))
	{
		return Localized.ToString();
	}
	const bool bIsTrue = Text == TEXT("True");
	if (IsNumber(NewProperty) && (bIsTrue || Text == TEXT("False")))
	{
		return bIsTrue ? TEXT("1") : TEXT("0");
	}
	if (NewProperty.IsA<FBoolProperty>() && Text.IsNumeric())
	{
		return FCString::Atod(*Text) != 0 ? TEXT("True") : TEXT("False");
	}
	const FNumericProperty* const Number = CastField<FNumericProperty>(&NewProperty);
	int32 Point = INDEX_NONE;
	if (Number && Number->IsInteger() && Text.IsNumeric() && Text.FindChar(TEXT('.'), Point))
	{
		const FString Whole = Text.Left(Point);
		return Whole.IsEmpty() || Whole == TEXT("-") ? TEXT("0") : Whole;
	}
	return Text;
}

bool Read(const FProperty& Property, const FLumTemporaryValue& Value, const FString& Text, LumValueText::ESource Source)
{
	return Text.IsEmpty() || LumValueText::Read(Property, Value.Get(), Text, nullptr, Source).HasValue();
}
}

TOptional<FString> LumRetypedValue::Convert(const FString& Text, const FProperty& NewProperty)
{
	const FString Form = MakeForm(Text, NewProperty);
	const FLumTemporaryValue Value(NewProperty);
	// All of it: what the new type has no room for would be lost.
	return Read(NewProperty, Value, Form, LumValueText::ESource::Given) ? TOptional<FString>(Form) : TOptional<FString>();
}

bool LumRetypedValue::IsInitial(const FString& Text, const FProperty& Property)
{
	const FLumTemporaryValue Value(Property);
	const FLumTemporaryValue Initial(Property);
	return Read(Property, Value, Text, LumValueText::ESource::Kept) && Property.Identical(Value.Get(), Initial.Get(), PPF_None);
}

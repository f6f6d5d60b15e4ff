#include "UObject/NumericProperty.h"

#include "EnumeratorText.h"
#include "PropertyKindNames.h"
#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <algorithm>
#include <cstdio>
#include <limits>

IMPLEMENT_ABSTRACT_FIELD(FNumericProperty)
IMPLEMENT_FIELD(FInt8Property)
IMPLEMENT_FIELD(FInt16Property)
IMPLEMENT_FIELD(FIntProperty)
IMPLEMENT_FIELD(FInt64Property)
IMPLEMENT_FIELD(FUInt16Property)
IMPLEMENT_FIELD(FUInt32Property)
IMPLEMENT_FIELD(FUInt64Property)
IMPLEMENT_FIELD(FFloatProperty)
IMPLEMENT_FIELD(FDoubleProperty)
IMPLEMENT_FIELD(FByteProperty)

namespace
{
template <typename T>
const TCHAR* GetNumberTypeName()
{
	if constexpr (std::is_same_v<T, float>)
	{
		return TEXT("float");
	}
	else if constexpr (std::is_same_v<T, double>)
	{
		return TEXT("double");
	}
	else if constexpr (std::is_signed_v<T>)
	{
		constexpr const TCHAR* Names[] = {TEXT("int8"), TEXT("int16"), TEXT("int32"), TEXT("int64")};
		return Names[std::bit_width(sizeof(T)) - 1];
	}
	else
	{
		constexpr const TCHAR* Names[] = {TEXT("uint8"), TEXT("uint16"), TEXT("uint32"), TEXT("uint64")};
		return Names[std::bit_width(sizeof(T)) - 1];
	}
}

/** Truncates toward zero and stops at the type's ends, where a plain cast would be undefined. */
template <typename T>
T ClampedCast(double Value)
{
	if constexpr (std::is_floating_point_v<T>)
	{
		return static_cast<T>(Value);
	}
	else
	{
		constexpr double Lowest = static_cast<double>(std::numeric_limits<T>::lowest());
		constexpr double Highest = static_cast<double>(std::numeric_limits<T>::max());
		if (!(Value > Lowest))
		{
			return Value <= Lowest ? std::numeric_limits<T>::lowest() : T();
		}
		return Value >= Highest ? std::numeric_limits<T>::max() : static_cast<T>(Value);
	}
}

bool IsNumberStart(const TCHAR* Buffer)
{
	return FChar::IsDigit(*Buffer) || *Buffer == TEXT('-') || *Buffer == TEXT('+') || *Buffer == TEXT('.');
}

bool IsHexNumber(const TCHAR* Text)
{
	return Text[0] == TEXT('0') && (Text[1] == TEXT('x') || Text[1] == TEXT('X'));
}

const TCHAR* SkipInteger(const TCHAR* Buffer)
{
	if (IsHexNumber(Buffer))
	{
		Buffer += 2;
		while (FChar::IsHexDigit(*Buffer))
		{
			++Buffer;
		}
		return Buffer;
	}
	while (*Buffer == TEXT('-') || *Buffer == TEXT('+'))
	{
		++Buffer;
	}
	while (FChar::IsDigit(*Buffer))
	{
		++Buffer;
	}
	// A number that was saved as a float still reads as an integer.
	if (*Buffer == TEXT('.') && FChar::IsDigit(Buffer[1]))
	{
		++Buffer;
		while (FChar::IsDigit(*Buffer))
		{
			++Buffer;
		}
	}
	return Buffer;
}

/** The number without its sign, as far as its digits go; false where it has more than any integer holds. */
bool ReadMagnitude(const TCHAR* Digits, bool bHex, uint64& OutMagnitude)
{
	const uint64 Base = bHex ? 16 : 10;
	OutMagnitude = 0;
	for (; bHex ? FChar::IsHexDigit(*Digits) : FChar::IsDigit(*Digits); ++Digits)
	{
		const uint64 Digit = FParse::HexDigit(*Digits);
		if (OutMagnitude > (MAX_uint64 - Digit) / Base)
		{
			return false;
		}
		OutMagnitude = OutMagnitude * Base + Digit;
	}
	return true;
}

/** Whether the property can hold the integer that the text is. A hexadecimal one is the bits of the value. */
bool CanHoldText(const FNumericProperty& Property, const TCHAR* Text)
{
	const bool bHex = IsHexNumber(Text);
	const bool bNegative = *Text == TEXT('-');
	const TCHAR* const Digits = Text + (bHex ? 2 : bNegative || *Text == TEXT('+') ? 1
																				   : 0);
	uint64 Magnitude = 0;
	if (!ReadMagnitude(Digits, bHex, Magnitude))
	{
		return false;
	}
	constexpr uint64 LowestMagnitude = static_cast<uint64>(MAX_int64) + 1;
	const int32 NumBits = Property.GetElementSize() * 8;
	if (bHex)
	{
		return NumBits == 64 || Magnitude >> NumBits == 0;
	}
	if (bNegative)
	{
		return Magnitude <= LowestMagnitude && Property.CanHoldValue(static_cast<int64>(0 - Magnitude));
	}
	const bool bHoldsAll = NumBits == 64 && !Property.CanHoldValue(-1);
	return bHoldsAll || (Magnitude <= static_cast<uint64>(MAX_int64) && Property.CanHoldValue(static_cast<int64>(Magnitude)));
}

const TCHAR* SkipFloat(const TCHAR* Buffer)
{
	while (FChar::IsDigit(*Buffer) || *Buffer == TEXT('-') || *Buffer == TEXT('+') || *Buffer == TEXT('.') || *Buffer == TEXT('e') ||
		*Buffer == TEXT('E'))
	{
		++Buffer;
	}
	return *Buffer == TEXT('f') || *Buffer == TEXT('F') ? Buffer + 1 : Buffer;
}

/** "inf", "-inf" or "nan", as such numbers are written. Null when the text is none of them. */
const TCHAR* ReadSpecialFloat(const FNumericProperty& Property, void* Value, const TCHAR* Text)
{
	constexpr int32 WordLength = 3;
	const bool bHasSign = *Text == TEXT('-') || *Text == TEXT('+');
	const TCHAR* const Word = bHasSign ? Text + 1 : Text;
	const bool bIsNan = FCString::Strnicmp(Word, TEXT("nan"), WordLength) == 0;
	if (!bIsNan && FCString::Strnicmp(Word, TEXT("inf"), WordLength) != 0)
	{
		return nullptr;
	}
	const double Number = bIsNan ? std::numeric_limits<double>::quiet_NaN() : std::numeric_limits<double>::infinity();
	Property.SetFloatingPointPropertyValue(Value, *Text == TEXT('-') ? -Number : Number);
	return Word + WordLength;
}

template <typename T>
T ReadNumber(FArchive& Ar)
{
	T Value = {};
	Ar << Value;
	return Value;
}

/** One saved number type and how its value reaches another number property. */
struct FNumberConversion
{
	FName Type;
	void (*Convert)(FArchive& Ar, const FNumericProperty& Property, void* Data);
};

template <typename T>
void ConvertNumber(FArchive& Ar, const FNumericProperty& Property, void* Data)
{
	const T Value = ReadNumber<T>(Ar);
	if (Property.IsFloatingPoint() || std::is_floating_point_v<T>)
	{
		Property.SetFloatingPointPropertyValue(Data, static_cast<double>(Value));
	}
	else if constexpr (std::is_signed_v<T>)
	{
		Property.SetIntPropertyValue(Data, static_cast<int64>(Value));
	}
	else
	{
		Property.SetIntPropertyValue(Data, static_cast<uint64>(Value));
	}
}

const TArray<FNumberConversion>& GetNumberConversions()
{
	static const TArray<FNumberConversion> Conversions = {
		{FName(TEXT("Int8Property")), &ConvertNumber<int8>},
		{FName(TEXT("Int16Property")), &ConvertNumber<int16>},
		{FName(TEXT("IntProperty")), &ConvertNumber<int32>},
		{FName(TEXT("Int64Property")), &ConvertNumber<int64>},
		{FName(TEXT("ByteProperty")), &ConvertNumber<uint8>},
		{FName(TEXT("UInt16Property")), &ConvertNumber<uint16>},
		{FName(TEXT("UInt32Property")), &ConvertNumber<uint32>},
		{FName(TEXT("UInt64Property")), &ConvertNumber<uint64>},
		{FName(TEXT("FloatProperty")), &ConvertNumber<float>},
		{FName(TEXT("DoubleProperty")), &ConvertNumber<double>},
	};
	return Conversions;
}

/** A value that was saved as an enumerator's name, as the number that it has now. */
bool ReadEnumeratorAsNumber(const FPropertyTag& Tag, FArchive& Ar, const UEnum* Enum, int64& OutValue)
{
	FName Name;
	Ar << Name;
	if (Name.IsNone() || !Enum)
	{
		OutValue = 0;
		return Enum != nullptr;
	}
	const int32 Index = Enum->GetIndexByName(Name);
	OutValue = Index == INDEX_NONE ? Enum->GetMaxEnumValue() : Enum->GetValueByIndex(Index);
	if (Index == INDEX_NONE)
	{
		UE_LOG(LogClass, Warning, TEXT("%s: enum %s has no %s, used by property %s"), *Ar.GetArchiveName(), *Enum->GetName(),
			*Name.ToString(), *Tag.Name.ToString());
	}
	return true;
}
}

EConvertFromTypeResult FNumericProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.Type == GetID())
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	if (Tag.IsType(FPropertyKindNames::Get().Bool))
	{
		SetIntPropertyValue(Data, static_cast<uint64>(Tag.BoolVal));
		return EConvertFromTypeResult::Converted;
	}
	if (Tag.IsType(FPropertyKindNames::Get().Enum) || (Tag.IsType(FPropertyKindNames::Get().Byte) && !Tag.EnumName.IsNone()))
	{
		const UEnum* const SavedEnum = FindFirstObject<UEnum>(*Tag.EnumName.ToString());
		if (!SavedEnum)
		{
			return EConvertFromTypeResult::CannotConvert;
		}
		int64 Value = 0;
		ReadEnumeratorAsNumber(Tag, Ar, SavedEnum, Value);
		SetIntPropertyValue(Data, Value);
		return EConvertFromTypeResult::Converted;
	}
	const FNumberConversion* const Conversion = GetNumberConversions().FindByPredicate([&Tag](const FNumberConversion& Row)
		{ return Tag.IsType(Row.Type); });
	if (!Conversion)
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	Conversion->Convert(Ar, *this, Data);
	return EConvertFromTypeResult::Converted;
}

const TCHAR* FNumericProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	if (IsInteger() && FChar::IsAlpha(*Start))
	{
		// An enumerator of any enum stands for its number; a short name alone could be anything.
		FString Token;
		const TCHAR* const End = FPropertyHelpers::ReadToken(Start, Token, true);
		const int64 Value = End && Token.Contains(TEXT("::")) ? UEnum::LookupEnumNameSlow(*Token) : static_cast<int64>(INDEX_NONE);
		if (Value == INDEX_NONE)
		{
			return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a number or an enumerator"), Start);
		}
		SetIntPropertyValue(PropertyValue, Value);
		return End;
	}
	if (const TCHAR* const SpecialEnd = IsFloatingPoint() ? ReadSpecialFloat(*this, PropertyValue, Start) : nullptr)
	{
		return SpecialEnd;
	}
	const bool bStartsNumber = IsNumberStart(Start);
	const TCHAR* const End = bStartsNumber && IsInteger() ? SkipInteger(Start) : bStartsNumber ? SkipFloat(Start)
																							   : Start;
	if (std::none_of(Start, End, [](TCHAR Char)
			{ return FChar::IsDigit(Char); }))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a number"), Start);
	}
	if (IsInteger() && !CanHoldText(*this, Start))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is out of range"), Start);
	}
	SetNumericPropertyValueFromString(PropertyValue, *FString(static_cast<int32>(End - Start), Start));
	return End;
}

template <typename T>
FString TProperty_Numeric<T>::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return GetNumberTypeName<T>();
}

template <typename T>
bool TProperty_Numeric<T>::CanHoldValue(int64 Value) const
{
	if constexpr (std::is_floating_point_v<T>)
	{
		return static_cast<int64>(ClampedCast<int64>(static_cast<double>(static_cast<T>(Value)))) == Value;
	}
	else
	{
		return std::in_range<T>(Value);
	}
}

template <typename T>
void TProperty_Numeric<T>::SetFloatingPointPropertyValue(void* Data, double Value) const
{
	this->SetPropertyValue(Data, ClampedCast<T>(Value));
}

template <typename T>
void TProperty_Numeric<T>::SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const
{
	if constexpr (std::is_floating_point_v<T>)
	{
		this->SetPropertyValue(Data, static_cast<T>(FCString::Atod(Value)));
	}
	else
	{
		const bool bHex = IsHexNumber(Value);
		const int32 Base = bHex ? 16 : 10;
		this->SetPropertyValue(Data,
			std::is_signed_v<T> && !bHex ? static_cast<T>(FCString::Strtoi64(Value, nullptr, Base))
										 : static_cast<T>(FCString::Strtoui64(Value, nullptr, Base)));
	}
}

template <typename T>
FString TProperty_Numeric<T>::GetNumericPropertyValueToString(const void* Data) const
{
	const T Value = this->GetPropertyValue(Data);
	if constexpr (std::is_floating_point_v<T>)
	{
		return FString::SanitizeFloat(Value);
	}
	else if constexpr (std::is_signed_v<T>)
	{
		return FString::Printf(TEXT("%lld"), static_cast<long long>(Value));
	}
	else
	{
		return FString::Printf(TEXT("%llu"), static_cast<unsigned long long>(Value));
	}
}

template <typename T>
void TProperty_Numeric<T>::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	if constexpr (std::is_floating_point_v<T>)
	{
		if (!(PortFlags & PPF_PropertyWindow))
		{
			// The greatest double has 309 digits before the point.
			char Digits[400];
			const int Length = std::snprintf(Digits, sizeof(Digits), "%f", static_cast<double>(this->GetPropertyValue(PropertyValue)));
			ValueStr += FString(FAnsiStringView(Digits, Length));
			return;
		}
	}
	ValueStr += GetNumericPropertyValueToString(PropertyValue);
}

template class TProperty_Numeric<int8>;
template class TProperty_Numeric<int16>;
template class TProperty_Numeric<int32>;
template class TProperty_Numeric<int64>;
template class TProperty_Numeric<uint8>;
template class TProperty_Numeric<uint16>;
template class TProperty_Numeric<uint32>;
template class TProperty_Numeric<uint64>;
template class TProperty_Numeric<float>;
template class TProperty_Numeric<double>;

void FByteProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	UObject* Type = Enum;
	Ar << Type;
	Enum = Type && Type->IsA(UEnum::StaticClass()) ? static_cast<UEnum*>(Type) : nullptr;
}

void FByteProperty::PostDuplicate(const FField& InField)
{
	Enum = static_cast<const FByteProperty&>(InField).Enum;
	Super::PostDuplicate(InField);
}

void FByteProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(Enum);
}

bool FByteProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Enum == static_cast<const FByteProperty*>(Other)->Enum;
}

FString FByteProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Enum ? FString::Printf(TEXT("TEnumAsByte<%s>"), *Enum->CppType) : Super::GetCPPType(ExtendedTypeText, CPPExportFlags);
}

void FByteProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	if (!Enum || Ar.WantBinaryPropertySerialization() || !(Ar.IsLoading() || Ar.IsSaving()))
	{
		Super::SerializeItem(Ar, Value, Defaults);
		return;
	}
	FName EnumValueName = Ar.IsLoading() ? FName() : Enum->GetNameByValue(GetPropertyValue(Value));
	Ar << EnumValueName;
	if (Ar.IsLoading())
	{
		const int32 Index = Enum->GetIndexByName(EnumValueName);
		SetPropertyValue(Value, static_cast<uint8>(Index == INDEX_NONE ? Enum->GetMaxEnumValue() : Enum->GetValueByIndex(Index)));
	}
}

EConvertFromTypeResult FByteProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	const bool bTagHasName =
		Tag.IsType(FPropertyKindNames::Get().Enum) || (Tag.IsType(FPropertyKindNames::Get().Byte) && !Tag.EnumName.IsNone());
	if (Enum && bTagHasName)
	{
		int64 Value = 0;
		ReadEnumeratorAsNumber(Tag, Ar, Enum, Value);
		SetPropertyValue(Data, static_cast<uint8>(Value));
		return EConvertFromTypeResult::Converted;
	}
	if (Enum && Tag.IsType(FPropertyKindNames::Get().Byte))
	{
		SetPropertyValue(Data, ReadNumber<uint8>(Ar));
		return EConvertFromTypeResult::Converted;
	}
	if (!Enum && Tag.IsType(FPropertyKindNames::Get().Byte) && bTagHasName)
	{
		const UEnum* const SavedEnum = FindFirstObject<UEnum>(*Tag.EnumName.ToString());
		int64 Value = 0;
		if (!SavedEnum || !ReadEnumeratorAsNumber(Tag, Ar, SavedEnum, Value))
		{
			return EConvertFromTypeResult::CannotConvert;
		}
		SetPropertyValue(Data, static_cast<uint8>(Value));
		return EConvertFromTypeResult::Converted;
	}
	return Super::ConvertFromType(Tag, Ar, Data, DefaultsStruct, Defaults);
}

void FByteProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	if (!Enum || (PortFlags & PPF_ConsoleVariable))
	{
		Super::ExportText_Internal(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
		return;
	}
	UE::CoreUObject::Private::ExportEnumerator(ValueStr, *Enum, GetPropertyValue(PropertyValue), PortFlags);
}

const TCHAR* FByteProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	if (!Enum)
	{
		return Super::ImportText_Internal(Buffer, PropertyValue, OwnerObject, PortFlags, ErrorText);
	}
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	int64 Value = 0;
	if (const TCHAR* const End = UE::CoreUObject::Private::ImportEnumerator(Start, *Enum, Value))
	{
		SetPropertyValue(PropertyValue, static_cast<uint8>(Value));
		return End;
	}
	if (IsNumberStart(Start))
	{
		return Super::ImportText_Internal(Start, PropertyValue, OwnerObject, PortFlags, ErrorText);
	}
	return FPropertyHelpers::RefuseText(ErrorText, this, *FString::Printf(TEXT("is not an enumerator of %s"), *Enum->GetName()), Start);
}

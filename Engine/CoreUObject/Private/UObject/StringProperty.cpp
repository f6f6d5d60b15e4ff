#include "UObject/StringProperty.h"

#include "Internationalization/Text.h"
#include "Serialization/Archive.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/SoftObjectPath.h"

IMPLEMENT_FIELD(FNameProperty)
IMPLEMENT_FIELD(FStrProperty)
IMPLEMENT_FIELD(FTextProperty)

namespace
{
/** Reads what was saved as a name, a string or a text as a plain string. False for any other type. */
bool ReadStringLike(const FPropertyTag& Tag, FArchive& Ar, FString& OutString)
{
	if (Tag.IsType(TEXT("NameProperty")))
	{
		FName Name;
		Ar << Name;
		OutString = Name.ToString();
		return true;
	}
	if (Tag.IsType(TEXT("StrProperty")))
	{
		Ar << OutString;
		return true;
	}
	if (Tag.IsType(TEXT("TextProperty")))
	{
		FText Text;
		Ar << Text;
		OutString = Text.ToString();
		return true;
	}
	return false;
}

/** A whole buffer when the value stands alone, else a quoted string or a word. Null (and a reported error) when there is neither. */
const TCHAR* ReadDelimitedString(
	const FProperty* Property, const TCHAR* Buffer, int32 PortFlags, FOutputDevice* ErrorText, FString& OutString)
{
	if (!(PortFlags & PPF_Delimited))
	{
		OutString = Buffer;
		return Buffer + OutString.Len();
	}
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	const TCHAR* const End = FPropertyHelpers::ReadToken(Start, OutString, true);
	return End ? End : FPropertyHelpers::RefuseText(ErrorText, Property, TEXT("is not a quoted string"), Start);
}
}

FString FNameProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FName");
}

EConvertFromTypeResult FNameProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()))
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	FString Text;
	if (!ReadStringLike(Tag, Ar, Text))
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	SetPropertyValue(Data, FName(*Text));
	return EConvertFromTypeResult::Converted;
}

void FNameProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FName Value = GetPropertyValue(PropertyValue);
	if (PortFlags & PPF_Delimited)
	{
		// Between quotes no name is nothing, not the word None: so the editor writes a pin's empty sub-category.
		ValueStr += FPropertyHelpers::QuoteAndEscape(Value.IsNone() ? FString() : Value.ToString());
		return;
	}
	ValueStr += Value.ToString();
}

const TCHAR* FNameProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* const End = ReadDelimitedString(this, Buffer, PortFlags, ErrorText, Text);
	if (!End)
	{
		return nullptr;
	}
	if (Text.Len() >= NAME_SIZE)
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is too long for a name"), Buffer);
	}
	SetPropertyValue(PropertyValue, FName(*Text));
	return End;
}

FString FStrProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FString");
}

bool FStrProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return B ? GetPropertyValue(A).Equals(GetPropertyValue(B), ESearchCase::CaseSensitive) : GetPropertyValue(A).IsEmpty();
}

EConvertFromTypeResult FStrProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()))
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	if (ReadStringLike(Tag, Ar, *GetPropertyValuePtr(Data)))
	{
		return EConvertFromTypeResult::Converted;
	}
	const bool bIsSoftPath = Tag.IsType(TEXT("SoftObjectProperty")) || Tag.IsType(TEXT("SoftClassProperty")) ||
		Tag.IsType(TEXT("AssetObjectProperty")) ||
		(Tag.IsType(TEXT("StructProperty")) && (Tag.StructName == TEXT("SoftObjectPath") || Tag.StructName == TEXT("SoftClassPath")));
	if (!bIsSoftPath)
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	FSoftObjectPath Path;
	Ar << Path;
	SetPropertyValue(Data, Path.ToString());
	return EConvertFromTypeResult::Converted;
}

FString FStrProperty::ExportCppHardcodedText(const FString& InSource, const FString& Indent)
{
	return FPropertyHelpers::QuoteAndEscape(InSource);
}

void FStrProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FString& Value = GetPropertyValue(PropertyValue);
	ValueStr += PortFlags & PPF_Delimited ? FPropertyHelpers::QuoteAndEscape(Value) : Value;
}

const TCHAR* FStrProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Text;
	const TCHAR* const End = ReadDelimitedString(this, Buffer, PortFlags, ErrorText, Text);
	if (End)
	{
		SetPropertyValue(PropertyValue, Text);
	}
	return End;
}

FString FTextProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return TEXT("FText");
}

bool FTextProperty::Identical_Implementation(const FText& A, const FText& B, uint32 PortFlags)
{
	const bool bIsMadeOfParts = FTextInspector::GetSourceString(A) == nullptr || FTextInspector::GetSourceString(B) == nullptr;
	if (bIsMadeOfParts)
	{
		// The same words may come from another number, date or table.
		return A.IsCultureInvariant() == B.IsCultureInvariant() &&
			A.IdenticalTo(B, ETextIdenticalModeFlags::DeepCompare | ETextIdenticalModeFlags::LexicalCompareInvariants);
	}
	const TOptional<FString> SpaceA = FTextInspector::GetNamespace(A);
	const TOptional<FString> SpaceB = FTextInspector::GetNamespace(B);
	const TOptional<FString> KeyA = FTextInspector::GetKey(A);
	const TOptional<FString> KeyB = FTextInspector::GetKey(B);
	const auto IsSame = [](const TOptional<FString>& Left, const TOptional<FString>& Right)
	{ return Left.Get(FString()).Equals(Right.Get(FString()), ESearchCase::CaseSensitive); };
	return A.ToString().Equals(B.ToString(), ESearchCase::CaseSensitive) && A.IsCultureInvariant() == B.IsCultureInvariant() &&
		IsSame(SpaceA, SpaceB) && IsSame(KeyA, KeyB);
}

bool FTextProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return Identical_Implementation(GetPropertyValue(A), B ? GetPropertyValue(B) : FText::GetEmpty(), PortFlags);
}

void FTextProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	Ar << *GetPropertyValuePtr(Value);
}

EConvertFromTypeResult FTextProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()))
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	FString Text;
	if (!ReadStringLike(Tag, Ar, Text))
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	SetPropertyValue(Data, FText::FromString(Text));
	return EConvertFromTypeResult::Converted;
}

void FTextProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FText& Value = GetPropertyValue(PropertyValue);
	if (PortFlags & PPF_PropertyWindow)
	{
		ValueStr += PortFlags & PPF_Delimited ? FPropertyHelpers::QuoteAndEscape(Value.ToString()) : Value.ToString();
		return;
	}
	FTextStringHelper::WriteToBuffer(ValueStr, Value, (PortFlags & PPF_Delimited) != 0);
}

const TCHAR* FTextProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* const End = FTextStringHelper::ReadFromBuffer(
		Buffer, *GetPropertyValuePtr(PropertyValue), nullptr, nullptr, (PortFlags & PPF_Delimited) != 0);
	return End ? End : FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a text"), Buffer);
}

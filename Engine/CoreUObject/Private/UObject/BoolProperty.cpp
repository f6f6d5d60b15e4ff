#include "Serialization/Archive.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/UnrealType.h"

IMPLEMENT_FIELD(FBoolProperty)

namespace
{
struct FBoolWord
{
	const TCHAR* Word;
	bool bValue;
};

constexpr FBoolWord BoolWords[] = {
	{TEXT("True"), true}, {TEXT("False"), false}, {TEXT("Yes"), true}, {TEXT("No"), false}, {TEXT("1"), true}, {TEXT("0"), false}};

constexpr uint8 NativeBoolFieldMask = 0xff;
}

void FBoolProperty::SetBoolSize(uint32 InSize, bool bIsNativeBool, uint32 InBitMask)
{
	FieldSize = static_cast<uint8>(InSize);
	ElementSize = static_cast<int32>(InSize);
	if (bIsNativeBool)
	{
		ByteOffset = 0;
		ByteMask = 1;
		FieldMask = NativeBoolFieldMask;
		return;
	}
	ByteOffset = 0;
	while (InBitMask > 0xff)
	{
		InBitMask >>= 8;
		++ByteOffset;
	}
	ByteMask = static_cast<uint8>(InBitMask ? InBitMask : 1);
	FieldMask = ByteMask;
}

bool FBoolProperty::GetPropertyValue(const void* A) const
{
	return (static_cast<const uint8*>(A)[ByteOffset] & (IsNativeBool() ? NativeBoolFieldMask : ByteMask)) != 0;
}

void FBoolProperty::SetPropertyValue(void* A, bool Value) const
{
	uint8& Byte = static_cast<uint8*>(A)[ByteOffset];
	Byte = static_cast<uint8>((Byte & ~FieldMask) | (Value ? ByteMask : 0));
}

void FBoolProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	uint8 BoolSize = static_cast<uint8>(ElementSize);
	uint8 NativeBool = IsNativeBool() ? 1 : 0;
	Ar << FieldSize << ByteOffset << ByteMask << FieldMask << BoolSize << NativeBool;
	if (!Ar.IsLoading())
	{
		return;
	}
	constexpr uint8 MaxBoolSize = 8;
	if (BoolSize < 1 || BoolSize > MaxBoolSize || ByteOffset >= BoolSize)
	{
		Ar.SetError();
		BoolSize = 1;
		ByteOffset = 0;
	}
	SetBoolSize(BoolSize, NativeBool != 0, static_cast<uint32>(ByteMask));
}

void FBoolProperty::PostDuplicate(const FField& InField)
{
	const FBoolProperty& Source = static_cast<const FBoolProperty&>(InField);
	FieldSize = Source.FieldSize;
	ByteOffset = Source.ByteOffset;
	ByteMask = Source.ByteMask;
	FieldMask = Source.FieldMask;
	Super::PostDuplicate(InField);
}

FString FBoolProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return IsNativeBool() ? FString(TEXT("bool")) : FString::Printf(TEXT("uint%d"), ElementSize * 8);
}

int32 FBoolProperty::GetMinAlignment() const
{
	return FMath::Max(ElementSize, 1);
}

void FBoolProperty::LinkInternal(FArchive& Ar)
{
	ElementSize = FMath::Max<int32>(FieldSize, 1);
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

int32 FBoolProperty::SetupOffset(int32 Offset)
{
	// A run-time layout has no neighbours to share a byte with: each flag takes its own.
	if (!IsNativeBool())
	{
		SetBoolSize(1, true);
	}
	return Super::SetupOffset(Offset);
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A) == GetOptionalPropertyValue(B);
}

void FBoolProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	uint8 Byte = GetPropertyValue(Value) ? 1 : 0;
	Ar << Byte;
	if (Ar.IsLoading())
	{
		SetPropertyValue(Value, Byte != 0);
	}
}

EConvertFromTypeResult FBoolProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()))
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	FIntProperty Number{FFieldVariant(), FName()};
	int32 Value = 0;
	const EConvertFromTypeResult Result = Tag.IsType(Number.GetID())
		? EConvertFromTypeResult::UseSerializeItem
		: Number.ConvertFromType(Tag, Ar, reinterpret_cast<uint8*>(&Value), nullptr, nullptr);
	if (Result == EConvertFromTypeResult::CannotConvert)
	{
		return Result;
	}
	if (Result == EConvertFromTypeResult::UseSerializeItem)
	{
		Ar << Value;
	}
	SetPropertyValue(Data, Value != 0);
	return EConvertFromTypeResult::Converted;
}

void FBoolProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += GetPropertyValue(PropertyValue) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Token;
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	if (const TCHAR* const End = FPropertyHelpers::ReadToken(Start, Token))
	{
		for (const FBoolWord& Word : BoolWords)
		{
			if (Token.Equals(Word.Word, ESearchCase::IgnoreCase))
			{
				SetPropertyValue(PropertyValue, Word.bValue);
				return End;
			}
		}
	}
	return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is neither True nor False"), Start);
}

void FBoolProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		const SIZE_T Offset = static_cast<SIZE_T>(Index) * ElementSize;
		SetPropertyValue(static_cast<uint8*>(Dest) + Offset, GetPropertyValue(static_cast<const uint8*>(Src) + Offset));
	}
}

void FBoolProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		SetPropertyValue(static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Index) * ElementSize, false);
	}
}

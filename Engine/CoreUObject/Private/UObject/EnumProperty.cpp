#include "UObject/EnumProperty.h"

#include "EnumeratorText.h"
#include "PropertyKindNames.h"
#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

IMPLEMENT_FIELD(FEnumProperty)

void UE::CoreUObject::Private::ExportEnumerator(FString& ValueStr, const UEnum& Enum, int64 Value, int32 PortFlags)
{
	const bool bIsShown = Value != Enum.GetMaxEnumValue() || (PortFlags & PPF_Copy);
	const int32 Index = bIsShown ? Enum.GetIndexByValue(Value) : INDEX_NONE;
	if (Index == INDEX_NONE)
	{
		ValueStr += TEXT("(INVALID)");
		return;
	}
	ValueStr += PortFlags & PPF_PropertyWindow ? Enum.GetDisplayNameTextByIndex(Index).ToString() : Enum.GetNameStringByIndex(Index);
}

const TCHAR* UE::CoreUObject::Private::ImportEnumerator(const TCHAR* Text, const UEnum& Enum, int64& OutValue)
{
	FString Token;
	const TCHAR* const End = FPropertyHelpers::ReadToken(Text, Token, true);
	const int32 Index = End ? Enum.GetIndexByNameString(Token) : INDEX_NONE;
	if (Index == INDEX_NONE)
	{
		return nullptr;
	}
	OutValue = Enum.GetValueByIndex(Index);
	return End;
}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

void FEnumProperty::SetEnum(UEnum* InEnum)
{
	checkf(!Enum || Enum == InEnum, TEXT("%s has its enum already"), *GetFullName());
	Enum = InEnum;
}

void FEnumProperty::AddCppProperty(FProperty* Property)
{
	check(!UnderlyingProp);
	UnderlyingProp = CastFieldChecked<FNumericProperty>(Property);
}

void FEnumProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	UObject* Type = Enum;
	Ar << Type;
	Enum = Type && Type->IsA(UEnum::StaticClass()) ? static_cast<UEnum*>(Type) : nullptr;
	FField* Field = UnderlyingProp;
	SerializeSingleField(Ar, Field, this);
	if (!Ar.IsLoading())
	{
		return;
	}
	delete UnderlyingProp;
	UnderlyingProp = CastField<FNumericProperty>(Field);
	if (!UnderlyingProp)
	{
		delete Field;
		UnderlyingProp = new FByteProperty(this, TEXT("UnderlyingType"));
		Ar.SetError();
	}
}

void FEnumProperty::PostDuplicate(const FField& InField)
{
	const FEnumProperty& Source = static_cast<const FEnumProperty&>(InField);
	Enum = Source.Enum;
	UnderlyingProp = Source.UnderlyingProp ? CastFieldChecked<FNumericProperty>(FField::Duplicate(Source.UnderlyingProp, this)) : nullptr;
	Super::PostDuplicate(InField);
}

void FEnumProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(Enum);
	if (UnderlyingProp)
	{
		UnderlyingProp->AddReferencedObjects(Collector);
	}
}

void FEnumProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	if (UnderlyingProp)
	{
		OutFields.Add(UnderlyingProp);
		UnderlyingProp->GetInnerFields(OutFields);
	}
}

FField* FEnumProperty::GetInnerFieldByName(const FName& InName)
{
	return UnderlyingProp && UnderlyingProp->GetFName() == InName ? UnderlyingProp : nullptr;
}

FString FEnumProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Enum ? (Enum->CppType.IsEmpty() ? Enum->GetName() : Enum->CppType) : FString(TEXT("uint8"));
}

bool FEnumProperty::SameType(const FProperty* Other) const
{
	const FEnumProperty* const OtherEnum = CastField<FEnumProperty>(Other);
	return OtherEnum && Super::SameType(Other) && Enum == OtherEnum->Enum && UnderlyingProp->SameType(OtherEnum->UnderlyingProp);
}

int32 FEnumProperty::GetMinAlignment() const
{
	return UnderlyingProp->GetMinAlignment();
}

void FEnumProperty::LinkInternal(FArchive& Ar)
{
	check(UnderlyingProp);
	UnderlyingProp->LinkWithoutChangingOffset(Ar);
	ElementSize = UnderlyingProp->GetElementSize();
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return UnderlyingProp->Identical(A, B, PortFlags);
}

void FEnumProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	if (!Enum || Ar.WantBinaryPropertySerialization() || !(Ar.IsLoading() || Ar.IsSaving()))
	{
		UnderlyingProp->SerializeItem(Ar, Value, Defaults);
		return;
	}
	FName EnumValueName = Ar.IsLoading() ? FName() : Enum->GetNameByValue(UnderlyingProp->GetSignedIntPropertyValue(Value));
	Ar << EnumValueName;
	if (!Ar.IsLoading())
	{
		return;
	}
	int32 Index = Enum->GetIndexByName(EnumValueName);
	if (Index == INDEX_NONE && !EnumValueName.IsNone())
	{
		UE_LOG(LogClass, Warning, TEXT("%s: enum %s has no %s, used by property %s"), *Ar.GetArchiveName(), *Enum->GetName(),
			*EnumValueName.ToString(), *GetName());
	}
	UnderlyingProp->SetIntPropertyValue(Value, Index == INDEX_NONE ? Enum->GetMaxEnumValue() : Enum->GetValueByIndex(Index));
}

EConvertFromTypeResult FEnumProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (Tag.IsType(GetID()))
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	if (Enum && Tag.IsType(FPropertyKindNames::Get().Byte) && !Tag.EnumName.IsNone())
	{
		SerializeItem(Ar, Data, Defaults);
		return EConvertFromTypeResult::Converted;
	}
	if (Tag.IsType(UnderlyingProp->GetID()))
	{
		UnderlyingProp->SerializeItem(Ar, Data, Defaults);
		return EConvertFromTypeResult::Converted;
	}
	return UnderlyingProp->ConvertFromType(Tag, Ar, Data, DefaultsStruct, Defaults);
}

void FEnumProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	if (!Enum || (PortFlags & PPF_ConsoleVariable))
	{
		ValueStr += UnderlyingProp->GetNumericPropertyValueToString(PropertyValue);
		return;
	}
	UE::CoreUObject::Private::ExportEnumerator(
		ValueStr, *Enum, UnderlyingProp->GetSignedIntPropertyValue(PropertyValue), PortFlags);
}

const TCHAR* FEnumProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* const Start = FPropertyHelpers::SkipWhitespace(Buffer);
	int64 Value = 0;
	if (const TCHAR* const End = Enum ? UE::CoreUObject::Private::ImportEnumerator(Start, *Enum, Value) : nullptr)
	{
		UnderlyingProp->SetIntPropertyValue(PropertyValue, Value);
		return End;
	}
	FString Token;
	const TCHAR* const End = FPropertyHelpers::ReadToken(Start, Token);
	if (End && Token.IsNumeric())
	{
		UnderlyingProp->SetNumericPropertyValueFromString(PropertyValue, *Token);
		return End;
	}
	return FPropertyHelpers::RefuseText(
		ErrorText, this, *FString::Printf(TEXT("is not an enumerator of %s"), Enum ? *Enum->GetName() : TEXT("its enum")), Start);
}

void FEnumProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	FMemory::Memcpy(Dest, Src, static_cast<SIZE_T>(Count) * ElementSize);
}

void FEnumProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, GetSize());
}

void FEnumProperty::ClearValueInternal(void* Data) const
{
	FMemory::Memzero(Data, ElementSize);
}

uint32 FEnumProperty::GetValueTypeHashInternal(const void* Src) const
{
	return UnderlyingProp->GetValueTypeHash(Src);
}

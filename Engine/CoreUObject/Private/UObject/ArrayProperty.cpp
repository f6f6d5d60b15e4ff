#include "ContainerPropertyCommon.h"
#include "UObject/Class.h"

IMPLEMENT_FIELD(FArrayProperty)

namespace
{
/** Packages from before complete type names have a tag of their own before the elements of an array of structs. */
bool HasInnerTag(const FArchive& Ar, const FProperty* Inner)
{
	return Inner->IsA<FStructProperty>() && Ar.UEVer() >= VER_UE4_INNER_ARRAY_TAG_INFO &&
		Ar.UEVer() < EUnrealEngineObjectUE5Version::PROPERTY_TAG_COMPLETE_TYPE_NAME;
}

void ReadElements(FArchive& Ar, FScriptArrayHelper& Helper, const FElementReader& Reader, int32 Count)
{
	Helper.EmptyValues();
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Helper.AddValue();
		const FSerializedPathScope Scope(FName(), Index);
		if (!Reader.Read(Ar, Helper.GetRawPtr(Index)))
		{
			Helper.RemoveValues(Index);
			return;
		}
	}
}

/** Reads elements after an inner tag, or steps over them when they cannot be elements here. */
void ReadTaggedStructElements(FArchive& Ar, FArrayProperty* Property, FScriptArrayHelper& Helper, int32 Count)
{
	FPropertyTag InnerTag;
	Ar << InnerTag;
	if (Ar.IsError())
	{
		return;
	}
	const int64 Start = Ar.Tell();
	const FElementReader Reader(Property->Inner, InnerTag.GetType());
	if (Reader.CanRead())
	{
		ReadElements(Ar, Helper, Reader, Count);
		return;
	}
	UE_LOG(LogClass, Warning, TEXT("%s: elements of %s are of struct %s, which cannot become %s"), *Ar.GetArchiveName(),
		*Property->GetPathName(), *InnerTag.StructName.ToString(), *Property->Inner->GetCPPType());
	Helper.EmptyValues();
	Ar.Seek(Start + InnerTag.Size);
}

void WriteTaggedStructElements(FArchive& Ar, FArrayProperty* Property, FScriptArrayHelper& Helper)
{
	FPropertyTag InnerTag(Property->Inner, 0, nullptr);
	InnerTag.Name = Property->GetFName();
	Ar << InnerTag;
	const int64 Start = Ar.Tell();
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		const FSerializedPathScope Scope(FName(), Index);
		Property->Inner->SerializeItem(Ar, Helper.GetRawPtr(Index));
	}
	const int64 End = Ar.Tell();
	if (InnerTag.SizeOffset >= 0 && !Ar.IsError())
	{
		InnerTag.Size = static_cast<int32>(End - Start);
		Ar.Seek(InnerTag.SizeOffset);
		Ar << InnerTag.Size;
		Ar.Seek(End);
	}
}
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

void FArrayProperty::AddCppProperty(FProperty* Property)
{
	check(Property && !Inner);
	Inner = Property;
}

void FArrayProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeInnerProperty(Ar, Inner, this);
}

void FArrayProperty::PostDuplicate(const FField& InField)
{
	const FArrayProperty& Source = static_cast<const FArrayProperty&>(InField);
	Inner = Source.Inner ? CastFieldChecked<FProperty>(FField::Duplicate(Source.Inner, this)) : nullptr;
	Super::PostDuplicate(InField);
}

void FArrayProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	if (Inner)
	{
		Inner->AddReferencedObjects(Collector);
	}
}

void FArrayProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	if (Inner)
	{
		OutFields.Add(Inner);
		Inner->GetInnerFields(OutFields);
	}
}

FField* FArrayProperty::GetInnerFieldByName(const FName& InName)
{
	return Inner && Inner->GetFName() == InName ? Inner : nullptr;
}

FString FArrayProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Extended = TEXT("<") + Inner->GetCPPType() + TEXT(">");
	if (!ExtendedTypeText)
	{
		return TEXT("TArray") + Extended;
	}
	*ExtendedTypeText = Extended;
	return TEXT("TArray");
}

bool FArrayProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Inner->SameType(static_cast<const FArrayProperty*>(Other)->Inner);
}

void FArrayProperty::LinkInternal(FArchive& Ar)
{
	check(Inner);
	Inner->LinkWithoutChangingOffset(Ar);
	ElementSize = sizeof(FScriptArray);
	PropertyFlags |= CPF_ZeroConstructor | (Inner->PropertyFlags & CPF_HasGetValueTypeHash);
	PropagateFlagsToElement(this, Inner, CPF_PropagateToArrayInner);
}

bool FArrayProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return Inner->ContainsObjectReference(EncounteredStructProps, InReferenceType);
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptArrayHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptArrayHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < Left.Num(); ++Index)
	{
		if (!Inner->Identical(Left.GetRawPtr(Index), Right.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	FScriptArrayHelper Helper(this, Value);
	FArrayProperty* const This = const_cast<FArrayProperty*>(this);
	const int32 Count = FPropertyHelpers::SerializeCount(Ar, Helper.Num());
	if (Ar.IsLoading())
	{
		if (HasInnerTag(Ar, Inner))
		{
			ReadTaggedStructElements(Ar, This, Helper, Count);
		}
		else
		{
			ReadElements(Ar, Helper, FElementReader(Inner, FPropertyTypeName()), Count);
		}
		return;
	}
	if (Ar.IsSaving() && HasInnerTag(Ar, Inner) && !Ar.IsObjectReferenceCollector())
	{
		WriteTaggedStructElements(Ar, This, Helper);
		return;
	}
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		const FSerializedPathScope Scope(FName(), Index);
		Inner->SerializeItem(Ar, Helper.GetRawPtr(Index));
	}
}

EConvertFromTypeResult FArrayProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (!Tag.IsType(GetID()))
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	if (HasInnerTag(Ar, Inner) && Tag.InnerType == Inner->GetID())
	{
		return EConvertFromTypeResult::UseSerializeItem;
	}
	const FElementReader Reader(Inner, Tag.GetType().GetParameter(0));
	if (!Reader.CanRead())
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	FScriptArrayHelper Helper(this, Data);
	ReadElements(Ar, Helper, Reader, FPropertyHelpers::SerializeCount(Ar, 0));
	return EConvertFromTypeResult::Converted;
}

void FArrayProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		const FScriptArrayHelper Helper(this, GetPropertyValuePtr(Value) + Element);
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			Inner->CollectReferences(Helper.GetRawPtr(Index), Collector, ReferencingObject);
		}
	}
}

void FArrayProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptArrayHelper Helper(this, PropertyValue);
	if (Helper.Num() == 0)
	{
		return;
	}
	// Struct elements leave out members that a new element has anyway.
	const bool bIsStruct = Inner->IsA<FStructProperty>();
	const FPropertyTemporary StructDefault(Inner);
	ValueStr += TEXT("(");
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		ValueStr += Index > 0 ? TEXT(",") : TEXT("");
		Inner->ExportTextItem_Direct(ValueStr, Helper.GetRawPtr(Index), bIsStruct ? StructDefault.Get() : nullptr, Parent,
			PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FArrayProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FScriptArrayHelper Helper(this, PropertyValue);
	const TCHAR* Text = FPropertyHelpers::SkipWhitespace(Buffer);
	if (IsEmptyContainerText(*Text))
	{
		Helper.EmptyValues();
		return Text;
	}
	if (*Text != TEXT('('))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a list in parentheses"), Text);
	}
	Helper.EmptyValues();
	Text = FPropertyHelpers::SkipWhitespace(Text + 1);
	while (*Text != TEXT(')'))
	{
		const int32 Index = Helper.AddValue();
		// Two commas in a row stand for a default element.
		if (*Text != TEXT(','))
		{
			Text = Inner->ImportText_Direct(Text, Helper.GetRawPtr(Index), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
			if (!Text)
			{
				return nullptr;
			}
		}
		Text = FPropertyHelpers::SkipWhitespace(Text);
		if (*Text != TEXT(',') && *Text != TEXT(')'))
		{
			return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("Missing closing parenthesis"), Buffer);
		}
		Text = SkipElementSeparator(Text);
	}
	return Text + 1;
}

void FArrayProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Element = 0; Element < Count; ++Element)
	{
		const FScriptArrayHelper Source(this, static_cast<const FScriptArray*>(Src) + Element);
		FScriptArrayHelper Target(this, static_cast<FScriptArray*>(Dest) + Element);
		Target.EmptyAndAddValues(Source.Num());
		for (int32 Index = 0; Index < Source.Num(); ++Index)
		{
			Inner->CopySingleValue(Target.GetRawPtr(Index), Source.GetRawPtr(Index));
		}
	}
}

void FArrayProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, GetSize());
}

void FArrayProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		FScriptArrayHelper(this, static_cast<FScriptArray*>(Dest) + Element).EmptyValues();
	}
}

void FArrayProperty::ClearValueInternal(void* Data) const
{
	FScriptArrayHelper(this, Data).EmptyValues();
}

uint32 FArrayProperty::GetValueTypeHashInternal(const void* Src) const
{
	const FScriptArrayHelper Helper(this, Src);
	uint32 Hash = 0;
	for (int32 Index = 0; Index < Helper.Num(); ++Index)
	{
		Hash = HashCombine(Hash, Inner->GetValueTypeHash(Helper.GetRawPtr(Index)));
	}
	return Hash;
}

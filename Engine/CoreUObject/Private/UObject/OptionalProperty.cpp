#include "UObject/PropertyOptional.h"

#include "ContainerPropertyCommon.h"

IMPLEMENT_FIELD(FOptionalProperty)

FOptionalProperty::~FOptionalProperty()
{
	delete ValueProperty;
}

bool* FOptionalProperty::GetIsSetFlag(void* Data) const
{
	return reinterpret_cast<bool*>(static_cast<uint8*>(Data) + ValueProperty->GetSize());
}

bool FOptionalProperty::IsSet(const void* Data) const
{
	return *GetIsSetFlag(const_cast<void*>(Data));
}

void* FOptionalProperty::MarkSetAndGetInitializedValuePointerToReplace(void* Data) const
{
	bool* const bIsSet = GetIsSetFlag(Data);
	if (!*bIsSet)
	{
		ValueProperty->InitializeValue(Data);
		*bIsSet = true;
	}
	return Data;
}

void FOptionalProperty::MarkUnset(void* Data) const
{
	bool* const bIsSet = GetIsSetFlag(Data);
	if (*bIsSet)
	{
		ValueProperty->DestroyValue(Data);
		*bIsSet = false;
	}
}

const void* FOptionalProperty::GetValuePointerForReadIfSet(const void* Data) const
{
	return IsSet(Data) ? Data : nullptr;
}

void* FOptionalProperty::GetValuePointerForReplaceIfSet(void* Data) const
{
	return IsSet(Data) ? Data : nullptr;
}

void FOptionalProperty::AddCppProperty(FProperty* Property)
{
	check(Property && !ValueProperty);
	ValueProperty = Property;
}

void FOptionalProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeInnerProperty(Ar, ValueProperty, this);
}

void FOptionalProperty::PostDuplicate(const FField& InField)
{
	const FOptionalProperty& Source = static_cast<const FOptionalProperty&>(InField);
	ValueProperty = Source.ValueProperty ? CastFieldChecked<FProperty>(FField::Duplicate(Source.ValueProperty, this)) : nullptr;
	Super::PostDuplicate(InField);
}

void FOptionalProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	if (ValueProperty)
	{
		ValueProperty->AddReferencedObjects(Collector);
	}
}

void FOptionalProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	if (ValueProperty)
	{
		OutFields.Add(ValueProperty);
		ValueProperty->GetInnerFields(OutFields);
	}
}

FField* FOptionalProperty::GetInnerFieldByName(const FName& InName)
{
	return ValueProperty && ValueProperty->GetFName() == InName ? ValueProperty : nullptr;
}

FString FOptionalProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Extended = TEXT("<") + ValueProperty->GetCPPType() + TEXT(">");
	if (!ExtendedTypeText)
	{
		return TEXT("TOptional") + Extended;
	}
	*ExtendedTypeText = Extended;
	return TEXT("TOptional");
}

bool FOptionalProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && ValueProperty->SameType(static_cast<const FOptionalProperty*>(Other)->ValueProperty);
}

int32 FOptionalProperty::GetMinAlignment() const
{
	return ValueProperty->GetMinAlignment();
}

void FOptionalProperty::LinkInternal(FArchive& Ar)
{
	check(ValueProperty);
	ValueProperty->LinkWithoutChangingOffset(Ar);
	ElementSize = Align(ValueProperty->GetSize() + static_cast<int32>(sizeof(bool)), FMath::Max(ValueProperty->GetMinAlignment(), 1));
	PropertyFlags |= CPF_ZeroConstructor | (ValueProperty->PropertyFlags & (CPF_NoDestructor | CPF_HasGetValueTypeHash));
	PropagateFlagsToElement(this, ValueProperty, CPF_PropagateToArrayInner);
}

bool FOptionalProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return ValueProperty->ContainsObjectReference(EncounteredStructProps, InReferenceType);
}

bool FOptionalProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const bool bIsSetB = B && IsSet(B);
	return IsSet(A) == bIsSetB && (!bIsSetB || ValueProperty->Identical(A, B, PortFlags));
}

void FOptionalProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	bool bIsSet = IsSet(Value);
	Ar << bIsSet;
	if (Ar.IsLoading() && !bIsSet)
	{
		MarkUnset(Value);
		return;
	}
	if (bIsSet)
	{
		ValueProperty->SerializeItem(Ar, MarkSetAndGetInitializedValuePointerToReplace(Value), nullptr);
	}
}

void FOptionalProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		void* const Data = static_cast<uint8*>(Value) + static_cast<SIZE_T>(Element) * ElementSize;
		if (IsSet(Data))
		{
			ValueProperty->CollectReferences(Data, Collector, ReferencingObject);
		}
	}
}

void FOptionalProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	if (!IsSet(PropertyValue))
	{
		ValueStr += TEXT("()");
		return;
	}
	const void* const Default = DefaultValue ? GetValuePointerForReadIfSet(DefaultValue) : nullptr;
	ValueStr += TEXT("(");
	ValueProperty->ExportTextItem_Direct(ValueStr, PropertyValue, Default, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	ValueStr += TEXT(")");
}

const TCHAR* FOptionalProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	const TCHAR* Text = FPropertyHelpers::SkipWhitespace(Buffer);
	if (*Text != TEXT('('))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not an optional value in parentheses"), Text);
	}
	Text = FPropertyHelpers::SkipWhitespace(Text + 1);
	if (*Text == TEXT(')'))
	{
		MarkUnset(PropertyValue);
		return Text + 1;
	}
	Text = ValueProperty->ImportText_Direct(
		Text, MarkSetAndGetInitializedValuePointerToReplace(PropertyValue), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
	Text = Text ? FPropertyHelpers::SkipWhitespace(Text) : nullptr;
	if (!Text || *Text != TEXT(')'))
	{
		return Text ? FPropertyHelpers::RefuseText(ErrorText, this, TEXT("Missing closing parenthesis"), Buffer) : nullptr;
	}
	return Text + 1;
}

void FOptionalProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Element = 0; Element < Count; ++Element)
	{
		const SIZE_T Offset = static_cast<SIZE_T>(Element) * ElementSize;
		void* const Target = static_cast<uint8*>(Dest) + Offset;
		const void* const Source = static_cast<const uint8*>(Src) + Offset;
		if (IsSet(Source))
		{
			ValueProperty->CopySingleValue(MarkSetAndGetInitializedValuePointerToReplace(Target), Source);
		}
		else
		{
			MarkUnset(Target);
		}
	}
}

void FOptionalProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, GetSize());
}

void FOptionalProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		MarkUnset(static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Element) * ElementSize);
	}
}

void FOptionalProperty::ClearValueInternal(void* Data) const
{
	MarkUnset(Data);
}

uint32 FOptionalProperty::GetValueTypeHashInternal(const void* Src) const
{
	return IsSet(Src) ? HashCombine(1, ValueProperty->GetValueTypeHash(Src)) : 0;
}

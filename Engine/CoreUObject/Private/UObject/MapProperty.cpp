#include "ContainerPropertyCommon.h"
#include "UObject/Class.h"

IMPLEMENT_FIELD(FMapProperty)

namespace
{
struct FPairReader
{
	FElementReader Key;
	FElementReader Value;

	FPairReader(const FMapProperty* Property, const FPropertyTypeName& KeyType, const FPropertyTypeName& ValueType)
		: Key(Property->KeyProp, KeyType)
		, Value(Property->ValueProp, ValueType)
	{
	}
};

/** Reads a delta: keys to take out of the default map, then pairs to set. */
void ReadMap(FArchive& Ar, const FMapProperty* Property, void* Value, const void* Defaults, const FPairReader& Reader)
{
	FScriptMapHelper Helper(Property, Value);
	if (Defaults)
	{
		Property->CopySingleValue(Value, Defaults);
	}
	else
	{
		Helper.EmptyValues();
	}
	const FPropertyTemporary Key(Property->KeyProp);
	const int32 NumToRemove = FPropertyHelpers::SerializeCount(Ar, 0);
	for (int32 Index = 0; Index < NumToRemove && Reader.Key.Read(Ar, Key.Get()); ++Index)
	{
		Helper.RemovePair(Key.Get());
	}
	const int32 Num = FPropertyHelpers::SerializeCount(Ar, 0);
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Key.Clear();
		if (!Reader.Key.Read(Ar, Key.Get()) || !Reader.Value.Read(Ar, Helper.FindOrAdd(Key.Get())))
		{
			break;
		}
	}
}
}

FMapProperty::~FMapProperty()
{
	delete KeyProp;
	delete ValueProp;
}

void FMapProperty::AddCppProperty(FProperty* Property)
{
	check(Property && !(KeyProp && ValueProp));
	(KeyProp ? ValueProp : KeyProp) = Property;
}

void FMapProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeInnerProperty(Ar, KeyProp, this);
	SerializeInnerProperty(Ar, ValueProp, this);
}

void FMapProperty::PostDuplicate(const FField& InField)
{
	const FMapProperty& Source = static_cast<const FMapProperty&>(InField);
	KeyProp = Source.KeyProp ? CastFieldChecked<FProperty>(FField::Duplicate(Source.KeyProp, this)) : nullptr;
	ValueProp = Source.ValueProp ? CastFieldChecked<FProperty>(FField::Duplicate(Source.ValueProp, this)) : nullptr;
	MapLayout = Source.MapLayout;
	Super::PostDuplicate(InField);
}

void FMapProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	for (FProperty* const Inner : {KeyProp, ValueProp})
	{
		if (Inner)
		{
			Inner->AddReferencedObjects(Collector);
		}
	}
}

void FMapProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	for (FProperty* const Inner : {KeyProp, ValueProp})
	{
		if (Inner)
		{
			OutFields.Add(Inner);
			Inner->GetInnerFields(OutFields);
		}
	}
}

FField* FMapProperty::GetInnerFieldByName(const FName& InName)
{
	for (FProperty* const Inner : {KeyProp, ValueProp})
	{
		if (Inner && Inner->GetFName() == InName)
		{
			return Inner;
		}
	}
	return nullptr;
}

FString FMapProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Extended = TEXT("<") + KeyProp->GetCPPType() + TEXT(",") + ValueProp->GetCPPType() + TEXT(">");
	if (!ExtendedTypeText)
	{
		return TEXT("TMap") + Extended;
	}
	*ExtendedTypeText = Extended;
	return TEXT("TMap");
}

bool FMapProperty::SameType(const FProperty* Other) const
{
	const FMapProperty* const OtherMap = static_cast<const FMapProperty*>(Other);
	return Super::SameType(Other) && KeyProp->SameType(OtherMap->KeyProp) && ValueProp->SameType(OtherMap->ValueProp);
}

void FMapProperty::LinkInternal(FArchive& Ar)
{
	check(KeyProp && ValueProp);
	KeyProp->LinkWithoutChangingOffset(Ar);
	ValueProp->LinkWithoutChangingOffset(Ar);
	MapLayout =
		FScriptMap::GetScriptLayout(KeyProp->GetSize(), KeyProp->GetMinAlignment(), ValueProp->GetSize(), ValueProp->GetMinAlignment());
	ValueProp->SetOffset_Internal(MapLayout.ValueOffset);
	ElementSize = sizeof(FScriptMap);
	PropagateFlagsToElement(this, KeyProp, CPF_PropagateToMapKey);
	PropagateFlagsToElement(this, ValueProp, CPF_PropagateToMapValue);
}

bool FMapProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return KeyProp->ContainsObjectReference(EncounteredStructProps, InReferenceType) ||
		ValueProp->ContainsObjectReference(EncounteredStructProps, InReferenceType);
}

bool FMapProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptMapHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptMapHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (FScriptMapHelper::FIterator It(Left); It; ++It)
	{
		const uint8* const RightValue = Right.FindValueFromHash(Left.GetKeyPtr(*It));
		if (!RightValue || !ValueProp->Identical(Left.GetValuePtr(*It), RightValue, PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FMapProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	if (Ar.IsLoading())
	{
		ReadMap(Ar, this, Value, Defaults, FPairReader(this, FPropertyTypeName(), FPropertyTypeName()));
		return;
	}
	const FScriptMapHelper Helper(this, Value);
	TArray<uint8*> RemovedKeys;
	TArray<int32> WrittenPairs;
	if (Defaults)
	{
		const FScriptMapHelper DefaultHelper(this, Defaults);
		for (FScriptMapHelper::FIterator It(DefaultHelper); It; ++It)
		{
			if (Helper.FindMapIndexWithKey(DefaultHelper.GetKeyPtr(*It)) == INDEX_NONE)
			{
				RemovedKeys.Add(DefaultHelper.GetKeyPtr(*It));
			}
		}
	}
	for (FScriptMapHelper::FIterator It(Helper); It; ++It)
	{
		const uint8* const DefaultValue = Defaults ? FScriptMapHelper(this, Defaults).FindValueFromHash(Helper.GetKeyPtr(*It)) : nullptr;
		if (!DefaultValue || !ValueProp->Identical(Helper.GetValuePtr(*It), DefaultValue, Ar.GetPortFlags()))
		{
			WrittenPairs.Add(*It);
		}
	}
	FPropertyHelpers::SerializeCount(Ar, RemovedKeys.Num());
	for (uint8* const Key : RemovedKeys)
	{
		KeyProp->SerializeItem(Ar, Key);
	}
	FPropertyHelpers::SerializeCount(Ar, WrittenPairs.Num());
	for (const int32 Index : WrittenPairs)
	{
		KeyProp->SerializeItem(Ar, Helper.GetKeyPtr(Index));
		ValueProp->SerializeItem(Ar, Helper.GetValuePtr(Index));
	}
	if (Ar.IsModifyingWeakAndStrongReferences())
	{
		FScriptMapHelper(this, Value).Rehash();
	}
}

EConvertFromTypeResult FMapProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	const FPairReader Reader(this, Tag.GetType().GetParameter(0), Tag.GetType().GetParameter(1));
	if (!Tag.IsType(GetID()) || !Reader.Key.CanRead() || !Reader.Value.CanRead())
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	ReadMap(Ar, this, Data, Defaults, Reader);
	return EConvertFromTypeResult::Converted;
}

void FMapProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		const FScriptMapHelper Helper(this, GetPropertyValuePtr(Value) + Element);
		for (FScriptMapHelper::FIterator It(Helper); It; ++It)
		{
			KeyProp->CollectReferences(Helper.GetKeyPtr(*It), Collector, ReferencingObject);
			ValueProp->CollectReferences(Helper.GetValuePtr(*It), Collector, ReferencingObject);
		}
	}
}

void FMapProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptMapHelper Helper(this, PropertyValue);
	const FPropertyTemporary KeyDefault(KeyProp);
	const FPropertyTemporary ValueDefault(ValueProp);
	const void* const KeyStructDefault = KeyProp->IsA<FStructProperty>() ? KeyDefault.Get() : nullptr;
	const void* const ValueStructDefault = ValueProp->IsA<FStructProperty>() ? ValueDefault.Get() : nullptr;
	ValueStr += TEXT("(");
	for (FScriptMapHelper::FIterator It(Helper); It; ++It)
	{
		ValueStr += It.GetLogicalIndex() > 0 ? TEXT(",(") : TEXT("(");
		KeyProp->ExportTextItem_Direct(
			ValueStr, Helper.GetKeyPtr(*It), KeyStructDefault, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(", ");
		ValueProp->ExportTextItem_Direct(
			ValueStr, Helper.GetValuePtr(*It), ValueStructDefault, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(")");
	}
	ValueStr += TEXT(")");
}

const TCHAR* FMapProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FScriptMapHelper Helper(this, PropertyValue);
	const TCHAR* Text = FPropertyHelpers::SkipWhitespace(Buffer);
	if (IsEmptyContainerText(*Text))
	{
		Helper.EmptyValues();
		return Text;
	}
	if (*Text != TEXT('('))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a list of pairs in parentheses"), Text);
	}
	Helper.EmptyValues();
	const FPropertyTemporary Key(KeyProp);
	Text = FPropertyHelpers::SkipWhitespace(Text + 1);
	while (*Text != TEXT(')'))
	{
		if (*Text != TEXT('('))
		{
			return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("has something that is not a pair"), Text);
		}
		Key.Clear();
		Text = KeyProp->ImportText_Direct(
			FPropertyHelpers::SkipWhitespace(Text + 1), Key.Get(), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
		Text = Text ? FPropertyHelpers::SkipWhitespace(Text) : nullptr;
		if (!Text || *Text != TEXT(','))
		{
			return Text ? FPropertyHelpers::RefuseText(ErrorText, this, TEXT("has a key without a value"), Text) : nullptr;
		}
		Text = ValueProp->ImportText_Direct(
			FPropertyHelpers::SkipWhitespace(Text + 1), Helper.FindOrAdd(Key.Get()), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
		Text = Text ? FPropertyHelpers::SkipWhitespace(Text) : nullptr;
		if (!Text || *Text != TEXT(')'))
		{
			return Text ? FPropertyHelpers::RefuseText(ErrorText, this, TEXT("Missing closing parenthesis"), Text) : nullptr;
		}
		Text = FPropertyHelpers::SkipWhitespace(Text + 1);
		if (*Text != TEXT(',') && *Text != TEXT(')'))
		{
			return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("Missing closing parenthesis"), Buffer);
		}
		Text = SkipElementSeparator(Text);
	}
	return Text + 1;
}

void FMapProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Element = 0; Element < Count; ++Element)
	{
		const FScriptMapHelper Source(this, static_cast<const FScriptMap*>(Src) + Element);
		FScriptMapHelper Target(this, static_cast<FScriptMap*>(Dest) + Element);
		Target.EmptyValues(Source.Num());
		for (FScriptMapHelper::FIterator It(Source); It; ++It)
		{
			const int32 Index = Target.AddDefaultValue_Invalid_NeedsRehash();
			KeyProp->CopySingleValue(Target.GetKeyPtr(Index), Source.GetKeyPtr(*It));
			ValueProp->CopySingleValue(Target.GetValuePtr(Index), Source.GetValuePtr(*It));
		}
		Target.Rehash();
	}
}

void FMapProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		new (static_cast<FScriptMap*>(Dest) + Element) FScriptMap();
	}
}

void FMapProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		FScriptMap* const Map = static_cast<FScriptMap*>(Dest) + Element;
		FScriptMapHelper(this, Map).EmptyValues();
		Map->~FScriptMap();
	}
}

void FMapProperty::ClearValueInternal(void* Data) const
{
	FScriptMapHelper(this, Data).EmptyValues();
}

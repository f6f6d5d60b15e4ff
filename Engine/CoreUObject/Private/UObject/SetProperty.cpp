#include "ContainerPropertyCommon.h"
#include "UObject/Class.h"

IMPLEMENT_FIELD(FSetProperty)

namespace
{
/** Reads a delta: what to take out of the default set, then what to put in. */
void ReadSet(FArchive& Ar, const FSetProperty* Property, void* Value, const void* Defaults, const FElementReader& Reader)
{
	FScriptSetHelper Helper(Property, Value);
	if (Defaults)
	{
		Property->CopySingleValue(Value, Defaults);
	}
	else
	{
		Helper.EmptyElements();
	}
	const FPropertyTemporary Element(Property->ElementProp);
	const int32 NumToRemove = FPropertyHelpers::SerializeCount(Ar, 0);
	for (int32 Index = 0; Index < NumToRemove && Reader.Read(Ar, Element.Get()); ++Index)
	{
		Helper.RemoveElement(Element.Get());
	}
	const int32 Num = FPropertyHelpers::SerializeCount(Ar, 0);
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Element.Clear();
		if (!Reader.Read(Ar, Element.Get()))
		{
			break;
		}
		Helper.AddElement(Element.Get());
	}
}
}

FSetProperty::~FSetProperty()
{
	delete ElementProp;
}

void FSetProperty::AddCppProperty(FProperty* Property)
{
	check(Property && !ElementProp);
	ElementProp = Property;
}

void FSetProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	SerializeInnerProperty(Ar, ElementProp, this);
}

void FSetProperty::PostDuplicate(const FField& InField)
{
	const FSetProperty& Source = static_cast<const FSetProperty&>(InField);
	ElementProp = Source.ElementProp ? CastFieldChecked<FProperty>(FField::Duplicate(Source.ElementProp, this)) : nullptr;
	SetLayout = Source.SetLayout;
	Super::PostDuplicate(InField);
}

void FSetProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	if (ElementProp)
	{
		ElementProp->AddReferencedObjects(Collector);
	}
}

void FSetProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	if (ElementProp)
	{
		OutFields.Add(ElementProp);
		ElementProp->GetInnerFields(OutFields);
	}
}

FField* FSetProperty::GetInnerFieldByName(const FName& InName)
{
	return ElementProp && ElementProp->GetFName() == InName ? ElementProp : nullptr;
}

FString FSetProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const FString Extended = TEXT("<") + ElementProp->GetCPPType() + TEXT(">");
	if (!ExtendedTypeText)
	{
		return TEXT("TSet") + Extended;
	}
	*ExtendedTypeText = Extended;
	return TEXT("TSet");
}

bool FSetProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && ElementProp->SameType(static_cast<const FSetProperty*>(Other)->ElementProp);
}

void FSetProperty::LinkInternal(FArchive& Ar)
{
	check(ElementProp);
	ElementProp->LinkWithoutChangingOffset(Ar);
	SetLayout = FScriptSet::GetScriptLayout(ElementProp->GetSize(), ElementProp->GetMinAlignment());
	ElementSize = sizeof(FScriptSet);
	PropagateFlagsToElement(this, ElementProp, CPF_PropagateToSetElement);
}

bool FSetProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return ElementProp->ContainsObjectReference(EncounteredStructProps, InReferenceType);
}

bool FSetProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FScriptSetHelper Left(this, A);
	if (!B)
	{
		return Left.Num() == 0;
	}
	const FScriptSetHelper Right(this, B);
	if (Left.Num() != Right.Num())
	{
		return false;
	}
	for (FScriptSetHelper::FIterator It(Left); It; ++It)
	{
		if (Right.FindElementIndex(Left.GetElementPtr(*It)) == INDEX_NONE)
		{
			return false;
		}
	}
	return true;
}

void FSetProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	if (Ar.IsLoading())
	{
		ReadSet(Ar, this, Value, Defaults, FElementReader(ElementProp, FPropertyTypeName()));
		return;
	}
	const FScriptSetHelper Helper(this, Value);
	TArray<uint8*> Removed;
	TArray<uint8*> Written;
	if (Defaults)
	{
		const FScriptSetHelper DefaultHelper(this, Defaults);
		for (FScriptSetHelper::FIterator It(DefaultHelper); It; ++It)
		{
			if (Helper.FindElementIndex(DefaultHelper.GetElementPtr(*It)) == INDEX_NONE)
			{
				Removed.Add(DefaultHelper.GetElementPtr(*It));
			}
		}
	}
	for (FScriptSetHelper::FIterator It(Helper); It; ++It)
	{
		if (!Defaults || FScriptSetHelper(this, Defaults).FindElementIndex(Helper.GetElementPtr(*It)) == INDEX_NONE)
		{
			Written.Add(Helper.GetElementPtr(*It));
		}
	}
	for (TArray<uint8*>* const List : {&Removed, &Written})
	{
		FPropertyHelpers::SerializeCount(Ar, List->Num());
		for (uint8* const Element : *List)
		{
			ElementProp->SerializeItem(Ar, Element);
		}
	}
}

EConvertFromTypeResult FSetProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	const FElementReader Reader(ElementProp, Tag.GetType().GetParameter(0));
	if (!Tag.IsType(GetID()) || !Reader.CanRead())
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	ReadSet(Ar, this, Data, Defaults, Reader);
	return EConvertFromTypeResult::Converted;
}

void FSetProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		const FScriptSetHelper Helper(this, GetPropertyValuePtr(Value) + Element);
		for (FScriptSetHelper::FIterator It(Helper); It; ++It)
		{
			ElementProp->CollectReferences(Helper.GetElementPtr(*It), Collector, ReferencingObject);
		}
	}
}

void FSetProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	const FScriptSetHelper Helper(this, PropertyValue);
	const FPropertyTemporary ElementDefault(ElementProp);
	const void* const StructDefault = ElementProp->IsA<FStructProperty>() ? ElementDefault.Get() : nullptr;
	ValueStr += TEXT("(");
	for (FScriptSetHelper::FIterator It(Helper); It; ++It)
	{
		ValueStr += It.GetLogicalIndex() > 0 ? TEXT(",") : TEXT("");
		ElementProp->ExportTextItem_Direct(
			ValueStr, Helper.GetElementPtr(*It), StructDefault, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	ValueStr += TEXT(")");
}

const TCHAR* FSetProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FScriptSetHelper Helper(this, PropertyValue);
	const TCHAR* Text = FPropertyHelpers::SkipWhitespace(Buffer);
	if (IsEmptyContainerText(*Text))
	{
		Helper.EmptyElements();
		return Text;
	}
	if (*Text != TEXT('('))
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("is not a list in parentheses"), Text);
	}
	Helper.EmptyElements();
	const FPropertyTemporary Element(ElementProp);
	Text = FPropertyHelpers::SkipWhitespace(Text + 1);
	while (*Text != TEXT(')'))
	{
		Element.Clear();
		Text = ElementProp->ImportText_Direct(Text, Element.Get(), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
		if (!Text)
		{
			return nullptr;
		}
		Helper.AddElement(Element.Get());
		Text = FPropertyHelpers::SkipWhitespace(Text);
		if (*Text != TEXT(',') && *Text != TEXT(')'))
		{
			return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("Missing closing parenthesis"), Buffer);
		}
		Text = SkipElementSeparator(Text);
	}
	return Text + 1;
}

void FSetProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	for (int32 Element = 0; Element < Count; ++Element)
	{
		const FScriptSetHelper Source(this, static_cast<const FScriptSet*>(Src) + Element);
		FScriptSetHelper Target(this, static_cast<FScriptSet*>(Dest) + Element);
		Target.EmptyElements(Source.Num());
		for (FScriptSetHelper::FIterator It(Source); It; ++It)
		{
			const int32 Index = Target.AddDefaultValue_Invalid_NeedsRehash();
			ElementProp->CopySingleValue(Target.GetElementPtr(Index), Source.GetElementPtr(*It));
		}
		Target.Rehash();
	}
}

void FSetProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		new (static_cast<FScriptSet*>(Dest) + Element) FScriptSet();
	}
}

void FSetProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 Element = 0; Element < ArrayDim; ++Element)
	{
		FScriptSet* const Set = static_cast<FScriptSet*>(Dest) + Element;
		FScriptSetHelper(this, Set).EmptyElements();
		Set->~FScriptSet();
	}
}

void FSetProperty::ClearValueInternal(void* Data) const
{
	FScriptSetHelper(this, Data).EmptyElements();
}

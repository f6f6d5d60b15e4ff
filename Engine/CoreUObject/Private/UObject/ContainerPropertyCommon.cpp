#include "ContainerPropertyCommon.h"

#include "UObject/LinkerLoad.h"

FElementReader::FElementReader(FProperty* InElement, const FPropertyTypeName& SavedType)
	: Element(InElement)
{
	if (SavedType.IsEmpty() || SavedType == FPropertyTypeName(InElement))
	{
		return;
	}
	Tag.SetType(SavedType);
	Tag.Name = InElement->GetFName();
	// A name that says nothing about the struct or enum leaves only the kind to compare.
	const bool bNameIsBare = SavedType.GetParameterCount() == 0;
	bConvert = !(bNameIsBare && Tag.Type == InElement->GetID());
	if (!bConvert)
	{
		return;
	}
	// Nothing is read where the type does not fit, so a probe on an empty archive tells.
	FArchive Probe;
	Probe.SetIsLoading(true);
	const FPropertyTemporary Temporary(InElement);
	const EConvertFromTypeResult Result = InElement->ConvertFromType(Tag, Probe, static_cast<uint8*>(Temporary.Get()), nullptr, nullptr);
	bCanRead = Result != EConvertFromTypeResult::CannotConvert;
	bConvert = Result == EConvertFromTypeResult::Converted;
}

bool FElementReader::Read(FArchive& Ar, void* Value, const void* Defaults) const
{
	FLinkerLoad* const Linker = Ar.IsLoading() && Ar.IsPersistent() ? static_cast<FLinkerLoad*>(Ar.GetLinker()) : nullptr;
	if (Linker && !Linker->SpendMemory(Element->GetElementSize()))
	{
		Ar.SetError();
		return false;
	}
	if (!bConvert)
	{
		Element->SerializeItem(Ar, Value, Defaults);
		return !Ar.IsError();
	}
	const EConvertFromTypeResult Result = Element->ConvertFromType(Tag, Ar, static_cast<uint8*>(Value), nullptr, nullptr);
	return Result == EConvertFromTypeResult::Converted && !Ar.IsError();
}

void SerializeInnerProperty(FArchive& Ar, FProperty*& Inner, FField* Owner)
{
	FField* Field = Inner;
	SerializeSingleField(Ar, Field, Owner);
	if (!Ar.IsLoading())
	{
		return;
	}
	FProperty* const Loaded = CastField<FProperty>(Field);
	if (!Loaded)
	{
		Ar.SetError();
		delete Field;
	}
	delete Inner;
	// A container without an element type would be unusable, so a broken one gets a number's.
	Inner = Loaded ? Loaded : new FIntProperty(Owner, Owner->GetFName());
}

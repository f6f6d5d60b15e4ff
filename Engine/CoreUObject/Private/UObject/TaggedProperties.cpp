#include "TaggedProperties.h"

#include "ContainerPropertyCommon.h"
#include "UObject/Class.h"
#include "UObject/LinkerSave.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/UnknownProperties.h"

namespace
{
/** Whether values are saved as differences from a default; undo and the like save them whole. */
bool SavesDifferences(const FArchive& Ar)
{
	return Ar.DoDelta() && Ar.DoIntraPropertyDelta() && !Ar.IsTransacting();
}

FProperty* FindPropertyForTag(const UStruct* Struct, FName Name, FProperty* Hint)
{
	// Values come in the order in which they were written, so the next property is most often the one.
	for (FProperty* Property = Hint; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->GetFName() == Name)
		{
			return Property;
		}
	}
	for (FProperty* Property = Struct->PropertyLink; Property != Hint; Property = Property->PropertyLinkNext)
	{
		if (Property->GetFName() == Name)
		{
			return Property;
		}
	}
	return Struct->CustomFindProperty(Name);
}

/** Whether saved values name their properties by id too. Undo buffers and copies do not outlive a rename. */
bool HasGuids(const FArchive& Ar, const UStruct* Struct)
{
	return Ar.IsPersistent() && Struct->ArePropertyGuidsAvailable();
}

/** The name that a property has now which was saved as Name, or Name where its id tells nothing. */
FName FollowRename(const UStruct* Struct, FName Name, const FGuid& Guid)
{
	if (!Guid.IsValid() || Struct->FindPropertyGuidFromName(Name) == Guid)
	{
		return Name;
	}
	const FName Now = Struct->FindPropertyNameFromGuid(Guid);
	return Now.IsNone() ? Name : Now;
}

/** Keeps the value behind a tag, and stands behind it. */
void KeepUnknown(FArchive& Ar, FUnknownProperty&& Unknown, int64 Start)
{
	Ar.Seek(Start);
	Unknown.Value.SetNumUninitialized(Unknown.Tag.Size);
	Ar.Serialize(Unknown.Value.GetData(), Unknown.Tag.Size);
	FUnknownProperties::Add(Ar, MoveTemp(Unknown));
}

/** Reads the value after a tag. False when it has no place here. */
bool ReadValue(FArchive& Ar, const FPropertyTag& Tag, FProperty* Property, const UStruct* Struct, uint8* Data,
	const UStruct* DefaultsStruct, uint8* Defaults)
{
	if (!Property || Tag.ArrayIndex >= Property->ArrayDim)
	{
		return false;
	}
	if (!Property->ShouldSerializeValue(Ar) && !Property->HasAnyPropertyFlags(CPF_Deprecated))
	{
		// A property that is not saved here: what an older host saved of it has no use.
		return true;
	}
	uint8* const Value = Property->ContainerPtrToValuePtr<uint8>(Data, Tag.ArrayIndex);
	const uint8* const Default =
		SavesDifferences(Ar) ? Property->ContainerPtrToValuePtrForDefaults<uint8>(DefaultsStruct, Defaults, Tag.ArrayIndex) : nullptr;
	const FSerializedPathScope Scope(Property->GetFName(), Tag.ArrayIndex);
	switch (Property->ConvertFromType(Tag, Ar, Value, const_cast<UStruct*>(Struct), Default))
	{
		case EConvertFromTypeResult::Converted:
			return true;
		case EConvertFromTypeResult::UseSerializeItem:
			Tag.SerializeTaggedProperty(Ar, Property, Value, Default);
			return true;
		case EConvertFromTypeResult::CannotConvert:
			break;
	}
	return false;
}

/** Whether a value holds a struct that is known by its header alone: its C++ may have a form of its own that only it can read. */
bool MayHaveNativeForm(const FProperty* Property)
{
	if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		return Struct->Struct && !Struct->Struct->GetCppStructOps() && Struct->Struct->HasAnyFlags(RF_MarkAsNative);
	}
	TArray<FField*> Inner;
	const_cast<FProperty*>(Property)->GetInnerFields(Inner);
	return Inner.ContainsByPredicate([](const FField* Field)
		{ return Field->IsA<FStructProperty>() && MayHaveNativeForm(static_cast<const FProperty*>(Field)); });
}

/** Undoes the reading of a value in a form that it turned out not to have. */
void ForgetValue(FArchive& Ar, FProperty* Property, int32 Index, uint8* Data, const UStruct* DefaultsStruct, uint8* Defaults)
{
	Ar.ClearError();
	uint8* const Value = Property->ContainerPtrToValuePtr<uint8>(Data, Index);
	const uint8* const Default = Property->ContainerPtrToValuePtrForDefaults<uint8>(DefaultsStruct, Defaults, Index);
	if (Default)
	{
		Property->CopySingleValue(Value, Default);
	}
	else
	{
		Property->ClearValue(Value);
	}
	const FSerializedPathScope Scope(Property->GetFName(), Index);
	FUnknownProperties::RemoveCurrent(Ar);
}

void ReadTaggedProperties(FArchive& Ar, const UStruct* Struct, uint8* Data, const UStruct* DefaultsStruct, uint8* Defaults)
{
	const bool bHasGuids = HasGuids(Ar, Struct);
	FProperty* Hint = Struct->PropertyLink;
	FName Previous;
	while (!Ar.IsError())
	{
		FPropertyTag Tag;
		Ar << Tag;
		if (Ar.IsError() || Tag.Name.IsNone())
		{
			return;
		}
		const int64 Start = Ar.Tell();
		if (bHasGuids && Tag.HasPropertyGuid)
		{
			Tag.Name = FollowRename(Struct, Tag.Name, Tag.PropertyGuid);
		}
		FProperty* const Property = FindPropertyForTag(Struct, Tag.Name, Hint);
		Hint = Property ? Property : Hint;
		bool bRead = ReadValue(Ar, Tag, Property, Struct, Data, DefaultsStruct, Defaults);
		const bool bWasPassedOver = Ar.Tell() == Start && !Ar.IsError();
		const bool bIsWhole = Ar.Tell() == Start + Tag.Size && !Ar.IsError();
		const bool bHasOtherForm = bRead && !bWasPassedOver && !bIsWhole && Ar.GetLinker() && MayHaveNativeForm(Property);
		if (bHasOtherForm)
		{
			ForgetValue(Ar, Property, Tag.ArrayIndex, Data, DefaultsStruct, Defaults);
			bRead = false;
		}
		if (!bRead)
		{
			if (Property && !bHasOtherForm)
			{
				UE_LOG(LogClass, Warning, TEXT("%s: property %s of %s was saved as %s and cannot become %s; its value is kept as it was"),
					*Ar.GetArchiveName(), *Tag.Name.ToString(), *Struct->GetName(), *Tag.GetType().ToString(),
					*Property->GetClass()->GetName());
			}
			KeepUnknown(Ar, {Tag, {}, Previous, Property != nullptr, bHasOtherForm}, Start);
		}
		if (Ar.IsError())
		{
			UE_LOG(LogClass, Error, TEXT("%s: bad value of property %s of %s at offset %lld"), *Ar.GetArchiveName(), *Tag.Name.ToString(),
				*Struct->GetName(), static_cast<long long>(Start));
			return;
		}
		if (Ar.Tell() != Start + Tag.Size)
		{
			Ar.Seek(Start + Tag.Size);
		}
		Previous = Tag.Name;
	}
}

void WriteSizeOfValue(FArchive& Ar, FPropertyTag& Tag, int64 Start)
{
	const int64 End = Ar.Tell();
	if (Tag.SizeOffset < 0 || End < 0 || Ar.IsError())
	{
		return;
	}
	Tag.Size = static_cast<int32>(End - Start);
	Ar.Seek(Tag.SizeOffset);
	Ar << Tag.Size;
	Ar.Seek(End);
}

void WriteUnknownProperty(FArchive& Ar, const FUnknownProperty& Property)
{
	FPropertyTag Tag = Property.Tag;
	Ar << Tag;
	Ar.Serialize(const_cast<uint8*>(Property.Value.GetData()), Property.Value.Num());
}

/** Writes the values of one object or struct. */
class FTaggedPropertyWriter
{
public:
	FTaggedPropertyWriter(FArchive& InAr, const UStruct* InStruct, uint8* InData, const UStruct* InDefaultsStruct, uint8* InDefaults)
		: Ar(InAr)
		, Struct(InStruct)
		, Data(InData)
		, DefaultsStruct(InDefaultsStruct)
		, Defaults(InDefaults)
		, bDoDelta(InAr.DoDelta() && !InAr.IsTransacting())
		, bHasGuids(HasGuids(InAr, InStruct))
		, bIsObject(InStruct->IsA(UClass::StaticClass()))
	{
	}

	void Write()
	{
		FindKept();
		WriteAsInOrigin();
		WriteKeptAfter(FName());
		for (FProperty* Property = Struct->PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			if (!Property->ShouldSerializeValue(Ar))
			{
				continue;
			}
			for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
			{
				const FName Name = Property->GetFName();
				if (!IsWritten(Name, Index) && !WriteKept(Name, Property, Index) && Differs(Property, Index))
				{
					WriteProperty(Property, Index);
				}
			}
			WriteKeptAfter(Property->GetFName());
		}
		WriteOtherUnknown();
		FName End;
		Ar << End;
	}

private:
	/** A property's name and the element of a static array. */
	using FElement = TPair<FName, int32>;

	void FindKept()
	{
		const TArray<FUnknownProperty>* const Unknown = FUnknownProperties::FindForWriting(Ar);
		for (int32 Index = 0; Unknown && Index < Unknown->Num(); ++Index)
		{
			const FUnknownProperty& Property = (*Unknown)[Index];
			Kept.Add(FElement(Property.Tag.Name, Property.Tag.ArrayIndex), &Property);
			if (!Property.bHasProperty)
			{
				KeptByPrevious.FindOrAdd(Property.Previous, &Property);
			}
		}
	}

	/**
	 * What the object's bytes in its file have, in their order. A value that is the default here is written even so: this host's
	 * default need not be that of the engine that saved it.
	 */
	void WriteAsInOrigin()
	{
		if (!bIsObject || !Ar.IsPersistent() || !Ar.GetLinker())
		{
			return;
		}
		FProperty* Hint = Struct->PropertyLink;
		for (const FLinkerSave::FTagOfOrigin& Tag : static_cast<FLinkerSave*>(Ar.GetLinker())->GetTagsOfOrigin(Data))
		{
			const FName Name = bHasGuids ? FollowRename(Struct, Tag.Name, Tag.PropertyGuid) : Tag.Name;
			if (IsWritten(Name, Tag.ArrayIndex))
			{
				continue;
			}
			FProperty* const Property = FindPropertyForTag(Struct, Name, Hint);
			Hint = Property ? Property : Hint;
			const bool bCanWrite = Property && Tag.ArrayIndex < Property->ArrayDim && Property->ShouldSerializeValue(Ar);
			if (!WriteKept(Name, bCanWrite ? Property : nullptr, Tag.ArrayIndex) && bCanWrite)
			{
				Written.Add(FElement(Name, Tag.ArrayIndex));
				WriteProperty(Property, Tag.ArrayIndex, Tag.PropertyGuid);
			}
		}
	}

	/** Writes the bytes that a value has in the file if they are all that is known of it. False when there are none or it was set since. */
	bool WriteKept(FName Name, const FProperty* Property, int32 Index)
	{
		if (Kept.IsEmpty())
		{
			return false;
		}
		const FElement Element(Name, Index);
		const FUnknownProperty* const* const Found = Kept.Find(Element);
		if (!Found)
		{
			return false;
		}
		if (Property && !IsUnset(Property, Index))
		{
			if (!(*Found)->bHasNativeForm)
			{
				Kept.Remove(Element);
				return false;
			}
			static_cast<FLinkerSave*>(Ar.GetLinker())
				->Refuse(FString::Printf(TEXT("property %s of %s was changed, and only the engine can write it: set it back, or change it there"),
					*Name.ToString(), *FUnknownProperties::DescribeCurrent()));
		}
		Written.Add(Element);
		WriteUnknownProperty(Ar, **Found);
		return true;
	}

	/** Values without a property stand where they stood in the file, behind the one that was before them. */
	void WriteKeptAfter(FName Previous)
	{
		const FUnknownProperty* const* Next = KeptByPrevious.Find(Previous);
		while (Next && !IsWritten((*Next)->Tag.Name, (*Next)->Tag.ArrayIndex))
		{
			const FUnknownProperty& Property = **Next;
			Written.Add(FElement(Property.Tag.Name, Property.Tag.ArrayIndex));
			WriteUnknownProperty(Ar, Property);
			Next = KeptByPrevious.Find(Property.Tag.Name);
		}
	}

	/** Whether a value is what one that could not be read was left at: the default. */
	bool IsUnset(const FProperty* Property, int32 Index) const
	{
		const uint8* const Value = Property->ContainerPtrToValuePtr<uint8>(Data, Index);
		return Property->Identical(Value, GetDefault(Property, Index), Ar.GetPortFlags() | PPF_DeltaComparison);
	}

	void WriteOtherUnknown()
	{
		for (const TPair<FElement, const FUnknownProperty*>& Pair : Kept)
		{
			if (!IsWritten(Pair.Key.Key, Pair.Key.Value))
			{
				WriteUnknownProperty(Ar, *Pair.Value);
			}
		}
	}

	bool IsWritten(FName Name, int32 Index) const { return !Written.IsEmpty() && Written.Contains(FElement(Name, Index)); }

	const uint8* GetDefault(const FProperty* Property, int32 Index) const
	{
		return Property->ContainerPtrToValuePtrForDefaults<uint8>(DefaultsStruct, Defaults, Index);
	}

	bool Differs(const FProperty* Property, int32 Index)
	{
		const uint8* const Default = GetDefault(Property, Index);
		const uint8* const Value = Property->ContainerPtrToValuePtr<uint8>(Data, Index);
		// Of an object, what its archetype lacks is compared with nothing; a struct without a default is written whole.
		const bool bIsWhole = !bDoDelta || (!Default && !bIsObject);
		return bIsWhole || !Property->Identical(Value, Default, Ar.GetPortFlags() | PPF_DeltaComparison) ||
			FUnknownProperties::HasAnyWithin(Ar, Property->GetFName(), Index);
	}

	void WriteProperty(FProperty* Property, int32 Index, const FGuid& GuidInOrigin = FGuid())
	{
		const FGuid GuidOfClass = bHasGuids ? Struct->FindPropertyGuidFromName(Property->GetFName()) : FGuid();
		const FGuid& Guid = GuidOfClass.IsValid() ? GuidOfClass : GuidInOrigin;
		uint8* const Value = Property->ContainerPtrToValuePtr<uint8>(Data, Index);
		FPropertyTag Tag(Property, Index, Value);
		Tag.HasPropertyGuid = Guid.IsValid() ? 1 : 0;
		Tag.PropertyGuid = Guid;
		Ar << Tag;
		const int64 Start = Ar.Tell();
		const FSerializedPathScope Scope(Property->GetFName(), Index);
		Tag.SerializeTaggedProperty(Ar, Property, Value, SavesDifferences(Ar) ? GetDefault(Property, Index) : nullptr);
		WriteSizeOfValue(Ar, Tag, Start);
	}

	FArchive& Ar;
	const UStruct* Struct;
	uint8* Data;
	const UStruct* DefaultsStruct;
	uint8* Defaults;
	bool bDoDelta;
	bool bHasGuids;
	bool bIsObject;
	/** Values of which the bytes of their file are kept. */
	TMap<FElement, const FUnknownProperty*> Kept;
	TMap<FName, const FUnknownProperty*> KeptByPrevious;
	TSet<FElement> Written;
};

void WriteTaggedProperties(FArchive& Ar, const UStruct* Struct, uint8* Data, const UStruct* DefaultsStruct, uint8* Defaults)
{
	FTaggedPropertyWriter(Ar, Struct, Data, DefaultsStruct, Defaults).Write();
}
}

void UE::CoreUObject::Private::SerializeClassControl(FArchive& Ar)
{
	constexpr uint8 OverridableInformation = 0x02;
	if (Ar.UEVer() < EUnrealEngineObjectUE5Version::PROPERTY_TAG_EXTENSION_AND_OVERRIDABLE_SERIALIZATION)
	{
		return;
	}
	uint8 Control = 0;
	Ar << Control;
	if (Control & OverridableInformation)
	{
		uint8 OverrideOperation = 0;
		Ar << OverrideOperation;
	}
}

void UStruct::SerializeTaggedProperties(
	FArchive& Ar, uint8* Data, const UStruct* DefaultsStruct, uint8* Defaults, const UObject* BreakRecursionIfFullyLoad) const
{
	if (IsA(UClass::StaticClass()))
	{
		const UObject* const Object = reinterpret_cast<const UObject*>(Data);
		const FSerializedObjectScope Scope(Object);
		Ar.MarkScriptSerializationStart(Object);
		UE::CoreUObject::Private::SerializeClassControl(Ar);
		(Ar.IsLoading() ? ReadTaggedProperties : WriteTaggedProperties)(Ar, this, Data, DefaultsStruct, Defaults);
		Ar.MarkScriptSerializationEnd(Object);
		return;
	}
	if (Ar.IsLoading())
	{
		ReadTaggedProperties(Ar, this, Data, DefaultsStruct, Defaults);
		return;
	}
	WriteTaggedProperties(Ar, this, Data, DefaultsStruct, Defaults);
}

void UStruct::SerializeBin(FArchive& Ar, void* Data) const
{
	// Supers first, each in the order of its declaration.
	TArray<const UStruct*> Chain;
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		Chain.Insert(Struct, 0);
	}
	for (const UStruct* const Struct : Chain)
	{
		for (FField* Field = Struct->ChildProperties; Field; Field = Field->Next)
		{
			if (const FProperty* const Property = CastField<FProperty>(Field))
			{
				Property->SerializeBinProperty(Ar, Data);
			}
		}
	}
}

void UStruct::SerializeBinEx(FArchive& Ar, void* Data, const void* DefaultData, const UStruct* DefaultStruct) const
{
	if (!DefaultData || !DefaultStruct)
	{
		SerializeBin(Ar, Data);
		return;
	}
	for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			const void* const Default = Property->ContainerPtrToValuePtrForDefaults<void>(DefaultStruct, DefaultData, Index);
			if (!Property->Identical(Property->ContainerPtrToValuePtr<void>(Data, Index), Default))
			{
				Property->SerializeItem(Ar, Property->ContainerPtrToValuePtr<void>(Data, Index), Default);
			}
		}
	}
}

bool UScriptStruct::UseBinarySerialization(const FArchive& Ar) const
{
	const bool bIsImmutable = (StructFlags & STRUCT_Immutable) != 0;
	return Ar.WantBinaryPropertySerialization() || (bIsImmutable && (Ar.IsLoading() || Ar.IsSaving()) && !Ar.IsTextFormat());
}

void UScriptStruct::SerializeItem(FArchive& Ar, void* Value, void const* Defaults)
{
	const FValueNesting Nesting;
	if (Nesting.IsTooDeep())
	{
		Ar.SetError();
		return;
	}
	ICppStructOps* const Ops = GetCppStructOps();
	const bool bNative = Ops && Ops->HasSerializer() && Ops->Serialize(Ar, Value);
	if (!bNative && UseBinarySerialization(Ar))
	{
		SerializeBin(Ar, Value);
	}
	else if (!bNative)
	{
		SerializeTaggedProperties(Ar, static_cast<uint8*>(Value), this, static_cast<uint8*>(const_cast<void*>(Defaults)));
	}
	if (Ops && Ops->HasPostSerialize())
	{
		Ops->PostSerialize(Ar, Value);
	}
}

#include "UObject/Class.h"

#include "DeclaredDefaults.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "UObjectHashTables.h"

namespace
{
/** More than any honest type has. A package may claim lists of lists of elements, each within bounds, that no memory holds. */
constexpr int32 MaxPropertiesSize = 1 << 24;

/** An archive that neither reads nor writes, for Link. */
class FNullArchive final : public FArchive
{
};

/** The whole chain, which then is empty. */
void DestroyFields(FField*& Chain)
{
	FField* Field = Chain;
	Chain = nullptr;
	while (Field)
	{
		FField* const Next = Field->Next;
		delete Field;
		Field = Next;
	}
}
}

bool HasRunTimeStorage(const FProperty* Property)
{
	const UClass* const Owner = Property->GetOwnerClass();
	return !Owner || !IsNativeClass(Owner) || Property->HasAnyFlags(RF_Dynamic);
}

UStruct::UStruct()
{
	BaseChain.Add(this);
}

UStruct::UStruct(const FObjectInitializer& ObjectInitializer)
	: UField(ObjectInitializer)
{
	BaseChain.Add(this);
}

UStruct::UStruct(UStruct* InSuperStruct, SIZE_T ParamsSize, SIZE_T Alignment)
	: PropertiesSize(static_cast<int32>(ParamsSize))
	, MinAlignment(Alignment ? static_cast<int32>(Alignment) : 1)
	, SuperStruct(InSuperStruct)
{
	RebuildBaseChain();
}

UStruct::~UStruct()
{
	DropReferenceSchema();
	DestroyChildPropertiesAndResetPropertyLinks();
}

void UStruct::FinishDestroy()
{
	DropReferenceSchema();
	DestroyChildPropertiesAndResetPropertyLinks();
	Super::FinishDestroy();
}

void UStruct::DestroyChildPropertiesAndResetPropertyLinks()
{
	SetDeclaredDefaults(nullptr);
	PropertyLink = RefLink = DestructorLink = PostConstructLink = nullptr;
	DestroyFields(ChildProperties);
	DropReferenceSchema();
}

void UStruct::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UStruct* const This = static_cast<UStruct*>(InThis);
	Collector.AddStableReference(&This->SuperStruct);
	Collector.AddStableReference(&This->Children);
	for (FField* Field = This->ChildProperties; Field; Field = Field->Next)
	{
		Field->AddReferencedObjects(Collector);
	}
	Collector.AddReferencedObjects(This->ScriptAndPropertyObjectReferences, This);
	UField::AddReferencedObjects(InThis, Collector);
}

void UStruct::AddCppProperty(FProperty* Property)
{
	FField** Link = &ChildProperties;
	while (*Link)
	{
		Link = &(*Link)->Next;
	}
	*Link = Property;
	Property->Next = nullptr;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->GetFName() == InName)
		{
			return Property;
		}
	}
	return nullptr;
}

UField* UStruct::FindChild(FName InName) const
{
	for (UField* Field = Children; Field; Field = Field->Next)
	{
		if (Field->GetFName() == InName)
		{
			return Field;
		}
	}
	return nullptr;
}

FField* UStruct::FindChildProperty(FName InName) const
{
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		if (Field->GetFName() == InName)
		{
			return Field;
		}
	}
	return nullptr;
}

FString UStruct::GetAuthoredNameForField(const UField* Field) const
{
	return Field ? Field->GetName() : FString();
}

FString UStruct::GetAuthoredNameForField(const FField* Field) const
{
	return Field ? Field->GetName() : FString();
}

void UStruct::SetSuperStruct(UStruct* NewSuperStruct)
{
	SuperStruct = NewSuperStruct;
	DropReferenceSchema();
	RebuildBaseChain();
}

void UStruct::RebuildBaseChain()
{
	BaseChain.Reset();
	if (SuperStruct)
	{
		BaseChain = SuperStruct->BaseChain;
	}
	BaseChain.Add(this);
	Depth = BaseChain.Num() - 1;
	if (const TArray<UClass*>* const Derived =
			GetClass() && IsA<UClass>() ? FUObjectHashTables::Get().FindDirectSubclasses(static_cast<UClass*>(this)) : nullptr)
	{
		for (UClass* const Class : *Derived)
		{
			if (Class->GetSuperStruct() == this && Class != this)
			{
				Class->RebuildBaseChain();
			}
		}
	}
}

void UStruct::DropReferenceSchema()
{
	delete ReferenceSchema;
	ReferenceSchema = nullptr;
}

const FReferenceSchema& UStruct::GetReferenceSchema() const
{
	if (!ReferenceSchema)
	{
		// In place before it is filled: a struct may hold an array of itself.
		ReferenceSchema = new FReferenceSchema;
		ReferenceSchema->AddStruct(this, 0);
	}
	return *ReferenceSchema;
}

void UStruct::StaticLink(bool bRelinkExistingProperties)
{
	FNullArchive Ar;
	Link(Ar, bRelinkExistingProperties);
}

namespace
{
bool IsOf(const FProperty* Element, const UStruct& Struct)
{
	const FStructProperty* const StructElement = CastField<FStructProperty>(Element);
	return StructElement && StructElement->Struct == &Struct;
}

bool IsContainerOf(const FProperty& Property, const UStruct& Struct)
{
	const FArrayProperty* const Array = CastField<FArrayProperty>(&Property);
	const FSetProperty* const Set = CastField<FSetProperty>(&Property);
	const FMapProperty* const Map = CastField<FMapProperty>(&Property);
	return (Array && IsOf(Array->Inner, Struct)) || (Set && IsOf(Set->ElementProp, Struct)) ||
		(Map && (IsOf(Map->KeyProp, Struct) || IsOf(Map->ValueProp, Struct)));
}
}

void UStruct::Link(FArchive& Ar, bool bRelinkExistingProperties)
{
	DropReferenceSchema();
	if (bRelinkExistingProperties)
	{
		int32 End = 0;
		MinAlignment = 1;
		if (SuperStruct)
		{
			// Derived members start after the super's padding, as a C++ compiler lays non-trivial types out.
			End = SuperStruct->GetStructureSize();
			MinAlignment = std::max(MinAlignment, SuperStruct->GetMinAlignment());
		}
		for (FField** Place = &ChildProperties; *Place; Place = &(*Place)->Next)
		{
			FProperty* const Property = CastField<FProperty>(*Place);
			if (Property && Property->GetOwner<UObject>() == this)
			{
				Property->LinkWithoutChangingOffset(Ar);
				if (static_cast<int64>(Property->GetElementSize()) * Property->ArrayDim > MaxPropertiesSize - End)
				{
					UE_LOG(LogClass, Error, TEXT("%s would be larger than %d bytes from its member %s on"), *GetPathName(), MaxPropertiesSize, *Property->GetName());
					Ar.SetError();
					DestroyFields(*Place);
					break;
				}
				End = Property->SetupOffset(End);
				MinAlignment = std::max(MinAlignment, Property->GetMinAlignment());
			}
		}
		PropertiesSize = End;
		// The elements of a list of the struct itself have a size only now.
		for (FField* Field = ChildProperties; Field; Field = Field->Next)
		{
			FProperty* const Property = CastField<FProperty>(Field);
			if (Property && Property->GetOwner<UObject>() == this && IsContainerOf(*Property, *this))
			{
				Property->LinkWithoutChangingOffset(Ar);
			}
		}
	}

	FProperty** PropertyTail = &PropertyLink;
	FProperty** RefTail = &RefLink;
	FProperty** DestructorTail = &DestructorLink;
	FProperty** PostConstructTail = &PostConstructLink;
	*PropertyTail = *RefTail = *DestructorTail = *PostConstructTail = nullptr;
	const auto AppendTo = [](FProperty**& Tail, FProperty* Property, FProperty* FProperty::*Next)
	{
		*Tail = Property;
		Tail = &(Property->*Next);
		*Tail = nullptr;
	};
	for (FField* Field = ChildProperties; Field; Field = Field->Next)
	{
		FProperty* const Property = CastField<FProperty>(Field);
		if (!Property)
		{
			continue;
		}
		const UClass* const OwnerClass = Property->GetOwnerClass();
		const bool bRunTime = HasRunTimeStorage(Property);
		TArray<const FStructProperty*> Encountered;
		AppendTo(PropertyTail, Property, &FProperty::PropertyLinkNext);
		if (Property->ContainsObjectReference(Encountered, EPropertyObjectReferenceType::Strong))
		{
			AppendTo(RefTail, Property, &FProperty::NextRef);
		}
		if (bRunTime && !Property->HasAnyPropertyFlags(CPF_NoDestructor))
		{
			AppendTo(DestructorTail, Property, &FProperty::DestructorLinkNext);
		}
		if (OwnerClass && (bRunTime || (Property->HasAnyPropertyFlags(CPF_Config) && !OwnerClass->HasAnyClassFlags(CLASS_PerObjectConfig))))
		{
			AppendTo(PostConstructTail, Property, &FProperty::PostConstructLinkNext);
		}
	}
	if (SuperStruct)
	{
		*PropertyTail = SuperStruct->PropertyLink;
		*RefTail = SuperStruct->RefLink;
		*DestructorTail = SuperStruct->DestructorLink;
		*PostConstructTail = SuperStruct->PostConstructLink;
	}
}

void UStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	const int32 Stride = GetStructureSize();
	FMemory::Memzero(Dest, static_cast<SIZE_T>(Stride) * ArrayDim);
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		uint8* const Element = static_cast<uint8*>(Dest) + Index * Stride;
		for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			if (Property->IsInContainer(Stride))
			{
				Property->InitializeValue_InContainer(Element);
			}
		}
		ApplyDeclaredDefaults(Element);
	}
}

void UStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	const int32 Stride = GetStructureSize();
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (const FProperty* Property = DestructorLink; Property; Property = Property->DestructorLinkNext)
		{
			Property->DestroyValue_InContainer(static_cast<uint8*>(Dest) + Index * Stride);
		}
	}
}

const FString* UStruct::FindMetaDataHierarchical(const FName& Key) const
{
	const UStruct* const Owner = HasMetaDataHierarchical(Key);
	return Owner ? Owner->FindMetaData(Key) : nullptr;
}

const UStruct* UStruct::HasMetaDataHierarchical(const FName& Key) const
{
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		if (Struct->HasMetaData(Key))
		{
			return Struct;
		}
	}
	return nullptr;
}

bool UStruct::GetBoolMetaDataHierarchical(const FName& Key) const
{
	const UStruct* const Owner = HasMetaDataHierarchical(Key);
	return Owner && Owner->GetBoolMetaData(Key);
}

bool UStruct::GetStringMetaDataHierarchical(const FName& Key, FString* OutValue) const
{
	const FString* const Value = FindMetaDataHierarchical(Key);
	if (Value && OutValue)
	{
		*OutValue = *Value;
	}
	return Value != nullptr;
}

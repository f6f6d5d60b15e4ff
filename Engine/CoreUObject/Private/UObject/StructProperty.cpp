#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/GarbageCollectionSchema.h"
#include "UObject/LinkerLoad.h"
#include "UObject/PropertyHelper.h"
#include "UObject/ReferenceCollector.h"
#include "UObject/UnrealType.h"

IMPLEMENT_FIELD(FStructProperty)

void FStructProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	Ar << Struct;
	if (!Ar.IsLoading())
	{
		return;
	}
	const bool bIsStruct = Struct && Struct->IsA(UScriptStruct::StaticClass());
	if (bIsStruct)
	{
		Ar.Preload(Struct);
	}
	// A struct within itself, by whatever way, has no size that a value could have.
	if (!bIsStruct || FLinkerLoad::IsBeingRead(Struct))
	{
		Struct = nullptr;
		Ar.SetError();
	}
}

void FStructProperty::PostDuplicate(const FField& InField)
{
	Struct = static_cast<const FStructProperty&>(InField).Struct;
	Super::PostDuplicate(InField);
}

void FStructProperty::AddReferencedObjects(FReferenceCollector& Collector)
{
	Super::AddReferencedObjects(Collector);
	Collector.AddReferencedObject(Struct);
}

FString FStructProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Struct ? Struct->GetStructCPPName(CPPExportFlags) : FString(TEXT("FStruct"));
}

bool FStructProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Struct == static_cast<const FStructProperty*>(Other)->Struct;
}

int32 FStructProperty::GetMinAlignment() const
{
	return Struct ? Struct->GetMinAlignment() : 1;
}

void FStructProperty::LinkInternal(FArchive& Ar)
{
	if (!Struct)
	{
		ElementSize = 1;
		PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor;
		return;
	}
	ElementSize = FMath::Max(Struct->GetStructureSize(), 1);
	const ICppStructOps* const Ops = Struct->GetCppStructOps();
	if (Ops)
	{
		PropertyFlags |= Ops->GetComputedPropertyFlags();
	}
	else if (Struct->StructFlags & STRUCT_IsPlainOldData)
	{
		PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor;
	}
	bool bAllHaveHash = !Ops;
	for (const FProperty* Member = Struct->PropertyLink; Member && bAllHaveHash; Member = Member->PropertyLinkNext)
	{
		bAllHaveHash = Member->HasAnyPropertyFlags(CPF_HasGetValueTypeHash);
	}
	if (bAllHaveHash)
	{
		PropertyFlags |= CPF_HasGetValueTypeHash;
	}
	if (ContainsInstancedObjectProperty())
	{
		PropertyFlags |= CPF_ContainsInstancedReference;
	}
}

bool FStructProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	if (!Struct || EncounteredStructProps.Contains(this))
	{
		return false;
	}
	const ICppStructOps* const Ops = Struct->GetCppStructOps();
	if (Ops && Ops->HasAddStructReferencedObjects() && EnumHasAnyFlags(InReferenceType, EPropertyObjectReferenceType::Strong))
	{
		return true;
	}
	EncounteredStructProps.Add(this);
	bool bResult = false;
	for (const FProperty* Member = Struct->PropertyLink; Member && !bResult; Member = Member->PropertyLinkNext)
	{
		bResult = Member->ContainsObjectReference(EncounteredStructProps, InReferenceType);
	}
	EncounteredStructProps.RemoveSingleSwap(this);
	return bResult;
}

bool FStructProperty::ContainsInstancedObjectProperty() const
{
	if (Super::ContainsInstancedObjectProperty())
	{
		return true;
	}
	for (const FProperty* Member = Struct ? Struct->PropertyLink : nullptr; Member; Member = Member->PropertyLinkNext)
	{
		// A struct that is being linked is not linked to itself, so the flag of a member tells all there is.
		if (Member->HasAnyPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference))
		{
			return true;
		}
	}
	return false;
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return !Struct || Struct->CompareScriptStruct(A, B, PortFlags);
}

void FStructProperty::SerializeItem(FArchive& Ar, void* Value, const void* Defaults) const
{
	if (Struct)
	{
		Struct->SerializeItem(Ar, Value, Defaults);
	}
}

EConvertFromTypeResult FStructProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	if (!Struct)
	{
		return EConvertFromTypeResult::CannotConvert;
	}
	const FName OwnName = Struct->GetFName();
	// Before set and map tags told the struct of their elements, the element's kind alone was saved.
	const bool bIsOwnStruct = Tag.IsType(GetID()) && (Tag.StructName == OwnName || Tag.StructName.IsNone());
	if (bIsOwnStruct)
	{
		const FGuid OwnGuid = Struct->GetCustomGuid();
		const bool bSameGuid = !Tag.StructGuid.IsValid() || !OwnGuid.IsValid() || Tag.StructGuid == OwnGuid;
		return bSameGuid ? EConvertFromTypeResult::UseSerializeItem : EConvertFromTypeResult::CannotConvert;
	}
	ICppStructOps* const Ops = Struct->GetCppStructOps();
	if (Ops && Ops->HasSerializeFromMismatchedTag() && Ops->SerializeFromMismatchedTag(Tag, Ar, Data))
	{
		return EConvertFromTypeResult::Converted;
	}
	return EConvertFromTypeResult::CannotConvert;
}

void FStructProperty::CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const
{
	if (!Struct)
	{
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Struct->GetReferenceSchema().Visit(
			static_cast<uint8*>(Value) + static_cast<SIZE_T>(Index) * ElementSize, Collector, ReferencingObject);
	}
}

void FStructProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	if (Struct)
	{
		Struct->ExportText(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
	}
}

const TCHAR* FStructProperty::ImportText_Internal(
	const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	if (!Struct)
	{
		return FPropertyHelpers::RefuseText(ErrorText, this, TEXT("has no struct"), Buffer);
	}
	return Struct->ImportText(Buffer, PropertyValue, OwnerObject, PortFlags, ErrorText, Struct->GetName());
}

void FStructProperty::CopyValuesInternal(void* Dest, const void* Src, int32 Count) const
{
	if (Struct)
	{
		Struct->CopyScriptStruct(Dest, Src, Count);
	}
}

void FStructProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, GetSize());
	if (Struct)
	{
		Struct->InitializeStruct(Dest, ArrayDim);
	}
}

void FStructProperty::DestroyValueInternal(void* Dest) const
{
	if (Struct)
	{
		Struct->DestroyStruct(Dest, ArrayDim);
	}
}

void FStructProperty::ClearValueInternal(void* Data) const
{
	if (Struct)
	{
		Struct->ClearScriptStruct(Data);
	}
}

uint32 FStructProperty::GetValueTypeHashInternal(const void* Src) const
{
	return Struct ? Struct->GetStructTypeHash(Src) : 0;
}

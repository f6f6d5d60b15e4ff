#include "UObject/PropertyBase.h"

#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/PropertyTag.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

IMPLEMENT_ABSTRACT_FIELD(FProperty)

namespace
{
/** Flags that a package keeps; the others follow from the type when the property is linked. */
constexpr EPropertyFlags SavedFlags = static_cast<EPropertyFlags>(~static_cast<uint64>(CPF_ComputedFlags));
}

void FProperty::Serialize(FArchive& Ar)
{
	Super::Serialize(Ar);
	uint64 Flags = static_cast<uint64>(PropertyFlags & SavedFlags);
	Ar << ArrayDim << ElementSize << Flags << RepIndex << RepNotifyFunc;
	uint8 ReplicationCondition = 0;
	Ar << ReplicationCondition;
	if (!Ar.IsLoading())
	{
		return;
	}
	// A size or a count from outside decides how much memory values take; both have small honest bounds.
	constexpr int32 MaxArrayDim = 1 << 16;
	constexpr int32 MaxElementSize = 1 << 24;
	if (ArrayDim < 1 || ArrayDim > MaxArrayDim || ElementSize < 0 || ElementSize > MaxElementSize)
	{
		UE_LOG(
			LogClass, Error, TEXT("%s: property %s has %d elements of %d bytes"), *Ar.GetArchiveName(), *GetName(), ArrayDim, ElementSize);
		Ar.SetError();
		ArrayDim = 1;
		ElementSize = 0;
	}
	PropertyFlags = static_cast<EPropertyFlags>(Flags) & SavedFlags;
}

void FProperty::PostDuplicate(const FField& InField)
{
	Super::PostDuplicate(InField);
	const FProperty& Source = static_cast<const FProperty&>(InField);
	ArrayDim = Source.ArrayDim;
	ElementSize = Source.ElementSize;
	PropertyFlags = Source.PropertyFlags;
	RepIndex = Source.RepIndex;
	RepNotifyFunc = Source.RepNotifyFunc;
	Offset_Internal = Source.Offset_Internal;
}

FString FProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return FString();
}

FString FProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = GetCPPType();
	return TEXT("PROPERTY");
}

bool FProperty::SameType(const FProperty* Other) const
{
	return Other && GetClass() == Other->GetClass();
}

bool FProperty::ContainsObjectReference(
	TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const
{
	return false;
}

bool FProperty::ContainsWeakObjectReference() const
{
	TArray<const FStructProperty*> Encountered;
	return ContainsObjectReference(Encountered, EPropertyObjectReferenceType::Weak);
}

bool FProperty::ContainsInstancedObjectProperty() const
{
	return HasAnyPropertyFlags(CPF_ContainsInstancedReference | CPF_InstancedReference);
}

void FProperty::LinkInternal(FArchive& Ar) {}

void FProperty::LinkWithoutChangingOffset(FArchive& Ar)
{
	LinkInternal(Ar);
}

int32 FProperty::Link(FArchive& Ar)
{
	LinkInternal(Ar);
	const UStruct* const Struct = GetOwner<UStruct>();
	return Struct ? SetupOffset(Struct->GetPropertiesSize()) : SetupOffset(0);
}

int32 FProperty::SetupOffset(int32 Offset)
{
	Offset_Internal = Align(Offset, FMath::Max(GetMinAlignment(), 1));
	return Offset_Internal + GetSize();
}

bool FProperty::IsInContainer(const UStruct* ContainerClass) const
{
	return IsInContainer(ContainerClass ? ContainerClass->GetPropertiesSize() : MAX_int32);
}

bool FProperty::Identical_InContainer(const void* A, const void* B, int32 ArrayIndex, uint32 PortFlags) const
{
	return Identical(ContainerPtrToValuePtr<void>(A, ArrayIndex), B ? ContainerPtrToValuePtr<void>(B, ArrayIndex) : nullptr, PortFlags);
}

void FProperty::InitializeValue(void* Dest) const
{
	if (HasAnyPropertyFlags(CPF_ZeroConstructor))
	{
		FMemory::Memzero(Dest, GetSize());
	}
	else
	{
		InitializeValueInternal(Dest);
	}
}

void FProperty::DestroyValue(void* Dest) const
{
	if (!HasAnyPropertyFlags(CPF_NoDestructor))
	{
		DestroyValueInternal(Dest);
	}
}

void FProperty::ClearValue(void* Data) const
{
	ClearValueInternal(Data);
}

void FProperty::CopySingleValue(void* Dest, const void* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, 1);
	}
}

void FProperty::CopyCompleteValue(void* Dest, const void* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, ArrayDim);
	}
}

void FProperty::CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(DestContainer), ContainerPtrToValuePtr<void>(SrcContainer));
}

void FProperty::GetValue_InContainer(const void* InContainer, void* OutValue) const
{
	CopyCompleteValue(OutValue, ContainerPtrToValuePtr<void>(InContainer));
}

void FProperty::SetValue_InContainer(void* OutContainer, const void* InValue) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(OutContainer), InValue);
}

void FProperty::GetSingleValue_InContainer(const void* InContainer, void* OutValue, int32 ArrayIndex) const
{
	CopySingleValue(OutValue, ContainerPtrToValuePtr<void>(InContainer, ArrayIndex));
}

void FProperty::SetSingleValue_InContainer(void* OutContainer, const void* InValue, int32 ArrayIndex) const
{
	CopySingleValue(ContainerPtrToValuePtr<void>(OutContainer, ArrayIndex), InValue);
}

void* FProperty::AllocateAndInitializeValue() const
{
	void* const Memory = FMemory::Malloc(FMath::Max(GetSize(), 1), FMath::Max(GetMinAlignment(), 1));
	InitializeValue(Memory);
	return Memory;
}

void FProperty::DestroyAndFreeValue(void* InMemory) const
{
	if (InMemory)
	{
		DestroyValue(InMemory);
		FMemory::Free(InMemory);
	}
}

uint32 FProperty::GetValueTypeHash(const void* Src) const
{
	return GetValueTypeHashInternal(Src);
}

void FProperty::SerializeBinProperty(FArchive& Ar, void* Container) const
{
	if (!ShouldSerializeValue(Ar))
	{
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		SerializeItem(Ar, ContainerPtrToValuePtr<void>(Container, Index));
	}
}

EConvertFromTypeResult FProperty::ConvertFromType(
	const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults)
{
	return Tag.Type == GetID() ? EConvertFromTypeResult::UseSerializeItem : EConvertFromTypeResult::CannotConvert;
}

bool FProperty::ShouldSerializeValue(FArchive& Ar) const
{
	if (Ar.ShouldSkipProperty(this) || HasAnyPropertyFlags(CPF_SkipSerialization))
	{
		return false;
	}
	const bool bIsTransientForArchive = HasAnyPropertyFlags(CPF_Transient) && Ar.IsPersistent() && !Ar.IsSerializingDefaults();
	const bool bIsDeprecatedForSaving = HasAnyPropertyFlags(CPF_Deprecated) && !Ar.HasAllPortFlags(PPF_UseDeprecatedProperties) &&
		(Ar.IsSaving() || Ar.IsTransacting() || Ar.WantBinaryPropertySerialization());
	const bool bIsTransientForDuplication = HasAnyPropertyFlags(CPF_DuplicateTransient) && (Ar.GetPortFlags() & PPF_Duplicate) != 0;
	const bool bIsEditorOnlyForCooking = IsEditorOnlyProperty() && Ar.IsFilterEditorOnly();
	const bool bIsNotForUndo = HasAnyPropertyFlags(CPF_NonTransactional) && Ar.IsTransacting();
	const bool bIsNotSaveGame = Ar.IsSaveGame() && !HasAnyPropertyFlags(CPF_SaveGame);
	return !(bIsTransientForArchive || bIsDeprecatedForSaving || bIsTransientForDuplication || bIsEditorOnlyForCooking || bIsNotForUndo ||
		bIsNotSaveGame);
}

bool FProperty::ExportText_Direct(
	FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Data != Delta && Delta && Identical(Data, Delta, PortFlags))
	{
		return false;
	}
	ExportTextItem_Direct(ValueStr, Data, Delta, Parent, PortFlags, ExportRootScope);
	return true;
}

bool FProperty::ExportText_InContainer(
	int32 Index, FString& ValueStr, const void* Data, const void* Diff, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const void* const Value = ContainerPtrToValuePtr<void>(Data, Index);
	const void* const Default = Diff ? ContainerPtrToValuePtr<void>(Diff, Index) : nullptr;
	return ExportText_Direct(ValueStr, Value, Value == Default ? nullptr : Default, Parent, PortFlags, ExportRootScope);
}

void FProperty::ExportTextItem_InContainer(
	FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, ContainerPtrToValuePtr<void>(Container), DefaultValue, Parent, PortFlags, ExportRootScope);
}

void FProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
	int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, PropertyValue, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FProperty::ImportText_Direct(
	const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return Buffer ? ImportText_Internal(Buffer, PropertyPtr, OwnerObject, PortFlags, ErrorText) : nullptr;
}

const TCHAR* FProperty::ImportText_InContainer(
	const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	return ImportText_Direct(Buffer, ContainerPtrToValuePtr<void>(Container), OwnerObject, PortFlags, ErrorText);
}

bool FProperty::ShouldPort(uint32 PortFlags) const
{
	if (GetSize() <= 0)
	{
		return false;
	}
	if (HasAnyPropertyFlags(CPF_Deprecated) && !(PortFlags & (PPF_ParsingDefaultProperties | PPF_UseDeprecatedProperties)))
	{
		return false;
	}
	const uint64 TransientFlags = (PortFlags & PPF_Copy) ? CPF_Transient | CPF_DuplicateTransient | CPF_TextExportTransient : CPF_Transient;
	if (HasAnyPropertyFlags(TransientFlags) && !(PortFlags & (PPF_ParsingDefaultProperties | PPF_IncludeTransient)))
	{
		return false;
	}
	if (HasAnyPropertyFlags(CPF_NonPIEDuplicateTransient) && !(PortFlags & PPF_DuplicateForPIE))
	{
		return false;
	}
	// A details panel shows what can be edited there.
	if ((PortFlags & PPF_PropertyWindow) && !HasAnyPropertyFlags(CPF_Edit))
	{
		return false;
	}
	return !(PortFlags & PPF_SubobjectsOnly) || ContainsInstancedObjectProperty();
}

FProperty* FProperty::GetOwnerProperty()
{
	FProperty* Result = this;
	for (FField* Parent = Owner.ToField(); Parent; Parent = Parent->Owner.ToField())
	{
		if (FProperty* const ParentProperty = CastField<FProperty>(Parent))
		{
			Result = ParentProperty;
		}
	}
	return Result;
}

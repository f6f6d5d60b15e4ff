#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

void UE::CoreUObject::Private::ZeroStructMemory(void* Memory, SIZE_T Size)
{
	FMemory::Memzero(Memory, Size);
}

UScriptStruct::UScriptStruct(const FObjectInitializer& ObjectInitializer)
	: UStruct(ObjectInitializer)
{
}

UScriptStruct::~UScriptStruct()
{
	delete CppStructOps;
}

void UScriptStruct::SetCppStructOps(ICppStructOps* InOps)
{
	check(!CppStructOps);
	CppStructOps = InOps;
	PrepareCppStructOps();
}

void UScriptStruct::PrepareCppStructOps()
{
	if (!CppStructOps)
	{
		return;
	}
	const ICppStructOps& Ops = *CppStructOps;
	const auto SetIf = [this](bool bCondition, EStructFlags Flag)
	{
		StructFlags = bCondition ? StructFlags | Flag : StructFlags & ~Flag;
	};
	SetIf(Ops.HasSerializer(), STRUCT_SerializeNative);
	SetIf(Ops.HasPostSerialize(), STRUCT_PostSerializeNative);
	SetIf(Ops.HasCopy(), STRUCT_CopyNative);
	SetIf(Ops.IsPlainOldData(), STRUCT_IsPlainOldData);
	SetIf(!Ops.HasDestructor(), STRUCT_NoDestructor);
	SetIf(Ops.HasZeroConstructor(), STRUCT_ZeroConstructor);
	SetIf(Ops.HasIdentical(), STRUCT_IdenticalNative);
	SetIf(Ops.HasAddStructReferencedObjects(), STRUCT_AddStructReferencedObjects);
	SetIf(Ops.HasExportTextItem(), STRUCT_ExportTextItemNative);
	SetIf(Ops.HasImportTextItem(), STRUCT_ImportTextItemNative);
	SetIf(Ops.HasSerializeFromMismatchedTag(), STRUCT_SerializeFromMismatchedTag);
	SetIf(Ops.HasPostScriptConstruct(), STRUCT_PostScriptConstruct);
}

void UScriptStruct::Link(FArchive& Ar, bool bRelinkExistingProperties)
{
	Super::Link(Ar, bRelinkExistingProperties);
	if (CppStructOps)
	{
		MinAlignment = CppStructOps->GetAlignment();
		PropertiesSize = CppStructOps->GetSize();
	}
	else
	{
		// An array of the struct must keep every element aligned; an empty one still takes a byte.
		PropertiesSize = std::max(1, GetStructureSize());
		bool bPlain = true;
		bool bNoDestructor = true;
		for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			bPlain = bPlain && Property->HasAnyPropertyFlags(CPF_IsPlainOldData);
			bNoDestructor = bNoDestructor && Property->HasAnyPropertyFlags(CPF_NoDestructor);
		}
		StructFlags = StructFlags & ~(STRUCT_IsPlainOldData | STRUCT_NoDestructor);
		StructFlags |= (bPlain ? STRUCT_IsPlainOldData : STRUCT_NoFlags) | (bNoDestructor ? STRUCT_NoDestructor : STRUCT_NoFlags);
	}
	if (const UScriptStruct* const SuperScriptStruct = static_cast<const UScriptStruct*>(GetSuperStruct()))
	{
		StructFlags |= SuperScriptStruct->StructFlags & STRUCT_Inherit;
	}
	for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (Property->ContainsInstancedObjectProperty())
		{
			StructFlags |= STRUCT_HasInstancedReference;
		}
	}
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	if (!CppStructOps)
	{
		Super::InitializeStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps->Construct(static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Index) * CppStructOps->GetSize());
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	if (!CppStructOps)
	{
		Super::DestroyStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim && CppStructOps->HasDestructor(); ++Index)
	{
		CppStructOps->Destruct(static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Index) * CppStructOps->GetSize());
	}
}

FString UScriptStruct::GetStructCPPName(uint32 CPPExportFlags) const
{
	return FString(GetPrefixCPP()) + GetName();
}

void UScriptStruct::ClearScriptStruct(void* Dest, int32 ArrayDim) const
{
	const int32 Stride = GetStructureSize();
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		uint8* const Element = static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Index) * Stride;
		DestroyStruct(Element);
		InitializeStruct(Element);
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim) const
{
	if (Dest == Src)
	{
		return;
	}
	const int32 Stride = GetStructureSize();
	if (CppStructOps && CppStructOps->HasCopy())
	{
		if (CppStructOps->Copy(Dest, Src, ArrayDim))
		{
			return;
		}
	}
	if (StructFlags & STRUCT_IsPlainOldData)
	{
		FMemory::Memcpy(Dest, Src, static_cast<SIZE_T>(Stride) * ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			Property->CopyCompleteValue_InContainer(static_cast<uint8*>(Dest) + static_cast<SIZE_T>(Index) * Stride,
				static_cast<const uint8*>(Src) + static_cast<SIZE_T>(Index) * Stride);
		}
	}
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	if (!B)
	{
		TArray<uint8> Defaults;
		Defaults.SetNumUninitialized(GetStructureSize() + GetMinAlignment());
		void* const Aligned = Align(Defaults.GetData(), GetMinAlignment());
		InitializeStruct(Aligned);
		const bool bEqual = CompareScriptStruct(A, Aligned, PortFlags);
		DestroyStruct(Aligned);
		return bEqual;
	}
	bool bResult = false;
	if (CppStructOps && CppStructOps->HasIdentical() && CppStructOps->Identical(A, B, PortFlags, bResult))
	{
		return bResult;
	}
	for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			if (!Property->Identical_InContainer(A, B, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

uint32 UScriptStruct::GetStructTypeHash(const void* Src) const
{
	if (CppStructOps && CppStructOps->HasGetTypeHash())
	{
		return CppStructOps->GetStructTypeHash(Src);
	}
	uint32 Hash = 0;
	for (const FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			Hash = HashCombine(Hash, Property->GetValueTypeHash(Property->ContainerPtrToValuePtr<void>(Src, Index)));
		}
	}
	return Hash;
}

void UScriptStruct::InitializeDefaultValue(uint8* InStructData) const
{
	InitializeStruct(InStructData);
}

bool UScriptStruct::ShouldSerializeAtomically(FArchive& Ar) const
{
	return (StructFlags & STRUCT_Atomic) != 0 && !Ar.IsIgnoringArchetypeRef();
}

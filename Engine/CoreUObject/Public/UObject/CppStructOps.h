#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

#include <type_traits>

class FArchive;
class FOutputDevice;
class FReferenceCollector;
class UObject;
class UPackageMap;
struct FPropertyTag;

/** What a C++ struct can do itself. A struct says so by specialising TStructOpsTypeTraits. */
template <class CPPSTRUCT>
struct TStructOpsTypeTraitsBase2
{
	enum
	{
		WithZeroConstructor = false,
		WithNoInitConstructor = false,
		WithNoDestructor = false,
		WithCopy = !std::is_trivially_copyable_v<CPPSTRUCT>,
		WithIdenticalViaEquality = false,
		WithIdentical = false,
		WithExportTextItem = false,
		WithImportTextItem = false,
		WithAddStructReferencedObjects = false,
		WithSerializer = false,
		WithStructuredSerializer = false,
		WithPostSerialize = false,
		WithNetSerializer = false,
		WithNetSharedSerialization = false,
		WithNetDeltaSerializer = false,
		WithSerializeFromMismatchedTag = false,
		WithStructuredSerializeFromMismatchedTag = false,
		WithPostScriptConstruct = false,
		WithFindInnerPropertyInstance = false,
		WithClearOnFinishDestroy = false,
		WithPureVirtual = false,
		WithGetPreloadDependencies = false,
		WithCanEditChange = false,
		WithIntrusiveOptionalSafeForGC = false,
	};
};
template <class CPPSTRUCT>
struct TStructOpsTypeTraits : public TStructOpsTypeTraitsBase2<CPPSTRUCT>
{
};

namespace UE::CoreUObject::Private
{
/** Out of line: a compiler that sees a constructor follow may drop stores before it, and members without initialiser rely on them. */
COREUOBJECT_API void ZeroStructMemory(void* Memory, SIZE_T Size);
}

typedef void (*TPointerToAddStructReferencedObjects)(void* A, FReferenceCollector& Collector);

/** The C++ side of a UScriptStruct. Every Has function says whether its namesake below may be called. */
struct COREUOBJECT_API ICppStructOps
{
	ICppStructOps(int32 InSize, int32 InAlignment)
		: Size(InSize)
		, Alignment(InAlignment)
	{
	}
	virtual ~ICppStructOps() = default;

	FORCEINLINE int32 GetSize() const { return Size; }
	FORCEINLINE int32 GetAlignment() const { return Alignment; }

	virtual bool HasNoopConstructor() const = 0;
	virtual bool HasZeroConstructor() const = 0;
	virtual void Construct(void* Dest) = 0;
	virtual void ConstructForTests(void* Dest) { Construct(Dest); }
	virtual bool HasDestructor() const = 0;
	virtual void Destruct(void* Dest) = 0;
	virtual bool HasSerializer() const = 0;
	virtual bool HasStructuredSerializer() const = 0;
	virtual bool Serialize(FArchive& Ar, void* Data) = 0;
	virtual bool HasPostSerialize() const = 0;
	virtual void PostSerialize(const FArchive& Ar, void* Data) = 0;
	virtual bool HasPostScriptConstruct() const = 0;
	virtual void PostScriptConstruct(void* Data) = 0;
	virtual bool IsPlainOldData() const = 0;
	virtual bool HasCopy() const = 0;
	virtual bool Copy(void* Dest, void const* Src, int32 ArrayDim) = 0;
	virtual bool HasIdentical() const = 0;
	/** False when the struct cannot compare itself; bOutResult is the answer otherwise. */
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) = 0;
	virtual bool HasExportTextItem() const = 0;
	virtual bool ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) = 0;
	virtual bool HasImportTextItem() const = 0;
	virtual bool ImportTextItem(const TCHAR*& Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) = 0;
	virtual bool HasAddStructReferencedObjects() const = 0;
	virtual TPointerToAddStructReferencedObjects AddStructReferencedObjects() const = 0;
	virtual bool HasSerializeFromMismatchedTag() const = 0;
	virtual bool HasStructuredSerializeFromMismatchedTag() const { return false; }
	virtual bool SerializeFromMismatchedTag(FPropertyTag const& Tag, FArchive& Ar, void* Data) = 0;
	virtual bool HasGetTypeHash() const = 0;
	virtual uint32 GetStructTypeHash(const void* Src) = 0;
	EPropertyFlags GetComputedPropertyFlags() const
	{
		return (HasZeroConstructor() ? CPF_ZeroConstructor : CPF_None) | (IsPlainOldData() ? CPF_IsPlainOldData : CPF_None) |
			(HasDestructor() ? CPF_None : CPF_NoDestructor) | (HasGetTypeHash() ? CPF_HasGetValueTypeHash : CPF_None);
	}

private:
	const int32 Size;
	const int32 Alignment;
};

template <class CPPSTRUCT>
struct TCppStructOps final : public ICppStructOps
{
	using TTraits = TStructOpsTypeTraits<CPPSTRUCT>;

	TCppStructOps()
		: ICppStructOps(sizeof(CPPSTRUCT), alignof(CPPSTRUCT))
	{
	}

	bool HasNoopConstructor() const override { return false; }
	bool HasZeroConstructor() const override { return TTraits::WithZeroConstructor; }
	void Construct(void* Dest) override
	{
		if constexpr (TTraits::WithZeroConstructor)
		{
			FMemory::Memzero(Dest, sizeof(CPPSTRUCT));
		}
		else if constexpr (std::is_default_constructible_v<CPPSTRUCT>)
		{
			// Members that the constructor leaves out are reflected too.
			UE::CoreUObject::Private::ZeroStructMemory(Dest, sizeof(CPPSTRUCT));
			::new (Dest) CPPSTRUCT();
		}
		else
		{
			static_assert(
				requires { CPPSTRUCT(ForceInit); }, "A reflected struct needs a default constructor");
			::new (Dest) CPPSTRUCT(ForceInit);
		}
	}
	bool HasDestructor() const override { return !(TTraits::WithNoDestructor || std::is_trivially_destructible_v<CPPSTRUCT>); }
	void Destruct(void* Dest) override { static_cast<CPPSTRUCT*>(Dest)->~CPPSTRUCT(); }

	bool HasSerializer() const override { return TTraits::WithSerializer; }
	bool HasStructuredSerializer() const override { return false; }
	bool Serialize(FArchive& Ar, void* Data) override
	{
		if constexpr (TTraits::WithSerializer)
		{
			if constexpr (std::is_void_v<decltype(static_cast<CPPSTRUCT*>(Data)->Serialize(Ar))>)
			{
				static_cast<CPPSTRUCT*>(Data)->Serialize(Ar);
				return true;
			}
			else
			{
				return static_cast<CPPSTRUCT*>(Data)->Serialize(Ar);
			}
		}
		else
		{
			return false;
		}
	}
	bool HasPostSerialize() const override { return TTraits::WithPostSerialize; }
	void PostSerialize(const FArchive& Ar, void* Data) override
	{
		if constexpr (TTraits::WithPostSerialize)
		{
			static_cast<CPPSTRUCT*>(Data)->PostSerialize(Ar);
		}
	}
	bool HasPostScriptConstruct() const override { return TTraits::WithPostScriptConstruct; }
	void PostScriptConstruct(void* Data) override
	{
		if constexpr (TTraits::WithPostScriptConstruct)
		{
			static_cast<CPPSTRUCT*>(Data)->PostScriptConstruct();
		}
	}
	bool IsPlainOldData() const override { return std::is_trivially_copyable_v<CPPSTRUCT>; }
	bool HasCopy() const override { return TTraits::WithCopy; }
	bool Copy(void* Dest, void const* Src, int32 ArrayDim) override
	{
		if constexpr (TTraits::WithCopy)
		{
			for (int32 Index = 0; Index < ArrayDim; ++Index)
			{
				static_cast<CPPSTRUCT*>(Dest)[Index] = static_cast<const CPPSTRUCT*>(Src)[Index];
			}
			return true;
		}
		else
		{
			return false;
		}
	}
	bool HasIdentical() const override { return TTraits::WithIdentical || TTraits::WithIdenticalViaEquality; }
	bool Identical(const void* A, const void* B, uint32 PortFlags, bool& bOutResult) override
	{
		if constexpr (TTraits::WithIdentical)
		{
			bOutResult = static_cast<const CPPSTRUCT*>(A)->Identical(static_cast<const CPPSTRUCT*>(B), PortFlags);
			return true;
		}
		else if constexpr (TTraits::WithIdenticalViaEquality)
		{
			bOutResult = *static_cast<const CPPSTRUCT*>(A) == *static_cast<const CPPSTRUCT*>(B);
			return true;
		}
		else
		{
			bOutResult = false;
			return false;
		}
	}
	bool HasExportTextItem() const override { return TTraits::WithExportTextItem; }
	bool ExportTextItem(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) override
	{
		if constexpr (TTraits::WithExportTextItem)
		{
			// A struct without a default to compare with still gets a default value to refer to.
			const CPPSTRUCT* const Value = static_cast<const CPPSTRUCT*>(PropertyValue);
			return Value->ExportTextItem(
				ValueStr, DefaultValue ? *static_cast<const CPPSTRUCT*>(DefaultValue) : *Value, Parent, PortFlags, ExportRootScope);
		}
		else
		{
			return false;
		}
	}
	bool HasImportTextItem() const override { return TTraits::WithImportTextItem; }
	bool ImportTextItem(const TCHAR*& Buffer, void* Data, int32 PortFlags, UObject* OwnerObject, FOutputDevice* ErrorText) override
	{
		if constexpr (TTraits::WithImportTextItem)
		{
			return static_cast<CPPSTRUCT*>(Data)->ImportTextItem(Buffer, PortFlags, OwnerObject, ErrorText);
		}
		else
		{
			return false;
		}
	}
	bool HasAddStructReferencedObjects() const override { return TTraits::WithAddStructReferencedObjects; }
	TPointerToAddStructReferencedObjects AddStructReferencedObjects() const override
	{
		if constexpr (TTraits::WithAddStructReferencedObjects)
		{
			return [](void* A, FReferenceCollector& Collector)
			{ static_cast<CPPSTRUCT*>(A)->AddStructReferencedObjects(Collector); };
		}
		else
		{
			return nullptr;
		}
	}
	bool HasSerializeFromMismatchedTag() const override
	{
		return TTraits::WithSerializeFromMismatchedTag || TTraits::WithStructuredSerializeFromMismatchedTag;
	}
	bool SerializeFromMismatchedTag(FPropertyTag const& Tag, FArchive& Ar, void* Data) override
	{
		if constexpr (TTraits::WithSerializeFromMismatchedTag)
		{
			return static_cast<CPPSTRUCT*>(Data)->SerializeFromMismatchedTag(Tag, Ar);
		}
		else
		{
			return false;
		}
	}
	bool HasGetTypeHash() const override
	{
		return requires(const CPPSTRUCT& Value) { GetTypeHash(Value); };
	}
	uint32 GetStructTypeHash(const void* Src) override
	{
		if constexpr (requires(const CPPSTRUCT& Value) { GetTypeHash(Value); })
		{
			return GetTypeHash(*static_cast<const CPPSTRUCT*>(Src));
		}
		else
		{
			return 0;
		}
	}
};

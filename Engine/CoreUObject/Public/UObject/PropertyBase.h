#pragma once

#include "Misc/OutputDevice.h"
#include "Templates/Function.h"
#include "Templates/TypeHash.h"
#include "UObject/Field.h"
#include "UObject/PropertyPortFlags.h"

class FArchive;
class FOutputDevice;
class FReferenceCollector;
class FStructProperty;
struct FPropertyTag;

enum class EPropertyPointerType
{
	/** A pointer to the value. */
	Direct = 0,
	/** A pointer to the object or struct that has the value. */
	Container = 1
};

enum class EPropertyObjectReferenceType : uint32
{
	None = 0,
	Strong = 1 << 0,
	Weak = 1 << 1,
	Soft = 1 << 2,
	Conservative = 1 << 3,
	Any = Strong | Weak | Soft | Conservative
};
ENUM_CLASS_FLAGS(EPropertyObjectReferenceType)

enum class EConvertFromTypeResult
{
	/** The tag's type is the property's own: SerializeItem reads it. */
	UseSerializeItem,
	/** The value could not be converted; nothing was read. */
	CannotConvert,
	/** The value was read and converted. */
	Converted
};

/** Reads a value of type T from possibly unaligned script memory. */
template <typename T>
FORCEINLINE T ReadPropertyMemory(const void* Address)
{
	T Result;
	FMemory::Memcpy(&Result, Address, sizeof(T));
	return Result;
}

/**
 * A reflected member, parameter or local variable. Functions that take `Data` or `Value` take a pointer to the value itself
 * unless their name says `_InContainer`. All on the game thread, except reads of definitions after start-up.
 */
class COREUOBJECT_API FProperty : public FField
{
	DECLARE_ABSTRACT_FIELD(FProperty, FField, CASTCLASS_FProperty)

	int32 ArrayDim = 1;
	EPropertyFlags PropertyFlags = CPF_None;
	uint16 RepIndex = 0;
	FName RepNotifyFunc;
	/** All properties of the struct and its supers, most derived first. Set by UStruct::Link. */
	FProperty* PropertyLinkNext = nullptr;
	FProperty* NextRef = nullptr;
	FProperty* DestructorLinkNext = nullptr;
	FProperty* PostConstructLinkNext = nullptr;

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;

	// Type
	/** The C++ type, such as "TArray" with ExtendedTypeText "<FName>". CPPExportFlags is not used here. */
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const;
	virtual FString GetCPPMacroType(FString& ExtendedTypeText) const;
	/** Whether values of the two properties are interchangeable, inner types included. */
	virtual bool SameType(const FProperty* Other) const;
	virtual bool ContainsObjectReference(TArray<const FStructProperty*>& EncounteredStructProps,
		EPropertyObjectReferenceType InReferenceType = EPropertyObjectReferenceType::Strong) const;
	bool ContainsWeakObjectReference() const;
	virtual bool ContainsInstancedObjectProperty() const;
	virtual bool PassCPPArgsByRef() const { return false; }
	virtual int32 GetMinAlignment() const { return 1; }

	// Layout
	int32 GetElementSize() const { return ElementSize; }
	void SetElementSize(int32 NewSize) { ElementSize = NewSize; }
	/** Bytes of all elements. */
	int32 GetSize() const { return ElementSize * ArrayDim; }
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	int32 GetOffset_ForDebug() const { return Offset_Internal; }
	int32 GetOffset_ForUFunction() const { return Offset_Internal; }
	int32 GetOffset_ForGC() const { return Offset_Internal; }
	int32 GetOffset_ReplaceWith_ContainerPtrToValuePtr() const { return Offset_Internal; }
	void SetOffset_Internal(int32 NewOffset) { Offset_Internal = NewOffset; }
	/** Settles flags and sizes that follow from the type, inner types first. The offset stays. */
	void LinkWithoutChangingOffset(FArchive& Ar);
	/** Links, and places the property after what Ar-order neighbours took. Answers the end of the property in its owner. */
	int32 Link(FArchive& Ar);
	/** Places the property at the first aligned offset at or after Offset and answers where the next may start. */
	virtual int32 SetupOffset(int32 Offset);
	virtual void LinkInternal(FArchive& Ar);
	bool IsInContainer(int32 ContainerSize) const { return Offset_Internal + GetSize() <= ContainerSize; }
	bool IsInContainer(const UStruct* ContainerClass) const;

	template <typename ValueType>
	FORCEINLINE ValueType* ContainerPtrToValuePtr(UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return static_cast<ValueType*>(ContainerToValue(ContainerPtr, ArrayIndex));
	}
	template <typename ValueType>
	FORCEINLINE ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return static_cast<ValueType*>(ContainerToValue(ContainerPtr, ArrayIndex));
	}
	template <typename ValueType>
	FORCEINLINE const ValueType* ContainerPtrToValuePtr(const UObject* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return static_cast<const ValueType*>(ContainerToValue(const_cast<UObject*>(ContainerPtr), ArrayIndex));
	}
	template <typename ValueType>
	FORCEINLINE const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return static_cast<const ValueType*>(ContainerToValue(const_cast<void*>(ContainerPtr), ArrayIndex));
	}
	/** Null where the property lies outside the container's class, or the container is null. */
	template <typename ValueType>
	const ValueType* ContainerPtrToValuePtrForDefaults(const UStruct* ContainerClass, const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtr && IsInContainer(ContainerClass) ? ContainerPtrToValuePtr<ValueType>(ContainerPtr, ArrayIndex) : nullptr;
	}

	// Values
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const;
	void InitializeValue(void* Dest) const;
	void InitializeValue_InContainer(void* Container) const { InitializeValue(ContainerPtrToValuePtr<void>(Container)); }
	void DestroyValue(void* Dest) const;
	void DestroyValue_InContainer(void* Container) const { DestroyValue(ContainerPtrToValuePtr<void>(Container)); }
	void ClearValue(void* Data) const;
	void ClearValue_InContainer(void* Container, int32 ArrayIndex = 0) const
	{
		ClearValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}
	void CopySingleValue(void* Dest, const void* Src) const;
	void CopyCompleteValue(void* Dest, const void* Src) const;
	void CopyCompleteValue_InContainer(void* DestContainer, const void* SrcContainer) const;
	void CopyCompleteValueToScriptVM(void* Dest, const void* Src) const { CopyCompleteValue(Dest, Src); }
	void CopyCompleteValueFromScriptVM(void* Dest, const void* Src) const { CopyCompleteValue(Dest, Src); }
	/** Copies all elements out of, or into, the object. OutValue is initialized memory of GetSize() bytes. */
	void GetValue_InContainer(const void* InContainer, void* OutValue) const;
	void SetValue_InContainer(void* OutContainer, const void* InValue) const;
	void GetSingleValue_InContainer(const void* InContainer, void* OutValue, int32 ArrayIndex) const;
	void SetSingleValue_InContainer(void* OutContainer, const void* InValue, int32 ArrayIndex) const;
	/** Memory for one whole value, to be freed by DestroyAndFreeValue. */
	void* AllocateAndInitializeValue() const;
	void DestroyAndFreeValue(void* InMemory) const;
	/** Check CPF_HasGetValueTypeHash first: a type without a hash answers 0. */
	uint32 GetValueTypeHash(const void* Src) const;
	/** Gives the collector every object that the value holds strongly. */
	virtual void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const {}

	// Binary form
	virtual void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const = 0;
	/** Every element of a static array, without tags. */
	void SerializeBinProperty(FArchive& Ar, void* Container) const;
	/** Reads a value that was saved under another type. */
	virtual EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults);
	/** Whether the archive wants this property: no transients in packages, and so on. */
	bool ShouldSerializeValue(FArchive& Ar) const;

	// Text form
	/** Appends the text of one element when it differs from Diff (or Diff is null). Answers whether it did. */
	bool ExportText_InContainer(int32 Index, FString& ValueStr, const void* Data, const void* Diff, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	bool ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	void ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	/** Appends the text of the value. A struct leaves out members that equal DefaultValue's. */
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope = nullptr) const;
	/**
	 * Reads the value from the front of Buffer. Answers what follows it, or null when the text is not of this type; the reason goes to
	 * ErrorText.
	 */
	const TCHAR* ImportText_Direct(
		const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const;
	const TCHAR* ImportText_InContainer(
		const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = nullptr) const;
	bool ShouldPort(uint32 PortFlags = 0) const;

	// Flags
	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }
	void ClearPropertyFlags(EPropertyFlags OldFlags) { PropertyFlags &= ~OldFlags; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (static_cast<uint64>(PropertyFlags) & FlagsToCheck) != 0; }
	bool HasAllPropertyFlags(uint64 FlagsToCheck) const { return (static_cast<uint64>(PropertyFlags) & FlagsToCheck) == FlagsToCheck; }
	bool IsEditorOnlyProperty() const { return HasAnyPropertyFlags(CPF_DevelopmentAssets); }
	virtual bool HasSetter() const { return false; }
	virtual bool HasGetter() const { return false; }
	virtual bool HasSetterOrGetter() const { return false; }

	/** The outermost property that this one is an inner part of, or itself. */
	FProperty* GetOwnerProperty();
	const FProperty* GetOwnerProperty() const { return const_cast<FProperty*>(this)->GetOwnerProperty(); }
	/** "Inner" of "Array" and so on: the property that this one stands for in texts. */
	virtual FName GetIDForTag() const { return GetID(); }
	int32 GetPropertyArrayDim() const { return ArrayDim; }

	/** Where a member named in text ("Index(3)=") wants its value. Reads one "Name=Value" line and sets it in the container. */
	static const TCHAR* ImportSingleProperty(const TCHAR* Str, void* DestData, const UStruct* ObjectStruct, UObject* SubobjectOuter,
		int32 PortFlags, FOutputDevice* Warn, TArray<struct FDefinedProperty>& DefinedProperties);

protected:
	int32 ElementSize = 0;
	int32 Offset_Internal = 0;

	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent,
		int32 PortFlags, UObject* ExportRootScope) const = 0;
	virtual const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const = 0;
	virtual void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const = 0;
	virtual void InitializeValueInternal(void* Dest) const = 0;
	virtual void DestroyValueInternal(void* Dest) const = 0;
	virtual void ClearValueInternal(void* Data) const = 0;
	virtual uint32 GetValueTypeHashInternal(const void* Src) const { return 0; }

	friend class FArrayProperty;
	friend class FEnumProperty;
	friend class FMapProperty;
	friend class FOptionalProperty;
	friend class FSetProperty;

private:
	FORCEINLINE void* ContainerToValue(void* ContainerPtr, int32 ArrayIndex) const
	{
		checkf(
			ArrayIndex >= 0 && ArrayIndex < ArrayDim, TEXT("Array index out of bounds: %i from an array of size %i"), ArrayIndex, ArrayDim);
		check(ContainerPtr);
		return static_cast<uint8*>(ContainerPtr) + Offset_Internal + static_cast<SIZE_T>(ElementSize) * ArrayIndex;
	}
};

/** A member that a text has set already, so that a second setting can be reported. */
struct FDefinedProperty
{
	FProperty* Property = nullptr;
	int32 Index = 0;

	bool operator==(const FDefinedProperty& Other) const = default;
};

/** Values of one C++ type: construction, copy and comparison are the type's own. */
template <typename InTCppType, class TInPropertyBaseClass>
class TProperty : public TInPropertyBaseClass
{
public:
	using TCppType = InTCppType;
	using TInPropertyBaseClass::TInPropertyBaseClass;

	static constexpr int32 CPPSize = sizeof(TCppType);
	static constexpr int32 CPPAlignment = alignof(TCppType);

	static TCppType* GetPropertyValuePtr(void* A) { return static_cast<TCppType*>(A); }
	static const TCppType* GetPropertyValuePtr(const void* A) { return static_cast<const TCppType*>(A); }
	static const TCppType& GetPropertyValue(const void* A) { return *GetPropertyValuePtr(A); }
	static void SetPropertyValue(void* A, const TCppType& Value) requires std::is_copy_assignable_v<TCppType>
	{
		*GetPropertyValuePtr(A) = Value;
	}
	TCppType* GetPropertyValuePtr_InContainer(void* A, int32 ArrayIndex = 0) const
	{
		return this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex);
	}
	const TCppType* GetPropertyValuePtr_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return this->template ContainerPtrToValuePtr<TCppType>(A, ArrayIndex);
	}
	const TCppType& GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return *GetPropertyValuePtr_InContainer(A, ArrayIndex);
	}
	void SetPropertyValue_InContainer(void* A, const TCppType& Value, int32 ArrayIndex = 0) const
		requires std::is_copy_assignable_v<TCppType>
	{
		*GetPropertyValuePtr_InContainer(A, ArrayIndex) = Value;
	}
	/** The value at A, or a default one when A is null. */
	static TCppType GetOptionalPropertyValue(const void* A) requires std::is_copy_constructible_v<TCppType>
	{
		return A ? GetPropertyValue(A) : TCppType();
	}

	int32 GetMinAlignment() const override { return CPPAlignment; }
	void LinkInternal(FArchive& Ar) override
	{
		this->ElementSize = CPPSize;
		EPropertyFlags Computed = CPF_None;
		if constexpr (std::is_trivially_destructible_v<TCppType>)
		{
			Computed |= CPF_NoDestructor;
		}
		if constexpr (std::is_trivially_copyable_v<TCppType>)
		{
			Computed |= CPF_IsPlainOldData;
		}
		if constexpr (std::is_arithmetic_v<TCppType> || std::is_pointer_v<TCppType>)
		{
			Computed |= CPF_ZeroConstructor;
		}
		if constexpr (requires(const TCppType& Value) { GetTypeHash(Value); })
		{
			Computed |= CPF_HasGetValueTypeHash;
		}
		this->PropertyFlags |= Computed;
	}

protected:
	void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override
	{
		// Script containers, which only their elements' properties can copy, have properties that override this.
		if constexpr (std::is_copy_assignable_v<TCppType>)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				GetPropertyValuePtr(Dest)[Index] = GetPropertyValuePtr(Src)[Index];
			}
		}
	}
	void InitializeValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			new (GetPropertyValuePtr(Dest) + Index) TCppType();
		}
	}
	void DestroyValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			GetPropertyValuePtr(Dest)[Index].~TCppType();
		}
	}
	void ClearValueInternal(void* Data) const override
	{
		if constexpr (std::is_copy_assignable_v<TCppType>)
		{
			SetPropertyValue(Data, TCppType());
		}
	}
	uint32 GetValueTypeHashInternal(const void* Src) const override
	{
		if constexpr (requires(const TCppType& Value) { GetTypeHash(Value); })
		{
			return GetTypeHash(GetPropertyValue(Src));
		}
		else
		{
			return 0;
		}
	}
};

/** As TProperty, for types with an operator==. */
template <typename InTCppType, class TInPropertyBaseClass>
class TProperty_WithEqualityAndSerializer : public TProperty<InTCppType, TInPropertyBaseClass>
{
public:
	using TProperty<InTCppType, TInPropertyBaseClass>::TProperty;

	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		return B ? this->GetPropertyValue(A) == this->GetPropertyValue(B) : this->GetPropertyValue(A) == InTCppType();
	}
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override
	{
		Ar << *this->GetPropertyValuePtr(Value);
	}
};

#pragma once

#include "UObject/LazyObjectPtr.h"
#include "UObject/PropertyBase.h"
#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

class UClass;

/** A reference to an object, strong or not. */
class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_ABSTRACT_FIELD(FObjectPropertyBase, FProperty, CASTCLASS_FObjectPropertyBase)

	/** The class that values must be of. */
	UClass* PropertyClass = nullptr;

	void SetPropertyClass(UClass* NewPropertyClass) { PropertyClass = NewPropertyClass; }

	/** Null also when the object is not loaded. */
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	/** Loads a soft reference's object. */
	virtual UObject* LoadObjectPropertyValue(const void* PropertyValueAddress) const
	{
		return GetObjectPropertyValue(PropertyValueAddress);
	}
	UObject* GetObjectPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}
	void SetObjectPropertyValue_InContainer(void* Container, UObject* Value, int32 ArrayIndex = 0) const
	{
		SetObjectPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex), Value);
	}

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsInstancedObjectProperty() const override;
	/** "None", or the object's class and path: `"/Script/M.Class'/Path.Name'"`. */
	static FString GetExportPath(
		const UObject* Object, const UObject* Parent = nullptr, const UObject* ExportRootScope = nullptr, uint32 PortFlags = PPF_None);
	/**
	 * Reads one reference in any spelling from the front of Buffer into ResolvedValue. False with Buffer unmoved when the text is no
	 * reference.
	 */
	static bool ParseObjectPropertyValue(const FProperty* Property, UObject* OwnerObject, UClass* RequiredMetaClass, uint32 PortFlags,
		const TCHAR*& Buffer, TObjectPtr<UObject>& OutResolvedValue);
	/** The object that a path names: in memory, on disk, or a stand-in of ObjectClass that keeps the path. */
	static UObject* FindImportedObject(const FProperty* Property, UObject* OwnerObject, UClass* ObjectClass, UClass* RequiredMetaClass,
		const TCHAR* Text, uint32 PortFlags = 0);

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	virtual UClass* GetRequiredMetaClass() const { return nullptr; }
	FString GetInnerCPPTypeName() const;
	/**
	 * After a value was read: an object of another class never stays, for C++ trusts the type. A stand-in is made to fit where it can be.
	 */
	void FitLoadedValue(FArchive& Ar, void* Value) const;
};

/** What the kinds of object reference share beyond their base: the value's C++ type. */
template <typename InTCppType>
class TFObjectPropertyBase : public TProperty<InTCppType, FObjectPropertyBase>
{
public:
	using TTypeFundamentals = TProperty<InTCppType, FObjectPropertyBase>;
	using TTypeFundamentals::TTypeFundamentals;

	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override
	{
		Ar << *this->GetPropertyValuePtr(Value);
		// Soft and lazy references check when they are resolved.
		if constexpr (std::is_same_v<InTCppType, UObject*> || std::is_same_v<InTCppType, FWeakObjectPtr>)
		{
			this->FitLoadedValue(Ar, Value);
		}
	}
	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override
	{
		if constexpr (std::is_pointer_v<InTCppType>)
		{
			return this->GetPropertyValue(PropertyValueAddress);
		}
		else
		{
			return this->GetPropertyValue(PropertyValueAddress).Get();
		}
	}
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override
	{
		*this->GetPropertyValuePtr(PropertyValueAddress) = Value;
	}
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override
	{
		constexpr EPropertyObjectReferenceType Kind = std::is_same_v<InTCppType, UObject*> ? EPropertyObjectReferenceType::Strong
			: std::is_same_v<InTCppType, FWeakObjectPtr>                                   ? EPropertyObjectReferenceType::Weak
																						   : EPropertyObjectReferenceType::Soft;
		return EnumHasAnyFlags(InReferenceType, Kind);
	}
};

class COREUOBJECT_API FObjectProperty : public TFObjectPropertyBase<UObject*>
{
	DECLARE_FIELD(FObjectProperty, TFObjectPropertyBase<UObject*>, CASTCLASS_FObjectProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
};

class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty, CASTCLASS_FClassProperty)

	/** Values are classes below this one. */
	UClass* MetaClass = nullptr;

	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }
	/** Packages call a class what it is, an object. */
	FName GetIDForTag() const override { return FObjectProperty::StaticClass()->GetFName(); }
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	bool SameType(const FProperty* Other) const override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	UClass* GetRequiredMetaClass() const override { return MetaClass; }
};

class COREUOBJECT_API FWeakObjectProperty : public TFObjectPropertyBase<FWeakObjectPtr>
{
	DECLARE_FIELD(FWeakObjectProperty, TFObjectPropertyBase<FWeakObjectPtr>, CASTCLASS_FWeakObjectProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
};

class COREUOBJECT_API FLazyObjectProperty : public TFObjectPropertyBase<FLazyObjectPtr>
{
	DECLARE_FIELD(FLazyObjectProperty, TFObjectPropertyBase<FLazyObjectPtr>, CASTCLASS_FLazyObjectProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
};

class COREUOBJECT_API FSoftObjectProperty : public TFObjectPropertyBase<FSoftObjectPtr>
{
	DECLARE_FIELD(FSoftObjectProperty, TFObjectPropertyBase<FSoftObjectPtr>, CASTCLASS_FSoftObjectProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	UObject* LoadObjectPropertyValue(const void* PropertyValueAddress) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

class COREUOBJECT_API FSoftClassProperty : public FSoftObjectProperty
{
	DECLARE_FIELD(FSoftClassProperty, FSoftObjectProperty, CASTCLASS_FSoftClassProperty)

	UClass* MetaClass = nullptr;

	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }
	FName GetIDForTag() const override { return FSoftObjectProperty::StaticClass()->GetFName(); }
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	bool SameType(const FProperty* Other) const override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;

protected:
	UClass* GetRequiredMetaClass() const override { return MetaClass; }
};

/** A TScriptInterface: an object and the address of its interface. */
class COREUOBJECT_API FInterfaceProperty : public TProperty<FScriptInterface, FProperty>
{
	using FBase = TProperty<FScriptInterface, FProperty>;
	DECLARE_FIELD(FInterfaceProperty, FBase, CASTCLASS_FInterfaceProperty)

	UClass* InterfaceClass = nullptr;

	void SetInterfaceClass(UClass* NewInterfaceClass) { InterfaceClass = NewInterfaceClass; }
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	bool SameType(const FProperty* Other) const override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

#pragma once

#include "Containers/ScriptArray.h"
#include "Containers/ScriptMap.h"
#include "Containers/ScriptSet.h"
#include "UObject/PropertyBase.h"

class UScriptStruct;

/** A value of a USTRUCT, native or made at run time. */
class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty, CASTCLASS_FStructProperty)

	UScriptStruct* Struct = nullptr;

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool PassCPPArgsByRef() const override { return true; }
	int32 GetMinAlignment() const override;
	void LinkInternal(FArchive& Ar) override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	bool ContainsInstancedObjectProperty() const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
	void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	void InitializeValueInternal(void* Dest) const override;
	void DestroyValueInternal(void* Dest) const override;
	void ClearValueInternal(void* Data) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override;
};

/** A TArray. Inner is owned and placed at offset 0 of its element. */
class COREUOBJECT_API FArrayProperty : public TProperty<FScriptArray, FProperty>
{
	using FBase = TProperty<FScriptArray, FProperty>;
	DECLARE_FIELD(FArrayProperty, FBase, CASTCLASS_FArrayProperty)

	/** Null only until AddCppProperty. */
	FProperty* Inner = nullptr;

	~FArrayProperty() override;
	void AddCppProperty(FProperty* Property) override;
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool PassCPPArgsByRef() const override { return true; }
	void LinkInternal(FArchive& Ar) override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	bool ContainsInstancedObjectProperty() const override { return Inner->ContainsInstancedObjectProperty(); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
	void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	void InitializeValueInternal(void* Dest) const override;
	void DestroyValueInternal(void* Dest) const override;
	void ClearValueInternal(void* Data) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override;
};

/** A TSet. */
class COREUOBJECT_API FSetProperty : public TProperty<FScriptSet, FProperty>
{
	using FBase = TProperty<FScriptSet, FProperty>;
	DECLARE_FIELD(FSetProperty, FBase, CASTCLASS_FSetProperty)

	/** Owned. Null only until AddCppProperty. */
	FProperty* ElementProp = nullptr;
	FScriptSetLayout SetLayout = {};

	~FSetProperty() override;
	FProperty* GetElementProperty() const { return ElementProp; }
	void AddCppProperty(FProperty* Property) override;
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool PassCPPArgsByRef() const override { return true; }
	void LinkInternal(FArchive& Ar) override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	bool ContainsInstancedObjectProperty() const override { return ElementProp->ContainsInstancedObjectProperty(); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
	void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	void InitializeValueInternal(void* Dest) const override;
	void DestroyValueInternal(void* Dest) const override;
	void ClearValueInternal(void* Data) const override;
};

/** A TMap. The value property's offset is its place within a pair. */
class COREUOBJECT_API FMapProperty : public TProperty<FScriptMap, FProperty>
{
	using FBase = TProperty<FScriptMap, FProperty>;
	DECLARE_FIELD(FMapProperty, FBase, CASTCLASS_FMapProperty)

	/** Owned. Null only until AddCppProperty. */
	FProperty* KeyProp = nullptr;
	FProperty* ValueProp = nullptr;
	FScriptMapLayout MapLayout = {};

	~FMapProperty() override;
	FProperty* GetKeyProperty() const { return KeyProp; }
	FProperty* GetValueProperty() const { return ValueProp; }
	/** The key first, then the value. */
	void AddCppProperty(FProperty* Property) override;
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool PassCPPArgsByRef() const override { return true; }
	void LinkInternal(FArchive& Ar) override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	bool ContainsInstancedObjectProperty() const override
	{
		return KeyProp->ContainsInstancedObjectProperty() || ValueProp->ContainsInstancedObjectProperty();
	}
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
	void CollectReferences(void* Value, FReferenceCollector& Collector, const UObject* ReferencingObject) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	void InitializeValueInternal(void* Dest) const override;
	void DestroyValueInternal(void* Dest) const override;
	void ClearValueInternal(void* Data) const override;
};

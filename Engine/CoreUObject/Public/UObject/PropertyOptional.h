#pragma once

#include "UObject/PropertyBase.h"

/** A TOptional: the value's memory, then the byte that tells whether it is set. */
class COREUOBJECT_API FOptionalProperty : public FProperty
{
	DECLARE_FIELD(FOptionalProperty, FProperty, CASTCLASS_FOptionalProperty)

	~FOptionalProperty() override;
	FProperty* GetValueProperty() const { return ValueProperty; }
	bool IsSet(const void* Data) const;
	/** Makes the optional set (a default value if it was not) and answers the value's memory. */
	void* MarkSetAndGetInitializedValuePointerToReplace(void* Data) const;
	void MarkUnset(void* Data) const;
	/** Null while unset. */
	const void* GetValuePointerForReadIfSet(const void* Data) const;
	void* GetValuePointerForReplaceIfSet(void* Data) const;

	void AddCppProperty(FProperty* Property) override;
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool PassCPPArgsByRef() const override { return true; }
	int32 GetMinAlignment() const override;
	void LinkInternal(FArchive& Ar) override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	bool ContainsInstancedObjectProperty() const override { return ValueProperty->ContainsInstancedObjectProperty(); }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
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

private:
	bool* GetIsSetFlag(void* Data) const;

	/** Owned. Null only until AddCppProperty. */
	FProperty* ValueProperty = nullptr;
};

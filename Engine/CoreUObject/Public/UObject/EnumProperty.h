#pragma once

#include "UObject/NumericProperty.h"

/** An `enum class` value over an underlying number. Its text is the enumerator's short name. */
class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty, CASTCLASS_FEnumProperty)

	~FEnumProperty() override;

	UEnum* GetEnum() const { return Enum; }
	void SetEnum(UEnum* InEnum);
	FNumericProperty* GetUnderlyingProperty() const { return UnderlyingProp; }

	void AddCppProperty(FProperty* Property) override;
	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	int32 GetMinAlignment() const override;
	void LinkInternal(FArchive& Ar) override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void CopyValuesInternal(void* Dest, const void* Src, int32 Count) const override;
	void InitializeValueInternal(void* Dest) const override;
	void DestroyValueInternal(void* Dest) const override {}
	void ClearValueInternal(void* Data) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override;

private:
	/** Owned. Null until AddCppProperty. */
	FNumericProperty* UnderlyingProp = nullptr;
	UEnum* Enum = nullptr;
};

#pragma once

#include "UObject/PropertyBase.h"
#include "UObject/ScriptDelegates.h"

class UFunction;

class COREUOBJECT_API FDelegateProperty : public TProperty<FScriptDelegate, FProperty>
{
	using FBase = TProperty<FScriptDelegate, FProperty>;
	DECLARE_FIELD(FDelegateProperty, FBase, CASTCLASS_FDelegateProperty)

	UFunction* SignatureFunction = nullptr;

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

class COREUOBJECT_API FMulticastDelegateProperty : public TProperty<FMulticastScriptDelegate, FProperty>
{
	using FBase = TProperty<FMulticastScriptDelegate, FProperty>;
	DECLARE_ABSTRACT_FIELD(FMulticastDelegateProperty, FBase, CASTCLASS_FMulticastDelegateProperty)

	UFunction* SignatureFunction = nullptr;

	const FMulticastScriptDelegate* GetMulticastDelegate(const void* PropertyValue) const { return GetPropertyValuePtr(PropertyValue); }
	void SetMulticastDelegate(void* PropertyValue, FMulticastScriptDelegate ScriptDelegate) const
	{
		SetPropertyValue(PropertyValue, ScriptDelegate);
	}
	void AddDelegate(FScriptDelegate ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const;
	void RemoveDelegate(const FScriptDelegate& ScriptDelegate, UObject* Parent = nullptr, void* PropertyValue = nullptr) const;
	void ClearDelegate(UObject* Parent = nullptr, void* PropertyValue = nullptr) const;

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	bool ContainsObjectReference(
		TArray<const FStructProperty*>& EncounteredStructProps, EPropertyObjectReferenceType InReferenceType) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

private:
	FMulticastScriptDelegate& ResolveDelegate(UObject* Parent, void* PropertyValue) const;
};

class COREUOBJECT_API FMulticastInlineDelegateProperty : public FMulticastDelegateProperty
{
	DECLARE_FIELD(FMulticastInlineDelegateProperty, FMulticastDelegateProperty, CASTCLASS_FMulticastInlineDelegateProperty)
};

/** A delegate that native code stores sparsely; here its value is held inline, which scripts cannot tell apart. */
class COREUOBJECT_API FMulticastSparseDelegateProperty : public FMulticastDelegateProperty
{
	DECLARE_FIELD(FMulticastSparseDelegateProperty, FMulticastDelegateProperty, CASTCLASS_FMulticastSparseDelegateProperty)
};

#pragma once

#include "UObject/FieldPath.h"
#include "UObject/PropertyBase.h"

/** A TFieldPath. */
class COREUOBJECT_API FFieldPathProperty : public TProperty_WithEqualityAndSerializer<FFieldPath, FProperty>
{
	using FBase = TProperty_WithEqualityAndSerializer<FFieldPath, FProperty>;
	DECLARE_FIELD(FFieldPathProperty, FBase, CASTCLASS_FFieldPathProperty)

	/** Class of the fields that values may point at. */
	FFieldClass* PropertyClass = FField::StaticClass();

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

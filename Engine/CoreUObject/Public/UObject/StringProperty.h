#pragma once

#include "Internationalization/Text.h"
#include "UObject/PropertyBase.h"

class COREUOBJECT_API FNameProperty : public TProperty_WithEqualityAndSerializer<FName, FProperty>
{
	using FBase = TProperty_WithEqualityAndSerializer<FName, FProperty>;
	DECLARE_FIELD(FNameProperty, FBase, CASTCLASS_FNameProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

/** Values compare with regard to case, since a change of case is a change to save. */
class COREUOBJECT_API FStrProperty : public TProperty_WithEqualityAndSerializer<FString, FProperty>
{
	using FBase = TProperty_WithEqualityAndSerializer<FString, FProperty>;
	DECLARE_FIELD(FStrProperty, FBase, CASTCLASS_FStrProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool PassCPPArgsByRef() const override { return true; }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
	/** Quoted and escaped as a struct member's text is: `a "b"` becomes `"a \"b\""`. */
	static FString ExportCppHardcodedText(const FString& InSource, const FString& Indent);

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

class COREUOBJECT_API FTextProperty : public TProperty<FText, FProperty>
{
	using FBase = TProperty<FText, FProperty>;
	DECLARE_FIELD(FTextProperty, FBase, CASTCLASS_FTextProperty)

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool PassCPPArgsByRef() const override { return true; }
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;
	/** Same source string, namespace and key. */
	static bool Identical_Implementation(const FText& A, const FText& B, uint32 PortFlags = 0);

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

#pragma once

#include "UObject/PropertyBase.h"

class UEnum;

/** A number of any kind, or a byte with an enum. */
class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_ABSTRACT_FIELD(FNumericProperty, FProperty, CASTCLASS_FNumericProperty)

	bool IsEnum() const { return GetIntPropertyEnum() != nullptr; }
	virtual bool IsFloatingPoint() const = 0;
	virtual bool IsInteger() const = 0;
	/** The enum of a byte property, or null. */
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }
	virtual bool CanHoldValue(int64 Value) const = 0;
	virtual void SetIntPropertyValue(void* Data, uint64 Value) const = 0;
	virtual void SetIntPropertyValue(void* Data, int64 Value) const = 0;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const = 0;
	/** Text that is no number sets 0. */
	virtual void SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const = 0;
	virtual int64 GetSignedIntPropertyValue(const void* Data) const = 0;
	virtual uint64 GetUnsignedIntPropertyValue(const void* Data) const = 0;
	virtual double GetFloatingPointPropertyValue(const void* Data) const = 0;
	virtual FString GetNumericPropertyValueToString(const void* Data) const = 0;
	int64 GetSignedIntPropertyValue_InContainer(const void* Container, int32 ArrayIndex = 0) const
	{
		return GetSignedIntPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex));
	}

	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;

protected:
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

/** What the number properties share; instantiated in NumericProperty.cpp. */
template <typename InTCppType>
class TProperty_Numeric : public TProperty_WithEqualityAndSerializer<InTCppType, FNumericProperty>
{
public:
	using TTypeFundamentals = TProperty_WithEqualityAndSerializer<InTCppType, FNumericProperty>;
	using TTypeFundamentals::TTypeFundamentals;

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool IsFloatingPoint() const override { return std::is_floating_point_v<InTCppType>; }
	bool IsInteger() const override { return std::is_integral_v<InTCppType>; }
	bool CanHoldValue(int64 Value) const override;
	void SetIntPropertyValue(void* Data, uint64 Value) const override { this->SetPropertyValue(Data, static_cast<InTCppType>(Value)); }
	void SetIntPropertyValue(void* Data, int64 Value) const override { this->SetPropertyValue(Data, static_cast<InTCppType>(Value)); }
	void SetFloatingPointPropertyValue(void* Data, double Value) const override;
	void SetNumericPropertyValueFromString(void* Data, const TCHAR* Value) const override;
	int64 GetSignedIntPropertyValue(const void* Data) const override { return static_cast<int64>(this->GetPropertyValue(Data)); }
	uint64 GetUnsignedIntPropertyValue(const void* Data) const override { return static_cast<uint64>(this->GetPropertyValue(Data)); }
	double GetFloatingPointPropertyValue(const void* Data) const override { return static_cast<double>(this->GetPropertyValue(Data)); }
	FString GetNumericPropertyValueToString(const void* Data) const override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
};

class COREUOBJECT_API FInt8Property : public TProperty_Numeric<int8>
{
	DECLARE_FIELD(FInt8Property, TProperty_Numeric<int8>, CASTCLASS_FInt8Property)
};

class COREUOBJECT_API FInt16Property : public TProperty_Numeric<int16>
{
	DECLARE_FIELD(FInt16Property, TProperty_Numeric<int16>, CASTCLASS_FInt16Property)
};

class COREUOBJECT_API FIntProperty : public TProperty_Numeric<int32>
{
	DECLARE_FIELD(FIntProperty, TProperty_Numeric<int32>, CASTCLASS_FIntProperty)
};

class COREUOBJECT_API FInt64Property : public TProperty_Numeric<int64>
{
	DECLARE_FIELD(FInt64Property, TProperty_Numeric<int64>, CASTCLASS_FInt64Property)
};

class COREUOBJECT_API FUInt16Property : public TProperty_Numeric<uint16>
{
	DECLARE_FIELD(FUInt16Property, TProperty_Numeric<uint16>, CASTCLASS_FUInt16Property)
};

class COREUOBJECT_API FUInt32Property : public TProperty_Numeric<uint32>
{
	DECLARE_FIELD(FUInt32Property, TProperty_Numeric<uint32>, CASTCLASS_FUInt32Property)
};

class COREUOBJECT_API FUInt64Property : public TProperty_Numeric<uint64>
{
	DECLARE_FIELD(FUInt64Property, TProperty_Numeric<uint64>, CASTCLASS_FUInt64Property)
};

class COREUOBJECT_API FFloatProperty : public TProperty_Numeric<float>
{
	DECLARE_FIELD(FFloatProperty, TProperty_Numeric<float>, CASTCLASS_FFloatProperty)
};

class COREUOBJECT_API FDoubleProperty : public TProperty_Numeric<double>
{
	DECLARE_FIELD(FDoubleProperty, TProperty_Numeric<double>, CASTCLASS_FDoubleProperty)
};

/** A byte, or a TEnumAsByte when Enum is set: then its text and its tagged form are the enumerator's name. */
class COREUOBJECT_API FByteProperty : public TProperty_Numeric<uint8>
{
	DECLARE_FIELD(FByteProperty, TProperty_Numeric<uint8>, CASTCLASS_FByteProperty)

	UEnum* Enum = nullptr;

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	void AddReferencedObjects(FReferenceCollector& Collector) override;
	bool SameType(const FProperty* Other) const override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	UEnum* GetIntPropertyEnum() const override { return Enum; }
	void SerializeItem(FArchive& Ar, void* Value, const void* Defaults = nullptr) const override;
	EConvertFromTypeResult ConvertFromType(
		const FPropertyTag& Tag, FArchive& Ar, uint8* Data, UStruct* DefaultsStruct, const uint8* Defaults) override;

protected:
	void ExportText_Internal(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags,
		UObject* ExportRootScope) const override;
	const TCHAR* ImportText_Internal(
		const TCHAR* Buffer, void* PropertyValue, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

/** A native `bool`, or one bit of a byte. */
class COREUOBJECT_API FBoolProperty : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty, CASTCLASS_FBoolProperty)

	/** BitMask is the bit's mask within its storage unit of InSize bytes; 0 with a native bool. */
	void SetBoolSize(uint32 InSize, bool bIsNativeBool = false, uint32 InBitMask = 0);
	bool GetPropertyValue(const void* A) const;
	void SetPropertyValue(void* A, bool Value) const;
	bool GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	void SetPropertyValue_InContainer(void* A, bool Value, int32 ArrayIndex = 0) const
	{
		SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value);
	}
	bool GetOptionalPropertyValue(const void* A) const { return A && GetPropertyValue(A); }
	bool IsNativeBool() const { return FieldMask == 0xff; }
	uint8 GetFieldMask() const { return FieldMask; }
	uint8 GetByteMask() const { return ByteMask; }
	uint8 GetByteOffset() const { return ByteOffset; }

	void Serialize(FArchive& Ar) override;
	void PostDuplicate(const FField& InField) override;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	int32 GetMinAlignment() const override;
	void LinkInternal(FArchive& Ar) override;
	int32 SetupOffset(int32 Offset) override;
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
	void ClearValueInternal(void* Data) const override { SetPropertyValue(Data, false); }
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetPropertyValue(Src) ? 1 : 0; }

private:
	uint8 FieldSize = 1;
	/** The byte within the field that has the bit. */
	uint8 ByteOffset = 0;
	uint8 ByteMask = 1;
	/** 0xff marks a native bool. */
	uint8 FieldMask = 0xff;
};

#pragma once

#include "CoreMinimal.h"
#include "UObject/PropertyTypeName.h"

class FArchive;
class FProperty;
class UStruct;

/**
 * What stands before each value in a saved object: the property's name and type, and the value's size, so that a reader that
 * lacks the property can step over it. Name is None after the last value.
 */
struct COREUOBJECT_API FPropertyTag
{
	FPropertyTag() = default;
	FPropertyTag(FProperty* InProperty, int32 InIndex, uint8* Value);

	FProperty* GetProperty() const { return Prop; }
	void SetProperty(FProperty* InProperty) { Prop = InProperty; }
	FPropertyTypeName GetType() const { return TypeName; }
	void SetType(const FPropertyTypeName& InTypeName);
	bool IsType(FName InTypeName) const { return Type == InTypeName; }
	/** Reads or writes Value of Property in the form that the tag tells, a bool from the tag itself. */
	void SerializeTaggedProperty(FArchive& Ar, FProperty* Property, uint8* Value, const uint8* Defaults) const;

	/** In the form of the archive's version; a hostile tag sets the archive's error. */
	friend COREUOBJECT_API FArchive& operator<<(FArchive& Ar, FPropertyTag& Tag);

	FName Type;
	FName Name;
	/** Of a struct, an enum (or a byte's enum); None elsewhere. */
	FName StructName;
	FName EnumName;
	/** Element type of array and set, key type of a map. */
	FName InnerType;
	FName ValueType;
	FGuid StructGuid;
	FGuid PropertyGuid;
	/** Bytes of the value. */
	int32 Size = 0;
	/** Element of a static array. */
	int32 ArrayIndex = 0;
	/** Where Size stands in the archive, for filling it in when the value has been written. -1 before. */
	int64 SizeOffset = -1;
	uint8 BoolVal = 0;
	uint8 HasPropertyGuid = 0;
	/** The value was written by the struct's own native serializer. */
	bool bHasBinaryOrNativeSerialize = false;
	/** The value was written with members' tags skipped. */
	bool bSkippedSerialize = false;

private:
	void SerializeOldForm(FArchive& Ar);
	void SerializeCompleteTypeName(FArchive& Ar);
	void SerializeExtensions(FArchive& Ar, bool bHasExtensions);
	void SetNamesFromType();
	void SetTypeFromNames();

	FProperty* Prop = nullptr;
	FPropertyTypeName TypeName;
};

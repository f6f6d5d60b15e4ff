#pragma once

#include "UObject/Field.h"
#include "UObject/GeneratedCppIncludes.h"

class FProperty;
class UField;

/** A property's type as data, for classes that are made at run time. */
struct COREUOBJECT_API FPropertyDescription
{
	FName Name;
	UECodeGen_Private::EPropertyGenKind Kind = UECodeGen_Private::EPropertyGenKind::Int;
	EPropertyFlags PropertyFlags = CPF_None;
	int32 ArrayDim = 1;
	/** Class of object kinds (for Class kinds UClass or below), struct, enum, or signature function. */
	UField* Type = nullptr;
	/** The T of TSubclassOf<T> and TSoftClassPtr<T>. */
	UClass* MetaClass = nullptr;
	/** Element of Array and Set, key of Map, underlying number of Enum (a byte if missing), value of Optional. */
	TSharedPtr<FPropertyDescription> Inner;
	/** Value of Map. */
	TSharedPtr<FPropertyDescription> Value;
	FName RepNotifyFunc;
	TMap<FName, FString> MetaData;
};

/** Constructs without linking or placing; UStruct::Link does both. Null when the description lacks a type that its kind needs. */
COREUOBJECT_API FProperty* ConstructPropertyFromDescription(FFieldVariant Owner, const FPropertyDescription& Description);

namespace UECodeGen_Private
{
/**
 * A property of a native type, at its C++ offset, linked; inner properties with it. It is owned by Owner but not yet in its
 * chain: UStruct::AddCppProperty adds it. Offsets of a function's parameters are left for the function's Link.
 * OwnerSize is sizeof the owner, from which a bit-field's byte and mask are found.
 */
COREUOBJECT_API FProperty* ConstructProperty(FFieldVariant Owner, const FPropertyParams& Params, uint32 OwnerSize = 0);
}

#pragma once

#include "CoreMinimal.h"
#include "UObject/CppStructOps.h"

class FProperty;
class FReferenceCollector;
class UObject;
class UStruct;

/** Where the strong references are in a value of a struct or class, made of its properties once. */
struct FReferenceSchema
{
	enum class EKind : uint8
	{
		/** A pointer. */
		Object,
		/** TArray of pointers. */
		ObjectArray,
		/** TArray of structs with references. */
		StructArray,
		/** A struct that finds its references itself. */
		StructFunction,
		/** Anything else: the property visits the value. */
		Property
	};

	struct FMember
	{
		EKind Kind;
		/** Bytes from the start of the value. */
		int32 Offset;
		/** Bytes of one element of a StructArray. */
		int32 Stride = 0;
		const UStruct* ElementStruct = nullptr;
		const FProperty* Property = nullptr;
		TPointerToAddStructReferencedObjects Function = nullptr;
	};

	TArray<FMember> Members;

	/** Adds what the struct's properties (its supers' too) hold at BaseOffset. */
	void AddStruct(const UStruct* Struct, int32 BaseOffset);
	void AddProperty(const FProperty* Property, int32 BaseOffset);
	COREUOBJECT_API void Visit(void* Data, FReferenceCollector& Collector, const UObject* ReferencingObject) const;
};

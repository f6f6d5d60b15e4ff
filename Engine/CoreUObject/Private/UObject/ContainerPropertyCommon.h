#pragma once

#include "Serialization/Archive.h"
#include "UObject/PropertyHelper.h"
#include "UObject/PropertyTag.h"
#include "UObject/UnknownProperties.h"
#include "UObject/UnrealType.h"

/** Memory of one value of a property's type, initialized for as long as this lives. */
class FPropertyTemporary
{
public:
	explicit FPropertyTemporary(const FProperty* InProperty)
		: Property(InProperty)
		, Memory(InProperty->AllocateAndInitializeValue())
	{
	}
	~FPropertyTemporary() { Property->DestroyAndFreeValue(Memory); }
	FPropertyTemporary(const FPropertyTemporary&) = delete;
	FPropertyTemporary& operator=(const FPropertyTemporary&) = delete;

	void* Get() const { return Memory; }
	void Clear() const { Property->ClearValue(Memory); }

private:
	const FProperty* Property;
	void* Memory;
};

/** How the elements of a container are read: as they are, or converted from the type that the tag tells. */
class FElementReader
{
public:
	/** An empty type name means the element's own type. */
	FElementReader(FProperty* InElement, const FPropertyTypeName& SavedType);

	/** False when values of the saved type cannot become elements. */
	bool CanRead() const { return bCanRead; }
	/** Reads one value into initialized memory. */
	bool Read(FArchive& Ar, void* Value, const void* Defaults = nullptr) const;

private:
	FProperty* Element;
	FPropertyTag Tag;
	bool bConvert = false;
	bool bCanRead = true;
};

/** Serializes an inner property's definition and takes ownership of what was loaded. A missing one is an error of the archive. */
void SerializeInnerProperty(FArchive& Ar, FProperty*& Inner, FField* Owner);

/** Goes past blanks and the comma between two elements. */
inline const TCHAR* SkipElementSeparator(const TCHAR* Buffer)
{
	Buffer = FPropertyHelpers::SkipWhitespace(Buffer);
	return *Buffer == TEXT(',') ? FPropertyHelpers::SkipWhitespace(Buffer + 1) : Buffer;
}

/** Whether a text stands for a container without elements: an empty array is written as nothing. */
inline bool IsEmptyContainerText(TCHAR First)
{
	return First == TEXT('\0') || First == TEXT(')') || First == TEXT(',');
}

/** The flags that a container hands on to its element. */
inline void PropagateFlagsToElement(FProperty* Container, FProperty* Element, EPropertyFlags Propagated)
{
	Element->PropertyFlags |= Container->PropertyFlags & Propagated;
	if (Element->ContainsInstancedObjectProperty())
	{
		Container->PropertyFlags |= CPF_ContainsInstancedReference;
	}
}

#pragma once

#include "CoreMinimal.h"
#include "Templates/AlignmentTemplates.h"
#include "UObject/UnrealType.h"

/** One value of a property that nobody else knows of. The property must outlive it. */
class FLumTemporaryValue
{
public:
	explicit FLumTemporaryValue(const FProperty& InProperty)
		: Property(InProperty)
		, Data(Fits(InProperty) ? Inline : FMemory::Malloc(InProperty.GetSize(), InProperty.GetMinAlignment()))
	{
		Property.InitializeValue(Data);
	}
	/** Starts as a copy of the value at Source. */
	FLumTemporaryValue(const FProperty& InProperty, const void* Source)
		: FLumTemporaryValue(InProperty)
	{
		Property.CopyCompleteValue(Data, Source);
	}
	~FLumTemporaryValue()
	{
		Property.DestroyValue(Data);
		if (Data != Inline)
		{
			FMemory::Free(Data);
		}
	}
	FLumTemporaryValue(const FLumTemporaryValue&) = delete;
	FLumTemporaryValue& operator=(const FLumTemporaryValue&) = delete;

	void* Get() const { return Data; }

private:
	/** Numbers, names, strings and small structs need no allocation. */
	static constexpr int32 InlineSize = 64;
	static constexpr int32 InlineAlignment = 16;

	static bool Fits(const FProperty& Property)
	{
		return Property.GetSize() <= InlineSize && Property.GetMinAlignment() <= InlineAlignment;
	}

	const FProperty& Property;
	alignas(InlineAlignment) uint8 Inline[InlineSize];
	void* const Data;
};

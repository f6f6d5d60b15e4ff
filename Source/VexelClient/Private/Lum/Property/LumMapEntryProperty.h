#pragma once

#include "Lum/LumProperty.h"
#include "Lum/Value/LumValuePlace.h"

/** One entry of a map, under its index; its compound has the key and the value. */
class FLumMapEntryProperty : public ILumCompoundProperty
{
public:
	FLumMapEntryProperty(int32 InIndex, const FLumValuePlaceRef& InKey, const FLumValuePlaceRef& InValue)
		: Index(InIndex)
		, Key(InKey)
		, Value(InValue)
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return TVexelPropId(FString::FromInt(Index)); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override;
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override;
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return CPF_None; }
	virtual TVexelExpected<FString> GetCategory() const override { return FString(); }
	virtual TVexelExpected<TSharedPtr<ILumCompound>> GetCompound() const override;

private:
	int32 Index;
	FLumValuePlaceRef Key;
	FLumValuePlaceRef Value;
};

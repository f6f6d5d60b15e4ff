#pragma once

#include "Lum/LumProperty.h"

class FMapProperty;

/** One entry of a map, under its index; its compound has the key and the value. The map must outlive it. */
class FLumMapEntryProperty : public ILumCompoundProperty
{
public:
	FLumMapEntryProperty(int32 InIndex, const FMapProperty& InMap, void* InKey, void* InValue)
		: Index(InIndex)
		, Map(InMap)
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
	const FMapProperty& Map;
	void* Key;
	void* Value;
};

#pragma once

#include "Lum/LumCompound.h"

class FMapProperty;

/** One entry of a map: the properties "key" and "value". The map must outlive it. */
class FLumMapEntryCompound : public ILumCompound
{
public:
	FLumMapEntryCompound(const FMapProperty& InMap, void* InKey, void* InValue)
		: Map(InMap)
		, Key(InKey)
		, Value(InValue)
	{
	}

	static TVexelPropTypeId MakeType() { return TVexelPropTypeId(TEXT("map_entry")); }

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override { return MakeType(); }

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	const FMapProperty& Map;
	void* Key;
	void* Value;
};

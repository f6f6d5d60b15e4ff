#pragma once

#include "Lum/LumCompound.h"
#include "Lum/Value/LumValuePlace.h"

/** One entry of a map: the properties "key" and "value". */
class FLumMapEntryCompound : public ILumCompound
{
public:
	FLumMapEntryCompound(const FLumValuePlaceRef& InKey, const FLumValuePlaceRef& InValue)
		: Key(InKey)
		, Value(InValue)
	{
	}

	/** Ids of the two properties. */
	static constexpr const TCHAR* KeyId = TEXT("key");
	static constexpr const TCHAR* ValueId = TEXT("value");

	static TVexelPropTypeId MakeType() { return TVexelPropTypeId(TEXT("map_entry")); }

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override { return MakeType(); }

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	FLumValuePlaceRef Key;
	FLumValuePlaceRef Value;
};

#pragma once

#include "Lum/LumCompound.h"
#include "Lum/LumProperty.h"

/** One value that has no name of its own, as the property "value". */
class FLumSingleValueCompound : public ILumCompound
{
public:
	explicit FLumSingleValueCompound(const TSharedRef<ILumProperty>& InValue)
		: Value(InValue)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override { return Value->GetValueTypeId(); }

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	TSharedRef<ILumProperty> Value;
};

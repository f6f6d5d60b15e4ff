#pragma once

#include "Lum/LumCompound.h"

class FArrayProperty;
class FMapProperty;
class FSetProperty;

/**
 * The elements of an array or a set, or the entries of a map, in the container's iteration order. The container must outlive it.
 */
template <typename ContainerPropertyType>
class TLumUnrealContainerCompound final : public ILumCollectionCompound
{
public:
	TLumUnrealContainerCompound(const ContainerPropertyType& InProperty, void* InData)
		: Property(InProperty)
		, Data(InData)
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override;
	virtual TVexelExpected<int32> GetNum() const override;

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override;

private:
	const ContainerPropertyType& Property;
	void* Data;
};

using FLumUnrealArrayCompound = TLumUnrealContainerCompound<FArrayProperty>;
using FLumUnrealSetCompound = TLumUnrealContainerCompound<FSetProperty>;
using FLumUnrealMapCompound = TLumUnrealContainerCompound<FMapProperty>;

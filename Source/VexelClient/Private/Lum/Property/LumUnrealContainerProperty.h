#pragma once

#include "Lum/Compound/LumUnrealContainerCompound.h"
#include "Lum/LumCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

/** A property that is a container, whose contents are a compound of their own. */
template <typename PropertyType, typename CompoundType>
class TLumUnrealContainerProperty : public TLumUnrealProperty<ILumCollectionProperty>
{
public:
	using TLumUnrealProperty<ILumCollectionProperty>::TLumUnrealProperty;

	virtual TVexelExpected<int32> GetNum() const override;
	virtual TVexelExpected<TSharedPtr<ILumCollectionCompound>> GetCollectionCompound() const override;
};

using FLumUnrealArrayProperty = TLumUnrealContainerProperty<FArrayProperty, FLumUnrealArrayCompound>;
using FLumUnrealSetProperty = TLumUnrealContainerProperty<FSetProperty, FLumUnrealSetCompound>;
using FLumUnrealMapProperty = TLumUnrealContainerProperty<FMapProperty, FLumUnrealMapCompound>;

extern template class TLumUnrealContainerProperty<FArrayProperty, FLumUnrealArrayCompound>;
extern template class TLumUnrealContainerProperty<FSetProperty, FLumUnrealSetCompound>;
extern template class TLumUnrealContainerProperty<FMapProperty, FLumUnrealMapCompound>;

#pragma once

#include "Lum/Compound/LumUnrealContainerCompound.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

/** A property that is a container, whose contents are a compound of their own. */
template <typename CompoundType>
class TLumUnrealContainerProperty : public TLumUnrealProperty<ILumCollectionProperty>
{
public:
	using TLumUnrealProperty<ILumCollectionProperty>::TLumUnrealProperty;

	virtual TVexelExpected<int32> GetNum() const override;
	virtual TVexelExpected<TSharedPtr<ILumCollectionCompound>> GetCollectionCompound() const override;

protected:
	virtual TVexelExpected<void> ImportValue(const FLumContext& Context, const TSharedRef<FJsonValue>& Value) override
	{
		return ILumCompoundProperty::JsonImportValue(Context, Value);
	}
};

using FLumUnrealArrayProperty = TLumUnrealContainerProperty<FLumUnrealArrayCompound>;
using FLumUnrealSetProperty = TLumUnrealContainerProperty<FLumUnrealSetCompound>;
using FLumUnrealMapProperty = TLumUnrealContainerProperty<FLumUnrealMapCompound>;

extern template class TLumUnrealContainerProperty<FLumUnrealArrayCompound>;
extern template class TLumUnrealContainerProperty<FLumUnrealSetCompound>;
extern template class TLumUnrealContainerProperty<FLumUnrealMapCompound>;

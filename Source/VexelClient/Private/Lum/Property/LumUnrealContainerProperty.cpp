#include "Lum/Property/LumUnrealContainerProperty.h"

#include "Lum/Compound/LumUnrealContainerCompound.h"

template <typename PropertyType, typename CompoundType>
TVexelExpected<int32> TLumUnrealContainerProperty<PropertyType, CompoundType>::GetNum() const
{
	VEXEL_TRY(const TSharedPtr<ILumCollectionCompound> Compound, GetCollectionCompound());
	return Compound->GetNum();
}

template <typename PropertyType, typename CompoundType>
TVexelExpected<TSharedPtr<ILumCollectionCompound>> TLumUnrealContainerProperty<PropertyType, CompoundType>::GetCollectionCompound() const
{
	VEXEL_TRY_VOID(CheckProperty());
	return MakeShared<CompoundType>(*CastFieldChecked<PropertyType>(Property), Data);
}

template class TLumUnrealContainerProperty<FArrayProperty, FLumUnrealArrayCompound>;
template class TLumUnrealContainerProperty<FSetProperty, FLumUnrealSetCompound>;
template class TLumUnrealContainerProperty<FMapProperty, FLumUnrealMapCompound>;

#include "Lum/Property/LumUnrealContainerProperty.h"

#include "Lum/Compound/LumUnrealContainerCompound.h"

template <typename CompoundType>
TVexelExpected<int32> TLumUnrealContainerProperty<CompoundType>::GetNum() const
{
	VEXEL_TRY(const TSharedPtr<ILumCollectionCompound> Compound, GetCollectionCompound());
	return Compound->GetNum();
}

template <typename CompoundType>
TVexelExpected<TSharedPtr<ILumCollectionCompound>> TLumUnrealContainerProperty<CompoundType>::GetCollectionCompound() const
{
	VEXEL_TRY_VOID(CheckProperty());
	return MakeShared<CompoundType>(Place);
}

template class TLumUnrealContainerProperty<FLumUnrealArrayCompound>;
template class TLumUnrealContainerProperty<FLumUnrealSetCompound>;
template class TLumUnrealContainerProperty<FLumUnrealMapCompound>;

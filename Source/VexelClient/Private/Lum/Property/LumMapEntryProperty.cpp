#include "Lum/Property/LumMapEntryProperty.h"

#include "Lum/Compound/LumMapEntryCompound.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

TVexelExpected<TVexelPropTypeId> FLumMapEntryProperty::GetOwnerTypeId() const
{
	return FLumUnrealBaseProperty::ReadOwnerTypeIdOf(Key->GetProperty());
}

TVexelExpected<TVexelPropTypeId> FLumMapEntryProperty::GetValueTypeId() const
{
	return FLumMapEntryCompound::MakeType();
}

TVexelExpected<TSharedPtr<ILumCompound>> FLumMapEntryProperty::GetCompound() const
{
	return MakeShared<FLumMapEntryCompound>(Key, Value);
}

#include "Lum/Property/LumMapEntryProperty.h"

#include "Lum/Compound/LumMapEntryCompound.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

TVexelExpected<TVexelPropTypeId> FLumMapEntryProperty::GetOwnerTypeId() const
{
	return FLumUnrealBaseProperty(&Map, Key).ReadOwnerTypeId();
}

TVexelExpected<TVexelPropTypeId> FLumMapEntryProperty::GetValueTypeId() const
{
	return FLumMapEntryCompound::MakeType();
}

TVexelExpected<TSharedPtr<ILumCompound>> FLumMapEntryProperty::GetCompound() const
{
	return MakeShared<FLumMapEntryCompound>(Map, Key, Value);
}

#include "Lum/Compound/LumUnrealContainerCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Property/LumMapEntryProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

namespace
{
TVexelExpected<TSharedRef<ILumProperty>> MakeElement(int32 Index, const FProperty& ElementProperty, void* ElementData)
{
	const TSharedPtr<ILumProperty> Element = FLumUnrealPropertyFactory::CreateSubProperty(ElementProperty, ElementData);
	if (!Element)
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	return MakeShared<FLumIndexedForwardingProperty>(Index, Element.ToSharedRef());
}
}

TVexelExpected<TVexelPropTypeId> FLumUnrealArrayCompound::GetCompoundType() const
{
	return FLumHelper::GetPropertyTypeId(Property);
}

TVexelExpected<int32> FLumUnrealArrayCompound::GetNum() const
{
	return FScriptArrayHelper(&Property, Data).Num();
}

TVexelExpected<void> FLumUnrealArrayCompound::Iterate(ILumPropertyCollector& Collector) const
{
	const FScriptArrayHelper Array(&Property, Data);
	TArray<TSharedRef<ILumProperty>> Items;
	for (int32 Index = 0; Index < Array.Num(); ++Index)
	{
		VEXEL_TRY(const TSharedRef<ILumProperty> Item, MakeElement(Index, *Property.Inner, Array.GetRawPtr(Index)));
		Items.Add(Item);
	}
	return FLumHelper::CollectIndexedItems(Collector, Items);
}

TVexelExpected<TVexelPropTypeId> FLumUnrealSetCompound::GetCompoundType() const
{
	return FLumHelper::GetPropertyTypeId(Property);
}

TVexelExpected<int32> FLumUnrealSetCompound::GetNum() const
{
	return FScriptSetHelper(&Property, Data).Num();
}

TVexelExpected<void> FLumUnrealSetCompound::Iterate(ILumPropertyCollector& Collector) const
{
	const FScriptSetHelper Set(&Property, Data);
	TArray<TSharedRef<ILumProperty>> Items;
	for (FScriptSetHelper::FIterator It = Set.CreateIterator(); It; ++It)
	{
		VEXEL_TRY(const TSharedRef<ILumProperty> Item, MakeElement(It.GetLogicalIndex(), *Property.ElementProp, Set.GetElementPtr(It.GetInternalIndex())));
		Items.Add(Item);
	}
	return FLumHelper::CollectIndexedItems(Collector, Items);
}

TVexelExpected<TVexelPropTypeId> FLumUnrealMapCompound::GetCompoundType() const
{
	return FLumHelper::GetPropertyTypeId(Property);
}

TVexelExpected<int32> FLumUnrealMapCompound::GetNum() const
{
	return FScriptMapHelper(&Property, Data).Num();
}

TVexelExpected<void> FLumUnrealMapCompound::Iterate(ILumPropertyCollector& Collector) const
{
	const FScriptMapHelper Map(&Property, Data);
	TArray<TSharedRef<ILumProperty>> Items;
	for (FScriptMapHelper::FIterator It = Map.CreateIterator(); It; ++It)
	{
		const int32 Index = It.GetInternalIndex();
		Items.Add(MakeShared<FLumMapEntryProperty>(It.GetLogicalIndex(), Property, Map.GetKeyPtr(Index), Map.GetValuePtr(Index)));
	}
	return FLumHelper::CollectIndexedItems(Collector, Items);
}

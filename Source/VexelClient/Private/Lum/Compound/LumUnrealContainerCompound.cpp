#include "Lum/Compound/LumUnrealContainerCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Property/LumMapEntryProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

namespace
{
using FItems = TArray<TSharedRef<ILumProperty>>;

int32 CountItems(const FArrayProperty& Property, void* Data)
{
	return FScriptArrayHelper(&Property, Data).Num();
}

int32 CountItems(const FSetProperty& Property, void* Data)
{
	return FScriptSetHelper(&Property, Data).Num();
}

int32 CountItems(const FMapProperty& Property, void* Data)
{
	return FScriptMapHelper(&Property, Data).Num();
}

TVexelExpected<void> AddElement(FItems& Items, int32 Index, const FProperty& ElementProperty, void* ElementData)
{
	const TSharedPtr<ILumProperty> Element = FLumUnrealPropertyFactory::CreateSubProperty(ElementProperty, ElementData);
	if (!Element)
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	Items.Add(MakeShared<FLumIndexedForwardingProperty>(Index, Element.ToSharedRef()));
	return {};
}

TVexelExpected<void> AddItems(FItems& Items, const FArrayProperty& Property, void* Data)
{
	const FScriptArrayHelper Array(&Property, Data);
	for (int32 Index = 0; Index < Array.Num(); ++Index)
	{
		VEXEL_TRY_VOID(AddElement(Items, Index, *Property.Inner, Array.GetRawPtr(Index)));
	}
	return {};
}

TVexelExpected<void> AddItems(FItems& Items, const FSetProperty& Property, void* Data)
{
	const FScriptSetHelper Set(&Property, Data);
	for (FScriptSetHelper::FIterator It = Set.CreateIterator(); It; ++It)
	{
		VEXEL_TRY_VOID(AddElement(Items, It.GetLogicalIndex(), *Property.ElementProp, Set.GetElementPtr(It.GetInternalIndex())));
	}
	return {};
}

TVexelExpected<void> AddItems(FItems& Items, const FMapProperty& Property, void* Data)
{
	const FScriptMapHelper Map(&Property, Data);
	for (FScriptMapHelper::FIterator It = Map.CreateIterator(); It; ++It)
	{
		const int32 Index = It.GetInternalIndex();
		Items.Add(MakeShared<FLumMapEntryProperty>(It.GetLogicalIndex(), Property, Map.GetKeyPtr(Index), Map.GetValuePtr(Index)));
	}
	return {};
}
}

template <typename ContainerPropertyType>
TVexelExpected<TVexelPropTypeId> TLumUnrealContainerCompound<ContainerPropertyType>::GetCompoundType() const
{
	return FLumHelper::GetPropertyTypeId(Property);
}

template <typename ContainerPropertyType>
TVexelExpected<int32> TLumUnrealContainerCompound<ContainerPropertyType>::GetNum() const
{
	return CountItems(Property, Data);
}

template <typename ContainerPropertyType>
TVexelExpected<void> TLumUnrealContainerCompound<ContainerPropertyType>::Iterate(ILumPropertyCollector& Collector) const
{
	FItems Items;
	VEXEL_TRY_VOID(AddItems(Items, Property, Data));
	return FLumHelper::CollectIndexedItems(Collector, Items);
}

template class TLumUnrealContainerCompound<FArrayProperty>;
template class TLumUnrealContainerCompound<FSetProperty>;
template class TLumUnrealContainerCompound<FMapProperty>;

#include "Lum/Compound/LumUnrealContainerCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumPropertyRoom.h"
#include "Lum/Property/LumUnrealBaseProperty.h"
#include "Lum/Value/LumTemporaryValue.h"

#include "UObject/UnrealType.h"

TVexelExpected<TVexelPropTypeId> FLumUnrealContainerCompound::GetCompoundType() const
{
	return FLumHelper::GetPropertyTypeId(Place->GetProperty());
}

TVexelExpected<int32> FLumUnrealContainerCompound::GetNum() const
{
	VEXEL_TRY(void* const Data, GetData());
	return CountItems(Data);
}

TVexelExpected<void*> FLumUnrealContainerCompound::GetData() const
{
	void* const Data = Place->Resolve();
	if (!Data)
	{
		return VEXEL_ERROR(FLumError_Read, "Property is not valid!");
	}
	return Data;
}

TVexelExpected<void> FLumUnrealContainerCompound::Iterate(ILumPropertyCollector& Collector) const
{
	VEXEL_TRY(void* const Data, GetData());
	TArray<TSharedRef<ILumProperty>> Items;
	const TArray<int32> InternalIndices = GetInternalIndices(Data);
	for (int32 Index = 0; Index < InternalIndices.Num(); ++Index)
	{
		const TSharedPtr<ILumProperty> Item = MakeItem(Index, InternalIndices[Index]);
		if (!Item)
		{
			return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
		}
		Items.Add(Item.ToSharedRef());
	}
	return FLumHelper::CollectIndexedItems(Collector, Items);
}

TVexelExpected<TSharedPtr<ILumProperty>> FLumUnrealContainerCompound::Find(FStringView PropId) const
{
	VEXEL_TRY(void* const Data, GetData());
	int32 Index = INDEX_NONE;
	const bool bIsIndex = FLumHelper::ParseIndex(PropId, Index) && Index < CountItems(Data);
	return bIsIndex ? MakeItem(Index, FindInternalIndex(Data, Index)) : nullptr;
}

TVexelExpected<void> FLumUnrealContainerCompound::CheckCanResize() const
{
	if (Place->GetProperty().HasAnyPropertyFlags(CPF_EditFixedSize))
	{
		return VEXEL_ERROR(FLumError_Import, "The number of elements of '%s' is fixed", *Place->GetProperty().GetName());
	}
	return {};
}

TVexelExpected<void> FLumUnrealContainerCompound::Change(EPropertyChangeType::Type Type, FWork Work) const
{
	return Place->GetOwner()->Change(*Place, Type, Work);
}

void FLumUnrealContainerCompound::CloseGaps(const FProperty& Property, void* Memory)
{
	const FLumTemporaryValue Copy(Property, Memory);
	Property.CopyCompleteValue(Memory, Copy.Get());
}

FLumValuePlaceRef FLumUnrealContainerCompound::MakeNewValue(const FProperty& ElementProperty) const
{
	const TSharedRef<FLumLooseOwner> Owner = MakeShared<FLumLooseOwner>(ElementProperty, Place->GetOwner()->GetReferrer());
	return MakeShared<FLumValuePlace>(Owner, FLumValuePlace::EPart::Whole, ElementProperty);
}

TVexelExpected<void> FLumUnrealContainerCompound::ImportAt(
	const FLumValuePlaceRef& ValuePlace, const FLumContext& Context, const TSharedRef<FJsonValue>& Value)
{
	FLumPropertyRoom Property;
	FLumUnrealPropertyFactory::CreateSubProperty(ValuePlace, Property);
	if (!Property.Get())
	{
		return VEXEL_ERROR(FLumError_Read, "Failed to convert property to pin type!");
	}
	return Property.Get()->JsonImportValue(Context, Value);
}

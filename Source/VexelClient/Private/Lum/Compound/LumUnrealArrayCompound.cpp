#include "Lum/Compound/LumUnrealContainerCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

namespace
{
TVexelExpected<void> CheckKeys(const FJsonObject& Object)
{
	for (const auto& [Key, Value] : Object.Values)
	{
		int32 Index = 0;
		if (!FLumHelper::ParseIndex(Key, Index))
		{
			return VEXEL_ERROR(FLumError_Import, "Invalid array index key: '%s'", *Key);
		}
		if (Index > FLumUnrealArrayCompound::MaxImportIndex)
		{
			return VEXEL_ERROR(
				FLumError_Import, "Array index %d is too large (max %d)", Index, FLumUnrealArrayCompound::MaxImportIndex);
		}
	}
	return {};
}
}

FLumUnrealArrayCompound::FLumUnrealArrayCompound(const FLumValuePlaceRef& InPlace)
	: FLumUnrealContainerCompound(InPlace)
	, Property(*CastFieldChecked<FArrayProperty>(&InPlace->GetProperty()))
{
}

int32 FLumUnrealArrayCompound::CountItems(void* Data) const
{
	return FScriptArrayHelper(&Property, Data).Num();
}

int32 FLumUnrealArrayCompound::FindInternalIndex(void* Data, int32 Index) const
{
	return FScriptArrayHelper(&Property, Data).IsValidIndex(Index) ? Index : INDEX_NONE;
}

TArray<int32> FLumUnrealArrayCompound::GetInternalIndices(void* Data) const
{
	TArray<int32> Indices;
	for (int32 Index = 0; Index < CountItems(Data); ++Index)
	{
		Indices.Add(Index);
	}
	return Indices;
}

FLumValuePlaceRef FLumUnrealArrayCompound::GetElement(int32 Index) const
{
	return MakeShared<FLumValuePlace>(Place, FLumValuePlace::EPart::ArrayElement, *Property.Inner, Index);
}

TSharedPtr<ILumProperty> FLumUnrealArrayCompound::MakeItem(int32 Index, int32 InternalIndex) const
{
	const TSharedPtr<ILumProperty> Element = FLumUnrealPropertyFactory::CreateSubProperty(GetElement(InternalIndex));
	return Element ? TSharedPtr<ILumProperty>(MakeShared<FLumIndexedForwardingProperty>(Index, Element.ToSharedRef())) : nullptr;
}

TVexelExpected<void> FLumUnrealArrayCompound::JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object)
{
	VEXEL_TRY_VOID(CheckKeys(*Object));
	VEXEL_TRY(const auto Elements, FLumHelper::GetSortedElements(*Object));
	return Change(EPropertyChangeType::ValueSet,
		[&]() -> TVexelExpected<void>
		{
			for (const auto& [Index, Value] : Elements)
			{
				VEXEL_TRY_VOID(ImportElement(Context, Index, Value),
					"while importing array element at index %d", Index);
			}
			return {};
		});
}

TVexelExpected<void> FLumUnrealArrayCompound::ImportElement(
	const FLumContext& Context, int32 Index, const TSharedPtr<FJsonValue>& Value)
{
	if (!Value || Value->IsNull())
	{
		return VEXEL_ERROR(FLumError_Import, "Invalid JSON value for key '%d'", Index);
	}
	VEXEL_TRY(const int32 Num, GetNum());
	if (Index < Num)
	{
		return ImportAt(GetElement(Index), Context, Value.ToSharedRef());
	}
	VEXEL_TRY_VOID(CheckCanResize());
	const FLumValuePlaceRef New = MakeNewValue(*Property.Inner);
	VEXEL_TRY_VOID(ImportAt(New, Context, Value.ToSharedRef()));
	return Place->Write(
		[&](void* Memory)
		{
			FScriptArrayHelper Array(&Property, Memory);
			Array.Resize(Index + 1);
			Property.Inner->CopyCompleteValue(Array.GetRawPtr(Index), New->Resolve());
		});
}

TVexelExpected<void> FLumUnrealArrayCompound::InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value)
{
	VEXEL_TRY_VOID(InsertElement(Context, Index, Value), "while inserting array element at index %d", Index);
	return {};
}

TVexelExpected<void> FLumUnrealArrayCompound::InsertElement(
	const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value)
{
	VEXEL_TRY(const int32 Num, GetNum());
	if (Index < 0 || Index > Num)
	{
		return VEXEL_ERROR(FLumError_Import, "Array index out of range");
	}
	VEXEL_TRY_VOID(CheckCanResize());
	const FLumValuePlaceRef New = MakeNewValue(*Property.Inner);
	VEXEL_TRY_VOID(ImportAt(New, Context, Value));
	return Change(EPropertyChangeType::ArrayAdd,
		[&]()
		{
			return Place->Write(
				[&](void* Memory)
				{
					FScriptArrayHelper Array(&Property, Memory);
					Array.InsertValues(Index);
					Property.Inner->CopyCompleteValue(Array.GetRawPtr(Index), New->Resolve());
				});
		});
}

TVexelExpected<void> FLumUnrealArrayCompound::RemoveAt(int32 Index)
{
	VEXEL_TRY(const int32 Num, GetNum());
	if (Index < 0 || Index >= Num)
	{
		return VEXEL_ERROR(FLumError_Import, "Array index out of range");
	}
	VEXEL_TRY_VOID(CheckCanResize());
	return Change(EPropertyChangeType::ArrayRemove,
		[&]()
		{
			return Place->Write([&](void* Memory)
				{ FScriptArrayHelper(&Property, Memory).RemoveValues(Index); });
		});
}

TVexelExpected<void> FLumUnrealArrayCompound::Resize(int32 Count)
{
	if (Count < 0)
	{
		return VEXEL_ERROR(FLumError_Import, "Negative array size");
	}
	VEXEL_TRY_VOID(CheckCanResize());
	return Change(Count == 0 ? EPropertyChangeType::ArrayClear : EPropertyChangeType::ValueSet,
		[&]()
		{
			return Place->Write([&](void* Memory)
				{ FScriptArrayHelper(&Property, Memory).Resize(Count); });
		});
}

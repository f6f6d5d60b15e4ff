#include "Lum/Compound/LumUnrealContainerCompound.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumForwardingProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

namespace
{
/** Makes the set anew with the element before that of the index. */
void InsertInto(const FSetProperty& Property, void* Memory, int32 Index, const void* Element)
{
	const FLumTemporaryValue Old(Property, Memory);
	const FScriptSetHelper OldSet(&Property, Old.Get());
	FScriptSetHelper Set(&Property, Memory);
	Set.EmptyElements(OldSet.Num() + 1);
	for (FScriptSetHelper::FIterator It = OldSet.CreateIterator(); It; ++It)
	{
		if (It.GetLogicalIndex() == Index)
		{
			Set.AddElement(Element);
		}
		Set.AddElement(OldSet.GetElementPtr(It.GetInternalIndex()));
	}
	// Behind the last one; where it has been added it is there already.
	Set.AddElement(Element);
}
}

FLumUnrealSetCompound::FLumUnrealSetCompound(const FLumValuePlaceRef& InPlace)
	: FLumUnrealContainerCompound(InPlace)
	, Property(*CastFieldChecked<FSetProperty>(&InPlace->GetProperty()))
{
}

int32 FLumUnrealSetCompound::CountItems(void* Data) const
{
	return FScriptSetHelper(&Property, Data).Num();
}

int32 FLumUnrealSetCompound::FindInternalIndex(void* Data, int32 Index) const
{
	return FScriptSetHelper(&Property, Data).FindInternalIndex(Index);
}

TArray<int32> FLumUnrealSetCompound::GetInternalIndices(void* Data) const
{
	return CollectIndices(FScriptSetHelper(&Property, Data));
}

FLumValuePlaceRef FLumUnrealSetCompound::GetElement(int32 InternalIndex) const
{
	return MakeShared<FLumValuePlace>(Place, FLumValuePlace::EPart::SetElement, *Property.ElementProp, InternalIndex);
}

TSharedPtr<ILumProperty> FLumUnrealSetCompound::MakeItem(int32 Index, int32 InternalIndex) const
{
	const TSharedPtr<ILumProperty> Element = FLumUnrealPropertyFactory::CreateSubProperty(GetElement(InternalIndex));
	return Element ? TSharedPtr<ILumProperty>(MakeShared<FLumIndexedForwardingProperty>(Index, Element.ToSharedRef())) : nullptr;
}

TVexelExpected<void> FLumUnrealSetCompound::JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object)
{
	VEXEL_TRY(const auto Elements, FLumHelper::GetSortedElements(*Object));
	return Change(EPropertyChangeType::ValueSet,
		[&]() -> TVexelExpected<void>
		{
			for (const auto& [Index, Value] : Elements)
			{
				VEXEL_TRY_VOID(ImportElement(Context, Index, Value),
					"while importing set element at index %d", Index);
			}
			return {};
		});
}

TVexelExpected<void> FLumUnrealSetCompound::ImportElement(const FLumContext& Context, int32 Index, const TSharedPtr<FJsonValue>& Value)
{
	if (!Value || Value->IsNull())
	{
		return VEXEL_ERROR(FLumError_Import, "Missing set entry at index %d", Index);
	}
	VEXEL_TRY(void* const Data, GetData());
	if (Index >= CountItems(Data))
	{
		return InsertAt(Context, Index, Value.ToSharedRef());
	}
	const int32 InternalIndex = FindInternalIndex(Data, Index);
	if (InternalIndex == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Import, "Internal set index resolve failed");
	}
	return ImportAt(GetElement(InternalIndex), Context, Value.ToSharedRef());
}

TVexelExpected<void> FLumUnrealSetCompound::InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value)
{
	VEXEL_TRY(const int32 Num, GetNum());
	if (Index < 0 || Index > Num)
	{
		return VEXEL_ERROR(FLumError_Import, "Set index out of range");
	}
	VEXEL_TRY_VOID(CheckCanResize());
	const FLumValuePlaceRef New = MakeNewValue(*Property.ElementProp);
	VEXEL_TRY_VOID(ImportAt(New, Context, Value), "while inserting set element");
	VEXEL_TRY_VOID(AddElement(Index, New->Resolve()), "while inserting set element");
	return {};
}

TVexelExpected<void> FLumUnrealSetCompound::AddElement(int32 Index, const void* Element)
{
	VEXEL_TRY(void* const Data, GetData());
	if (FScriptSetHelper(&Property, Data).FindElementIndex(Element) != INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' already has an equal element", *Property.GetName());
	}
	return Change(EPropertyChangeType::ArrayAdd,
		[&]()
		{
			return Place->Write([&](void* Memory)
				{ InsertInto(Property, Memory, Index, Element); });
		});
}

TVexelExpected<void> FLumUnrealSetCompound::RemoveAt(int32 Index)
{
	VEXEL_TRY(void* const Data, GetData());
	if (Index < 0 || Index >= CountItems(Data))
	{
		return VEXEL_ERROR(FLumError_Import, "Set index out of range");
	}
	const int32 InternalIndex = FindInternalIndex(Data, Index);
	if (InternalIndex == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Import, "Internal set index resolve failed");
	}
	VEXEL_TRY_VOID(CheckCanResize());
	return Change(EPropertyChangeType::ArrayRemove,
		[&]()
		{
			return Place->Write([&](void* Memory)
				{
					FScriptSetHelper(&Property, Memory).RemoveAt(InternalIndex);
					CloseGaps(Property, Memory); });
		});
}

TVexelExpected<void> FLumUnrealSetCompound::Resize(int32 Count)
{
	if (Count < 0)
	{
		return VEXEL_ERROR(FLumError_Import, "Negative set size");
	}
	VEXEL_TRY(const int32 Num, GetNum());
	if (Count > Num + 1)
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' can hold one default element alone", *Property.GetName());
	}
	if (Count == Num + 1)
	{
		VEXEL_TRY_VOID(CheckCanResize());
		return AddElement(Num, MakeNewValue(*Property.ElementProp)->Resolve());
	}
	return Change(EPropertyChangeType::ArrayRemove,
		[&]() -> TVexelExpected<void>
		{
			for (int32 Last = Num - 1; Last >= Count; --Last)
			{
				VEXEL_TRY_VOID(RemoveAt(Last));
			}
			return {};
		});
}

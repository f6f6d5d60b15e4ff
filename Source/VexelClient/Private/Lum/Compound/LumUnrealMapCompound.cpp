#include "Lum/Compound/LumUnrealContainerCompound.h"

#include "Lum/Compound/LumMapEntryCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/Property/LumMapEntryProperty.h"
#include "Lum/Property/LumUnrealBaseProperty.h"

#include "UObject/UnrealType.h"

namespace
{
/** Makes the map anew with the pair before that of the index. */
void InsertInto(const FMapProperty& Property, void* Memory, int32 Index, const void* Key, const void* Value)
{
	const FLumTemporaryValue Old(Property, Memory);
	const FScriptMapHelper OldMap(&Property, Old.Get());
	FScriptMapHelper Map(&Property, Memory);
	Map.EmptyValues(OldMap.Num() + 1);
	for (FScriptMapHelper::FIterator It = OldMap.CreateIterator(); It; ++It)
	{
		if (It.GetLogicalIndex() == Index)
		{
			Map.AddPair(Key, Value);
		}
		Map.AddPair(OldMap.GetKeyPtr(It.GetInternalIndex()), OldMap.GetValuePtr(It.GetInternalIndex()));
	}
	// Behind the last one; where it has been added it is there already.
	Map.AddPair(Key, Value);
}

/** The entry's key and value, of which either may be missing. */
struct FEntryFields
{
	TSharedPtr<FJsonValue> Key;
	TSharedPtr<FJsonValue> Value;
};

TVexelExpected<FEntryFields> ReadEntry(const FJsonValue& Entry)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	if (!Entry.TryGetObject(Object))
	{
		return VEXEL_ERROR(FLumError_Import, "Map value must be an object");
	}
	for (const auto& [Name, Field] : (*Object)->Values)
	{
		if (Name != FLumMapEntryCompound::KeyId && Name != FLumMapEntryCompound::ValueId)
		{
			return VEXEL_ERROR(FLumError_Import, "Property '%s' not found", *Name);
		}
		if (!Field || Field->IsNull())
		{
			return VEXEL_ERROR(FLumError_Import, "Invalid JSON value for key '%s'", *Name);
		}
	}
	return FEntryFields{(*Object)->TryGetField(FLumMapEntryCompound::KeyId), (*Object)->TryGetField(FLumMapEntryCompound::ValueId)};
}
}

FLumUnrealMapCompound::FLumUnrealMapCompound(const FLumValuePlaceRef& InPlace)
	: FLumUnrealContainerCompound(InPlace)
	, Property(*CastFieldChecked<FMapProperty>(&InPlace->GetProperty()))
{
}

int32 FLumUnrealMapCompound::CountItems(void* Data) const
{
	return FScriptMapHelper(&Property, Data).Num();
}

int32 FLumUnrealMapCompound::FindInternalIndex(void* Data, int32 Index) const
{
	return FScriptMapHelper(&Property, Data).FindInternalIndex(Index);
}

TArray<int32> FLumUnrealMapCompound::GetInternalIndices(void* Data) const
{
	return CollectIndices(FScriptMapHelper(&Property, Data));
}

FLumUnrealMapCompound::FPairPlaces FLumUnrealMapCompound::GetPair(int32 InternalIndex) const
{
	return {MakeShared<FLumValuePlace>(Place, FLumValuePlace::EPart::MapKey, *Property.KeyProp, InternalIndex),
		MakeShared<FLumValuePlace>(Place, FLumValuePlace::EPart::MapValue, *Property.ValueProp, InternalIndex)};
}

FLumUnrealMapCompound::FPairPlaces FLumUnrealMapCompound::MakeNewPair() const
{
	return {MakeNewValue(*Property.KeyProp), MakeNewValue(*Property.ValueProp)};
}

TSharedPtr<ILumProperty> FLumUnrealMapCompound::MakeItem(int32 Index, int32 InternalIndex) const
{
	const FPairPlaces Pair = GetPair(InternalIndex);
	return MakeShared<FLumMapEntryProperty>(Index, Pair.Key, Pair.Value);
}

TVexelExpected<void> FLumUnrealMapCompound::JsonImportObject(const FLumContext& Context, const TSharedRef<FJsonObject>& Object)
{
	VEXEL_TRY(const auto Elements, FLumHelper::GetSortedElements(*Object));
	return Change(EPropertyChangeType::ValueSet,
		[&]() -> TVexelExpected<void>
		{
			for (const auto& [Index, Value] : Elements)
			{
				VEXEL_TRY_VOID(ImportEntry(Context, Index, Value));
			}
			return {};
		});
}

TVexelExpected<void> FLumUnrealMapCompound::ImportEntry(const FLumContext& Context, int32 Index, const TSharedPtr<FJsonValue>& Value)
{
	if (!Value || Value->IsNull())
	{
		return VEXEL_ERROR(FLumError_Import, "Invalid or missing map entry at index %d", Index);
	}
	VEXEL_TRY(const FEntryFields Fields, ReadEntry(*Value));
	VEXEL_TRY(void* const Data, GetData());
	const int32 Num = CountItems(Data);
	if (Index > Num)
	{
		return VEXEL_ERROR(FLumError_Import, "Map index out of range");
	}
	const int32 InternalIndex = FindInternalIndex(Data, Index);
	if (Index < Num && InternalIndex == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Import, "Internal map index resolve failed");
	}
	const FPairPlaces Pair = Index < Num ? GetPair(InternalIndex) : MakeNewPair();
	if (Fields.Key)
	{
		VEXEL_TRY_VOID(ImportAt(Pair.Key, Context, Fields.Key.ToSharedRef()), "while importing map entry key at index %d", Index);
	}
	if (Fields.Value)
	{
		VEXEL_TRY_VOID(ImportAt(Pair.Value, Context, Fields.Value.ToSharedRef()), "while importing map entry value at index %d", Index);
	}
	if (Index == Num)
	{
		VEXEL_TRY_VOID(AddPair(Index, Pair), "while importing map entry key at index %d", Index);
	}
	return {};
}

TVexelExpected<void> FLumUnrealMapCompound::InsertAt(const FLumContext& Context, int32 Index, const TSharedRef<FJsonValue>& Value)
{
	VEXEL_TRY(const int32 Num, GetNum());
	if (Index < 0 || Index > Num)
	{
		return VEXEL_ERROR(FLumError_Import, "Map index out of range");
	}
	VEXEL_TRY(const FEntryFields Fields, ReadEntry(*Value));
	const FPairPlaces Pair = MakeNewPair();
	if (Fields.Key)
	{
		VEXEL_TRY_VOID(ImportAt(Pair.Key, Context, Fields.Key.ToSharedRef()), "while inserting map key");
	}
	if (Fields.Value)
	{
		VEXEL_TRY_VOID(ImportAt(Pair.Value, Context, Fields.Value.ToSharedRef()), "while inserting map value");
	}
	VEXEL_TRY_VOID(AddPair(Index, Pair), "while inserting map key");
	return {};
}

TVexelExpected<void> FLumUnrealMapCompound::AddPair(int32 Index, const FPairPlaces& Pair)
{
	VEXEL_TRY_VOID(CheckCanResize());
	VEXEL_TRY(void* const Data, GetData());
	if (FScriptMapHelper(&Property, Data).FindMapIndexWithKey(Pair.Key->Resolve()) != INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' already has an equal key", *Property.GetName());
	}
	return Change(EPropertyChangeType::ArrayAdd,
		[&]()
		{
			return Place->Write([&](void* Memory)
				{ InsertInto(Property, Memory, Index, Pair.Key->Resolve(), Pair.Value->Resolve()); });
		});
}

TVexelExpected<void> FLumUnrealMapCompound::RemoveAt(int32 Index)
{
	VEXEL_TRY(void* const Data, GetData());
	if (Index < 0 || Index >= CountItems(Data))
	{
		return VEXEL_ERROR(FLumError_Import, "Map index out of range");
	}
	const int32 InternalIndex = FindInternalIndex(Data, Index);
	if (InternalIndex == INDEX_NONE)
	{
		return VEXEL_ERROR(FLumError_Import, "Internal map index resolve failed");
	}
	VEXEL_TRY_VOID(CheckCanResize());
	return Change(EPropertyChangeType::ArrayRemove,
		[&]()
		{
			return Place->Write([&](void* Memory)
				{
					FScriptMapHelper(&Property, Memory).RemoveAt(InternalIndex);
					CloseGaps(Property, Memory); });
		});
}

TVexelExpected<void> FLumUnrealMapCompound::Resize(int32 Count)
{
	if (Count < 0)
	{
		return VEXEL_ERROR(FLumError_Import, "Negative map size");
	}
	VEXEL_TRY(const int32 Num, GetNum());
	if (Count > Num + 1)
	{
		return VEXEL_ERROR(FLumError_Import, "'%s' can hold one default key alone", *Property.GetName());
	}
	if (Count == Num + 1)
	{
		return AddPair(Num, MakeNewPair());
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

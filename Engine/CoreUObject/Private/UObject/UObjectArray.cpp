#include "UObject/UObjectArray.h"

#include "UObject/UObjectBase.h"

FUObjectArray GUObjectArray;

// The items stay: pointers in statics of other libraries may still look their objects up when the program ends.
FUObjectArray::~FUObjectArray() = default;

void FUObjectArray::AllocateUObjectIndex(UObjectBase* Object, EInternalObjectFlags InitialFlags)
{
	int32 Index;
	if (FreeIndices.Num() > 0)
	{
		Index = FreeIndices.Pop();
	}
	else
	{
		Index = NumItems;
		const int32 Chunk = Index >> ChunkShift;
		checkf(Chunk < MaxChunks, TEXT("More than %d objects"), MaxChunks << ChunkShift);
		if (!Chunks[Chunk])
		{
			Chunks[Chunk] = new FUObjectItem[ChunkMask + 1];
		}
		++NumItems;
	}
	FUObjectItem& Item = IndexToObjectUnsafe(Index);
	Item.Object = Object;
	Item.Flags = static_cast<int32>(InitialFlags);
	Item.SerialNumber = 0;
	Object->InternalIndex = Index;
}

void FUObjectArray::FreeUObjectIndex(UObjectBase* Object)
{
	FUObjectItem& Item = IndexToObjectUnsafe(Object->InternalIndex);
	check(Item.Object == Object);
	Item = FUObjectItem();
	FreeIndices.Add(Object->InternalIndex);
	Object->InternalIndex = INDEX_NONE;
}

FUObjectItem* FUObjectArray::IndexToObject(int32 Index, bool bEvenIfGarbage)
{
	FUObjectItem* const Item = IndexToObject(Index);
	return Item && Item->Object && (bEvenIfGarbage || !Item->IsGarbage()) ? Item : nullptr;
}

int32 FUObjectArray::ObjectToIndex(const UObjectBase* Object)
{
	return Object->InternalIndex;
}

bool FUObjectArray::IsValid(const UObjectBase* Object) const
{
	const FUObjectItem* const Item = Object ? IndexToObject(Object->InternalIndex) : nullptr;
	return Item && Item->Object == Object;
}

int32 FUObjectArray::AllocateSerialNumber(int32 Index)
{
	FUObjectItem& Item = IndexToObjectUnsafe(Index);
	if (Item.SerialNumber == 0)
	{
		Item.SerialNumber = ++LastSerialNumber;
	}
	return Item.SerialNumber;
}

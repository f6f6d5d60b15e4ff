#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class UObjectBase;

/** A place in the object array. */
struct FUObjectItem
{
	UObjectBase* Object = nullptr;
	int32 Flags = 0;
	/** 0 until a weak pointer asks for it. */
	int32 SerialNumber = 0;

	FORCEINLINE UObjectBase* GetObject() const { return Object; }
	FORCEINLINE EInternalObjectFlags GetFlags() const { return static_cast<EInternalObjectFlags>(Flags); }
	FORCEINLINE bool HasAnyFlags(EInternalObjectFlags FlagsToCheck) const { return (Flags & static_cast<int32>(FlagsToCheck)) != 0; }
	FORCEINLINE void SetFlags(EInternalObjectFlags FlagsToSet) { Flags |= static_cast<int32>(FlagsToSet); }
	FORCEINLINE void ClearFlags(EInternalObjectFlags FlagsToClear) { Flags &= ~static_cast<int32>(FlagsToClear); }
	FORCEINLINE bool IsUnreachable() const { return HasAnyFlags(EInternalObjectFlags::Unreachable); }
	FORCEINLINE bool IsGarbage() const { return HasAnyFlags(EInternalObjectFlags::Garbage); }
	FORCEINLINE bool IsRootSet() const { return HasAnyFlags(EInternalObjectFlags::RootSet); }
};

/**
 * Every object by its index. A freed index is used again, under another serial number. Items never move. Game thread, except
 * that an index may be looked up from any thread while the game thread makes no objects.
 */
class COREUOBJECT_API FUObjectArray
{
public:
	~FUObjectArray();

	/** Finds the object a place and writes its index into it. */
	void AllocateUObjectIndex(UObjectBase* Object, EInternalObjectFlags InitialFlags = EInternalObjectFlags::None);
	void FreeUObjectIndex(UObjectBase* Object);

	FORCEINLINE FUObjectItem* IndexToObject(int32 Index)
	{
		return Index >= 0 && Index < NumItems ? &Chunks[Index >> ChunkShift][Index & ChunkMask] : nullptr;
	}
	FORCEINLINE const FUObjectItem* IndexToObject(int32 Index) const { return const_cast<FUObjectArray*>(this)->IndexToObject(Index); }
	FORCEINLINE FUObjectItem& IndexToObjectUnsafe(int32 Index) { return Chunks[Index >> ChunkShift][Index & ChunkMask]; }
	FUObjectItem* IndexToObject(int32 Index, bool bEvenIfGarbage);
	static int32 ObjectToIndex(const UObjectBase* Object);
	FUObjectItem* ObjectToObjectItem(const UObjectBase* Object) { return IndexToObject(ObjectToIndex(Object)); }

	bool IsValid(const UObjectBase* Object) const;
	bool IsValidIndex(const UObjectBase* Object) const { return IsValid(Object); }
	/** The serial number of the place, given to it now if it has none. */
	int32 AllocateSerialNumber(int32 Index);
	FORCEINLINE int32 GetSerialNumber(int32 Index) const
	{
		const FUObjectItem* const Item = IndexToObject(Index);
		return Item ? Item->SerialNumber : 0;
	}

	/** One past the greatest index in use so far. */
	FORCEINLINE int32 GetObjectArrayNum() const { return NumItems; }
	int32 GetObjectArrayNumMinusAvailable() const { return NumItems - FreeIndices.Num(); }

private:
	static constexpr int32 ChunkShift = 16;
	static constexpr int32 ChunkMask = (1 << ChunkShift) - 1;
	static constexpr int32 MaxChunks = 256;

	FUObjectItem* Chunks[MaxChunks] = {};
	int32 NumItems = 0;
	int32 LastSerialNumber = 1000;
	TArray<int32> FreeIndices;
};

extern COREUOBJECT_API FUObjectArray GUObjectArray;

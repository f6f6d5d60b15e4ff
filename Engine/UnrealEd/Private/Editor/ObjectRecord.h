#pragma once

#include "CoreMinimal.h"
#include "Misc/TransactionObjectEvent.h"
#include "Templates/SharedPointer.h"
#include "UObject/ObjectPtr.h"
#include "UObject/UObjectGlobals.h"

class FReferenceCollector;
class FStateBytes;

/**
 * What the transactions of one undo buffer share: a number for each object that a state refers to, and of each object the state last
 * seen, of which the others are held as differences.
 */
class FObjectStateStore
{
public:
	/** INDEX_NONE for an object that nobody uses. */
	int32 Find(const UObject* Object) const;
	/** Null for INDEX_NONE. */
	UObject* Get(int32 Index) const { return Entries.IsValidIndex(Index) ? Entries[Index].Object.Get() : nullptr; }
	/** The object's index. It is the object's while somebody uses it. */
	int32 FindOrAdd(UObject* Object);
	void AddUser(int32 Index) { ++Entries[Index].NumUsers; }
	void RemoveUser(int32 Index);
	void AddReference(int32 Index, FReferenceCollector& Collector);

	/** Holds the bytes; those of the object's last state are not held twice. */
	TSharedRef<FStateBytes> Hold(int32 Index, const TArray<uint8>& Bytes);
	/** The object's last state from here on; the one before is held as what differs from it. */
	void SetLatest(int32 Index, const TSharedRef<FStateBytes>& Bytes);

	/** Bytes that the states and the entries take, with what Count was told of. */
	SIZE_T GetSize() const { return NumBytes + Entries.GetAllocatedSize() + Indices.GetAllocatedSize(); }
	/** Memory of others that belongs to the buffer: what it was before, and what it is. */
	void Count(SIZE_T Before, SIZE_T Now) { NumBytes += Now - Before; }

private:
	struct FEntry
	{
		TObjectPtr<UObject> Object;
		/** What the entry is found by: the object may have been replaced since. */
		UObject* Key = nullptr;
		int32 NumUsers = 0;
		/** Held whole. */
		TWeakPtr<FStateBytes> Latest;
	};

	TArray<FEntry> Entries;
	TArray<int32> FreeEntries;
	TMap<UObject*, int32> Indices;
	SIZE_T NumBytes = 0;
};

/**
 * The objects that the states of one transaction refer to. A state names them by index, so that one replaced is replaced in all, and so
 * that two states are alike whatever transactions they are of.
 */
class FTransactionObjectTable
{
public:
	explicit FTransactionObjectTable(const TSharedRef<FObjectStateStore>& InStore)
		: Store(InStore)
	{
	}
	~FTransactionObjectTable();
	UE_NONCOPYABLE(FTransactionObjectTable)

	int32 Add(UObject* Object);
	/** INDEX_NONE for an object that no state refers to. */
	int32 Find(const UObject* Object) const { return Store->Find(Object); }
	/** Null for INDEX_NONE. */
	UObject* Get(int32 Index) const { return Store->Get(Index); }
	void AddReferencedObjects(FReferenceCollector& Collector);
	FObjectStateStore& GetStore() const { return *Store; }
	SIZE_T GetAllocatedSize() const { return Used.GetAllocatedSize(); }

private:
	const TSharedRef<FObjectStateStore> Store;
	TSet<int32> Used;
};

/** An object as it was at one time. */
struct FObjectState
{
	/** What the object's serializer writes; objects in it are indices into the transaction's table. Null for garbage. */
	TSharedPtr<FStateBytes> Bytes;
	FName Name;
	int32 OuterIndex = INDEX_NONE;
	EObjectFlags Flags = RF_NoFlags;
	/** The object was not there: it had not been made, or had been given up. */
	bool bIsGarbage = false;
	/** By member name rather than by place, because the class may be compiled again before the state is restored. */
	bool bIsTagged = false;

	static FObjectState Capture(UObject& Object, FTransactionObjectTable& Table);
	/** Whether a capture would give the same now. */
	bool IsCurrent(UObject& Object, FTransactionObjectTable& Table) const;
	/** What the object has that the state has not, or the other way round. */
	FTransactionObjectDeltaChange Compare(const FObjectState& Other) const;
	void Restore(UObject& Object, FTransactionObjectTable& Table) const;
};

/** One object of a transaction with the state of the side that is not in force. */
struct FObjectRecord
{
	TObjectPtr<UObject> Object;
	FObjectState State;

	/** Holds the object's other states as differences from this one. */
	void MakeLatest(FTransactionObjectTable& Table);
	/** Bytes that the state takes; what others share is counted for each. */
	SIZE_T GetStateSize() const;
};

/** Gives the names of objects that are garbage back to their outers, for others to use. Restoring brings name and outer back. */
void MoveGarbageAway(UObject& Object);

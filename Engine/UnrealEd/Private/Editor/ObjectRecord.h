#pragma once

#include "CoreMinimal.h"
#include "Misc/TransactionObjectEvent.h"
#include "UObject/ObjectPtr.h"
#include "UObject/UObjectGlobals.h"

class FReferenceCollector;

/**
 * The objects that the states of one transaction refer to, each once. A state names them by index, so that one replaced is replaced in
 * all.
 */
class FTransactionObjectTable
{
public:
	int32 Add(UObject* Object);
	/** INDEX_NONE for an object that no state refers to. */
	int32 Find(const UObject* Object) const;
	/** Null for INDEX_NONE. */
	UObject* Get(int32 Index) const { return Objects.IsValidIndex(Index) ? Objects[Index].Get() : nullptr; }
	void AddReferencedObjects(FReferenceCollector& Collector);
	SIZE_T GetAllocatedSize() const { return Objects.GetAllocatedSize() + Indices.GetAllocatedSize(); }

private:
	TArray<TObjectPtr<UObject>> Objects;
	TMap<UObject*, int32> Indices;
};

/** An object as it was at one time. */
struct FObjectState
{
	/** What the object's serializer writes; objects in it are indices into the transaction's table. */
	TArray<uint8> Data;
	FName Name;
	int32 OuterIndex = INDEX_NONE;
	EObjectFlags Flags = RF_NoFlags;
	/** The object was not there: it had not been made, or had been given up. Data is empty then. */
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
};

/** Gives the names of objects that are garbage back to their outers, for others to use. Restoring brings name and outer back. */
void MoveGarbageAway(UObject& Object);

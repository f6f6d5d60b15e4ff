#pragma once

#include "CoreMinimal.h"

class FChange;
class FProperty;
class UObject;

/** The open transaction: remembers what objects were before they change. */
class COREUOBJECT_API ITransaction
{
public:
	virtual ~ITransaction() = default;

	/** Called when it becomes, and stops being, the open one. */
	virtual void BeginOperation() = 0;
	virtual void EndOperation() = 0;
	/** The object that the transaction is about, for its title. */
	virtual void SetPrimaryObject(UObject* Object) = 0;
	/** Remembers the object's whole state, once a transaction. */
	virtual void SaveObject(UObject* Object) = 0;
	/** Remembers the properties' values now, for those who listen to changes while they are being made. */
	virtual void SnapshotObject(UObject* Object, TArrayView<const FProperty*> Properties) = 0;
	/** Takes a change that reverts itself. */
	virtual void StoreUndo(UObject* Object, TUniquePtr<FChange> UndoChange) = 0;
	virtual bool ContainsObject(const UObject* Object) const = 0;
	virtual bool IsTransient() const { return false; }
	/** Restores what was remembered and remembers what was there, so that a second call does the opposite. */
	virtual void Apply() = 0;
	virtual void Finalize() = 0;
};

/** The transaction that is open, or null: objects are not remembered then. */
extern COREUOBJECT_API ITransaction* GUndo;

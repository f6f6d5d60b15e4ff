#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"
#include "UObject/ObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FChange;
class FProperty;
class UObject;

/** What a transaction is called and is about. */
struct FTransactionContext
{
	FTransactionContext() = default;
	FTransactionContext(
		const FGuid& InTransactionId, const FGuid& InOperationId, const FText& InTitle, const TCHAR* InContext, UObject* InPrimaryObject)
		: TransactionId(InTransactionId)
		, OperationId(InOperationId)
		, Title(InTitle)
		, Context(InContext)
		, PrimaryObject(InPrimaryObject)
	{
	}

	bool IsValid() const { return TransactionId.IsValid() && OperationId.IsValid(); }

	/** Kept through undo and redo. */
	FGuid TransactionId;
	/** A new one for each making, undo and redo. */
	FGuid OperationId;
	FText Title;
	/** Which part of the editor made it. */
	FString Context;
	UObject* PrimaryObject = nullptr;
};

/** The open transaction: remembers what objects were before they change. */
class COREUOBJECT_API ITransaction
{
public:
	virtual ~ITransaction() = default;

	/** Called when it becomes, and stops being, the open one. */
	virtual void BeginOperation() = 0;
	virtual void EndOperation() = 0;
	virtual FTransactionContext GetContext() const = 0;
	/** The object that the transaction is about, for its title. */
	virtual void SetPrimaryObject(UObject* Object) = 0;
	/**
	 * Remembers the object's whole state, once a transaction. An object that is garbage now is one that does not exist yet:
	 * undoing gives it up, redoing brings it back.
	 */
	virtual void SaveObject(UObject* Object) = 0;
	/** Tells those who listen to changes while they are being made. */
	virtual void SnapshotObject(UObject* Object, TArrayView<const FProperty*> Properties) = 0;
	/** Takes a change that reverts itself. */
	virtual void StoreUndo(UObject* Object, TUniquePtr<FChange> UndoChange) = 0;
	virtual bool ContainsObject(const UObject* Object) const = 0;
	virtual bool IsTransient() const { return false; }
	/** Restores what was remembered and remembers what was there, so that a second call does the opposite. */
	virtual void Apply() = 0;
	/** The change is complete; called once. */
	virtual void Finalize() = 0;
};

/** The transaction that is open, or null: objects are not remembered then. */
extern COREUOBJECT_API ITransaction* GUndo;

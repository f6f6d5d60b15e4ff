#pragma once

#include "CoreMinimal.h"
#include "Misc/Change.h"
#include "Misc/ITransaction.h"
#include "Misc/TransactionObjectEvent.h"
#include "UObject/Object.h"

#include "Transactor.generated.h"

class FObjectStateStore;
class FReferenceCollector;

/**
 * One entry of the undo buffer: the objects that an edit changed, each as it was before. Applying it swaps the two sides. The
 * objects, and all that their states refer to, live as long as the transaction.
 */
class UNREALED_API FTransaction final : public ITransaction
{
public:
	/** The transactions of one buffer have the store together. */
	FTransaction(const TCHAR* InContext, const FText& InTitle, const TSharedRef<FObjectStateStore>& Store);
	virtual ~FTransaction() override;
	FTransaction(const FTransaction&) = delete;
	FTransaction& operator=(const FTransaction&) = delete;

	// ITransaction
	virtual void BeginOperation() override;
	virtual void EndOperation() override;
	virtual FTransactionContext GetContext() const override;
	virtual void SetPrimaryObject(UObject* Object) override;
	virtual void SaveObject(UObject* Object) override;
	virtual void SnapshotObject(UObject* Object, TArrayView<const FProperty*> Properties) override;
	virtual void StoreUndo(UObject* Object, TUniquePtr<FChange> UndoChange) override;
	virtual bool ContainsObject(const UObject* Object) const override;
	virtual void Apply() override;
	virtual void Finalize() override;

	const FGuid& GetId() const { return Id; }
	FText GetTitle() const { return Title; }
	UObject* GetPrimaryObject() const;
	int32 GetRecordCount() const;
	/** The objects of the records, in the order in which they were remembered. */
	void GetTransactionObjects(TArray<UObject*>& OutObjects) const;
	/** What the last Apply did to which object. */
	const TArray<TPair<UObject*, FTransactionObjectEvent>>& GetAppliedChanges() const;
	/** Forgets the newest records: those of a scope that was cancelled. */
	void RemoveRecords(int32 Count);
	/** Whether anything is other than it was when it was remembered. Stops at the first such thing. */
	bool HasChanges() const;
	/** Bytes that the records hold. What they hold together with other transactions is counted for each. */
	SIZE_T DataSize() const;
	void AddReferencedObjects(FReferenceCollector& Collector);

private:
	struct FImplementation;

	FGuid Id;
	FGuid OperationId;
	FText Title;
	FString Context;
	TUniquePtr<FImplementation> Implementation;
};

/** Keeps the transactions and goes back and forth among them. */
UCLASS(abstract, transient)
class UNREALED_API UTransactor : public UObject
{
	GENERATED_BODY()

public:
	/** Opens a transaction, or joins the one that is open. Answers the number to cancel it by; pair it with End. */
	virtual int32 Begin(const TCHAR* SessionContext, const FText& Description) { return INDEX_NONE; }
	/** Closes what the last Begin opened. An entry stays when that was the outermost one and something changed. */
	virtual int32 End() { return INDEX_NONE; }
	/** Stops remembering for the scope that StartIndex opened and those within it. What was changed stays changed. */
	virtual void Cancel(int32 StartIndex = 0) {}
	/** Forgets all transactions. Reason goes to the log. */
	virtual void Reset(const FText& Reason) {}
	virtual bool CanUndo(FText* Text = nullptr) { return false; }
	virtual bool CanRedo(FText* Text = nullptr) { return false; }
	/** Entries in all, those that can be redone included. */
	virtual int32 GetQueueLength() const { return 0; }
	virtual const FTransaction* GetTransaction(int32 QueueIndex) const { return nullptr; }
	/** Number of entries at the end of the queue that are undone. */
	virtual int32 GetUndoCount() const { return 0; }
	virtual FTransactionContext GetUndoContext(bool bCheckWhetherUndoPossible = true) { return FTransactionContext(); }
	virtual FTransactionContext GetRedoContext() { return FTransactionContext(); }
	/** Bytes that the entries hold. */
	virtual SIZE_T GetUndoSize() const { return 0; }
	/** Undo does not go back beyond the present until the barrier is removed. */
	virtual void SetUndoBarrier() {}
	virtual void RemoveUndoBarrier() {}
	virtual void ClearUndoBarriers() {}
	/** False when there is nothing to undo or a transaction is open. bCanRedo of false forgets the entry. */
	virtual bool Undo(bool bCanRedo = true) { return false; }
	virtual bool Redo() { return false; }
	virtual bool EnableObjectSerialization() { return false; }
	/** Objects are not remembered until the matching EnableObjectSerialization. */
	virtual bool DisableObjectSerialization() { return false; }
	virtual bool IsObjectSerializationEnabled() { return false; }
	virtual void SetPrimaryUndoObject(UObject* Object) {}
	virtual bool IsObjectInTransactionBuffer(const UObject* Object) const { return false; }
	virtual bool IsObjectTransacting(const UObject* Object) const { return false; }
	virtual bool IsActive() { return false; }
};

#pragma once

#include "CoreMinimal.h"
#include "Editor/Transactor.h"

#include "TransBuffer.generated.h"

/** The editor's undo buffer: a queue of transactions within a limit of memory. */
UCLASS(transient)
class UNREALED_API UTransBuffer : public UTransactor
{
	GENERATED_BODY()

public:
	DECLARE_EVENT_OneParam(UTransBuffer, FOnTransactorBeforeRedoUndo, const FTransactionContext&);
	FOnTransactorBeforeRedoUndo& OnBeforeRedoUndo() { return BeforeRedoUndoDelegate; }
	DECLARE_EVENT_TwoParams(UTransBuffer, FOnTransactorUndo, const FTransactionContext&, bool);
	FOnTransactorUndo& OnUndo() { return UndoDelegate; }
	DECLARE_EVENT_TwoParams(UTransBuffer, FOnTransactorRedo, const FTransactionContext&, bool);
	FOnTransactorRedo& OnRedo() { return RedoDelegate; }
	/** Entries came or went. */
	DECLARE_EVENT(UTransBuffer, FOnTransactorUndoBufferChanged);
	FOnTransactorUndoBufferChanged& OnUndoBufferChanged() { return UndoBufferChangedDelegate; }

	/** When the entries hold more than InMaxMemory bytes the oldest ones go. The newest always stays. */
	void Initialize(SIZE_T InMaxMemory);

	// UTransactor
	virtual int32 Begin(const TCHAR* SessionContext, const FText& Description) override;
	virtual int32 End() override;
	virtual void Cancel(int32 StartIndex = 0) override;
	virtual void Reset(const FText& Reason) override;
	virtual bool CanUndo(FText* Text = nullptr) override;
	virtual bool CanRedo(FText* Text = nullptr) override;
	virtual int32 GetQueueLength() const override { return UndoBuffer.Num(); }
	virtual const FTransaction* GetTransaction(int32 QueueIndex) const override;
	virtual int32 GetUndoCount() const override { return UndoCount; }
	virtual FTransactionContext GetUndoContext(bool bCheckWhetherUndoPossible = true) override;
	virtual FTransactionContext GetRedoContext() override;
	virtual SIZE_T GetUndoSize() const override;
	virtual void SetUndoBarrier() override;
	virtual void RemoveUndoBarrier() override;
	virtual void ClearUndoBarriers() override { UndoBarriers.Empty(); }
	virtual bool Undo(bool bCanRedo = true) override;
	virtual bool Redo() override;
	virtual bool EnableObjectSerialization() override;
	virtual bool DisableObjectSerialization() override;
	virtual bool IsObjectSerializationEnabled() override { return SerializationDisableCount == 0; }
	virtual void SetPrimaryUndoObject(UObject* Object) override;
	virtual bool IsObjectInTransactionBuffer(const UObject* Object) const override;
	virtual bool IsObjectTransacting(const UObject* Object) const override;
	virtual bool IsActive() override { return ActiveRecordCounts.Num() > 0; }

	// UObject
	virtual void BeginDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	FTransaction& GetOpen() const { return *UndoBuffer.Last(); }
	/** The position in the queue between what can be undone and what can be redone. */
	int32 GetPosition() const { return UndoBuffer.Num() - UndoCount; }
	/** Takes the open transaction off the queue and puts what it had displaced back. */
	void DiscardOpen();
	void DropOldest();
	void UpdateOpenTransaction();

	/** What the transactions hold together; null until there is one. */
	TSharedPtr<FObjectStateStore> Store;
	TArray<TSharedRef<FTransaction>> UndoBuffer;
	/** Undone entries that the open transaction displaced; they come back if it leaves no entry. */
	TArray<TSharedRef<FTransaction>> Displaced;
	int32 UndoCount = 0;
	/** For each open scope the records that the transaction had when it began. */
	TArray<int32> ActiveRecordCounts;
	TArray<int32> UndoBarriers;
	int32 SerializationDisableCount = 0;
	SIZE_T MaxMemory = 0;

	FOnTransactorBeforeRedoUndo BeforeRedoUndoDelegate;
	FOnTransactorUndo UndoDelegate;
	FOnTransactorRedo RedoDelegate;
	FOnTransactorUndoBufferChanged UndoBufferChangedDelegate;
};

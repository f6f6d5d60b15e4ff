#include "Editor/TransBuffer.h"

#include "ObjectRecord.h"

#include "Templates/Casts.h"
#include "UObject/ReferenceCollector.h"

#define LOCTEXT_NAMESPACE "TransactionSystem"

DEFINE_LOG_CATEGORY_STATIC(LogEditorTransaction, Log, All);

namespace
{
bool Refuse(FText* OutReason, const FText& Reason)
{
	if (OutReason)
	{
		*OutReason = Reason;
	}
	return false;
}

FText GetBusyReason() { return LOCTEXT("CantUndoDuringTransaction", "(Can't undo while action is in progress)"); }
}

void UTransBuffer::Initialize(SIZE_T InMaxMemory) { MaxMemory = InMaxMemory; }

void UTransBuffer::UpdateOpenTransaction() { GUndo = IsActive() && SerializationDisableCount == 0 ? &GetOpen() : nullptr; }

int32 UTransBuffer::Begin(const TCHAR* SessionContext, const FText& Description)
{
	if (GIsTransacting)
	{
		UE_LOG(LogEditorTransaction, Warning, TEXT("'%s' cannot begin while an undo is going on"), *Description.ToString());
		return INDEX_NONE;
	}
	const int32 Scope = ActiveRecordCounts.Num();
	if (Scope == 0)
	{
		for (int32 Index = GetPosition(); Index < UndoBuffer.Num(); ++Index)
		{
			Displaced.Add(UndoBuffer[Index]);
		}
		UndoBuffer.RemoveAt(GetPosition(), UndoCount);
		UndoCount = 0;
		Store = Store ? Store : MakeShared<FObjectStateStore>().ToSharedPtr();
		UndoBuffer.Add(MakeShared<FTransaction>(SessionContext, Description, Store.ToSharedRef()));
		GetOpen().BeginOperation();
	}
	ActiveRecordCounts.Add(GetOpen().GetRecordCount());
	UpdateOpenTransaction();
	return Scope;
}

int32 UTransBuffer::End()
{
	if (!IsActive())
	{
		return INDEX_NONE;
	}
	ActiveRecordCounts.Pop();
	const int32 Scope = ActiveRecordCounts.Num();
	if (Scope > 0)
	{
		return Scope;
	}
	UpdateOpenTransaction();
	GetOpen().EndOperation();
	if (!GetOpen().HasChanges())
	{
		DiscardOpen();
		return Scope;
	}
	GetOpen().Finalize();
	Displaced.Empty();
	DropOldest();
	UndoBufferChangedDelegate.Broadcast();
	return Scope;
}

void UTransBuffer::Cancel(int32 StartIndex)
{
	if (StartIndex < 0 || StartIndex >= ActiveRecordCounts.Num())
	{
		return;
	}
	if (StartIndex > 0)
	{
		GetOpen().RemoveRecords(GetOpen().GetRecordCount() - ActiveRecordCounts[StartIndex]);
	}
	ActiveRecordCounts.SetNum(StartIndex);
	UpdateOpenTransaction();
	if (StartIndex == 0)
	{
		GetOpen().EndOperation();
		DiscardOpen();
	}
}

void UTransBuffer::DiscardOpen()
{
	UndoBuffer.Pop();
	UndoBuffer.Append(Displaced);
	UndoCount = Displaced.Num();
	Displaced.Empty();
}

void UTransBuffer::DropOldest()
{
	int32 Count = 0;
	for (; GetUndoSize() > MaxMemory && UndoBuffer.Num() > 1; ++Count)
	{
		UndoBuffer.RemoveAt(0);
	}
	if (Count == 0)
	{
		return;
	}
	for (int32& Barrier : UndoBarriers)
	{
		Barrier = FMath::Max(0, Barrier - Count);
	}
	UE_LOG(LogEditorTransaction, Verbose, TEXT("The oldest %d undo entries are dropped to stay within %llu bytes"), Count,
		static_cast<unsigned long long>(MaxMemory));
}

void UTransBuffer::Reset(const FText& Reason)
{
	Cancel(0);
	const bool bHadEntries = UndoBuffer.Num() > 0;
	UndoBuffer.Empty();
	UndoBarriers.Empty();
	UndoCount = 0;
	Store.Reset();
	UE_LOG(LogEditorTransaction, Log, TEXT("The undo history is cleared: %s"), *Reason.ToString());
	if (bHadEntries)
	{
		UndoBufferChangedDelegate.Broadcast();
	}
}

bool UTransBuffer::CanUndo(FText* Text)
{
	if (IsActive() || GIsTransacting)
	{
		return Refuse(Text, GetBusyReason());
	}
	if (UndoBarriers.Num() > 0 && GetPosition() <= UndoBarriers.Last())
	{
		return Refuse(Text, LOCTEXT("HitUndoBarrier", "(Hit Undo barrier; can't undo any further)"));
	}
	return GetPosition() > 0 || Refuse(Text, LOCTEXT("CantUndoAnymore", "(Can't undo anymore)"));
}

bool UTransBuffer::CanRedo(FText* Text)
{
	if (IsActive() || GIsTransacting)
	{
		return Refuse(Text, GetBusyReason());
	}
	return UndoCount > 0 || Refuse(Text, LOCTEXT("NothingToRedo", "(Nothing to redo)"));
}

const FTransaction* UTransBuffer::GetTransaction(int32 QueueIndex) const
{
	return UndoBuffer.IsValidIndex(QueueIndex) ? &*UndoBuffer[QueueIndex] : nullptr;
}

FTransactionContext UTransBuffer::GetUndoContext(bool bCheckWhetherUndoPossible)
{
	FText Reason;
	if (bCheckWhetherUndoPossible && !CanUndo(&Reason))
	{
		FTransactionContext Context;
		Context.Title = Reason;
		return Context;
	}
	return GetPosition() > 0 ? UndoBuffer[GetPosition() - 1]->GetContext() : FTransactionContext();
}

FTransactionContext UTransBuffer::GetRedoContext()
{
	FText Reason;
	if (!CanRedo(&Reason))
	{
		FTransactionContext Context;
		Context.Title = Reason;
		return Context;
	}
	return UndoBuffer[GetPosition()]->GetContext();
}

SIZE_T UTransBuffer::GetUndoSize() const { return Store ? Store->GetSize() : 0; }

void UTransBuffer::SetUndoBarrier() { UndoBarriers.Add(GetPosition()); }

void UTransBuffer::RemoveUndoBarrier()
{
	if (UndoBarriers.Num() > 0)
	{
		UndoBarriers.Pop();
	}
}

bool UTransBuffer::Undo(bool bCanRedo)
{
	FText Reason;
	if (!CanUndo(&Reason))
	{
		UndoDelegate.Broadcast(FTransactionContext(), false);
		return false;
	}
	// Whoever listens may reset the buffer; the transaction lives until its listeners are done.
	const TSharedRef<FTransaction> Transaction = UndoBuffer[GetPosition() - 1];
	UE_LOG(LogEditorTransaction, Log, TEXT("Undo %s"), *Transaction->GetTitle().ToString());
	BeforeRedoUndoDelegate.Broadcast(Transaction->GetContext());
	Transaction->Apply();
	++UndoCount;
	UndoDelegate.Broadcast(Transaction->GetContext(), true);
	if (!bCanRedo && UndoCount > 0)
	{
		UndoBuffer.RemoveAt(GetPosition(), UndoCount);
		UndoCount = 0;
		UndoBufferChangedDelegate.Broadcast();
	}
	return true;
}

bool UTransBuffer::Redo()
{
	FText Reason;
	if (!CanRedo(&Reason))
	{
		RedoDelegate.Broadcast(FTransactionContext(), false);
		return false;
	}
	const TSharedRef<FTransaction> Transaction = UndoBuffer[GetPosition()];
	UE_LOG(LogEditorTransaction, Log, TEXT("Redo %s"), *Transaction->GetTitle().ToString());
	BeforeRedoUndoDelegate.Broadcast(Transaction->GetContext());
	Transaction->Apply();
	--UndoCount;
	RedoDelegate.Broadcast(Transaction->GetContext(), true);
	return true;
}

bool UTransBuffer::EnableObjectSerialization()
{
	check(SerializationDisableCount > 0);
	--SerializationDisableCount;
	UpdateOpenTransaction();
	return SerializationDisableCount == 0;
}

bool UTransBuffer::DisableObjectSerialization()
{
	++SerializationDisableCount;
	UpdateOpenTransaction();
	return false;
}

void UTransBuffer::SetPrimaryUndoObject(UObject* Object)
{
	if (IsActive())
	{
		GetOpen().SetPrimaryObject(Object);
	}
}

bool UTransBuffer::IsObjectInTransactionBuffer(const UObject* Object) const
{
	return UndoBuffer.ContainsByPredicate(
		[Object](const TSharedRef<FTransaction>& Transaction)
		{ return Transaction->ContainsObject(Object); });
}

bool UTransBuffer::IsObjectTransacting(const UObject* Object) const
{
	return ActiveRecordCounts.Num() > 0 && GetOpen().ContainsObject(Object);
}

void UTransBuffer::BeginDestroy()
{
	if (IsActive())
	{
		GUndo = nullptr;
	}
	ActiveRecordCounts.Empty();
	UndoBuffer.Empty();
	Displaced.Empty();
	UndoCount = 0;
	Super::BeginDestroy();
}

void UTransBuffer::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UTransBuffer* const This = CastChecked<UTransBuffer>(InThis);
	for (TArray<TSharedRef<FTransaction>>* const Transactions : {&This->UndoBuffer, &This->Displaced})
	{
		for (const TSharedRef<FTransaction>& Transaction : *Transactions)
		{
			Transaction->AddReferencedObjects(Collector);
		}
	}
	Super::AddReferencedObjects(InThis, Collector);
}

#undef LOCTEXT_NAMESPACE

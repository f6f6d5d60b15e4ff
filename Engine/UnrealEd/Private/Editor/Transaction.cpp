#include "EdGraph/EdGraphPin.h"
#include "Editor/Transactor.h"
#include "ObjectRecord.h"
#include "StateBytes.h"
#include "UObject/CoreUObjectDelegates.h"
#include "UObject/ReferenceCollector.h"

struct FTransaction::FImplementation
{
	explicit FImplementation(const TSharedRef<FObjectStateStore>& Store)
		: Table(Store)
	{
	}
	~FImplementation() { Table.GetStore().Count(CountedSize, 0); }
	UE_NONCOPYABLE(FImplementation)

	struct FHeldChange
	{
		TObjectPtr<UObject> Object;
		TUniquePtr<FChange> Change;
	};

	FTransactionObjectTable Table;
	TArray<FObjectRecord> Records;
	/** By the object's place in the table. */
	TMap<int32, int32> RecordIndices;
	TArray<FHeldChange> Changes;
	TArray<TPair<UObject*, FTransactionObjectEvent>> AppliedChanges;
	TObjectPtr<UObject> PrimaryObject;
	/** What the store was told of. */
	SIZE_T CountedSize = 0;
	bool bIsUndone = false;

	/**
	 * Visits the records in the order in which their states are put back: the oldest state of an object that has two comes last on undo.
	 */
	template <typename Visitor>
	void VisitInOrder(Visitor Visit)
	{
		for (int32 Index = 0; Index < Records.Num(); ++Index)
		{
			Visit(bIsUndone ? Index : Records.Num() - 1 - Index);
		}
	}
	void ExecuteChanges();
	void NoteApplied(const FGuid& TransactionId, const TArray<FObjectState>& Left);
	void Exchange(TArray<FObjectState>& Left);
	/** What is held beside the states. */
	SIZE_T GetSize() const { return Table.GetAllocatedSize() + Records.GetAllocatedSize() + RecordIndices.GetAllocatedSize(); }
	void CountSize();
};

FTransaction::FTransaction(const TCHAR* InContext, const FText& InTitle, const TSharedRef<FObjectStateStore>& Store)
	: Id(FGuid::NewGuid())
	, OperationId(FGuid::NewGuid())
	, Title(InTitle)
	, Context(InContext)
	, Implementation(MakeUnique<FImplementation>(Store))
{
}

FTransaction::~FTransaction() = default;

void FTransaction::BeginOperation() {}

void FTransaction::EndOperation() {}

FTransactionContext FTransaction::GetContext() const { return FTransactionContext(Id, OperationId, Title, *Context, GetPrimaryObject()); }

void FTransaction::SetPrimaryObject(UObject* Object)
{
	if (!Implementation->PrimaryObject)
	{
		Implementation->PrimaryObject = Object;
	}
}

UObject* FTransaction::GetPrimaryObject() const { return Implementation->PrimaryObject; }

void FTransaction::SaveObject(UObject* Object)
{
	check(Object);
	FImplementation& Held = *Implementation;
	int32& Index = Held.RecordIndices.FindOrAdd(Held.Table.Add(Object), INDEX_NONE);
	if (Index != INDEX_NONE)
	{
		return;
	}
	Index = Held.Records.Num();
	// An object may remember others while it is written; its own place is taken by then.
	Held.Records.AddDefaulted();
	const int32 Place = Index;
	FObjectState State = FObjectState::Capture(*Object, Held.Table);
	Held.Records[Place].Object = Object;
	Held.Records[Place].State = MoveTemp(State);
}

void FTransaction::SnapshotObject(UObject* Object, TArrayView<const FProperty*> Properties)
{
	check(Object);
	SaveObject(Object);
	if (!FCoreUObjectDelegates::OnObjectTransacted.IsBound())
	{
		return;
	}
	FTransactionObjectDeltaChange Delta;
	Delta.bHasNonPropertyChanges = true;
	const FTransactionObjectEvent Event(
		Id, ETransactionObjectEventType::Snapshot, Delta, Object->GetFName(), GetPathNameSafe(Object->GetOuter()));
	Object->PostTransacted(Event);
	FCoreUObjectDelegates::OnObjectTransacted.Broadcast(Object, Event);
}

void FTransaction::StoreUndo(UObject* Object, TUniquePtr<FChange> UndoChange)
{
	check(Object && UndoChange);
	Implementation->Changes.Add({Object, MoveTemp(UndoChange)});
}

bool FTransaction::ContainsObject(const UObject* Object) const
{
	const int32 TableIndex = Implementation->Table.Find(Object);
	return TableIndex != INDEX_NONE && Implementation->RecordIndices.Contains(TableIndex);
}

int32 FTransaction::GetRecordCount() const { return Implementation->Records.Num() + Implementation->Changes.Num(); }

void FTransaction::GetTransactionObjects(TArray<UObject*>& OutObjects) const
{
	for (const FObjectRecord& Record : Implementation->Records)
	{
		OutObjects.Add(Record.Object);
	}
}

const TArray<TPair<UObject*, FTransactionObjectEvent>>& FTransaction::GetAppliedChanges() const { return Implementation->AppliedChanges; }

void FTransaction::RemoveRecords(int32 Count)
{
	FImplementation& Held = *Implementation;
	for (int32 Left = FMath::Min(Count, Held.Records.Num()); Left > 0; --Left)
	{
		Held.RecordIndices.Remove(Held.Table.Find(Held.Records.Last().Object));
		Held.Records.Pop();
	}
}

bool FTransaction::HasChanges() const
{
	FImplementation& Held = *Implementation;
	if (Held.Changes.Num() > 0)
	{
		return true;
	}
	return Held.Records.ContainsByPredicate(
		[&Held](const FObjectRecord& Record)
		{ return !Record.State.IsCurrent(*Record.Object, Held.Table); });
}

SIZE_T FTransaction::DataSize() const
{
	SIZE_T Size = Implementation->GetSize();
	for (const FObjectRecord& Record : Implementation->Records)
	{
		Size += Record.GetStateSize();
	}
	return Size;
}

void FTransaction::FImplementation::CountSize()
{
	const SIZE_T Size = GetSize();
	Table.GetStore().Count(CountedSize, Size);
	CountedSize = Size;
}

void FTransaction::FImplementation::ExecuteChanges()
{
	for (int32 Index = 0; Index < Changes.Num(); ++Index)
	{
		FHeldChange& Held = Changes[bIsUndone ? Index : Changes.Num() - 1 - Index];
		if (Held.Change->HasExpired(Held.Object))
		{
			continue;
		}
		if (Held.Change->GetChangeType() == FChange::EChangeStyle::InPlaceSwap)
		{
			Held.Change = Held.Change->Execute(Held.Object);
		}
		else if (bIsUndone)
		{
			Held.Change->Apply(Held.Object);
		}
		else
		{
			Held.Change->Revert(Held.Object);
		}
	}
}

void FTransaction::FImplementation::NoteApplied(const FGuid& TransactionId, const TArray<FObjectState>& Left)
{
	AppliedChanges.Empty(Records.Num());
	for (int32 Index = 0; Index < Records.Num(); ++Index)
	{
		const FTransactionObjectDeltaChange Delta = Records[Index].State.Compare(Left[Index]);
		if (Delta.HasChanged())
		{
			const FString OuterPath = GetPathNameSafe(Table.Get(Left[Index].OuterIndex));
			AppliedChanges.Emplace(Records[Index].Object.Get(),
				FTransactionObjectEvent(TransactionId, ETransactionObjectEventType::UndoRedo, Delta, Left[Index].Name, OuterPath));
		}
	}
}

/** What was put back is what the objects have now; what they had before is what a redo puts back. */
void FTransaction::FImplementation::Exchange(TArray<FObjectState>& Left)
{
	for (int32 Index = 0; Index < Left.Num(); ++Index)
	{
		FObjectRecord& Record = Records[Index];
		Record.MakeLatest(Table);
		const TSharedPtr<FStateBytes> Present = Record.State.Bytes;
		Record.State = MoveTemp(Left[Index]);
		const TSharedPtr<FStateBytes>& Past = Record.State.Bytes;
		if (Past && Present && Past != Present && Past->IsWhole())
		{
			Past->RestOn(Present.ToSharedRef());
		}
	}
}

void FTransaction::Apply()
{
	check(!GUndo && !GIsTransacting);
	const TGuardValue<bool> Guard(GIsTransacting, true);
	OperationId = FGuid::NewGuid();
	FImplementation& Held = *Implementation;
	Held.VisitInOrder([&Held](int32 Index)
		{ Held.Records[Index].Object->PreEditUndo(); });

	// All before any is put back, for one object's state may reach into another, as a pin's link does.
	TArray<FObjectState> Left;
	Left.Reserve(Held.Records.Num());
	for (const FObjectRecord& Record : Held.Records)
	{
		Left.Add(FObjectState::Capture(*Record.Object, Held.Table));
	}
	Held.VisitInOrder([&Held](int32 Index)
		{ Held.Records[Index].State.Restore(*Held.Records[Index].Object, Held.Table); });
	Held.VisitInOrder(
		[&Held](int32 Index)
		{
			if (Held.Records[Index].State.bIsGarbage)
			{
				MoveGarbageAway(*Held.Records[Index].Object);
			}
		});
	UEdGraphPin::ResolveAllPinReferences();
	Held.ExecuteChanges();
	Held.NoteApplied(Id, Left);
	Held.Exchange(Left);
	Held.VisitInOrder([&Held](int32 Index)
		{ Held.Records[Index].Object->PostEditUndo(); });
	for (const TPair<UObject*, FTransactionObjectEvent>& Change : Held.AppliedChanges)
	{
		Change.Key->PostTransacted(Change.Value);
		FCoreUObjectDelegates::OnObjectTransacted.Broadcast(Change.Key, Change.Value);
	}
	Held.bIsUndone = !Held.bIsUndone;
	Held.CountSize();
}

void FTransaction::Finalize()
{
	FImplementation& Held = *Implementation;
	Held.CountSize();
	for (FObjectRecord& Record : Held.Records)
	{
		Record.MakeLatest(Held.Table);
	}
	if (!FCoreUObjectDelegates::OnObjectTransacted.IsBound())
	{
		return;
	}
	for (const FObjectRecord& Record : Held.Records)
	{
		const FTransactionObjectDeltaChange Delta = FObjectState::Capture(*Record.Object, Held.Table).Compare(Record.State);
		if (Delta.HasChanged())
		{
			const FString OuterPath = GetPathNameSafe(Held.Table.Get(Record.State.OuterIndex));
			const FTransactionObjectEvent Event(Id, ETransactionObjectEventType::Finalized, Delta, Record.State.Name, OuterPath);
			Record.Object->PostTransacted(Event);
			FCoreUObjectDelegates::OnObjectTransacted.Broadcast(Record.Object, Event);
		}
	}
}

void FTransaction::AddReferencedObjects(FReferenceCollector& Collector)
{
	FImplementation& Held = *Implementation;
	Held.Table.AddReferencedObjects(Collector);
	for (FObjectRecord& Record : Held.Records)
	{
		Collector.AddStableReference(&Record.Object);
	}
	for (FImplementation::FHeldChange& Change : Held.Changes)
	{
		Collector.AddStableReference(&Change.Object);
	}
	Collector.AddReferencedObject(Held.PrimaryObject);
}

#pragma once

#include "CoreMinimal.h"
#include "Misc/Guid.h"

/** Why an object is told about a transaction. */
enum class ETransactionObjectEventType : uint8
{
	/** The transaction was undone or redone. */
	UndoRedo,
	/** The transaction ended with the object changed. */
	Finalized,
	/** The object is being changed while the transaction is open. */
	Snapshot
};

/** What of an object differs between the two sides of a transaction. */
struct FTransactionObjectDeltaChange
{
	bool bHasNameChange = false;
	bool bHasOuterChange = false;
	/** The object was made, given up or brought back. */
	bool bHasPendingKillChange = false;
	/** Values of the object, reflected or its own. */
	bool bHasNonPropertyChanges = false;

	bool HasChanged() const { return bHasNameChange || bHasOuterChange || bHasPendingKillChange || bHasNonPropertyChanges; }
};

/** What a transaction did to one object. */
class FTransactionObjectEvent
{
public:
	FTransactionObjectEvent() = default;
	FTransactionObjectEvent(const FGuid& InTransactionId, ETransactionObjectEventType InEventType,
		const FTransactionObjectDeltaChange& InDeltaChange, FName InOriginalName, const FString& InOriginalOuterPath)
		: TransactionId(InTransactionId)
		, EventType(InEventType)
		, DeltaChange(InDeltaChange)
		, OriginalName(InOriginalName)
		, OriginalOuterPath(InOriginalOuterPath)
	{
	}

	const FGuid& GetTransactionId() const { return TransactionId; }
	ETransactionObjectEventType GetEventType() const { return EventType; }
	bool HasNameChange() const { return DeltaChange.bHasNameChange; }
	bool HasOuterChange() const { return DeltaChange.bHasOuterChange; }
	bool HasPendingKillChange() const { return DeltaChange.bHasPendingKillChange; }
	bool HasNonPropertyChanges() const { return DeltaChange.bHasNonPropertyChanges; }
	/** As they were on the side that was left. */
	FName GetOriginalObjectName() const { return OriginalName; }
	const FString& GetOriginalObjectOuterPathName() const { return OriginalOuterPath; }

private:
	FGuid TransactionId;
	ETransactionObjectEventType EventType = ETransactionObjectEventType::UndoRedo;
	FTransactionObjectDeltaChange DeltaChange;
	FName OriginalName;
	FString OriginalOuterPath;
};

#pragma once

#include "CoreMinimal.h"
#include "Misc/ITransaction.h"
#include "Misc/TransactionObjectEvent.h"

class UObject;

/** Somebody who shows what a transaction may change. Register it with GEditor->RegisterForUndo; unregister it before it goes. */
class UNREALED_API FEditorUndoClient
{
public:
	virtual ~FEditorUndoClient() = default;

	/** Whether the client wants to hear of this undo or redo. Asked after it was done, with the objects that it touched. */
	virtual bool MatchesContext(
		const FTransactionContext& InContext, const TArray<TPair<UObject*, FTransactionObjectEvent>>& TransactionObjectContexts) const
	{
		return true;
	}
	virtual void PostUndo(bool bSuccess) {}
	virtual void PostRedo(bool bSuccess) {}
	virtual FString GetTransactionContext() const { return FString(); }
};

/** A client that is registered while it lives. */
class UNREALED_API FSelfRegisteringEditorUndoClient : public FEditorUndoClient
{
public:
	FSelfRegisteringEditorUndoClient();
	virtual ~FSelfRegisteringEditorUndoClient() override;
	FSelfRegisteringEditorUndoClient(const FSelfRegisteringEditorUndoClient&) = delete;
	FSelfRegisteringEditorUndoClient& operator=(const FSelfRegisteringEditorUndoClient&) = delete;
};
